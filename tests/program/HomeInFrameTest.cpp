// The home in the real main window: when it is filled, who has the keys, and how the windows before
// it step aside and come back.
#include <QAccessible>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTest>

#include "MainWindowRig.h"
#include "albums/modImport.h"
#include "db/modAlbumFiles.h"
#include "harness/AwaitActive.h"
#include "pictures/ImgX.h"
#include "program/Workspace.h"
#include "windows/gallery/SlideTurning.h"
#include "windows/home/BigButton.h"
#include "windows/home/HomeList.h"
#include "windows/home/HomePage.h"
#include "windows/home/HomeView.h"
#include "windows/import/frmQuickShow.h"
#include "windows/slides/frmSlideMgrBulk.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

class HomeInFrame : public MainWindow {
  protected:
    HomeView& View() { return *mWindow->findChild<HomeView*>(); }
    QMdiArea& Area() { return mWindow->Area(); }
    bool HomeHasKeys() {
        const QWidget* Focus = mWindow->focusWidget();
        return Focus && mWindow->Home().isAncestorOf(Focus);
    }
    int Up() {
        int Count = 0;
        for (const QMdiSubWindow* Each : Area().subWindowList())
            Count += Each->isVisible() && !Each->isMinimized();
        return Count;
    }
    // The child that is seen at this place of the area.
    const QWidget* SeenAt(QPoint At) {
        const QWidget* Seen = Area().viewport()->childAt(At);
        while (Seen && Seen->parentWidget() != Area().viewport()) Seen = Seen->parentWidget();
        return Seen;
    }
    static void Settle() { QTest::qWait(150); }
};

TEST_F(HomeInFrame, NothingOfItIsMadeBeforeTheWindowIsOnTheScreen) {
    int Widgets = -1;
    SetDoEventsHook([&] {
        if (Widgets < 0)
            Widgets = static_cast<int>(mWindow->Home().findChildren<QWidget*>().size());
    });
    Start();
    SetDoEventsHook({});
    EXPECT_EQ(0, Widgets);
    EXPECT_TRUE(mWindow->Home().List());
}

TEST_F(HomeInFrame, HasTheKeysAtTheStart) {
    Start();
    EXPECT_TRUE(HomeHasKeys());
    EXPECT_TRUE(dynamic_cast<BigButton*>(mWindow->focusWidget()));
    SaveAlbum("Garden");
    Settle();
    EXPECT_EQ(&View(), mWindow->focusWidget());
    EXPECT_TRUE(mWindow->close());
    Start();
    EXPECT_EQ(&View(), mWindow->focusWidget());
    EXPECT_EQ(1, View().Cards().rowCount());
}

TEST_F(HomeInFrame, FillsTheRoomBehindTheWindowsAtEverySize) {
    Start();
    EXPECT_EQ(mWindow->Home().geometry(), Area().viewport()->rect());
    mWindow->resize(900, 650);
    DoEvents();
    EXPECT_EQ(mWindow->Home().geometry(), Area().viewport()->rect());
    mWindow->OpenQuickShow();
    const QMdiSubWindow* Frame = Area().subWindowList().constFirst();
    EXPECT_EQ(Frame,
              Area().viewport()->childAt(Frame->geometry().center())->window() == mWindow.get()
                  ? Frame
                  : nullptr);
    EXPECT_TRUE(Frame->isAncestorOf(Area().viewport()->childAt(Frame->geometry().center())));
}

TEST_F(HomeInFrame, WindowsStepAsideForItAndComeBackAsTheyWere) {
    Start();
    SaveAlbum("Garden");
    mWindow->OpenQuickShow();
    mWindow->OpenQuickShow();
    const auto Frames = Area().subWindowList();
    Frames[1]->showMaximized();
    const QRect First = Frames[0]->geometry();
    ASSERT_FALSE(HomeHasKeys());
    Press("mnuHome");
    EXPECT_EQ(0, Up());
    EXPECT_TRUE(HomeHasKeys());
    EXPECT_EQ(2U, LoadedForms().size()) << "nothing is closed";
    for (const QMdiSubWindow* Each : Frames)
        EXPECT_TRUE(Each == SeenAt(Each->geometry().center())) << "its bar is before the home";
    Press("mnuHome");
    EXPECT_EQ(2, Up());
    EXPECT_TRUE(Frames[1]->isMaximized());
    EXPECT_EQ(Frames[1], Area().activeSubWindow());
    EXPECT_FALSE(HomeHasKeys());
    Frames[1]->showNormal();
    EXPECT_EQ(First.size(), Frames[0]->size());
}

