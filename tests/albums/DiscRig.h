// Two albums with pictures, thumbnails and sounds in a database of their own, and a place for the
// folder that is written from them.
#pragma once

#include <gtest/gtest.h>

#include <QImage>
#include <QProcess>

#include "albums/transfer/DiscFolder.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "harness/FolderState.h"
#include "harness/TempFolder.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb::harness {

using namespace Qt::StringLiterals;

// "Garden": the slides "rose", "elm" (with a sound) and "pond"; the shows "Walk" of rose and elm,
// and "Spring" of elm, pond and elm again with a track. "Sea": one slide, no show.
class DiscSource {
  public:
    explicit DiscSource(const QString& Dir) {
        Engine.SetDBPath(Dir);
        Engine.InitializeDB();
        Garden = MakeAlbum(u"Garden"_s);
        AddSlide(Garden, u"rose"_s, Qt::red);
        AddSlide(Garden, u"elm"_s, Qt::green, "wind");
        AddSlide(Garden, u"pond"_s, Qt::blue);
        Walk = AddShow(u"Walk"_s, {1, 2}).SlideShowID;
        clsNEBSlideShow& Second = AddShow(u"Spring"_s, {2, 3, 2});
        Spring = Second.SlideShowID;
        Second.SaveSoundTrack(1, u"birds.wav"_s, 1, 3, true, false, true);
        WriteFile(SoundTracksFolder(Dir, Garden) + u"birds.wav"_s, "birds");
        Sea = MakeAlbum(u"Sea"_s);
        AddSlide(Sea, u"wave"_s, Qt::cyan);
        Engine.FinalizeDB();
    }

    std::int32_t MakeAlbum(const QString& Name) {
        std::int32_t AlbumID = 0;
        EXPECT_TRUE(Engine.SaveAlbum(AlbumID, Name));
        MakeDirs(SlidesFolder(Engine.DBPath(), AlbumID));
        MakeDirs(SoundTracksFolder(Engine.DBPath(), AlbumID));
        return AlbumID;
    }
    void AddSlide(std::int32_t AlbumID, const QString& Caption, QColor Colour,
                  const QByteArray& Sound = {}) {
        std::int32_t SlideID = 0;
        clsNEBSlide& Slide =
            *Engine.GetAlbum(AlbumID)->SaveSlide2(SlideID, Caption, {}, {}, false, false, Engine);
        const QString Stem = SlidesFolder(Engine.DBPath(), AlbumID) + FileStem(SlideID);
        Slide.SlideLoc = FileStem(SlideID) + u".jpg"_s;
        QImage Picture(64, 48, QImage::Format_RGB32);
        Picture.fill(Colour);
        EXPECT_TRUE(Picture.save(Stem + u".jpg"_s));
        EXPECT_TRUE(Picture.scaled(72, 72).save(Stem + u"Small.bmp"_s));
        if (Sound.isEmpty()) return;
        Slide.SoundTrackLoc = FileStem(SlideID) + u".wav"_s;
        WriteFile(Stem + u".wav"_s, Sound);
    }
    clsNEBSlideShow& AddShow(const QString& Name, const std::vector<std::int32_t>& SlideIDs) {
        std::int32_t SlideShowID = 0;
        clsNEBAlbum& Album = *Engine.GetAlbum(Garden);
        EXPECT_TRUE(Album.SaveSlideShow(SlideShowID, Name, 1, Engine));
        clsNEBSlideShow& Show = *Album.GetSlideShow(SlideShowID);
        for (const std::int32_t SlideID : SlideIDs)
            Show.SaveDetail(SlideID, static_cast<std::int32_t>(Show.Details.size()) + 1,
                            Name + QString::number(SlideID));
        return Show;
    }
    DiscContents All() const { return {{Garden}, {Sea}}; }

    clsDBEngine Engine;
    std::int32_t Garden = 0, Sea = 0, Walk = 0, Spring = 0;
};

// What a written folder holds, in words: "Garden: rose elm pond; Spring=Spring2 ... +1 | Sea:
// wave".
inline std::string ContentsOf(const QString& Dir) {
    clsDBEngine Engine;
    Engine.SetDBPath(Dir);
    Engine.InitializeDB(Recovery::InMemory);
    QStringList Albums;
    for (const auto& Album : Engine.Albums) {
        QString Text = Album->AlbumName + u':';
        for (const auto& Slide : Album->Slides) Text += u' ' + Slide->SlideText;
        for (const auto& Show : Album->SlideShows) {
            Text += u"; "_s + Show->SlideShowName + u'=';
            for (const auto& Detail : Show->Details)
                Text +=
                    Detail->SlideText + u'@' + Album->GetSlide(Detail->SlideID)->SlideText + u' ';
            Text += u"+%1"_s.arg(Show->SoundTracks.size());
        }
        Albums << Text;
    }
    return Albums.join(u" | "_s).toStdString();
}

// The host's own tool over the list in the folder; its exit code.
inline int Sha256Sum(const QString& Dir) {
    QProcess Tool;
    Tool.setWorkingDirectory(Dir);
    Tool.start(u"sha256sum"_s, {u"--strict"_s, u"--quiet"_s, u"-c"_s, u"Sums.sha256"_s});
    EXPECT_TRUE(Tool.waitForFinished(30000));
    return Tool.exitCode();
}

}  // namespace neb::harness
