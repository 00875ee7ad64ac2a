// The bulk slide manager with the keyboard alone, and on a database that may not be changed.
#include "BulkRig.h"
#include "harness/FolderState.h"
#include "windows/lists/frmPicturePopup.h"

namespace neb {
namespace {

using namespace harness;

class SlideMgrBulkKeys : public BulkRig {
  protected:
    static void KeyTo(Qt::Key Key, Qt::KeyboardModifiers Modifiers = {}) {
        ASSERT_TRUE(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Key, Modifiers);
    }
    static void Activate(const Window& Of) {
        Of->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(Of.get(), 2000));
    }
    static std::string Focus() { return QApplication::focusWidget()->objectName().toStdString(); }
};

TEST_F(SlideMgrBulkKeys, TabWalksFromTheAlbumOverTheGridAndTheButtons) {
    AddSlides({u"a"_s});
    const Window Bulk = OpenBulk(AlbumID);
    AlbumsOf(Bulk).setFocus();
    for (const char* Next : {"flxAlbum", "cmdFind", "cmdSetCaptions", "cmdDelete", "cmdSave",
                             "cmdCancel", "cmdClose", "cboAlbum"}) {
        KeyTo(Qt::Key_Tab);
        EXPECT_EQ(Next, Focus());
    }
}

TEST_F(SlideMgrBulkKeys, EveryTaskCanBeDoneWithoutAMouse) {
    AddSlides({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    MakeAlbum(u"Attic"_s);
    const Window Bulk = OpenBulk(0);
    // another album
    AlbumsOf(Bulk).setFocus();
    KeyTo(Qt::Key_Down);
    Activate(Bulk);
    EXPECT_EQ("a|b|c|d", Shown(Bulk));
    // captions, one after the other
    KeyTo(Qt::Key_Tab);
    KeyTo(Qt::Key_Home);
    KeyTo(Qt::Key_Return);
    Type("Anemone");
    KeyTo(Qt::Key_Tab);
    Type("Begonia");
    KeyTo(Qt::Key_Return);
    EXPECT_EQ("Anemone|Begonia|c|d", Shown(Bulk));
    ExpectDone(u"2 slides successfully saved."_s);
    KeyTo(Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return CaptionInAlbum(2) == "Begonia"; }));
    EXPECT_EQ("cboAlbum", Focus());
    // taking an edit back
    KeyTo(Qt::Key_Tab);
    KeyTo(Qt::Key_End);
    KeyTo(Qt::Key_F2);
    Type("x");
    KeyTo(Qt::Key_Return);
    EXPECT_EQ("Anemone|Begonia|c|x", Shown(Bulk));
    KeyTo(Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Shown(Bulk) == "Anemone|Begonia|c|d"; }));
    Activate(Bulk);
    // the picture of a slide
    GridOf(Bulk).setFocus();
    KeyTo(Qt::Key_Home);
    KeyTo(Qt::Key_Left);
    int Popups = 0;
    WhenOpen<frmPicturePopup>([&](frmPicturePopup& Popup) {
        ++Popups;
        QTest::keyClick(&Popup, Qt::Key_Escape);
    });
    KeyTo(Qt::Key_Return);
    EXPECT_EQ(1, Popups);
    // two slides away; the popup may give the keyboard back later than it goes
    EXPECT_TRUE(QTest::qWaitFor([&] {
        Bulk->activateWindow();
        GridOf(Bulk).setFocus();
        return QApplication::focusWidget() == &GridOf(Bulk);
    }));
    KeyTo(Qt::Key_Home);
    KeyTo(Qt::Key_Down, Qt::ShiftModifier);
    ExpectQuestion(BoxAnswer::Yes);
    ExpectDone(u"2 slides successfully deleted."_s);
    KeyTo(Qt::Key_Delete);
    Activate(Bulk);
    EXPECT_EQ("c|d", Shown(Bulk));
    KeyTo(Qt::Key_O, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Bulk->IsLoaded(); }));
}

