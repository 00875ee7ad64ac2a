// The picture preview: what closes it, what it says about a file it cannot open, its place.
#include "controls/picture/PictureView.h"
#include "windows/import/IntakeHarness.h"
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
            Do(Shown);
            Closed = !Shown.IsLoaded();
            Shown.Unload();
        });
        Window->ShowModal();
        return Closed;
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
        QCoreApplication::processEvents();
        EXPECT_EQ(Shown.rect(), View(Shown).geometry());
        EXPECT_EQ(QRect(0, 100, 600, 300), View(Shown).PictureRect());
    });
}

TEST_F(PicturePopup, SaysThatAFileCannotBeOpened) {
    const auto Window = NewForm<frmPicturePopup>();
    QString Path = Pics / u"gone.jpg"_s;
    Boxes.Expect(
        u"Failed to Load the Picture.\nMake sure that you have permission to use the file."_s,
        u"Load Failed"_s, BoxIcon::Critical, BoxAnswer::Ok);
    Window->LoadSlide(Path);
}

TEST_F(PicturePopup, SaysNothingOfAPictureThatCannotBeDecoded) {
    const auto Window = NewForm<frmPicturePopup>();
    QString Path = Pics / u"bad.jpg"_s;
    WriteFile(Path, "no picture");
    Window->LoadSlide(Path);
    EXPECT_TRUE(View(*Window).Picture().isNull());
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
