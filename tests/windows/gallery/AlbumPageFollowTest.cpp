// The page while slides change, by its own commands and elsewhere.
#include <QContextMenuEvent>

#include "GalleryRig.h"
#include "albums/SlideSave.h"
#include "windows/printing/PageSketch.h"
#include "windows/printing/frmPrintAlbum.h"
#include "windows/printing/frmPrintSlide.h"
#include "windows/slides/frmSlideDBM.h"

namespace neb {
namespace {

using namespace harness;

class AlbumPageFollow : public GalleryRig {
  protected:
    AlbumPageFollow() { AddSlides({u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s}); }
    template <class Answered>
    static void Do(Answered Given) {
        ASSERT_TRUE(Given);
        Given->Now();
        Settle();
    }
    void ExpectQuestion(BoxAnswer Answer) {
        Boxes.Expect(u"Are you sure you want to delete the selected slides?"_s,
                     u"Delete Confirmation"_s, BoxIcon::Question, Answer);
    }
    // Chooses an entry of the menu that the menu key opens.
    void Choose(const char* Name) {
        QTimer::singleShot(50, qApp, [Name] {
            auto* Menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(nullptr, Menu);
            auto* Entry = Menu->findChild<QAction*>(QString::fromLatin1(Name));
            ASSERT_NE(nullptr, Entry);
            EXPECT_TRUE(Entry->isEnabled());
            QTest::mouseClick(Menu, Qt::LeftButton, {}, Menu->actionGeometry(Entry).center());
        });
        QContextMenuEvent Key(QContextMenuEvent::Keyboard, TileAt(0).center(),
                              Tiles().viewport()->mapToGlobal(TileAt(0).center()));
        QApplication::sendEvent(Tiles().viewport(), &Key);
        Settle();
    }
    QImage PictureOf(std::int32_t ID) {
        ImgX Picture;
        Picture.Load(Stored(ID));
        return Picture.Picture();
    }
    QSize SizeOf(std::int32_t ID) { return PictureOf(ID).size(); }
    Changes Door{Engine};
};

TEST_F(AlbumPageFollow, SlidesComeAndGoAndWhatIsChosenStaysChosen) {
    Open(3);
    ClickOn(PictureAt(3), Qt::ControlModifier);
    EXPECT_EQ("c|d", Chosen());
    Do(Door.DeleteSlide(AlbumID, 1));
    AddSlide(u"aa"_s);
    Do(Door.SaveCaption(AlbumID, 3, u"z"_s));
    EXPECT_EQ("aa|b|d|e|z", Captions());
    EXPECT_EQ("d|z", Chosen());
    EXPECT_EQ("d", InHand());
    EXPECT_EQ("Garden  5 slides", Title());
}

TEST_F(AlbumPageFollow, AnAlbumThatIsRenamedOrDeletedElsewhereIsFollowed) {
    Open();
    Do(Door.RenameAlbum(AlbumID, u"Park"_s));
    EXPECT_EQ("Park  5 slides", Title());
    const std::int32_t Other = MakeAlbum(u"Other"_s);
    Do(Door.DeleteAlbum(Other));
    EXPECT_EQ(0, Home->LeftCount);
    Do(Door.DeleteAlbum(AlbumID));
    EXPECT_EQ(1, Home->LeftCount);
    EXPECT_EQ(0, Page().AlbumID());
}

TEST_F(AlbumPageFollow, DeleteAsksWithNoAsTheDefaultAndTakesWhatIsChosen) {
    Open(2);
    Press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ("b|c", Chosen());
    ExpectQuestion(BoxAnswer::No);
    Press(Qt::Key_Delete);
    EXPECT_EQ(BoxAnswer::No, Boxes.Last().Default);
    Settle();
    EXPECT_EQ("a|b|c|d|e", Captions());
    ExpectQuestion(BoxAnswer::Yes);
    Press(Qt::Key_Delete);
    Settle();
    EXPECT_EQ("a|d|e", Captions());
    EXPECT_FALSE(FileExists(Stored(2)));
    EXPECT_EQ("d", InHand()) << "the one that has come to its place";
    EXPECT_EQ("d", Chosen());
    EXPECT_EQ(2, Boxes.ShownCount());
}

TEST_F(AlbumPageFollow, ManySlidesAreDeletedUnderABar) {
    AddMany(60);
    Open();
    QTest::keyClick(&Tiles(), Qt::Key_A, Qt::ControlModifier);
    ExpectQuestion(BoxAnswer::Yes);
    Press(Qt::Key_Delete);
    Settle();
    EXPECT_EQ(0, Slides().Count());
    EXPECT_TRUE(Album().Slides.empty());
    EXPECT_EQ("Garden  0 slides", Title());
}

TEST_F(AlbumPageFollow, TheMenuTurnsWhatIsChosenWithoutLossAndShowsItTurned) {
    QImage Noise(320, 240, QImage::Format_RGB32);  // all of which a second encoding would change
    for (int Y = 0; Y < 240; ++Y)
        for (int X = 0; X < 320; ++X)
            Noise.setPixel(X, Y, qRgb(200 + X * Y % 50, X * 7 % 11, Y * X % 13));
    ASSERT_TRUE(Noise.save(Stored(1), "jpg", 80));
    const QImage Before = PictureOf(1);
    Open();
    Press(Qt::Key_Right, Qt::ShiftModifier);
    Choose("Right");
    EXPECT_EQ(QSize(240, 320), SizeOf(1));
    EXPECT_EQ(QSize(300, 400), SizeOf(2));
    EXPECT_EQ(QSize(400, 300), SizeOf(3));
    EXPECT_TRUE(QTest::qWaitFor([&] {
        const QImage Shown = Tiles().viewport()->grab(TileAt(0)).toImage();
        const QPoint Middle(TileAt(0).width() / 2, TileAt(0).height() / 2 - 20);
        return Shown.pixelColor(Middle.x(), Middle.y() - 60).red() > 200 &&
               Shown.pixelColor(Middle).green() < 60;
    }));
    Press(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
    Settle();
    EXPECT_EQ(Before, PictureOf(1)) << "to the pixel";
    EXPECT_EQ("a|b", Chosen());
}

// By that an undo bears its name; its pixels are let go of.
TEST_F(AlbumPageFollow, APictureThatWasTurnedAsideIsKnownAsTurned) {
    const std::int32_t ID = AddSlide(u"a"_s, {400, 300});
    const TurnedSlide Made = TurnSlide(Engine.DBPath(), AlbumID, Slide(ID), 1, {});
    EXPECT_TRUE(Made.InHand.IsTurned());
    EXPECT_TRUE(Made.InHand.Picture()->Picture().isNull());
    EXPECT_FALSE(Made.Jpeg.isEmpty());
}

TEST_F(AlbumPageFollow, APictureThatCannotBeTurnedIsToldAndStaysAsItIs) {
    WriteFile(Stored(1), "no picture");
    Open();
    Boxes.WhileNextIsOpen([&] { EXPECT_EQ("no picture", ReadFile(Stored(1)).toStdString()); });
    Boxes.Expect(u"The file is not a picture that this program can read.\n"_s + PathOf(1));
    Press(Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(1, Boxes.ShownCount());
}

TEST_F(AlbumPageFollow, TheMenuOpensTheSlideInTheSlideManager) {
    Open(3);
    Choose("Manager");
    auto* Manager = harness::Open<frmSlideDBM>();
    ASSERT_NE(nullptr, Manager);
    EXPECT_EQ("c", In<QLineEdit>(*Manager, "txtDscr").text().toStdString());
    EXPECT_EQ(AlbumID, In<QComboBox>(*Manager, "cboAlbum").currentData().toInt());
    Manager->Unload();
}

TEST_F(AlbumPageFollow, TheMenuOfSeveralSlidesHasWhatIsForOneGrey) {
    Open();
    Press(Qt::Key_Right, Qt::ShiftModifier);
    QTimer::singleShot(50, qApp, [] {
        auto* Menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(nullptr, Menu);
        QStringList On;
        for (const QAction* Each : Menu->actions())
            if (!Each->isSeparator() && Each->isEnabled()) On << Each->objectName();
        EXPECT_EQ("Left|Right|Print|Delete", On.join(u'|').toStdString());
        Menu->close();
    });
    Q_EMIT Tiles().MenuAsked(QPoint(100, 100));
}

TEST_F(AlbumPageFollow, PrintsOneSlideAsASlideAndSeveralAsContactSheets) {
    Open(2);
    bool IsOne = false;
    WhenOpen<frmPrintSlide>([&](frmPrintSlide& W) {
        IsOne = true;
        W.Unload();
    });
    Press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(IsOne);
    Activate();
    Press(Qt::Key_Right, Qt::ShiftModifier);
    std::string Says;
    WhenOpen<frmPrintAlbum>([&](frmPrintAlbum& W) {
        EXPECT_FALSE(In<QComboBox>(W, "cboAlbum").isVisible());
        Says = W.windowTitle().toStdString();
        EXPECT_EQ("2 slides, 1 page", In<PageSketch>(W, "sktPage").Sentence().toStdString());
        W.Unload();
    });
    Press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ("Print Slides", Says);
}

}  // namespace
}  // namespace neb