// Reached as a child of the main window, whose menu has the letters F, A, L, I, P, W and H.
TEST_F(SlideMgrBulkKeys, ItsLettersAreFreeInTheMainMenuAndDifferent) {
    const Window Bulk = OpenBulk(-1);
    QString Letters = u"FALIPWH"_s;
    QStringList Texts = {In<QLabel>(*Bulk, "lblAlbum").text()};
    for (const auto* Each : Bulk->findChildren<QPushButton*>())
        if (Each->shortcut().toString().startsWith(u"Alt+")) Texts << Each->text();
    EXPECT_EQ(9, Texts.size());
    for (const QString& Each : Texts) {
        const QString Keys = QKeySequence::mnemonic(Each).toString();
        ASSERT_FALSE(Keys.isEmpty()) << Each.toStdString();
        EXPECT_FALSE(Letters.contains(Keys.back())) << Each.toStdString();
        Letters += Keys.back();
    }
}

TEST_F(SlideMgrBulkKeys, TheToolTipsAreTheDictatedOnes) {
    const Window Bulk = OpenBulk(-1);
    const std::pair<const char*, const char*> Tips[] = {
        {"cboAlbum", "Album to manage the slides for"},
        {"flxAlbum", "Slides in the currently selected album"},
        {"cmdSave", "Save changes to the slides"},
        {"cmdCancel", "Cancel changes to the slides"},
        {"cmdDelete", "Delete the selected slides"},
        {"cmdClose", "Close the form"},
    };
    for (const auto& [Name, Tip] : Tips)
        EXPECT_EQ(Tip, In<QWidget>(*Bulk, Name).toolTip().toStdString());
}

TEST_F(SlideMgrBulkKeys, AReadOnlyDatabaseIsShownAndNotChanged) {
    AddSlides({u"a"_s, u"b"_s});
    const std::int32_t Attic = MakeAlbum(u"Attic"_s);
    Engine.FinalizeDB();
    ReadOnlyDB = true;
    const QStringList Before = Everything(Db.Path());
    EXPECT_GT(Before.size(), 10);
    const Window Bulk = OpenBulk(AlbumID);
    EXPECT_EQ("a|b", Shown(Bulk));
    EXPECT_FALSE(GridOf(Bulk).CellPicture(1, clsImageBuffer::ColPicture).isNull());
    EXPECT_FALSE(GridOf(Bulk).EditCell(0, clsImageBuffer::ColText));
    for (const char* Off : {"cmdSave", "cmdDelete", "cmdCancel", "cmdSetCaptions"}) {
        EXPECT_FALSE(In<QPushButton>(*Bulk, Off).isEnabled());
        Press(*Bulk, Off);
    }
    GridOf(Bulk).setFocus();
    GridOf(Bulk).selectAll();
    KeyTo(Qt::Key_Delete);
    KeyTo(Qt::Key_Home);
    Type("x");
    int Popups = 0;
    WhenOpen<frmPicturePopup>([&](frmPicturePopup& Popup) {
        ++Popups;
        QTest::keyClick(&Popup, Qt::Key_Escape);
    });
    KeyTo(Qt::Key_Return);
    EXPECT_EQ(1, Popups);
    AlbumsOf(Bulk).setCurrentIndex(0);
    EXPECT_EQ("Bulk Slide Manager - Attic", Title(Bulk));
    BroadcastEvent(u"Album"_s, u"Add Slides"_s, nullptr, {Attic, 0});
    AlbumsOf(Bulk).setCurrentIndex(1);
    EXPECT_EQ("a|b", Shown(Bulk));
    Press(*Bulk, "cmdClose");
    EXPECT_FALSE(Bulk->IsLoaded());
    EXPECT_EQ("", Differences(Before, Everything(Db.Path())));
    EXPECT_EQ("a", CaptionInAlbum(1));
    EXPECT_EQ("Album Add Slides 2 0", Heard()) << "the window itself tells of nothing";
}

}  // namespace
}  // namespace neb
