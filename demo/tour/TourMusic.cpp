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

namespace neb::demo {
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
constexpr Track Tracks[] = {{0, 1, 4, false, true, false}, {1, 5, 6, false, false, true}};

QString TuneFile(const QString& MusicDir, size_t Tune) {
    return MusicDir + u'/' + QString::fromUtf8(AllTunes()[Tune].FileName);
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

void LayMusic(const QString& MusicDir) {
    const TourShow Over;
    if (Over.Show.Details.size() < static_cast<size_t>(std::end(Tracks)[-1].SlideSeqEnd)) return;
    std::int32_t Seq = 0;
    for (const Track& Laid : Tracks) LayTrack(Over, TuneFile(MusicDir, Laid.Tune), ++Seq, Laid);
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

}  // namespace neb::demo
