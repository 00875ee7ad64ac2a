// The window of the help, worked by mouse and keyboard: one of it, at the page asked for; contents,
// index, search; back and forward, finding, letters larger and smaller; what is told where it is
// missing.
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QScrollBar>
#include <QStatusBar>
#include <QTabWidget>
#include <QTextBlock>
#include <QTreeWidget>

#include "HelpRig.h"
#include "controls/fields/HintColour.h"
#include "program/help/HelpView.h"

namespace neb {
namespace {

class HelpWindow : public HelpRig {
  protected:
    HelpWindow() {
        Start();
        mWindow->resize(1200, 900);
        mWindow->show();
        DoEvents();
    }
    HelpView& View() const { return In<HelpView>("txtHelp"); }
    std::string Title() const { return View().document()->firstBlock().text().toStdString(); }
    std::string Tab() const {
        const auto& Parts = In<QTabWidget>("tabParts");
        return Parts.currentWidget()->objectName().toStdString();
    }
    void Open(const char* Entry = "mnuHelpContents") {
        Press(Entry);
        ASSERT_TRUE(Find<frmHelp>());
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&Help()));
        DoEvents();
    }
    void Key(QWidget& On, int Key, Qt::KeyboardModifiers With = Qt::NoModifier) {
        QTest::keyClick(&On, Qt::Key(Key), With);
        DoEvents();
    }
    void Click(const char* Button) {
        QTest::mouseClick(&In<QPushButton>(Button), Qt::LeftButton);
        DoEvents();
    }
    void ClickLink(const char* Text) {
        QTextCursor At = View().document()->find(QLatin1String(Text));
        ASSERT_TRUE(At.charFormat().isAnchor()) << Text;
        View().setTextCursor(At);
        View().ensureCursorVisible();
        const QPoint Place = View().cursorRect(At).center() - QPoint(4, 0);
        QTest::mouseMove(View().viewport(), Place);
        QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, Place);
        DoEvents();
    }
    static void ClickOn(QAbstractItemView& List, const QModelIndex& At) {
        List.scrollTo(At);
        QTest::mouseClick(List.viewport(), Qt::LeftButton, {}, List.visualRect(At).center());
        DoEvents();
    }
    QString Notice() const { return mWindow->statusBar()->currentMessage(); }
};

TEST_F(HelpWindow, OpensAtItsContentsAndAtItsIndex) {
    Open();
    EXPECT_EQ("contents", Page());
    EXPECT_EQ("NEB Slide Show Help", Title());
    EXPECT_EQ("tabContents", Tab());
    Help().Unload();
    Open("mnuHelpIndex");
    EXPECT_EQ("index", Page());
    EXPECT_EQ("tabIndex", Tab());
    EXPECT_TRUE(In<QLineEdit>("txtIndex").hasFocus());
}

class HelpWindowIn : public InEachLanguage<HelpWindow> {};
INSTANTIATE_TEST_SUITE_P(Languages, HelpWindowIn, ::testing::ValuesIn(HelpLanguages()),
                         &NameOfLanguage);

TEST_P(HelpWindowIn, ShowsThePagesOfTheLanguageThatTheProgramSpeaks) {
    Open();
    EXPECT_TRUE(Source("contents").contains(QString::fromStdString("<h1>" + Title() + "</h1>")));
    EXPECT_EQ(Title(), Help().windowTitle().toStdString());
    QTest::keyClicks(&In<QLineEdit>("txtSearch"), "QLM.log");
    EXPECT_GT(In<QListWidget>("lstFound").count(), 1);
}

TEST_F(HelpWindow, IsOneThatGoesToThePageAskedForAndEscClosesIt) {
    Open();
    Press("mnuHelpIndex");
    Press("mnuSlideShowMgr");
    Press("mnuHelpWindow");
    EXPECT_EQ("shows/slide-show-manager", Page());
    const auto Frames = mWindow->findChild<QMdiArea*>()->subWindowList();
    EXPECT_EQ(2, Frames.size()) << "the manager and one help";
    EXPECT_EQ(Find<frmHelp>(), mWindow->findChild<QMdiArea*>()->activeSubWindow()->widget());
    const auto Held = Help().shared_from_this();
    Key(View(), Qt::Key_Escape);
    EXPECT_FALSE(Find<frmHelp>());
}

TEST_F(HelpWindow, OnTheHomeItTellsOfTheHome) {
    EXPECT_EQ(QKeySequence("F1"), Entry("mnuHelpWindow")->shortcut());
    Open("mnuHelpWindow");
    EXPECT_EQ("start/home", Page());
}

