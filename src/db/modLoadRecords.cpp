#include "db/modLoadRecords.h"

#include <unordered_map>

#include "db/records/RecordCodec.h"
#include "db/records/WholeWords.h"

namespace neb {
namespace {

// Objects by key, the first one of a key standing. The last one found is tried first, since the
// records of one owner follow one another.
template <class Key, class Object>
class OwnerTable {
  public:
    void Add(Key TheKey, Object* TheObject) { mObjects.try_emplace(TheKey, TheObject); }
    Object* Find(Key TheKey) {
        if (mLast && TheKey == mLastKey) return mLast;
        const auto Found = mObjects.find(TheKey);
        if (Found == mObjects.end()) return nullptr;
        mLastKey = TheKey;
        return mLast = Found->second;
    }

  private:
    std::unordered_map<Key, Object*> mObjects;
    Key mLastKey{};
    Object* mLast = nullptr;
};

// A show is found by its own ID and its album's together.
std::uint64_t ShowKey(std::int32_t AlbumID, std::int32_t SlideShowID) {
    return static_cast<std::uint64_t>(static_cast<std::uint32_t>(AlbumID)) << 32 |
           static_cast<std::uint32_t>(SlideShowID);
}

class TreeLoader {
  public:
    TreeLoader(clsDBEngine& Engine, const RecordSource& Source)
        : mEngine(Engine), mSource(Source), mWords(WordsOf(Source).Texts) {}

    // Each record goes to the Place of its type below, its texts whole.
    template <class Record>
    void Load() {
        const std::optional<RecordBytes> File = mSource(LayoutOf<Record>::File);
        if (!File) return;
        ForEachRecord<Record>(*File, [this](Record&& Row) {
            mWords.Complete(Row);
            Place(std::move(Row));
        });
    }

  private:
    void Place(AlbumRecord&& Row);
    void Place(SlideRecord&& Row);
    void Place(SlideShowRecord&& Row);
    void Place(SlideShowDetailRecord&& Row);
    void Place(SlideShowSoundTrackRecord&& Row);

