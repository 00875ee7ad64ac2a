// The picture preview: what closes it, what it says about a file it cannot open, its place.
#include "controls/picture/PictureView.h"
#include "harness/HangingFiles.h"
#include "windows/import/IntakeHarness.h"
#include "windows/lists/ScreenPicture.h"
#include "windows/lists/frmPicturePopup.h"

namespace neb {
namespace {

using namespace harness;

class PicturePopup : public Intake {
  protected:
    // Shows a picture and does something in the window; whether the window closed by that.
    bool ClosesBy(std::function<void(frmPicturePopup&)> Do) {
        const auto Window = NewForm<frmPicturePopup>();
        QString Path = MakePicture(Pics / u"a.jpg"_s, 200, 100);
        Window->LoadSlide(Path);
        bool Closed = false;
        WhenOpen<frmPicturePopup>([&](frmPicturePopup& Shown) {
            QTest::qWaitFor([&] { return !View(Shown).Picture().isNull(); }, 2000);
            Do(Shown);
            Closed = !Shown.IsLoaded();
            Shown.Unload();
        });
        Window->ShowModal();
        return Closed;
    }
    void ExpectFailure() {
        Boxes.Expect(
            u"Failed to Load the Picture.\nMake sure that you have permission to use the file."_s,
            u"Load Failed"_s, BoxIcon::Critical, BoxAnswer::Ok);
    }
    static PictureView& View(const QWidget& Window) { return In<PictureView>(Window, "imgSlide"); }
};

TEST_F(PicturePopup, ClosesByClickEnterAndEsc) {
    EXPECT_TRUE(ClosesBy([](auto& Shown) { QTest::mouseClick(&View(Shown), Qt::LeftButton); }));
    for (Qt::Key Key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape})
        EXPECT_TRUE(ClosesBy([Key](auto& Shown) { QTest::keyClick(&Shown, Key); })) << Key;
    EXPECT_TRUE(ClosesBy([](auto& Shown) { Shown.close(); }));
    EXPECT_FALSE(ClosesBy([](auto& Shown) { QTest::keyClick(&Shown, Qt::Key_A); }));
    EXPECT_FALSE(ClosesBy([](auto& Shown) { QTest::mouseClick(&View(Shown), Qt::RightButton); }));
}

TEST_F(PicturePopup, KeepsTheEscKeyFromTheWindowBelow) {
    MakePictures(1);
    const auto Below = ShowFilter(MakeAlbum(u"Garden"_s), Pics.Path());
    const auto Window = NewForm<frmPicturePopup>();
    QString Path = Pics / u"a.jpg"_s;
    Window->LoadSlide(Path);
    WhenOpen<frmPicturePopup>([](auto& Shown) { QTest::keyClick(&Shown, Qt::Key_Escape); });
    Window->ShowModal();
    QTest::qWait(20);
    EXPECT_FALSE(Window->IsLoaded());
    EXPECT_TRUE(Below->IsLoaded());
    Below->Unload();
}

// The second click of a double click opened it: letting go must not close it again.
TEST_F(PicturePopup, StaysWhenAButtonIsLetGoThatWasPressedElsewhere) {
    EXPECT_FALSE(ClosesBy([](auto& Shown) { QTest::mouseRelease(&View(Shown), Qt::LeftButton); }));
}

TEST_F(PicturePopup, FillsItsWindowWithThePicture) {
    ClosesBy([](frmPicturePopup& Shown) {
        Shown.resize(600, 500);
        EXPECT_TRUE(QTest::qWaitFor([&] { return View(Shown).size() == QSize(600, 500); }));
        EXPECT_EQ(Shown.rect(), View(Shown).geometry());
        EXPECT_EQ(QRect(0, 100, 600, 300), View(Shown).PictureRect());
    });
}

TEST_F(PicturePopup, OpensNoWindowOnAPictureThatCannotBeShown) {
    WriteFile(Pics / u"bad.jpg"_s, "no picture");
    WhenOpen<frmPicturePopup>([](frmPicturePopup& Shown) {
        ADD_FAILURE() << "an empty window";
        Shown.Unload();
    });
    for (const QString& Name : {u"gone.jpg"_s, u"bad.jpg"_s}) {
        ExpectFailure();
        PopUpPicture(Pics / Name);
        QTest::qWait(20);
    }
    EXPECT_EQ(2, Boxes.ShownCount());
}

// A picture on a medium that answers when the test lets it.
class SlowPicture : public PicturePopup {
  protected:
    SlowPicture() {
        mFiles->Hang(Slow);
        SetScreenReader([Files = mFiles](const QString& File, QSize Most) {
            Files->Pass(File);
            ImgX Picture;
            Picture.LoadAtLeast(File, Most);
            return Picture.Picture();
        });
    }
    ~SlowPicture() override {
        SetScreenReader({});
        mFiles->GoOnAll();
    }
    void GoOn() { mFiles->GoOn(Slow); }
    const QString Slow = MakePicture(Pics / u"slow.jpg"_s, 200, 100);

