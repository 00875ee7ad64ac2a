// Films as they come out of the window when nothing stands in for their making.
#include "FilmRig.h"
#include "show/film/FilmMaker.h"

namespace neb {
namespace {

using namespace harness;

class FilmOfWindow : public FilmRig {
  protected:
    FilmOfWindow() {
        TheFilmWorks() = OwnFilmWorks();
        TheFilmWorks().Open = [](const QString&) {};
        clsSettings Settings = OpenMemory();
        PutText(Settings, Setting::FilmSize, u"640x360"_s);
        neb::PutNumber(Settings, Setting::FilmRate, 24);
        PutDecimal(Settings, Setting::Timeout, 1);
        Settings.Save();
    }
};

TEST_F(FilmOfWindow, IsAFileWithItsSubtitlesBesideIt) {
    OpenReady();
    EXPECT_EQ(QSize(640, 360), In<PictureView>(*F, "pvwFilm").Picture().size());
    Tick("chkBeside");
    Press(*F, "cmdMake");
    ASSERT_TRUE(IsMade());
    EXPECT_TRUE(ReadFileHead(Out / u"Walk.mp4"_s, 12).contains("ftyp"));
    EXPECT_TRUE(ReadFile(Out / u"Walk.srt"_s).contains("-->"));
    EXPECT_GE(Findings().Rows(), 1) << "the song is missing in it";
    EXPECT_EQ(2u, ListDir(Out.Path()).size()) << "and nothing else is there";
}

TEST_F(FilmOfWindow, LeavesNothingWhenItIsStopped) {
    clsSettings Settings = OpenMemory();
    PutDecimal(Settings, Setting::Timeout, 300);
    Settings.Save();
    OpenFilm();
    Press(*F, "cmdMake");
    ASSERT_TRUE(Waits([&] { return F->windowTitle().contains(u'%'); }));
    Press(*F, "cmdStop");
    EXPECT_TRUE(Chooses());
    EXPECT_EQ(0u, ListDir(Out.Path()).size());
}

}  // namespace
}  // namespace neb
