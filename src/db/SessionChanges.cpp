#include "db/SessionChanges.h"

#include <QtEndian>

#include "db/AlbumSums.h"
#include "db/SongNames.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "db/modLoadRecords.h"
#include "db/records/WordsFile.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

// Four numbers: what was changed, and the keys of the thing. Then, for each record file, the packed
// and the unpacked length, and the packed records. Then, if there are any, the whole texts of these
// records, as in Words.dat, to the end: entries of earlier versions have none.
constexpr qsizetype KeysLength = 4 * 4;

void Append(QByteArray& To, std::int64_t Number) {
    char Bytes[4];
    qToLittleEndian(static_cast<std::int32_t>(Number), Bytes);
    To.append(Bytes, sizeof Bytes);
}

class EntryReader {
  public:
    explicit EntryReader(const QByteArray& Entry) : mBytes(Entry) {}

    std::optional<Change> Keys() {
        if (mBytes.size() < KeysLength) return std::nullopt;
        const std::int32_t What = Number();
        if (What < 0 || What > static_cast<std::int32_t>(Change::Kind::ShowDeleted))
            return std::nullopt;
        const std::int32_t AlbumID = Number(), SlideID = Number();
        return Change{static_cast<Change::Kind>(What), AlbumID, SlideID, Number()};
    }
    std::optional<RecordImage> Records() {
        RecordImage Image;
        for (PackedRecords& File : Image.Files) {
            if (mBytes.size() - mPlace < 8) return std::nullopt;
            const std::int32_t Packed = Number(), Length = Number();
            if (Packed < 0 || Packed > mBytes.size() - mPlace) return std::nullopt;
            auto Read = PackedRecords::FromBytes(mBytes.mid(mPlace, Packed), Length);
            if (!Read) return std::nullopt;
            File = std::move(*Read);
            mPlace += Packed;
        }
        Image.Words = mBytes.sliced(mPlace);
        if (!Image.Words->isEmpty() && WordsIn(*Image.Words).Is != WordsFound::State::Sound)
            return std::nullopt;
        return Image;
    }

  private:
    std::int32_t Number() {
        mPlace += 4;
        return qFromLittleEndian<std::int32_t>(mBytes.constData() + mPlace - 4);
    }

    const QByteArray& mBytes;
    qsizetype mPlace = 0;
};

// The thing of that key in the place of the former, or behind the others.
template <class Object>
void PutInto(std::vector<std::unique_ptr<Object>>& All, std::unique_ptr<Object> New,
             std::int32_t Object::*Key) {
    for (std::unique_ptr<Object>& Each : All)
        if ((*Each).*Key == (*New).*Key) {
            Each = std::move(New);
            return;
        }
    All.push_back(std::move(New));
}

void DropFrom(clsNEBAlbum& Album, const Change& What) {
    if (What.SlideID != 0) Album.TakeSlide(What.SlideID);
    if (What.SlideShowID != 0) Album.TakeSlideShow(What.SlideShowID);
}

void PutParts(clsNEBAlbum& Into, clsNEBAlbum& Read) {
    for (auto& Slide : Read.Slides) PutInto(Into.Slides, std::move(Slide), &clsNEBSlide::SlideID);
    for (auto& Show : Read.SlideShows)
        PutInto(Into.SlideShows, std::move(Show), &clsNEBSlideShow::SlideShowID);
}

// Read: the album as the entry has it, with the parts that the entry is about.
void Put(clsDBEngine& Engine, const Change& What, std::unique_ptr<clsNEBAlbum> Read) {
    clsNEBAlbum* const There = Engine.GetAlbum(What.AlbumID);
    if (!There || IsWholeAlbum(What))
        return PutInto(Engine.Albums, std::move(Read), &clsNEBAlbum::AlbumID);
    There->AlbumName = Read->AlbumName;
    if (Read->Slides.empty() && Read->SlideShows.empty())
        DropFrom(*There, What);
    else
        PutParts(*There, *Read);
}