TEST_F(HelpWindow, ComesBeforeAModalWindowThatAsksAndIsStillTheOnlyOne) {
    Open();
    int Seen = 0;
    WhenPreferencesOpen([&](frmPreferences& Window) {
        WhenOpen<frmHelp>([&](frmHelp& Shown) {
            if (!Shown.isModal()) return;
            ++Seen;
            EXPECT_EQ("shows/preferences", Page());
            QTest::keyClick(&View(), Qt::Key_F1);  // of the help itself, in the same window
            EXPECT_TRUE(QTest::qWaitFor([&] { return Page() == "start/help"; }, 2000));
            EXPECT_EQ(1, std::ranges::count_if(LoadedForms(), [](const auto& Each) {
                          return dynamic_cast<frmHelp*>(Each.get());
                      }));
        });
        QTest::keyClick(Window.findChild<QWidget*>("txtSlideTimeout"), Qt::Key_F1);
        EXPECT_TRUE(QTest::qWaitFor([&] { return Seen == 1 && !Find<frmHelp>(); }, 3000));
        EXPECT_TRUE(Window.isVisible());
    });
    Help().Unload();
    Press("mnuSlideShowPrefs");
    EXPECT_EQ(1, Seen);
}

TEST_F(HelpWindow, APageOfTheContentsOpensByAClickAndByEnter) {
    Open();
    auto& Tree = In<QTreeWidget>("trvContents");
    const auto Undo = Tree.findItems("Taking back", Qt::MatchStartsWith | Qt::MatchRecursive);
    ASSERT_EQ(1, Undo.size());
    ClickOn(Tree, Tree.indexFromItem(Undo.front()));
    EXPECT_EQ("start/undo", Page());
    Tree.setFocus();
    Key(Tree, Qt::Key_Up);
    Key(Tree, Qt::Key_Return);
    EXPECT_EQ("start/keys", Page());
}

TEST_F(HelpWindow, TheContentsFollowThePageThatALinkOpens) {
    Open("mnuHelpWindow");
    ClickLink("Slide Show Manager");
    EXPECT_EQ("shows/slide-show-manager", Page());
    EXPECT_EQ("Slide Show Manager",
              In<QTreeWidget>("trvContents").currentItem()->text(0).toStdString());
}

TEST_F(HelpWindow, AWordTypedAboveTheIndexLeavesWhatHasIt) {
    Open("mnuHelpIndex");
    auto& List = In<QListWidget>("lstIndex");
    QTest::keyClicks(&In<QLineEdit>("txtIndex"), "MICROPH");
    int Shown = 0;
    for (int I = 0; I < List.count(); ++I) Shown += !List.item(I)->isHidden();
    EXPECT_EQ(1, Shown);
    Key(In<QLineEdit>("txtIndex"), Qt::Key_Return);
    EXPECT_EQ("albums/sound-recorder", Page());
}

