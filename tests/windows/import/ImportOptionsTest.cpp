// The choices in the import windows: in which order pictures are listed, what they are called, at
// which size they are kept; and that each is remembered.
#include <QCheckBox>
#include <QComboBox>

#include "ExifPictures.h"
#include "IntakeHarness.h"
#include "albums/PictureOrder.h"
#include "settings/SettingKeys.h"
#include "windows/import/frmQuickShow.h"

namespace neb {
namespace {

using namespace harness;

class ImportChoices : public Intake {
  protected:
    ~ImportChoices() override {
        if (Window) Drop(*Window);
    }
    void Show() { Window = ShowFilter(0, Pics.Path()); }
    void Photo(const char* Name, const char* Words, const char* Taken) {
        MakePhoto(Pics / QString::fromLatin1(Name), Words, Taken);
    }
    // By the keyboard, as the field is left by most.
    void ChooseOrder(Qt::Key Key) {
        auto& Box = In<QComboBox>(*Window, "cboOrder");
        Box.setFocus();
        QTest::keyClick(&Box, Key);
    }
    void ClickCaptions() {
        auto& Box = In<QCheckBox>(*Window, "chkCaptions");
        QTest::mouseClick(&Box, Qt::LeftButton, {}, {8, Box.height() / 2});
    }
    std::string Left() { return CaptionsOf(NonSelected(*Window)); }
    std::string Right() { return CaptionsOf(Selected(*Window)); }
    std::shared_ptr<ImportForm> Window;
};

TEST_F(ImportChoices, NumbersInNamesCountAsPeopleReadThem) {
    for (const char* Name : {"IMG_10.jpg", "IMG_2.jpg", "img_1.jpg"})
        MakePicture(Pics / QString::fromLatin1(Name));
    Show();
    EXPECT_EQ("img_1,IMG_2,IMG_10", Left());
}

TEST_F(ImportChoices, TheTimeTakenOrdersTheRowsThatAreThereAndThoseToCome) {
    Photo("a.jpg", "", "2004:05:06 12:00:00");
    Photo("b.jpg", "", "2004:05:06 11:00:00");
    Photo("c.jpg", "", "2004:05:06 13:00:00");
    Photo("d.jpg", "", "2004:05:05 23:00:00");
    Show();
    ClickCaptions();
    EXPECT_EQ("a,b,c,d", Left());
    ChooseOrder(Qt::Key_Down);
    EXPECT_EQ("d,b,a,c", Left());
    EXPECT_EQ("Taken", ReadText(OpenSettings(), Setting::PictureOrder));
    Drop(*Window);
    Show();
    EXPECT_EQ("d,b,a,c", Left()) << "remembered";
    ChooseOrder(Qt::Key_Up);
    EXPECT_EQ("a,b,c,d", Left());
    EXPECT_EQ("Name", ReadText(OpenSettings(), Setting::PictureOrder));
}

TEST_F(ImportChoices, TheOrderOfSelectedPicturesIsTheUsersOwn) {
    MakePictures(5);
    Show();
    for (const int Row : {3, 0}) {
        NonSelected(*Window).SetRow(Row);
        Press(*Window, "cmdMoveRightOne");
    }
    EXPECT_EQ("d,a", Right());
    ChooseOrder(Qt::Key_Down);
    ChooseOrder(Qt::Key_Up);
    EXPECT_EQ("d,a", Right());
    EXPECT_EQ("b,c,e", Left());
}

TEST_F(ImportChoices, RowsThatComeBackAreOrderedAgain) {
    MakePictures(4);
    Show();
    NonSelected(*Window).SetRow(0);
    Press(*Window, "cmdMoveRightOne");
    Press(*Window, "cmdMoveLeftAll");
    EXPECT_EQ("b,c,d,a", Left());
    ChooseOrder(Qt::Key_Down);
    ChooseOrder(Qt::Key_Up);
    EXPECT_EQ("a,b,c,d", Left());
}

TEST_F(ImportChoices, ARowKeepsItsPictureAndItsSelectionWhereverItGoes) {
    MakePhoto(Pics / u"a.jpg"_s, "", "2004:05:06 12:00:00", Qt::red);
    MakePhoto(Pics / u"b.jpg"_s, "", "2004:05:06 11:00:00", Qt::green);
    Show();
    NonSelected(*Window).SetRow(0);
    ChooseOrder(Qt::Key_Down);
    ASSERT_EQ(Pics / u"b.jpg"_s, NonSelected(*Window).TextMatrix(0, ImportForm::ColPath));
    const auto Middle = [](const FlexGrid& Grid, int Row) {
        return Grid.ShownPicture(Row, ImportForm::ColPicture).Picture.pixelColor(30, 30);
    };
    EXPECT_GT(Middle(NonSelected(*Window), 0).green(), 120);
    EXPECT_GT(Middle(NonSelected(*Window), 1).red(), 240);
    EXPECT_TRUE(NonSelected(*Window).IsSelected(1));
    Press(*Window, "cmdMoveRightOne");
    EXPECT_GT(Middle(Selected(*Window), 0).red(), 240);
    EXPECT_GT(Middle(NonSelected(*Window), 0).green(), 120);
}

TEST_F(ImportChoices, CaptionsAreThePicturesOwnWordsUnlessThatIsSwitchedOff) {
    Photo("a.jpg", "Our garden", "");
    Photo("b.jpg", "", "");
    Show();
    EXPECT_EQ("Our garden,b", Left());
    NonSelected(*Window).SetRow(0);
    Press(*Window, "cmdMoveRightOne");
    ClickCaptions();
    EXPECT_EQ("a|b", Right() + '|' + Left());
    EXPECT_FALSE(ReadFlag(OpenSettings(), Setting::PictureCaptions));
    Drop(*Window);
    Show();
    EXPECT_EQ("a,b", Left()) << "remembered";
    ClickCaptions();
    EXPECT_EQ("Our garden,b", Left());
}

TEST_F(ImportChoices, ACaptionThatWasTypedStays) {
    Photo("a.jpg", "Our garden", "");
    Photo("b.jpg", "The sea", "");
    Photo("c.jpg", "A hill", "");
    Show();
    FlexGrid& Grid = NonSelected(*Window);
    const auto TypeInto = [&](int Row, const char* Text) {
        ASSERT_TRUE(Grid.EditCell(Row, ImportForm::ColCaption));
        Type(Text);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    };
    TypeInto(0, "Mine");
    TypeInto(1, "b");  // what would be proposed without the words
    TypeInto(2, "A hill");
    ClickCaptions();
    EXPECT_EQ("Mine,b,c", Left());
    Press(*Window, "cmdMoveRightAll");
    ClickCaptions();
    EXPECT_EQ("Mine,b,A hill", Right());
}

TEST_F(ImportChoices, TheSizeChosenInTheWindowIsThatAtWhichPicturesAreKept) {
    MakePicture(Pics / u"a.png"_s, 2000, 1500);
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    Window = ShowFilter(AlbumID, Pics.Path());
    auto& Box = In<QComboBox>(*Window, "cboKeepPictures");
    Box.setFocus();
    QTest::keyClick(&Box, Qt::Key_Down);
    ASSERT_EQ("1920 x 1080", Box.currentText().toStdString());
    Press(*Window, "cmdMoveRightAll");
    Boxes.Expect(u"1 slides successfully imported."_s);
    Press(*Window, "cmdImport");
    EXPECT_EQ(QSize(1440, 1080),
              QImage(SlidesFolder(Engine.DBPath(), AlbumID) + u"00000001.jpg"_s).size());
    EXPECT_EQ("1920x1080", ReadText(OpenSettings(), Setting::KeepPictures).toStdString());
}

TEST_F(ImportChoices, AreInQuickShowToo) {
    Photo("a.jpg", "Our garden", "");
    const auto Show = NewForm<frmQuickShow>();
    Window = Show;
    Show->SetImportDir(Pics.Path());
    ShowActive(*Show);
    EXPECT_EQ("Our garden", CaptionsOf(Selected(*Show)));
    for (const char* Name : {"cboOrder", "chkCaptions", "cboKeepPictures"})
        EXPECT_TRUE(In<QWidget>(*Show, Name).isVisible()) << Name;
}

// The letters that buttons and fields answer to with Alt, each once, and none of the main menu's.
TEST_F(ImportChoices, LettersDoNotCollide) {
    const auto Show = NewForm<frmQuickShow>();
    Window = Show;
    WriteFile(Pics / u"film.mp4"_s, "x");
    Show->SetImportDir(Pics.Path());
    ShowActive(*Show);
    QStringList Letters = {u"F"_s, u"A"_s, u"S"_s, u"I"_s, u"P"_s, u"W"_s, u"H"_s};
    const auto Take = [&](const QString& Text) {
        const QString Letter = QKeySequence::mnemonic(Text).toString().section(u'+', 1);
        if (Letter.isEmpty()) return;
        EXPECT_FALSE(Letters.contains(Letter)) << Text.toStdString();
        Letters << Letter;
    };
    for (const auto* Each : Show->findChildren<QAbstractButton*>()) Take(Each->text());
    for (const auto* Each : Show->findChildren<QLabel*>())
        if (Each->buddy()) Take(Each->text());
    EXPECT_GE(Letters.size(), 7 + 6);
}

// No choice is cut, and the window is no wider than a small screen, in a font half as large again.
TEST_F(ImportChoices, HaveRoomInALargeFont) {
    const QFont Before = QApplication::font();
    QFont Large = Before;
    Large.setPointSizeF(Before.pointSizeF() * 1.5);
    QApplication::setFont(Large);
    MakePictures(1);
    WriteFile(Pics / u"film.mp4"_s, "x");
    Show();
    EXPECT_LE(Window->minimumSizeHint().width(), 1024);
    for (const char* Name : {"cboOrder", "chkCaptions", "cboKeepPictures", "cmdPassedOver",
                             "lblPassedOver", "cmdImport"}) {
        const auto& Field = In<QWidget>(*Window, Name);
        EXPECT_GE(Field.width(), Field.sizeHint().width()) << Name;
        EXPECT_GE(Field.height(), Field.minimumSizeHint().height()) << Name;
    }
    QApplication::setFont(Before);
}

}  // namespace
}  // namespace neb
