// An album on the whole screen: the walk through it, pictures that are slow or broken, captions.
#include "GalleryRig.h"
#include "controls/picture/PictureView.h"
#include "harness/WheelTurn.h"
#include "windows/show/CaptionLabel.h"

namespace neb {
namespace {

using namespace harness;

const QColor Colours[] = {Qt::red, Qt::green, Qt::blue, Qt::yellow};

class SlideScreen : public GalleryRig {
  protected:
    SlideScreen() {
        for (int I = 0; I < 4; ++I) AddSlide(QString(QChar(u'a' + I)), {400, 300}, Colours[I]);
    }
    static PictureView& View(const frmSlideScreen& Of) { return In<PictureView>(Of, "imgSlide"); }
    static std::string Caption(const frmSlideScreen& Of) {
        return In<CaptionLabel>(Of, "lblCaption").ShownText().toStdString();
    }
    static std::string Place(const frmSlideScreen& Of) {
        return In<QLabel>(Of, "lblPlace").text().toStdString();
    }
    static bool Shows(const frmSlideScreen& Of, int Row) {
        const QImage& Now = View(Of).Picture();
        if (Now.isNull()) return false;
        const QColor Is = Now.pixelColor(Now.width() / 2, Now.height() / 2), Want = Colours[Row];
        return qAbs(Is.red() - Want.red()) + qAbs(Is.green() - Want.green()) +
                   qAbs(Is.blue() - Want.blue()) <
               30;
    }
    static void Await(const frmSlideScreen& Of, int Row) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return Shows(Of, Row); }, 5000)) << Row;
    }
    QLineEdit& CaptionField(const frmSlideScreen& Of) { return In<QLineEdit>(Of, "txtCaption"); }
};

TEST_F(SlideScreen, FillsTheScreenWithThePictureOnBlackItsCaptionAndItsPlace) {
    Open(2);
    InScreen([&](frmSlideScreen& Screen) {
        Await(Screen, 1);
        EXPECT_EQ(Screen.screen()->geometry(), Screen.geometry());
        EXPECT_EQ("b", Caption(Screen));
        EXPECT_EQ("2 of 4", Place(Screen));
        EXPECT_EQ("Slide 2 of 4, b", Screen.focusWidget()->accessibleName().toStdString());
        const QImage Shot = Screen.grab().toImage();
        EXPECT_EQ(QColor(Qt::black), Shot.pixelColor(2, 2));
        const QRect Picture = View(Screen).PictureRect();
        EXPECT_TRUE(View(Screen).height() == Picture.height() ||
                    View(Screen).width() == Picture.width())
            << "as large as there is room";
        EXPECT_EQ(Picture.size(), View(Screen).Picture().size()) << "fitted beforehand";
    });
}

TEST_F(SlideScreen, KeysAndTheWheelGoThroughTheAlbumAndStopAtItsEnds) {
    Open();
    InScreen([&](frmSlideScreen& Screen) {
        const struct {
            Qt::Key Key;
            int Row;
        } Steps[] = {{Qt::Key_Right, 1},  {Qt::Key_Space, 2}, {Qt::Key_PageDown, 3},
                     {Qt::Key_Down, 3},   {Qt::Key_Left, 2},  {Qt::Key_Backspace, 1},
                     {Qt::Key_PageUp, 0}, {Qt::Key_Up, 0},    {Qt::Key_End, 3},
                     {Qt::Key_Home, 0}};
        for (const auto& [Key, Row] : Steps) {
            QTest::keyClick(&Screen, Key);
            EXPECT_EQ(Row, Screen.Row());
            Await(Screen, Row);
        }
        for (const int Turned : {-60, -60, -120}) TurnWheel(View(Screen), Turned);
        EXPECT_EQ(2, Screen.Row());
    });
    EXPECT_EQ("c", InHand()) << "back at the slide that was seen";
}

TEST_F(SlideScreen, OpensByADoubleClickAndClosesByEnterAndEsc) {
    Open();
    for (const Qt::Key Each : {Qt::Key_Return, Qt::Key_Escape}) {
        bool Closed = false;
        WhenOpen<frmSlideScreen>([&](frmSlideScreen& Screen) {
            EXPECT_TRUE(AwaitActive(Screen));
            EXPECT_EQ(1, Screen.Row());
            QTest::keyClick(&Screen, Each);
            Closed = !Screen.IsLoaded();
            Screen.Unload();
        });
        ClickOn(PictureAt(1));
        QTest::mouseDClick(Tiles().viewport(), Qt::LeftButton, {}, PictureAt(1));
        EXPECT_TRUE(Closed);
        Activate();
    }
    EXPECT_EQ(0, Home->LeftCount);
}

TEST_F(SlideScreen, ThePicturesBesideItAreReadAheadAndNoOthers) {
    ReadThroughFiles();
    Open();
    InScreen([&](frmSlideScreen& Screen) {
        Await(Screen, 0);
        QTest::qWait(300);
        Files->Hang(PathOf(2));
        Files->Hang(PathOf(3));
        QTest::keyClick(&Screen, Qt::Key_Right);
        EXPECT_TRUE(Shows(Screen, 1)) << "at once";
    });
}

