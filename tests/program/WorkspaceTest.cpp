// The children of the main window as a user handles them: where they open, what state they have,
// who has the keyboard, and how they are laid out.
#include "program/Workspace.h"

#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QScrollBar>
#include <QStatusBar>
#include <QTest>
#include <QWindow>

#include "MainWindowRig.h"
#include "controls/grid/FlexGrid.h"
#include "harness/AwaitActive.h"
#include "program/TitleBarStyle.h"
#include "windows/compose/frmSlideShowDBM.h"
#include "windows/frame/modWindowState.h"
#include "windows/home/HomePage.h"
#include "windows/import/frmQuickShow.h"
#include "windows/slides/frmSlideDBM.h"
#include "windows/slides/frmSlideMgrBulk.h"
#include "windows/transfer/frmAlbumExport.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

class Children : public MainWindow {
  protected:
    void Begin() {
        Start();
        if (DBEngine->Albums.empty()) SaveAlbum(u"Garden"_s);
        mWindow->activateWindow();
        EXPECT_TRUE(harness::AwaitActive(*mWindow));
    }
    Workspace& Area() { return mWindow->Area(); }
    QRect Room() { return Area().viewport()->rect(); }
    QWidget& Page() { return *mWindow->findChild<HomePage*>(); }
    template <class Window>
    static QMdiSubWindow& FrameOf() {
        return *qobject_cast<QMdiSubWindow*>(Find<Window>()->parentWidget());
    }
    // Without a window manager the progress windows leave no window active.
    void PressKey(Qt::Key Key, Qt::KeyboardModifiers Modifiers) {
        mWindow->activateWindow();
        EXPECT_TRUE(harness::AwaitActive(*mWindow));
        QWidget* Focus = QApplication::focusWidget();
        QTest::keyClick(Focus ? Focus : mWindow.get(), Key, Modifiers);
        QTest::qWait(20);
    }
    bool IsInside(const QMdiSubWindow& Frame) { return Room().contains(Frame.geometry()); }
    // Whether what is in the middle of the room's lower edge is the page.
    bool PageFillsTheRoom() {
        return Page().geometry() == Room() && Area().viewport()->children().indexOf(&Page()) == 0;
    }
};

TEST_F(Children, OpenAsLargeAsTheirWorkAsksInsideTheRoom) {
    Begin();
    Press("mnuSlideMgrBulk");
    const auto& Grid = *Find<frmSlideMgrBulk>()->findChild<FlexGrid*>(u"flxAlbum"_s);
    EXPECT_GT(Grid.viewport()->height(), Area().height() * 6 / 10) << "lines have most of it";
    Press("mnuSlideMgr");
    const auto& Picture = *Find<frmSlideDBM>()->findChild<QWidget*>(u"stkPicture"_s);
    EXPECT_GT(Picture.height(), 300);
    Press("mnuSlideShowMgr");
    Press("mnuQuickShow");
    Press("mnuAlbumExport");
    for (const QMdiSubWindow* Each : Area().subWindowList()) EXPECT_TRUE(IsInside(*Each));
}

TEST_F(Children, AMaximisedNeighbourKeepsItsStateAndGivesItToNobody) {
    Begin();
    Press("mnuSlideMgr");
    FrameOf<frmSlideDBM>().showMaximized();
    Press("mnuSlideMgrBulk");
    EXPECT_FALSE(FrameOf<frmSlideMgrBulk>().isMaximized());
    EXPECT_TRUE(FrameOf<frmSlideDBM>().isMaximized());
    Area().setActiveSubWindow(&FrameOf<frmSlideDBM>());
    Area().setActiveSubWindow(&FrameOf<frmSlideMgrBulk>());
    EXPECT_FALSE(FrameOf<frmSlideMgrBulk>().isMaximized());
    EXPECT_TRUE(mWindow->close());
    Begin();
    Press("mnuSlideMgrBulk");
    EXPECT_FALSE(FrameOf<frmSlideMgrBulk>().isMaximized());
    Press("mnuSlideMgr");
    EXPECT_TRUE(FrameOf<frmSlideDBM>().isMaximized());
    EXPECT_FALSE(FrameOf<frmSlideMgrBulk>().isMaximized());
}

