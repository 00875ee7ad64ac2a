// The end of the program while windows hold work that is not saved: who is asked, how often, and
// that nothing goes before all have been asked. And the ways in which one window is closed.
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTest>

#include "MainWindowRig.h"
#include "controls/forms/TestForm.h"
#include "support/Fault.h"
#include "windows/compose/frmSlideShowDBM.h"
#include "windows/slides/frmSlideDBM.h"
#include "windows/slides/frmSlideMgrBulk.h"

namespace neb {
namespace {

const QString AboutSlide = "Are you sure you want to discard the changes to the current slide?";
const QString AboutShow = "Are you sure you want to discard the changes to the current slide show?";

class Ending : public MainWindow {
  protected:
    Ending() {
        Start();
        mWindow->activateWindow();
        SaveAlbum("Holidays");
        DBEngine->Albums[0]->SaveSlide2(mSlideID, "beach", "00000001.JPG", {}, false, false,
                                        *DBEngine);
    }
    // A window with something typed into it.
    QLineEdit& Typed(const char* MenuEntry, const char* Field) {
        Press(MenuEntry);
        DoEvents();
        Form& Opened = *LoadedForms().back();
        Opened.findChild<QComboBox*>("cboAlbum")->setCurrentIndex(0);
        auto& Line = *Opened.findChild<QLineEdit*>(QString::fromLatin1(Field));
        Line.setText("mine");
        return Line;
    }
    QLineEdit& TypedSlide() { return Typed("mnuSlideMgr", "txtDscr"); }
    QLineEdit& TypedShow() { return Typed("mnuSlideShowMgr", "txtName"); }

    std::int32_t mSlideID = 0;
};

TEST_F(Ending, NothingClosesBeforeEveryWindowHasBeenAsked) {
    QLineEdit& Slide = TypedSlide();
    QLineEdit& Show = TypedShow();
    Press("mnuSlideMgrBulk");
    mBoxes.Expect(AboutSlide, BoxAnswer::Discard);
    mBoxes.Expect(AboutShow, BoxAnswer::Cancel);
    EXPECT_FALSE(mWindow->close());
    EXPECT_EQ(3u, LoadedForms().size());
    EXPECT_EQ("mine", Slide.text()) << "nothing was discarded, as nothing was closed";
    EXPECT_EQ("mine", Show.text());

    mBoxes.Expect(AboutSlide, BoxAnswer::Discard);
    mBoxes.Expect(AboutShow, BoxAnswer::Discard);
    EXPECT_TRUE(mWindow->close());
    EXPECT_TRUE(LoadedForms().empty());
}

TEST_F(Ending, WhatIsSavedOnTheWayIsNotAskedAboutAgain) {
    Typed("mnuSlideShowMgr", "txtName");
    auto& Manager = *Find<frmSlideShowDBM>();
    QTest::mouseClick(Manager.findChild<QPushButton*>("cmdMoveRightAll"), Qt::LeftButton);
    TypedSlide();
    mBoxes.Expect(AboutShow, BoxAnswer::Save);
    mBoxes.Expect(AboutSlide, BoxAnswer::Cancel);
    EXPECT_FALSE(mWindow->close());
    ASSERT_EQ(1u, DBEngine->Albums[0]->SlideShows.size());
    EXPECT_EQ("mine", DBEngine->Albums[0]->SlideShows[0]->SlideShowName);
    EXPECT_EQ(2u, LoadedForms().size());
    mBoxes.Expect(AboutSlide, BoxAnswer::Discard);
    EXPECT_TRUE(mWindow->close());
}

TEST_F(Ending, ASaveThatIsRefusedKeepsTheProgramOpen) {
    TypedShow();
    mBoxes.Expect(AboutShow, BoxAnswer::Save);
    mBoxes.Expect("You must select atleast 1 slide for the Slide Show.");
    EXPECT_FALSE(mWindow->close());
    EXPECT_TRUE(Find<frmSlideShowDBM>());
    mBoxes.Expect(AboutShow, BoxAnswer::Discard);
    EXPECT_TRUE(mWindow->close());
}

TEST_F(Ending, EveryWayToCloseAWindowAsks) {
    QLineEdit& Slide = TypedSlide();
    auto* Frame = mWindow->findChild<QMdiArea*>()->subWindowList().first();
    const std::function<void()> Ways[] = {
        [&] { Frame->close(); },
        [&] { QTest::keyClick(&Slide, Qt::Key_W, Qt::ControlModifier); },
        [&] { QTest::keyClick(&Slide, Qt::Key_F4, Qt::ControlModifier); },
        [&] { QTest::keyClick(&Slide, Qt::Key_Q, Qt::ControlModifier); },
        [&] { Press("mnuExit"); },
        [&] {
            QTest::mouseClick(Find<frmSlideDBM>()->findChild<QPushButton*>("cmdClose"),
                              Qt::LeftButton);
        },
    };
    Slide.setFocus();
    DoEvents();
    int Asked = mBoxes.ShownCount();
    for (const auto& Close : Ways) {
        mBoxes.Expect(AboutSlide, BoxAnswer::Cancel);
        Close();
        DoEvents();
        EXPECT_EQ(++Asked, mBoxes.ShownCount()) << "way " << Asked;
        EXPECT_EQ("mine", Slide.text());
    }
    mBoxes.Expect(AboutSlide, BoxAnswer::Discard);
    EXPECT_TRUE(Frame->close());
    EXPECT_FALSE(Find<frmSlideDBM>());
}

TEST_F(Ending, AFaultWhileAWindowSavesKeepsTheProgramOpen) {
    TypedSlide();
    const auto Failing = NewForm<harness::TestForm>();
    Failing->Load();
    Failing->OnQuery = []() -> bool { throw Fault("The disk is full."); };
    mBoxes.Expect(AboutSlide, BoxAnswer::Discard);
    mBoxes.Expect("The disk is full.", "Operation Failed", BoxAnswer::Ok);
    mWindow->close();
    EXPECT_TRUE(mWindow->isVisible());
    EXPECT_TRUE(DBEngine);
    EXPECT_TRUE(Find<frmSlideDBM>());
    Failing->OnQuery = {};
}

}  // namespace
}  // namespace neb
