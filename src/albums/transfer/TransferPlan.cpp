#include "albums/transfer/TransferPlan.h"

#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

constexpr int FirstSpareNumber = 100;  // the tracks of a show are numbered up to 99

QString ExtensionOf(const QString& Path) {
    return GetFileExt(GetFileName(Path));
}

// The name of a track; where it is taken the next one from 100 up that is not.
QString TrackName(std::int32_t SlideShowID, const clsNEBSlideShowSoundTrack& Source,
                  std::set<QString>& Taken) {
    const auto Numbered = [&](std::int32_t Number) {
        return FileStem(SlideShowID) + u'_' + QString::number(Number) +
               ExtensionOf(Source.SoundTrackLoc);
    };
    QString Name = Numbered(Source.SoundTrackSeq);
    for (int Spare = FirstSpareNumber; !Taken.insert(Name.toUpper()).second; ++Spare)
        Name = Numbered(Spare);
    return Name;
}

}  // namespace

void TransferPlan::GoWithout(const FileToCopy& Missing) {
    const QString Name = GetFileName(Missing.To);
    if (Missing.Is == FileToCopy::Kind::Picture) Slides[Missing.Of].SlideLoc.clear();
    if (Missing.Is == FileToCopy::Kind::SlideSound) {
        clsNEBSlide& Slide = Slides[Missing.Of];
        Slide.SoundTrackLoc.clear();
        Slide.Override = Slide.Repeat = false;
    }
    if (Missing.Is == FileToCopy::Kind::Track)
        std::erase_if(Shows[Missing.Of].SoundTracks,
                      [&](const auto& Track) { return Track->SoundTrackLoc == Name; });
}

// What is named with a directory lies outside the database, and comes into the album.
QString TransferPlanner::SourcePath(const QString& Folder, const QString& Loc) const {
    return HoldsSeparator(Loc) ? Loc : Folder + Loc;
}

void TransferPlanner::AddFile(FileToCopy::Kind Is, const QString& From, const QString& Folder,
                              const QString& Name) {
    const size_t Of =
        (Is == FileToCopy::Kind::Track ? mPlan.Shows.size() : mPlan.Slides.size()) - 1;
    mPlan.Files.push_back({Is, From, Folder + Name, Of});
}

void TransferPlanner::AddAlbum(const clsNEBAlbum& Source) {
    for (const auto& Slide : Source.Slides) AddSlide(*Slide);
    for (const auto& Show : Source.SlideShows) AddShow(*Show, Show->SlideShowName, 0);
}

std::int32_t TransferPlanner::NextSlide() const {
    while (mPlan.TakenSlides.contains(mPlan.Next.SlideID)) ++mPlan.Next.SlideID;
    return mPlan.Next.SlideID++;
}

std::int32_t TransferPlanner::NextShow() const {
    while (mPlan.TakenShows.contains(mPlan.Next.SlideShowID)) ++mPlan.Next.SlideShowID;
    return mPlan.Next.SlideShowID++;
}

void TransferPlanner::AddSlide(const clsNEBSlide& Source) {
    if (mMap.contains(Source.SlideID)) return;
    const std::int32_t SlideID = NextSlide();
    mMap.emplace(Source.SlideID, SlideID);
    clsNEBSlide& Copy = mPlan.Slides.emplace_back();
    Copy.SlideID = SlideID;
    Copy.SlideText = Source.SlideText;
    if (!Source.SlideLoc.isEmpty()) {
        const QString Picture =
            SourcePath(SlidesFolder(mSrcDB.DBPath(), mSrcAlbumID), Source.SlideLoc);
        Copy.SlideLoc = FileStem(SlideID) + ExtensionOf(Source.SlideLoc);
        AddFile(FileToCopy::Kind::Picture, Picture, SlidesFolder({}, mPlan.AlbumID), Copy.SlideLoc);
        AddThumbnail(Picture, SlideID);
    }
    AddSlideSound(Source, Copy);
}

void TransferPlanner::AddThumbnail(const QString& Picture, std::int32_t SlideID) {
    const qsizetype Dot = Picture.lastIndexOf(u'.');
    if (Dot >= 0) mThumbnail = Picture.left(Dot) + QStringLiteral("Small.bmp");
    if (mThumbnail.isEmpty()) return;
    AddFile(FileToCopy::Kind::Thumbnail, mThumbnail, SlidesFolder({}, mPlan.AlbumID),
            ThumbnailName(SlideID));
}

void TransferPlanner::AddSlideSound(const clsNEBSlide& Source, clsNEBSlide& Copy) {
    const QString Loc = Source.SoundTrackLoc.trimmed();
    if (Loc.isEmpty()) return;
    Copy.SoundTrackLoc = FileStem(Copy.SlideID) + ExtensionOf(Loc);
    Copy.Override = Source.Override;
    Copy.Repeat = Source.Repeat;
    AddFile(FileToCopy::Kind::SlideSound,
            SourcePath(SlidesFolder(mSrcDB.DBPath(), mSrcAlbumID), Loc),
            SlidesFolder({}, mPlan.AlbumID), Copy.SoundTrackLoc);
}

void TransferPlanner::AddShow(const clsNEBSlideShow& Source, const QString& Name,
                              std::int32_t SlideShowID, std::set<QString> Taken) {
    clsNEBSlideShow& Copy = mPlan.Shows.emplace_back();
    Copy.SlideShowID = SlideShowID != 0 ? SlideShowID : NextShow();
    Copy.SlideShowName = Name;
    Copy.ProgressionMethod = Source.ProgressionMethod;
    for (const auto& Detail : Source.Details)
        if (const auto Known = mMap.find(Detail->SlideID); Known != mMap.end())
            Copy.SaveDetail(Known->second, Detail->SlideSeq, Detail->SlideText);
    for (const auto& Track : Source.SoundTracks) {
        const bool HasFile = !Track->SoundTrackLoc.trimmed().isEmpty();
        const QString Loc = HasFile ? TrackName(Copy.SlideShowID, *Track, Taken) : QString();
        Copy.SaveSoundTrack(Track->SoundTrackSeq, Loc, Track->SlideSeqStart, Track->SlideSeqEnd,
                            Track->Repeat, Track->FitToSong, Track->Fade);
        if (!HasFile) continue;
        AddFile(FileToCopy::Kind::Track,
                SourcePath(SoundTracksFolder(mSrcDB.DBPath(), mSrcAlbumID), Track->SoundTrackLoc),
                SoundTracksFolder({}, mPlan.AlbumID), Loc);
    }
}

}  // namespace neb