TEST_F(HomeInFrame, AWindowThatTheUserHasMinimisedStaysSo) {
    Start();
    mWindow->OpenQuickShow();
    mWindow->OpenQuickShow();
    const auto Frames = Area().subWindowList();
    Frames[0]->showMinimized();
    Press("mnuHome");
    Press("mnuHome");
    EXPECT_TRUE(Frames[0]->isMinimized());
    EXPECT_FALSE(Frames[1]->isMinimized());
}

TEST_F(HomeInFrame, HasTheKeysAgainWhenTheLastWindowHasGone) {
    Start();
    SaveAlbum("Garden");
    Settle();
    mWindow->OpenQuickShow();
    DoEvents();
    ASSERT_FALSE(HomeHasKeys());
    Find<frmQuickShow>()->Unload();
    EXPECT_TRUE(QTest::qWaitFor([&] { return HomeHasKeys(); }));
}

bool IsToldBelow(QAccessibleInterface* Of, const QObject* Sought) {
    if (!Of) return false;
    if (Of->object() == Sought) return true;
    for (int I = 0; I < Of->childCount(); ++I)
        if (IsToldBelow(Of->child(I), Sought)) return true;
    return false;
}

TEST_F(HomeInFrame, ScreenReadersHearOfItAndOfTheWindowsBeforeIt) {
    Start();
    SaveAlbum("Garden");
    Settle();
    Press("mnuSlideMgrBulk");
    QAccessibleInterface* Main = QAccessible::queryAccessibleInterface(mWindow.get());
    EXPECT_TRUE(IsToldBelow(Main, &View()));
    EXPECT_TRUE(IsToldBelow(Main, Find<frmSlideMgrBulk>()));
}

TEST_F(HomeInFrame, TheKeyOfTheMenuIsAltHome) {
    Start();
    EXPECT_EQ(QKeySequence("Alt+Home"), Entry("mnuHome")->shortcut());
    mWindow->OpenQuickShow();
    harness::AwaitActive(*mWindow);
    QTest::keyClick(mWindow->focusWidget(), Qt::Key_Home, Qt::AltModifier);
    DoEvents();
    EXPECT_TRUE(HomeHasKeys());
}

TEST_F(HomeInFrame, AnEndWhileALargePictureIsTurnedLeavesItAsItIs) {
    Start();
    ImgX Large;
    Large.SetPicture(QImage(5000, 4000, QImage::Format_RGB32));
    const QByteArray Jpeg = Large.ToJpeg();
    Changes Door(*DBEngine);
    ASSERT_TRUE(NewAlbum(Door, *DBEngine, u"Garden"_s));
    ASSERT_TRUE(EnterPicture(Door, *DBEngine, 1, {u"Rose"_s, [&] { return Jpeg; }, {}}));
    QTimer::singleShot(0, mWindow.get(), [this] { EXPECT_TRUE(mWindow->Unload()); });
    SlideTurning(1, {1}, 1).Run();
    EXPECT_FALSE(DBEngine);
    EXPECT_TRUE(Jpeg == ReadFile(SlidesFolder(DBPath(), 1) + u"00000001.jpg"_s));
}

TEST_F(HomeInFrame, ItsQuickShowIsThatOfTheMenu) {
    Start();
    QTest::mouseClick(mWindow->findChild<BigButton*>("cmdBeginQuickShow"), Qt::LeftButton);
    DoEvents();
    EXPECT_TRUE(Find<frmQuickShow>());
}

}  // namespace
}  // namespace neb