TEST_F(Children, OpenBesideTheBarsOfMinimisedOnes) {
    Begin();
    Press("mnuQuickShow");
    FrameOf<frmQuickShow>().showMinimized();
    DoEvents();
    Press("mnuSlideMgrBulk");
    EXPECT_FALSE(
        FrameOf<frmSlideMgrBulk>().geometry().intersects(FrameOf<frmQuickShow>().geometry()));
    EXPECT_EQ(QPoint(0, 0), FrameOf<frmSlideMgrBulk>().pos());
    EXPECT_TRUE(PageFillsTheRoom()) << "the bar is not behind it";
}

TEST_F(Children, ClosingOneLeavesTheLastUsedWithItsFocus) {
    Begin();
    Press("mnuSlideMgr");
    auto* Caption = Find<frmSlideDBM>()->findChild<QLineEdit*>(u"txtDscr"_s);
    Press("mnuSlideMgrBulk");
    Press("mnuQuickShow");
    Area().setActiveSubWindow(&FrameOf<frmSlideDBM>());
    Caption->setFocus();
    Area().setActiveSubWindow(&FrameOf<frmQuickShow>());
    DoEvents();
    PressKey(Qt::Key_F4, Qt::ControlModifier);
    EXPECT_FALSE(Find<frmQuickShow>());
    EXPECT_EQ(&FrameOf<frmSlideDBM>(), Area().activeSubWindow());
    EXPECT_EQ(Caption, QApplication::focusWidget());
}

TEST_F(Children, WhereNoneIsLeftThePageHasTheKeyboard) {
    Begin();
    auto* Field = new QLineEdit(&Page());
    Field->show();
    Field->setFocus();
    Press("mnuQuickShow");
    EXPECT_NE(Field, QApplication::focusWidget());
    PressKey(Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(Find<frmQuickShow>());
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::focusWidget() == Field; }, 2000))
        << "where it was";
}