    clsDBEngine& mEngine;
    const RecordSource& mSource;
    WholeWords mWords;
    OwnerTable<std::int32_t, clsNEBAlbum> mAlbums;
    OwnerTable<std::uint64_t, clsNEBSlideShow> mShows;
};

void TreeLoader::Place(AlbumRecord&& Row) {
    clsNEBAlbum* Album = mEngine.Albums.emplace_back(std::make_unique<clsNEBAlbum>()).get();
    Album->AlbumID = Row.AlbumID;
    Album->AlbumName = std::move(Row.AlbumName);
    mAlbums.Add(Album->AlbumID, Album);
}

void TreeLoader::Place(SlideRecord&& Row) {
    clsNEBAlbum* Album = mAlbums.Find(Row.AlbumID);
    if (!Album) return;
    auto Slide = std::make_unique<clsNEBSlide>();
    Slide->SlideID = Row.SlideID;
    Slide->SlideText = std::move(Row.SlideText);
    Slide->SlideLoc = std::move(Row.SlideLoc);
    Slide->SoundTrackLoc = std::move(Row.SoundTrackLoc);
    Slide->Override = Row.Override;
    Slide->Repeat = Row.Repeat;
    Album->Slides.push_back(std::move(Slide));
}

void TreeLoader::Place(SlideShowRecord&& Row) {
    clsNEBAlbum* Album = mAlbums.Find(Row.AlbumID);
    if (!Album) return;
    clsNEBSlideShow* Show =
        Album->SlideShows.emplace_back(std::make_unique<clsNEBSlideShow>()).get();
    Show->SlideShowID = Row.SlideShowID;
    Show->SlideShowName = std::move(Row.SlideShowName);
    Show->ProgressionMethod = Row.ProgressionMethod;
    mShows.Add(ShowKey(Row.AlbumID, Row.SlideShowID), Show);
}

void TreeLoader::Place(SlideShowDetailRecord&& Row) {
    clsNEBSlideShow* Show = mShows.Find(ShowKey(Row.AlbumID, Row.SlideShowID));
    if (Show) Show->SaveDetail(Row.SlideID, Row.SlideSeq, Row.SlideText);
}

void TreeLoader::Place(SlideShowSoundTrackRecord&& Row) {
    clsNEBSlideShow* Show = mShows.Find(ShowKey(Row.AlbumID, Row.SlideShowID));
    if (Show)
        Show->SaveSoundTrack(Row.SoundTrackSeq, Row.SoundTrackLoc, Row.SlideSeqStart,
                             Row.SlideSeqEnd, Row.Repeat, Row.FitToSong, Row.Fade);
}

// The records, and what they cannot hold.
struct Building {
    RecordImage Image;
    std::vector<WholeText> Words;
};

// One record into the file of its type.
template <class Record>
void Put(Building& Into, const Record& Row) {
    EncodeRecord(Into.Image[LayoutOf<Record>::File], Row);
    NoteWhole(Into.Words, Row);
}

template <class Row>
void PutLiveRows(Building& Into, const std::vector<Row>& Rows) {
    for (const Row& Next : Rows)
        if (Next.Deleted == 0) Put(Into, Next);
}

void PutShow(Building& Into, std::int32_t AlbumID, const clsNEBSlideShow& Show) {
    Put(Into,
        SlideShowRecord{Show.SlideShowID, AlbumID, Show.SlideShowName, Show.ProgressionMethod, 0});
    for (const auto& Detail : Show.Details)
        Put(Into, SlideShowDetailRecord{Show.SlideShowID, AlbumID, Detail->SlideID,
                                        Detail->SlideSeq, Detail->SlideText, 0});
    for (const auto& Track : Show.SoundTracks)
        Put(Into, SlideShowSoundTrackRecord{Show.SlideShowID, AlbumID, Track->SoundTrackSeq,
                                            Track->SoundTrackLoc, Track->SlideSeqStart,
                                            Track->SlideSeqEnd, Track->Repeat, Track->FitToSong,
                                            Track->Fade, 0});
}

void PutSlide(Building& Into, std::int32_t AlbumID, const clsNEBSlide& Slide) {
    Put(Into, SlideRecord{Slide.SlideID, AlbumID, Slide.SlideText, Slide.SlideLoc,
                          Slide.SoundTrackLoc, Slide.Override, Slide.Repeat, 0});
}

void PutAlbum(Building& Into, const clsNEBAlbum& Album) {
    Put(Into, AlbumRecord{Album.AlbumID, Album.AlbumName, 0});
    for (const auto& Slide : Album.Slides) PutSlide(Into, Album.AlbumID, *Slide);
    for (const auto& Show : Album.SlideShows) PutShow(Into, Album.AlbumID, *Show);
}

RecordImage Finished(Building Made) {
    for (PackedRecords& File : Made.Image.Files) File.Finish();
    Made.Image.Words = WordsFileOf(Made.Words);
    return std::move(Made.Image);
}

}  // namespace

void LoadAlbumTree(clsDBEngine& Engine, const RecordSource& Source) {
    TreeLoader Loader(Engine, Source);
    Loader.Load<AlbumRecord>();
    Loader.Load<SlideRecord>();
    Loader.Load<SlideShowRecord>();
    Loader.Load<SlideShowDetailRecord>();
    Loader.Load<SlideShowSoundTrackRecord>();
}

RecordImage BuildImage(const clsDBEngine& Engine, const AlbumToPut* With) {
    Building Made;
    PutLiveRows(Made, Engine.Properties);
    PutLiveRows(Made, Engine.EffectStats);
    const IDCounters Next =
        With ? With->Next
             : IDCounters{Engine.NextAlbumID, Engine.NextSlideID, Engine.NextSlideShowID};
    Put(Made, NextIDsRecord{Next.AlbumID, Next.SlideID, Next.SlideShowID});
    for (const auto& Album : Engine.Albums)
        PutAlbum(Made, With && With->Album.AlbumID == Album->AlbumID ? With->Album : *Album);
    if (With && !Engine.GetAlbum(With->Album.AlbumID)) PutAlbum(Made, With->Album);
    return Finished(std::move(Made));
}

RecordImage BuildPart(const clsDBEngine& Engine, const Change& What) {
    Building Made;
    Put(Made, NextIDsRecord{Engine.NextAlbumID, Engine.NextSlideID, Engine.NextSlideShowID});
    clsNEBAlbum* const Album = Engine.GetAlbum(What.AlbumID);
    if (!Album) return Finished(std::move(Made));
    if (IsWholeAlbum(What)) {
        PutAlbum(Made, *Album);
        return Finished(std::move(Made));
    }
    Put(Made, AlbumRecord{Album->AlbumID, Album->AlbumName, 0});
    if (const clsNEBSlide* Slide = Album->GetSlide(What.SlideID))
        PutSlide(Made, What.AlbumID, *Slide);
    if (const clsNEBSlideShow* Show = Album->GetSlideShow(What.SlideShowID))
        PutShow(Made, What.AlbumID, *Show);
    return Finished(std::move(Made));
}

}  // namespace neb