TEST_F(HelpWindow, WordsThatAreTypedFindPagesOnWhichTheyAreSetOff) {
    Open();
    Key(View(), Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(In<QLineEdit>("txtSearch").hasFocus());
    QTest::keyClicks(&In<QLineEdit>("txtSearch"), "chapter");
    auto& Found = In<QListWidget>("lstFound");
    ASSERT_EQ(1, Found.count());
    EXPECT_TRUE(Found.item(0)->text().startsWith("A film of a show\n"));
    Key(In<QLineEdit>("txtSearch"), Qt::Key_Down);
    EXPECT_TRUE(Found.hasFocus());
    Key(Found, Qt::Key_Return);
    EXPECT_EQ("shows/film", Page());
    ASSERT_EQ(1, View().extraSelections().size());
    EXPECT_EQ("chapter", View().extraSelections()[0].cursor.selectedText().toStdString());
    EXPECT_TRUE(View().viewport()->rect().intersects(View().cursorRect()));
}

// The contents have more links than anybody would go through.
TEST_F(HelpWindow, F6GoesFromThePageToTheListsAndBack) {
    Open();
    ASSERT_TRUE(View().hasFocus());
    Key(View(), Qt::Key_F6);
    EXPECT_TRUE(In<QTreeWidget>("trvContents").hasFocus());
    Key(In<QTreeWidget>("trvContents"), Qt::Key_F6);
    EXPECT_TRUE(View().hasFocus());
    In<QTabWidget>("tabParts").setCurrentWidget(&In<QWidget>("tabSearch"));
    View().setFocus();
    Key(View(), Qt::Key_F6);
    EXPECT_TRUE(In<QLineEdit>("txtSearch").hasFocus());
}

TEST_F(HelpWindow, GoesBackAndForwardByButtonsAndKeys) {
    Open();
    EXPECT_FALSE(In<QPushButton>("cmdBack").isEnabled());
    ClickLink("Taking back what was done");
    Click("cmdBack");
    EXPECT_EQ("contents", Page());
    Key(View(), Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ("start/undo", Page());
    Key(View(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ("contents", Page());
    Click("cmdForward");
    EXPECT_EQ("start/undo", Page());
    Click("cmdStart");
    EXPECT_EQ("contents", Page());
}

TEST_F(HelpWindow, FindsWordsOnThePageAndSaysWhereThereAreNone) {
    Open("mnuHelpWindow");
    Key(View(), Qt::Key_F, Qt::ControlModifier);
    auto& Field = In<QLineEdit>("txtFind");
    ASSERT_TRUE(Field.hasFocus());
    QTest::keyClicks(&Field, "covers");
    Key(Field, Qt::Key_Return);
    EXPECT_EQ("covers", View().textCursor().selectedText().toStdString());
    Field.setText("xylophone");
    Click("cmdFindNext");
    EXPECT_EQ("Not on this page.", In<QLabel>("lblFind").text().toStdString());
    Key(Field, Qt::Key_Escape);
    EXPECT_FALSE(Field.isVisible());
    EXPECT_TRUE(Find<frmHelp>()) << "the first Esc closes the row alone";
    Key(View(), Qt::Key_Escape);
    EXPECT_FALSE(Find<frmHelp>());
}

TEST_F(HelpWindow, LettersGrowByTheWheelAndByKeysAndAreRemembered) {
    Open();
    const auto Height = [&] { return View().document()->size().height(); };
    const double Usual = Height();
    QWheelEvent Wheel(QPointF(9, 9), View().viewport()->mapToGlobal(QPointF(9, 9)), {}, {0, 120},
                      Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(View().viewport(), &Wheel);
    Key(View(), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(2, View().Zoom());
    EXPECT_GT(Height(), Usual);
    Click("cmdLarger");
    Click("cmdSmaller");
    Help().Unload();
    Open();
    EXPECT_EQ(2, View().Zoom());
    Key(View(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(0, View().Zoom());
}

TEST_F(HelpWindow, PicturesAreNoWiderThanThePage) {
    Open("mnuHelpWindow");
    const auto Bar = [&] { return View().horizontalScrollBar()->maximum(); };
    EXPECT_EQ(0, Bar());
    Help().parentWidget()->resize(620, 500);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Bar() == 0; }, 2000)) << Bar();
}

// Some desktops leave links dark blue on dark.
TEST_F(HelpWindow, LinksCanBeReadOnLightAndOnDarkGround) {
    const QPalette Before = QApplication::palette();
    for (const QColor& Ground : {QColor(Qt::white), QColor(30, 30, 30)}) {
        QPalette Its(Ground);
        Its.setColor(QPalette::Base, Ground);
        Its.setColor(QPalette::Text, Ground == Qt::white ? Qt::black : Qt::white);
        Its.setColor(QPalette::Link, QColor(0, 0, 255));
        QApplication::setPalette(Its);
        Open();
        QTextCursor At = View().document()->find("Quick Show");
        EXPECT_TRUE(At.charFormat().isAnchor());
        EXPECT_GE(Contrast(At.charFormat().foreground().color(), Ground), 4.5);
        Help().Unload();
    }
    QApplication::setPalette(Before);
}

TEST_F(HelpWindow, RemembersHowLargeItWas) {
    Open();
    QWidget& Frame = *Help().parentWidget();
    Frame.resize(910, 610);
    const QSize Size = Frame.size();
    Help().Unload();
    Open();
    EXPECT_EQ(Size, Help().parentWidget()->size());
}

TEST_F(HelpWindow, AMissingFileIsToldInTheStatusBarAlone) {
    QFile::remove(mProgram.Path() + kHelpFile);
    EXPECT_EQ("", Notice());
    Press("mnuHelpContents");
    EXPECT_EQ(Find<frmHelp>(), nullptr);
    EXPECT_EQ(mBoxes.ShownCount(), 0);
    EXPECT_TRUE(Notice().contains("SlideShowHelp.hlp")) << Notice().toStdString();
}

TEST_F(HelpWindow, AMissingFolderOfPagesIsToldAsWell) {
    QFile::remove(mProgram.Path() + "help");
    Press("mnuHelpContents");
    EXPECT_EQ(Find<frmHelp>(), nullptr);
    EXPECT_TRUE(Notice().contains("contents.html")) << Notice().toStdString();
}

}  // namespace
}  // namespace neb