// As far as its files are the program's: what else lies there stays, with its folder.
void DeleteAlbumFolder(const QString& DBPath, std::int32_t AlbumID) {
    const QString Folder = AlbumFolder(DBPath, AlbumID);
    if (IsLink(Folder)) return DeleteFolder(Folder);
    for (const QString& Part :
         {SoundTracksFolder(DBPath, AlbumID), SlidesFolder(DBPath, AlbumID)}) {
        DeleteFilesIn(Part);
        DeleteFolder(Part);
    }
    DeleteFile(AlbumSumsPath(Folder));
    DeleteFile(SongNamesPath(Folder));
    DeleteFolder(Folder);
}

// A show of which no more is known than its number.
clsNEBSlideShow ShowOfNumber(std::int32_t SlideShowID) {
    clsNEBSlideShow Show;
    Show.SlideShowID = SlideShowID;
    return Show;
}

// By what is there after all of it: what was deleted and has come back has its files.
void DeleteFilesOf(const clsDBEngine& Engine, const Change& What) {
    clsNEBAlbum* const Album = Engine.GetAlbum(What.AlbumID);
    const auto Is = [&](Change::Kind Kind) { return What.What == Kind; };
    if (Is(Change::Kind::AlbumDeleted) && !Album && What.AlbumID > 0)
        DeleteAlbumFolder(Engine.DBPath(), What.AlbumID);
    if (Is(Change::Kind::SlideDeleted) && Album && !Album->GetSlide(What.SlideID))
        Album->DeleteSlideFiles(What.SlideID, Engine);
    if (Is(Change::Kind::ShowDeleted) && Album && !Album->GetSlideShow(What.SlideShowID))
        Album->DeleteSlideShowFiles(ShowOfNumber(What.SlideShowID), Engine);
}

}  // namespace

QByteArray EntryOf(const clsDBEngine& Engine, const Change& What) {
    QByteArray Entry;
    for (const std::int32_t Key :
         {static_cast<std::int32_t>(What.What), What.AlbumID, What.SlideID, What.SlideShowID})
        Append(Entry, Key);
    const RecordImage Part = BuildPart(Engine, What);
    for (const PackedRecords& File : Part.Files) {
        Append(Entry, File.Bytes().size());
        Append(Entry, File.Length());
        Entry += File.Bytes();
    }
    return Entry + *Part.Words;
}

bool CarryOutEntry(clsDBEngine& Engine, const QByteArray& Entry) {
    EntryReader Reader(Entry);
    const std::optional<Change> What = Reader.Keys();
    auto Records = What ? Reader.Records() : std::nullopt;
    if (!Records) return false;
    clsDBEngine Part;
    Part.LoadFrom(RecordsInImage(std::move(*Records)));
    if (Part.Albums.empty())
        Engine.DeleteAlbum(What->AlbumID);
    else
        Put(Engine, *What, std::move(Part.Albums.front()));
    Engine.NextAlbumID = Part.NextAlbumID;
    Engine.NextSlideID = Part.NextSlideID;
    Engine.NextSlideShowID = Part.NextSlideShowID;
    Engine.SortAlbums();
    return true;
}

// A file that cannot go now bars nobody from his albums.
void FinishDeleting(const clsDBEngine& Engine, const LeftSession& Left) {
    for (const SessionEntry& Each : Left.Entries) try {
            if (const auto What = EntryReader(Each.Body).Keys()) DeleteFilesOf(Engine, *What);
        } catch (const Fault&) {
            continue;
        }
}

void BringBack(clsDBEngine& Engine, const LeftSession& Left, LeftBehind& Brought) {
    for (const SessionEntry& Each : Left.Entries) {
        if (!CarryOutEntry(Engine, Each.Body)) continue;
        ++Brought.Changes;
        Brought.When = Each.When;
    }
}

}  // namespace neb
