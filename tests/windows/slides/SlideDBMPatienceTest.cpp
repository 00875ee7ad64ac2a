// Large pictures in the slide manager: the window lives while it reads, turns and stores them, and
// nothing can be begun on the way.
#include <QPainter>

#include "SlideRig.h"
#include "harness/Heartbeat.h"

namespace neb {
namespace {

using namespace harness;

// The most that a window may stand still, in milliseconds.
constexpr double Patience = 100;

class SlideDBMPatience : public SlideRig {
  protected:
    // A picture that is not read in the twinkling of an eye.
    QString MakeLarge() {
        QImage Tile(250, 250, QImage::Format_RGB32);
        for (int Y = 0; Y < Tile.height(); ++Y)
            for (int X = 0; X < Tile.width(); ++X)
                Tile.setPixel(X, Y, qRgb(X, Y, X * Y % 16 + 100));
        QImage Picture(6000, 4000, QImage::Format_RGB32);
        QPainter(&Picture).fillRect(Picture.rect(), Tile);
        const QString File = Pics / u"large.jpg"_s;
        Picture.save(File);
        return File;
    }
};

TEST_F(SlideDBMPatience, TheWindowLivesWhileALargePictureIsReadAndStored) {
    const QString File = MakeLarge();
    OpenAlbum();
    Type(u"large"_s);
    {
        Heartbeat Heart;
        PickPicture(File);
        EXPECT_GE(Heart.Beats(), 2);
        EXPECT_LT(Heart.LongestStandstill(), Patience);
    }
    EXPECT_TRUE(Dirty());
    EXPECT_FALSE(ShowsMessage());
    {
        Heartbeat Heart;
        Push("cmdRotate1");
        EXPECT_LT(Heart.LongestStandstill(), Patience);
    }
    EXPECT_LT(Shown().width(), Shown().height());
    {
        Heartbeat Heart;
        Push("cmdSave");
        EXPECT_GE(Heart.Beats(), 2);
        EXPECT_LT(Heart.LongestStandstill(), Patience);
    }
    EXPECT_EQ(QSize(512, 768), SizeOf(Stored(u"00000001.jpg"_s))) << "all its pixels were turned";
    EXPECT_FALSE(Dirty());
}

// As a screen reader might press them: the mouse and the keyboard wait.
TEST_F(SlideDBMPatience, NothingIsBegunMeanwhile) {
    const auto ID = AddSlide(u"a"_s);
    const QString File = MakeLarge();
    OpenSlide(ID);
    int Tried = 0;
    {
        const Heartbeat Heart([&] {
            if (Tried++) return;
            EXPECT_EQ(Pointer::Hourglass, ScreenPointer());
            for (const char* Name : {"cmdNext", "cmdNew", "cmdPicture", "cmdRotate1", "cmdRecord",
                                     "cmdDelete", "cmdClose", "cmdSave", "cmdCancel"})
                Push(Name);
            In<QAction>(*W, "mnuExit").trigger();
            EXPECT_FALSE(W->Unload());
        });
        PickPicture(File);
    }
    EXPECT_GT(Tried, 0);
    EXPECT_EQ(1, Dialogs.Count);
    EXPECT_EQ(ID, Chosen());
    EXPECT_EQ("a", Text());
    EXPECT_TRUE(Dirty());
    EXPECT_FALSE(ShowsMessage());
    EXPECT_GT(Shown().width(), Shown().height());
    EXPECT_TRUE(W->IsLoaded());
}

}  // namespace
}  // namespace neb