TEST_F(Children, AreWalkedByKeysThoughATextFieldHasTheFocus) {
    Begin();
    Press("mnuSlideMgrBulk");
    Press("mnuSlideMgr");
    Press("mnuQuickShow");
    Find<frmQuickShow>()->findChild<QLineEdit*>(u"txtName"_s)->setFocus();
    PressKey(Qt::Key_Tab, Qt::ControlModifier);
    QMdiSubWindow* Second = Area().activeSubWindow();
    EXPECT_NE(&FrameOf<frmQuickShow>(), Second);
    PressKey(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(&FrameOf<frmQuickShow>(), Area().activeSubWindow());
}

// As text fields are on desktops with keys of their own for the end of a line and the like.
class GreedyField : public QLineEdit {
  public:
    using QLineEdit::QLineEdit;
    bool event(QEvent* Event) override {
        if (Event->type() != QEvent::ShortcutOverride) return QLineEdit::event(Event);
        Event->accept();
        return true;
    }
};

TEST_F(Children, TextFieldsLeaveTheMenuItsKeysAndKeepThoseOfEditing) {
    Begin();
    Press("mnuQuickShow");
    auto* Field = new GreedyField(u"Sea"_s, Find<frmQuickShow>());
    Field->show();
    Field->setFocus();
    PressKey(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(u"Sea"_s, Field->selectedText());
    PressKey(Qt::Key_E, Qt::ControlModifier);
    EXPECT_TRUE(Find<frmSlideDBM>());
}

TEST_F(Children, TilesCutNoButtonOffAndWithoutRoomForThatLieOneOverTheOther) {
    Begin();
    Press("mnuSlideMgr");
    Press("mnuSlideShowMgr");
    Press("mnuQuickShow");
    const QList<QMdiSubWindow*> Frames = Area().subWindowList();
    const auto Overlap = [&] {
        int Count = 0;
        for (const QMdiSubWindow* Each : Frames)
            for (const QMdiSubWindow* Other : Frames)
                Count += Other != Each && Other->geometry().intersects(Each->geometry());
        return Count;
    };
    for (const QSize Room : {QSize(2600, 1700), QSize(900, 600)}) {
        mWindow->resize(Room);
        FrameOf<frmSlideDBM>().showMaximized();
        Press("mnuTile");
        for (const QMdiSubWindow* Each : Frames) {
            EXPECT_GE(Each->width(), Each->minimumSizeHint().width());
            EXPECT_GE(Each->height(), Each->minimumSizeHint().height());
            EXPECT_FALSE(Each->isMaximized());
        }
        EXPECT_EQ(Room.width() < 1000, Overlap() > 0) << Room.width();
        EXPECT_TRUE(PageFillsTheRoom());
    }
    EXPECT_EQ("There is no room for all windows side by side.",
              mWindow->statusBar()->currentMessage());
    Press("mnuCascade");
    for (const QMdiSubWindow* Each : Frames)
        EXPECT_GE(Each->height(), Each->minimumSizeHint().height());
}

TEST_F(Children, TheLayoutsLeaveMinimisedOnesAlone) {
    Begin();
    Press("mnuSlideMgrBulk");
    Press("mnuAlbumExport");
    FrameOf<frmAlbumExport>().showMinimized();
    DoEvents();
    const QRect Bar = FrameOf<frmAlbumExport>().geometry();
    for (const char* Layout : {"mnuTile", "mnuCascade"}) {
        Press(Layout);
        EXPECT_TRUE(FrameOf<frmAlbumExport>().isMinimized()) << Layout;
        EXPECT_FALSE(FrameOf<frmSlideMgrBulk>().geometry().intersects(Bar)) << Layout;
    }
}

TEST_F(Children, AMaximisedOneHasTheProgramsNameInTheTitleOnce) {
    const QString Before = QApplication::applicationDisplayName();
    QApplication::setApplicationDisplayName(u"NEB Slide Show"_s);
    Begin();
    EXPECT_EQ(u"NEB Slide Show"_s, mWindow->windowHandle()->title());
    Press("mnuSlideMgrBulk");
    FrameOf<frmSlideMgrBulk>().showMaximized();
    DoEvents();
    EXPECT_EQ(u"Bulk Slide Manager - Garden"_s, mWindow->windowHandle()->title());
    Find<frmSlideMgrBulk>()->setWindowTitle(u"Other[*]"_s);
    Find<frmSlideMgrBulk>()->setWindowModified(true);
    DoEvents();
    EXPECT_EQ(u"Other*"_s, mWindow->windowHandle()->title());
    FrameOf<frmSlideMgrBulk>().showNormal();
    DoEvents();
    EXPECT_EQ(u"NEB Slide Show"_s, mWindow->windowHandle()->title());
    QApplication::setApplicationDisplayName(Before);
}

// The lightest that is seen in a part of a picture, 0 to 255.
int Brightest(const QImage& Picture, const QRect& Part) {
    int Most = 0;
    for (int Y = Part.top(); Y <= Part.bottom(); ++Y)
        for (int X = Part.left(); X <= Part.right(); ++X)
            Most = std::max(Most, qGray(Picture.pixel(X, Y)));
    return Most;
}

class InTheDark : public Children {
  protected:
    InTheDark() { QApplication::setPalette(QPalette(QColor(40, 42, 45))); }
    ~InTheDark() override { QApplication::setPalette(mBefore); }
    const QPalette mBefore = QApplication::palette();
};

TEST_F(InTheDark, TitlesAndButtonsOfInactiveOnesAreRead) {
    Begin();
    Press("mnuSlideMgrBulk");
    Press("mnuAlbumExport");
    const QImage Bar = FrameOf<frmSlideMgrBulk>().grab().toImage();
    EXPECT_GT(Brightest(Bar, {Bar.width() / 3, 4, Bar.width() / 3, 18}), 180) << "the title";
    EXPECT_GT(Brightest(Bar, {Bar.width() - 24, 4, 20, 18}), 180) << "the close button";
}

TEST_F(InTheDark, TheButtonsOfAMaximisedOneAreRead) {
    Begin();
    Press("mnuSlideMgrBulk");
    FrameOf<frmSlideMgrBulk>().showMaximized();
    QTest::qWait(20);
    QWidget* Buttons = mWindow->menuBar()->cornerWidget();
    ASSERT_TRUE(Buttons);
    EXPECT_TRUE(dynamic_cast<TitleBarStyle*>(Buttons->style()))
        << Buttons->metaObject()->className();
    EXPECT_GT(Brightest(Buttons->grab().toImage(), Buttons->rect()), 150);
}

TEST_F(Children, TitleBarsAreAsHighAsTheirFont) {
    const QFont Before = QApplication::font("QMdiSubWindowTitleBar");
    QFont Large = Before;
    Large.setPointSize(20);
    QApplication::setFont(Large, "QMdiSubWindowTitleBar");
    Begin();
    Press("mnuAlbumExport");
    EXPECT_GT(Find<frmAlbumExport>()->y(), QFontMetrics(Large).height());
    QApplication::setFont(Before, "QMdiSubWindowTitleBar");
}

TEST_F(Children, TheMainWindowComesBackAsItWas) {
    Begin();
    mWindow->resize(905, 633);
    mWindow->move(71, 52);
    EXPECT_TRUE(mWindow->close());
    Begin();
    EXPECT_EQ(QSize(905, 633), mWindow->size());
    EXPECT_EQ(QPoint(71, 52), mWindow->pos());
    mWindow->showMaximized();
    DoEvents();
    EXPECT_TRUE(mWindow->close());
    Begin();
    EXPECT_TRUE(mWindow->isMaximized());
}

TEST_F(Children, TheMainWindowIsBroughtInsideTheScreen) {
    clsSettings Settings = OpenSettings();
    for (const char* Key : {"Left", "Top", "Width", "Height"})
        Settings.PutValue(u"frmNEBSlideShow"_s, QString::fromLatin1(Key), u"60000"_s);
    Settings.Save();
    Begin();
    EXPECT_TRUE(mWindow->screen()->availableGeometry().contains(mWindow->geometry()));
}

TEST_F(Children, ASizeWithoutAPlaceIsNoLargerThanTheScreen) {
    clsSettings Settings = OpenSettings();
    for (const char* Key : {"Width", "Height"})
        Settings.PutValue(u"frmNEBSlideShow"_s, QString::fromLatin1(Key), u"2000000000"_s);
    Settings.Save();
    Begin();
    const QSize Screen = mWindow->screen()->availableSize();
    EXPECT_EQ(Screen, mWindow->size().expandedTo(Screen));
}

TEST_F(Children, OfAlbumsThatMayNotBeChangedThePlacesAreKeptAmongTheUsersFiles) {
    Begin();
    EXPECT_TRUE(mWindow->close());
    QFile::setPermissions(DBPath() + u"NextIDs.dat"_s, QFileDevice::ReadOwner);
    const QByteArray Settings = ReadFile(SettingsDir() + INIFileName());
    Begin();
    ASSERT_TRUE(ReadOnlyDB);
    mWindow->resize(905, 633);
    Press("mnuSlideMgrBulk");
    FrameOf<frmSlideMgrBulk>().setGeometry(40, 50, 700, 450);
    EXPECT_TRUE(mWindow->close());
    EXPECT_EQ(Settings, ReadFile(SettingsDir() + INIFileName()));
    Begin();
    EXPECT_EQ(QSize(905, 633), mWindow->size());
    Press("mnuSlideMgrBulk");
    EXPECT_EQ(QRect(40, 50, 700, 450), FrameOf<frmSlideMgrBulk>().geometry());
}

}  // namespace
}  // namespace neb