TEST_F(SlideScreen, APictureThatHangsFreezesNothingAndOneGoesOn) {
    ReadThroughFiles();
    Files->Hang(PathOf(2));
    Open();
    InScreen([&](frmSlideScreen& Screen) {
        Await(Screen, 0);
        QTest::keyClick(&Screen, Qt::Key_Right);
        EXPECT_TRUE(QTest::qWaitFor([&] { return View(Screen).Picture().isNull(); }, 2000));
        EXPECT_EQ("Reading 00000002.JPG ...", View(Screen).EmptyText().toStdString());
        EXPECT_EQ("b", Caption(Screen));
        QTest::keyClick(&Screen, Qt::Key_Right);
        Await(Screen, 2);
        QTest::keyClick(&Screen, Qt::Key_Left);
        Files->GoOn(PathOf(2));
        Await(Screen, 1);
    });
}

TEST_F(SlideScreen, ABrokenPictureSaysSoOnTheSameScreenAndOneGoesOn) {
    WriteFile(Stored(2), "no picture");
    DeleteFile(Stored(3));
    Open();
    InScreen([&](frmSlideScreen& Screen) {
        Await(Screen, 0);
        for (const int Row : {1, 2}) {
            QTest::keyClick(&Screen, Qt::Key_Right);
            const auto Says = [&] {
                const QString& Words = View(Screen).EmptyText();
                return Words.startsWith(u"This picture cannot be shown."_s) &&
                       Words.contains(FileStem(Row + 1));
            };
            EXPECT_TRUE(QTest::qWaitFor(Says, 2000)) << Row;
            EXPECT_TRUE(View(Screen).Picture().isNull());
        }
        QTest::keyClick(&Screen, Qt::Key_Right);
        Await(Screen, 3);
        EXPECT_EQ("", View(Screen).EmptyText().toStdString());
    });
    EXPECT_EQ(0, Boxes.ShownCount());
}

TEST_F(SlideScreen, F2EditsTheCaptionAndTheSlideStaysInSight) {
    Open();
    InScreen([&](frmSlideScreen& Screen) {
        Await(Screen, 0);
        QTest::keyClick(&Screen, Qt::Key_F2);
        QLineEdit& Field = CaptionField(Screen);
        ASSERT_TRUE(Field.isVisible());
        EXPECT_EQ("a", Field.selectedText().toStdString());
        QTest::keyClicks(&Field, u"zoo \"x\""_s);
        QTest::keyClick(&Field, Qt::Key_Return);
        Settle();
        EXPECT_FALSE(Field.isVisible());
        EXPECT_TRUE(Screen.IsLoaded());
        EXPECT_EQ("zoo \u201Cx\u201D", Slide(1).SlideText.toStdString());
        EXPECT_EQ("4 of 4", Place(Screen));
        Await(Screen, 0);
        QTest::keyClick(&Screen, Qt::Key_F2);
        QTest::keyClicks(&Field, u"other"_s);
        QTest::keyClick(&Field, Qt::Key_Escape);
        EXPECT_TRUE(Screen.IsLoaded());
        EXPECT_EQ("zoo \u201Cx\u201D", Slide(1).SlideText.toStdString());
    });
    EXPECT_EQ("zoo \u201Cx\u201D", InHand());
}

TEST_F(SlideScreen, TabStoresAndEditsTheNextCaption) {
    Open();
    InScreen([&](frmSlideScreen& Screen) {
        QTest::keyClick(&Screen, Qt::Key_F2);
        QLineEdit& Field = CaptionField(Screen);
        QTest::keyClicks(&Field, u"x"_s);
        QTest::keyClick(&Field, Qt::Key_Tab);
        Settle();
        EXPECT_TRUE(Field.isVisible());
        EXPECT_EQ("b", Field.text().toStdString());
        QTest::keyClicks(&Field, u"y"_s);
    });
    EXPECT_EQ("x", Slide(1).SlideText.toStdString());
    EXPECT_EQ("y", Slide(2).SlideText.toStdString()) << "what is typed counts when it closes";
}

TEST_F(SlideScreen, ASlideDeletedHereGivesWayToTheNextAndTheLastToTheAlbum) {
    Open(4);
    const auto Delete = [&](frmSlideScreen& Screen) {
        Boxes.Expect(u"Are you sure you want to delete the selected slides?"_s, BoxAnswer::Yes);
        QTest::keyClick(&Screen, Qt::Key_Delete);
        Settle();
    };
    InScreen([&](frmSlideScreen& Screen) {
        Delete(Screen);
        EXPECT_EQ("3 of 3", Place(Screen));
        Await(Screen, 2);
        for (int I = 0; I < 3; ++I) Delete(Screen);
        EXPECT_FALSE(Screen.IsLoaded());
    });
    EXPECT_EQ(0, Slides().Count());
}

TEST_F(SlideScreen, AlbumsThatGoElsewhereCloseIt) {
    Open();
    InScreen([&](frmSlideScreen& Screen) {
        Changes(Engine).DeleteAlbum(AlbumID)->Now();
        Settle();
        EXPECT_FALSE(Screen.IsLoaded());
    });
    EXPECT_EQ(1, Home->LeftCount);
}

TEST_F(SlideScreen, ThePointerRestsAway) {
    Open();
    InScreen([&](frmSlideScreen& Screen) { EXPECT_EQ(Qt::BlankCursor, Screen.cursor().shape()); });
}

}  // namespace
}  // namespace neb
