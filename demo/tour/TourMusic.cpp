#include "TourMusic.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "demo/music/Music.h"
#include "presentation/ShowSound.h"
#include "shell/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/modHostFiles.h"

using namespace neb;

namespace {

clsNEBAlbum& NewestAlbum() {
    if (!DBEngine || DBEngine->Albums.empty()) throw Fault(QStringLiteral("There is no album."));
    return *DBEngine->Albums.back();
}

clsNEBSlideShow& NewestShow(clsNEBAlbum& Album) {
    if (Album.SlideShows.empty()) throw Fault(QStringLiteral("The album has no show."));
    return *Album.SlideShows.back();
}

// The album and its show that Quick Show has just saved: the newest of both.
struct TourShow {
    TourShow() : Album(NewestAlbum()), Show(NewestShow(Album)) {}
    clsNEBAlbum& Album;
    clsNEBSlideShow& Show;
};

struct Track {
    size_t Tune;
    std::int32_t SlideSeqStart, SlideSeqEnd;
    bool Repeat, FitToSong, Fade;
};
constexpr Track Tracks[] = {{0, 1, 3, false, true, false}, {1, 4, 6, true, false, true}};
constexpr std::int32_t ChimeSeq = 5;

QString TuneFile(const QString& MusicDir, size_t Tune) {
    return MusicDir + u'/' + QString::fromUtf8(demo::AllTunes()[Tune].FileName);
}

void LayTrack(const TourShow& Over, const QString& File, std::int32_t Seq, const Track& Laid) {
    const std::int32_t AlbumID = Over.Album.AlbumID;
    const QString Folder = SoundTracksFolder(DBEngine->DBPath(), AlbumID);
    const QString Name = QStringLiteral("%1_%2.wav").arg(FileStem(Over.Show.SlideShowID)).arg(Seq);
    MakeDirs(Folder);
    CopyFile(File, Folder + Name);
    DBEngine->SaveSlideShowSoundTrack(Over.Show.SlideShowID, AlbumID, Seq, Name, Laid.SlideSeqStart,
                                      Laid.SlideSeqEnd, Laid.Repeat, Laid.FitToSong, Laid.Fade);
}

void GiveClip(const QString& ClipPath, std::int32_t SlideSeq, bool Override) {
    const TourShow Of;
    const clsNEBSlideShowDetail* Detail = Of.Show.GetDetail(SlideSeq);
    const clsNEBSlide* Slide = Detail ? Of.Album.GetSlide(Detail->SlideID) : nullptr;
    if (!Slide) throw Fault(QStringLiteral("There is no slide %1.").arg(SlideSeq));
    const QString Name = FileStem(Slide->SlideID) + QStringLiteral(".wav");
    CopyFile(ClipPath, SlidesFolder(DBEngine->DBPath(), Of.Album.AlbumID) + Name);
    DBEngine->SaveSlide(Slide->SlideID, Of.Album.AlbumID, Slide->SlideText, Slide->SlideLoc, Name,
                        Override, false);
}

void LayMusic(const QString& MusicDir) {
    const TourShow Over;
    if (Over.Show.Details.size() < static_cast<size_t>(std::end(Tracks)[-1].SlideSeqEnd)) return;
    std::int32_t Seq = 0;
    for (const Track& Laid : Tracks) LayTrack(Over, TuneFile(MusicDir, Laid.Tune), ++Seq, Laid);
    GiveClip(TuneFile(MusicDir, 2), ChimeSeq, true);
}

// The show begins without music then, as it does for a user whose files have gone.
void TryToLay(const QString& MusicDir) {
    try {
        LayMusic(MusicDir);
    } catch (const Fault& Problem) {
        std::fprintf(stderr, "neb-demo: no music: %s\n", qPrintable(Problem.Text()));
    }
}

}  // namespace

void LayMusicOverFirstShow(const QString& MusicDir) {
    TheShowSoundMaker() = [MusicDir, Maker = TheShowSoundMaker(), IsLaid = false]() mutable {
        if (!std::exchange(IsLaid, true)) TryToLay(MusicDir);
        return Maker();
    };
}

QString RecordedClipPath() {
    const QString Folder = DBEngine->DBPath() + QStringLiteral("Temp/");
    MakeDirs(Folder);
    return Folder + QStringLiteral("tmp.wav");
}

void GiveRecordedClip() {
    const auto Slides = static_cast<std::int32_t>(TourShow().Show.Details.size());
    GiveClip(RecordedClipPath(), std::min(std::end(Tracks)[-1].SlideSeqEnd + 1, Slides), false);
}
