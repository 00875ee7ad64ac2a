// The slide show manager with the keyboard alone, and on a database that may not be changed.
#include <QAction>
#include <QMdiArea>
#include <QMdiSubWindow>

#include "ManagerRig.h"
#include "controls/fields/ToolBar.h"
#include "harness/FolderState.h"
#include "windows/lists/frmPicturePopup.h"

namespace neb {
namespace {

using namespace harness;

class ManagerKeys : public ManagerRig {
  protected:
    static void KeyTo(Qt::Key Key, Qt::KeyboardModifiers Modifiers = {}) {
        ASSERT_TRUE(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Key, Modifiers);
    }
    static std::string Focus() { return QApplication::focusWidget()->objectName().toStdString(); }
    void CountPopups() {
        WhenOpen<frmPicturePopup>([this](frmPicturePopup& Popup) {
            ++mPopups;
            QTest::keyClick(&Popup, Qt::Key_Escape);
        });
    }
    int mPopups = 0;
};

TEST_F(ManagerKeys, TabWalksOverAllControls) {
    OpenGarden({1});
    Combo("cboAlbum").setFocus();
    for (const char* Next :
         {"cboSlideShows", "txtName", "cboProgressionMethod", "flxNonSelected", "cmdMoveRightOne",
          "cmdMoveRightAll", "cmdMoveLeftOne", "cmdMoveLeftAll", "flxSelected", "cmdMoveUp",
          "cmdMoveDown", "cmdFitAll", "flxSoundTracks", "cmdNew", "cmdDelete", "cmdSave",
          "cmdCancel", "cmdClose"}) {
        KeyTo(Qt::Key_Tab);
        EXPECT_EQ(Next, Focus());
    }
}

TEST_F(ManagerKeys, EveryTaskCanBeDoneWithoutAMouse) {
    AddAlbumSlides({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    OpenMgr(0);
    EXPECT_EQ("cboAlbum", Focus());
    KeyTo(Qt::Key_Down);
    Activate(*W);
    EXPECT_EQ("a|b|c|d / ", Lists());
    // a name
    KeyTo(Qt::Key_M, Qt::AltModifier);
    EXPECT_EQ("txtName", Focus());
    Type("Walk");
    // slides into the show
    KeyTo(Qt::Key_T, Qt::AltModifier);
    EXPECT_EQ("flxNonSelected", Focus());
    KeyTo(Qt::Key_End);
    KeyTo(Qt::Key_Up, Qt::ShiftModifier);
    KeyTo(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ("a|b / c|d", Lists());
    KeyTo(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(" / c|d|a|b", Lists());
    // their order
    KeyTo(Qt::Key_Y, Qt::AltModifier);
    EXPECT_EQ("flxSelected", Focus());
    KeyTo(Qt::Key_End);
    KeyTo(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ("c|d|b|a", Captions(Right()));
    KeyTo(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ("c|d|a|b", Captions(Right()));
    KeyTo(Qt::Key_Home);
    KeyTo(Qt::Key_Return);
    EXPECT_TRUE(Right().IsEditing());
    EXPECT_EQ("1", Editor(Right()).selectedText().toStdString()) << "all its text is selected";
    Type("3");
    KeyTo(Qt::Key_Return);
    EXPECT_FALSE(Right().IsEditing());
    EXPECT_EQ("d|a|c|b", Captions(Right()));
    // a caption
    KeyTo(Qt::Key_Right);
    KeyTo(Qt::Key_Right);
    KeyTo(Qt::Key_F2);
    Type("Clover");
    KeyTo(Qt::Key_Return);
    EXPECT_EQ("d|a|Clover|b", Captions(Right()));
    // a picture
    KeyTo(Qt::Key_Left);
    CountPopups();
    KeyTo(Qt::Key_Return);
    EXPECT_EQ(1, mPopups);
    Activate(*W);
    Right().setFocus();
    // one out again, one by its own key
    KeyTo(Qt::Key_Home);
    KeyTo(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ("d / a|Clover|b", Lists());
    KeyTo(Qt::Key_Delete);
    EXPECT_EQ("d|a / Clover|b", Lists());
    // a track
    KeyTo(Qt::Key_K, Qt::AltModifier);
    EXPECT_EQ("flxSoundTracks", Focus());
    KeyTo(Qt::Key_Home);
    KeyTo(Qt::Key_Return);
    KeyTo(Qt::Key_Down);
    KeyTo(Qt::Key_Return);
    KeyTo(Qt::Key_Right);
    KeyTo(Qt::Key_Return);
    KeyTo(Qt::Key_Down);
    KeyTo(Qt::Key_Down);
    KeyTo(Qt::Key_Return);
    KeyTo(Qt::Key_Right);
    KeyTo(Qt::Key_Space);
    for (int I = 0; I < 4; ++I) KeyTo(Qt::Key_Right);
    Dialogs.Answer = MakeSound(u"song.mp3"_s);
    KeyTo(Qt::Key_Space);
    EXPECT_EQ("1: 1,2,True,,," + (Sounds / u"song.mp3"_s).toStdString(), TrackCells());
    // saved
    ExpectSaved();
    KeyTo(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ("Walk 0 1:3[Clover] 2:2[] | 1:1-2 00000001_1.mp3", Stored(1));
    Activate(*W);
    KeyTo(Qt::Key_N, Qt::ControlModifier);
    QCoreApplication::processEvents();
    EXPECT_EQ("a|b|c|d / ", Lists());
    KeyTo(Qt::Key_O, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !W->IsLoaded(); }));
}

TEST_F(ManagerKeys, KeysThatMoveSlidesMoveTheCaretInALineOfText) {
    OpenGarden({1, 2});
    Name().setFocus();
    Name().setText(u"a walk"_s);
    KeyTo(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(2, Name().cursorPosition());
    KeyTo(Qt::Key_Delete);
    EXPECT_EQ("a alk", Name().text().toStdString());
    Begin(Right(), 0, clsImageBuffer::ColText, u"two words"_s);
    KeyTo(Qt::Key_Left, Qt::ControlModifier);
    KeyTo(Qt::Key_Delete);
    EXPECT_EQ("c|d|e / a|b", Lists());
    KeyTo(Qt::Key_Return);
    EXPECT_EQ("two ords|b", Captions(Right()));
    Combo("cboProgressionMethod").setFocus();
    KeyTo(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ("two ords|b", Captions(Right()));
    Combo("cboProgressionMethod").hidePopup();
}

// The main window has a use of its own for Ctrl+N.
TEST_F(ManagerKeys, ANewShowIsBegunInsideAMainWindowThatKnowsTheSameKeys) {
    QMdiArea Area;
    int NewAlbums = 0;
    QAction Album(&Area);
    Album.setShortcut(QKeySequence(u"Ctrl+N"_s));
    QObject::connect(&Album, &QAction::triggered, [&] { ++NewAlbums; });
    Area.addAction(&Album);
    AddAlbumSlides({u"a"_s});
    auto Child = NewForm<Mgr>();
    Area.addSubWindow(Child.get())->setAttribute(Qt::WA_DeleteOnClose, false);
    Area.resize(1100, 800);
    Area.show();
    Area.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Area, 2000));
    Child->LoadSlideShowMgr(AlbumID, 0);
    Windows.push_back(Child);
    W = Child.get();
    Area.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Area, 2000));
    for (QWidget* Each : std::initializer_list<QWidget*>{&Name(), &Left(), &Combo("cboAlbum")}) {
        Push("cmdMoveRightAll");
        EXPECT_EQ(" / a", Lists());
        Each->setFocus();
        ExpectAsk();
        KeyTo(Qt::Key_N, Qt::ControlModifier);
        QCoreApplication::processEvents();
        EXPECT_EQ("a / ", Lists()) << Each->objectName().toStdString();
    }
    EXPECT_EQ(0, NewAlbums);
    W->Unload();
}

// Reached as a child of the main window, whose menu has the letters F, A, L, I, P, W and H.
TEST_F(ManagerKeys, ItsLettersAreFreeInTheMainMenuAndDifferent) {
    OpenMgr(0);
    QString Letters = u"FALIPWH"_s;
    QStringList Texts;
    for (const auto* Each : W->findChildren<QLabel*>())
        if (Each->buddy()) Texts << Each->text();
    for (const auto* Each : W->findChildren<QPushButton*>())
        if (!Each->text().isEmpty()) Texts << Each->text();
    EXPECT_EQ(13, Texts.size());
    for (const QString& Each : Texts) {
        const QString Keys = QKeySequence::mnemonic(Each).toString();
        ASSERT_FALSE(Keys.isEmpty()) << Each.toStdString();
        EXPECT_FALSE(Letters.contains(Keys.back())) << Each.toStdString();
        Letters += Keys.back();
    }
}

TEST_F(ManagerKeys, TheToolTipsAreTheDictatedOnes) {
    OpenMgr(0);
    const std::pair<const char*, const char*> Tips[] = {
        {"flxNonSelected", "Album slides not in the current Slide Show"},
        {"flxSelected", "Album Slides in the current Slide Show"},
        {"txtName", "Name of the currently selected Slide Show"},
    };
    for (const auto& [Control, Tip] : Tips)
        EXPECT_EQ(Tip, In<QWidget>(*W, Control).toolTip().toStdString());
}

TEST_F(ManagerKeys, AReadOnlyDatabaseIsShownAndNotChanged) {
    AddAlbumSlides({u"a"_s, u"b"_s, u"c"_s});
    const std::int32_t Walk = AddShow(u"Walk"_s, {2, 1});
    AddTrack(Walk, 1, 1, 2, u"00000001_1.mp3"_s);
    MakeDirs(TracksFolder());
    WriteFile(TracksFolder() + u"00000001_1.mp3"_s, "song");
    Engine.FinalizeDB();
    ReadOnlyDB = true;
    const QStringList Before = Everything(Db.Path());
    EXPECT_GT(Before.size(), 10);
    OpenMgr(AlbumID, Walk);
    EXPECT_EQ("c / b|a", Lists());
    EXPECT_EQ("1: 1,2,False,False,False,00000001_1.mp3", TrackCells());
    EXPECT_FALSE(Right().CellPicture(0, clsImageBuffer::ColPicture).isNull());
    for (const char* Off :
         {"cmdNew", "cmdSave", "cmdDelete", "cmdCancel", "cmdMoveRightOne", "cmdMoveRightAll",
          "cmdMoveLeftOne", "cmdMoveLeftAll", "cmdMoveUp", "cmdMoveDown"}) {
        EXPECT_FALSE(In<QPushButton>(*W, Off).isEnabled()) << Off;
        Push(Off);
    }
    for (const char* Off :
         {"mnuSlideShowNew", "mnuSlideShowSave", "mnuSlideShowSaveAs", "mnuSlideShowDelete"}) {
        EXPECT_FALSE(In<ToolBar>(*W, "abrMenu").IsToolEnabled(QString::fromLatin1(Off))) << Off;
        In<ToolBar>(*W, "abrMenu").Tool(QString::fromLatin1(Off))->trigger();
    }
    EXPECT_FALSE(Right().EditCell(0, ColPlace));
    EXPECT_FALSE(Right().EditCell(0, clsImageBuffer::ColText));
    for (int Col = 0; Col < Tracks().Cols(); ++Col) EXPECT_FALSE(Tracks().EditCell(0, Col));
    Tracks().setFocus();
    Tracks().SetRow(0);
    KeyTo(Qt::Key_Delete);
    Dialogs.Answer = MakeSound(u"a.wav"_s);
    Tracks().setCurrentIndex(Tracks().model()->index(0, TrackList::ColFile));
    KeyTo(Qt::Key_Space);
    EXPECT_EQ(0, Dialogs.Count);
    Right().setFocus();
    Right().selectAll();
    KeyTo(Qt::Key_Delete);
    KeyTo(Qt::Key_Left, Qt::ControlModifier);
    KeyTo(Qt::Key_Up, Qt::AltModifier);
    KeyTo(Qt::Key_S, Qt::ControlModifier);
    KeyTo(Qt::Key_N, Qt::ControlModifier);
    QCoreApplication::processEvents();
    Left().setFocus();
    Left().selectAll();
    KeyTo(Qt::Key_Right, Qt::ControlModifier);
    Name().setFocus();
    Type("x");
    EXPECT_EQ("Walk", Name().text().toStdString());
    EXPECT_FALSE(Combo("cboProgressionMethod").isEnabled());
    EXPECT_EQ("c / b|a", Lists());
    EXPECT_EQ("1: 1,2,False,False,False,00000001_1.mp3", TrackCells());
    Push("cmdClose");
    EXPECT_FALSE(W->IsLoaded());
    EXPECT_EQ(Before, Everything(Db.Path()));
    EXPECT_EQ("", Heard());
}

}  // namespace
}  // namespace neb
