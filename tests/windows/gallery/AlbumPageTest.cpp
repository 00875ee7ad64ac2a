// An album looked through: what the page shows, how large, and what its keys do.
#include <QAccessible>
#include <QElapsedTimer>
#include <QScrollBar>
#include <QWheelEvent>

#include "GalleryRig.h"
#include "harness/ByTheClock.h"
#include "settings/SettingKeys.h"

namespace neb {
namespace {

using namespace harness;

class AlbumPageShown : public GalleryRig {
  protected:
    int Kept() { return ReadNumber(OpenSettings(), Setting::GalleryPictures); }
    void Turn(Qt::KeyboardModifiers Keys) {
        QWidget& Over = *Tiles().viewport();
        const QPoint At = Over.rect().center();
        QWheelEvent Wheel(At, Over.mapToGlobal(At), {}, {0, -120}, Qt::NoButton, Keys,
                          Qt::NoScrollPhase, false);
        qApp->notify(&Over, &Wheel);
    }
    QSlider& Slider() { return In<QSlider>(Page(), "sldSize"); }
};

TEST_F(AlbumPageShown, ListsTheSlidesInTheirOrderUnderTheNameAndTheCount) {
    AddSlides({u"pear"_s, u"Apple"_s, u"fig"_s});
    Open();
    EXPECT_EQ("Apple|fig|pear", Captions());
    EXPECT_EQ("Garden  3 slides", Title());
    EXPECT_EQ("Apple", InHand());
    EXPECT_EQ(AlbumID, Page().AlbumID());
    EXPECT_EQ(&Tiles(), QApplication::focusWidget());
}

TEST_F(AlbumPageShown, BeginsWithTheSlideThatIsAskedForInView) {
    AddMany(200);
    const std::int32_t Wanted = Album().Slides.back()->SlideID;
    Open(Wanted);
    EXPECT_EQ("slide 00199", InHand());
    EXPECT_TRUE(IsInView(199));
}

TEST_F(AlbumPageShown, SaysWhatToDoWithAnEmptyAlbum) {
    Open();
    EXPECT_EQ("Garden  0 slides", Title());
    const QImage Empty = Tiles().viewport()->grab().toImage();
    int Inked = 0;
    for (int Y = 0; Y < Empty.height(); ++Y)
        for (int X = 0; X < Empty.width(); ++X) Inked += Empty.pixel(X, Y) != Empty.pixel(0, 0);
    EXPECT_LT(300, Inked) << "words";
    for (const Qt::Key Each : {Qt::Key_Return, Qt::Key_F2, Qt::Key_Delete}) Press(Each);
    EXPECT_EQ(0, Boxes.ShownCount());
}

TEST_F(AlbumPageShown, LeavesByEscAndByItsButton) {
    AddSlides({u"a"_s});
    Open();
    Press(Qt::Key_Escape);
    EXPECT_EQ(1, Home->LeftCount);
    harness::Press(Page(), "cmdBack");
    EXPECT_EQ(2, Home->LeftCount);
    Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(3, Home->LeftCount);
}

TEST_F(AlbumPageShown, KeysAndTheWheelChangeTheSizeWhichIsKept) {
    AddMany(60);
    Open();
    EXPECT_EQ(160, Tiles().Side());
    Press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(200, Tiles().Side());
    Press(Qt::Key_Minus, Qt::ControlModifier);
    Press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(128, Tiles().Side());
    Slider().setFocus();
    QTest::keyClick(&Slider(), Qt::Key_PageUp);
    EXPECT_EQ(168, Tiles().Side());
    EXPECT_TRUE(QTest::qWaitFor([&] { return Kept() == 168; }, 3000));
    Home.reset();
    Open();
    EXPECT_EQ(168, Tiles().Side());
}

TEST_F(AlbumPageShown, CtrlAndTheWheelChangeTheSizeAndScrollNothing) {
    AddMany(200);
    Open();
    Turn(Qt::ControlModifier);
    EXPECT_EQ(128, Tiles().Side());
    EXPECT_EQ(0, Tiles().verticalScrollBar()->value());
    Turn({});
    EXPECT_EQ(128, Tiles().Side());
    EXPECT_LT(0, Tiles().verticalScrollBar()->value());
}

TEST_F(AlbumPageShown, TheSlideInHandStaysInViewAtEverySize) {
    AddMany(300);
    Open(Album().Slides[150]->SlideID);
    for (const Qt::Key Each : {Qt::Key_Plus, Qt::Key_Plus, Qt::Key_Plus, Qt::Key_Minus,
                               Qt::Key_Minus, Qt::Key_Minus, Qt::Key_Minus}) {
        Press(Each, Qt::ControlModifier);
        EXPECT_TRUE(IsInView(150)) << Tiles().Side();
    }
}

// The slides are there at once; what is read is what is in view.
TEST_F(AlbumPageShown, FiveThousandSlidesAreThereAtOnce) {
    harness::GoByTheClock();
    AddMany(5000);
    Open();
    QElapsedTimer Time;
    Time.start();
    Page().ShowAlbum(AlbumID);
    Tiles().viewport()->grab();
    EXPECT_GT(1000, Time.elapsed());
    Time.restart();
    Press(Qt::Key_End);
    Tiles().viewport()->grab();
    EXPECT_GT(300, Time.elapsed());
    EXPECT_EQ("slide 04999", InHand());
    EXPECT_TRUE(IsInView(4999));
    QTest::qWait(100);
    EXPECT_GT(150, Tiles().Pictures().Kept());
}

TEST_F(AlbumPageShown, TellsAScreenReaderWhichSlideItIs) {
    AddSlides({u"Garden in June"_s, u"x"_s});
    Open();
    auto* View = QAccessible::queryAccessibleInterface(&Tiles());
    ASSERT_NE(nullptr, View);
    ASSERT_EQ(2, View->childCount());
    EXPECT_EQ("Slide 1 of 2, Garden in June",
              View->child(0)->text(QAccessible::Name).toStdString());
    EXPECT_EQ("Slides of Garden", View->text(QAccessible::Name).toStdString());
}

TEST_F(AlbumPageShown, TypingLettersGoesToTheSlideThatBeginsSo) {
    AddSlides({u"Apple"_s, u"Fig"_s, u"Pear"_s});
    Open();
    Type(u"pe"_s);
    EXPECT_EQ("Pear", InHand());
}

}  // namespace
}  // namespace neb