  private:
    std::shared_ptr<HangingFiles> mFiles = std::make_shared<HangingFiles>();
};

TEST_F(SlowPicture, StandsInWordsWhileThePictureIsReadAndFreezesNothing) {
    WhenOpen<frmPicturePopup>([&](frmPicturePopup& Shown) {
        EXPECT_TRUE(View(Shown).Picture().isNull());
        EXPECT_EQ("Reading slow.jpg ...", View(Shown).EmptyText().toStdString());
        GoOn();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !View(Shown).Picture().isNull(); }, 2000));
        Shown.Unload();
    });
    PopUpPicture(Slow);
}

TEST_F(SlowPicture, ClosesByEscWhileThePictureIsRead) {
    bool Closed = false;
    WhenOpen<frmPicturePopup>([&](frmPicturePopup& Shown) {
        QTest::keyClick(&Shown, Qt::Key_Escape);
        Closed = !Shown.IsLoaded();
    });
    PopUpPicture(Slow);
    EXPECT_TRUE(Closed);
    EXPECT_EQ(0, Boxes.ShownCount());
}

TEST_F(SlowPicture, GivesWayToTheBoxWhenItTurnsOutBroken) {
    WriteFile(Slow, "no picture");
    ExpectFailure();
    Boxes.WhileNextIsOpen([] { EXPECT_EQ(nullptr, Open<frmPicturePopup>()); });
    WhenOpen<frmPicturePopup>([&](frmPicturePopup&) { GoOn(); });
    PopUpPicture(Slow);
    EXPECT_EQ(1, Boxes.ShownCount());
}

TEST_F(PicturePopup, KeepsNoMorePixelsOfAHugePictureThanScreensHave) {
    MakePicture(Pics / u"poster.jpg"_s, 12000, 9000);
    WhenOpen<frmPicturePopup>([&](frmPicturePopup& Shown) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return !View(Shown).Picture().isNull(); }, 8000));
        const QSize Kept = View(Shown).Picture().size(), Most = PictureView::LargestScreen();
        EXPECT_EQ(Kept, Kept.boundedTo(Most));
        EXPECT_TRUE(Kept.width() == Most.width() || Kept.height() == Most.height());
        Shown.Unload();
    });
    PopUpPicture(Pics / u"poster.jpg"_s);
}

TEST_F(PicturePopup, RemembersItsSizePlaceAndState) {
    ClosesBy([](auto& Shown) {
        EXPECT_GE(Shown.width(), 484);
        EXPECT_GE(Shown.height(), 445);
    });
    ClosesBy([](auto& Shown) {
        Shown.resize(500, 400);
        Shown.move(30, 40);
        EXPECT_EQ(QPoint(30, 40), Shown.pos());
    });
    const clsSettings Settings = OpenSettings();
    const struct {
        const char *Key, *Value;
    } Kept[] = {{"Width", "7500"},
                {"Height", "6000"},
                {"WindowState", "0"},
                {"Left", "450"},
                {"Top", "600"}};
    for (const auto& Row : Kept)
        EXPECT_EQ(
            Row.Value,
            Settings.GetValue(u"frmPicturePopup"_s, QString::fromLatin1(Row.Key), {}).toStdString())
            << Row.Key;
    ClosesBy([](auto& Shown) {
        EXPECT_EQ(QSize(500, 400), Shown.size());
        EXPECT_EQ(QPoint(30, 40), Shown.pos());
    });
    ClosesBy([](auto& Shown) { Shown.showMaximized(); });
    ClosesBy([](auto& Shown) { EXPECT_TRUE(Shown.isMaximized()); });
    EXPECT_EQ("7500", OpenSettings().GetValue(u"frmPicturePopup"_s, u"Width"_s, {}).toStdString());
}

}  // namespace
}  // namespace neb
