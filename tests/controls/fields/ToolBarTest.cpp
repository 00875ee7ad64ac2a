// Tools are known by name, and within reach of mouse and keyboard.
#include "controls/fields/ToolBar.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

#include "controls/fields/Icons.h"

namespace neb {
namespace {

class ToolBarOf : public ::testing::Test {
  protected:
    ToolBarOf() {
        Bar.AddTool("mnuImportDirectory", "Import Graphics Directory",
                    "Import the graphics in a directory", "import-directory");
        Bar.addSeparator();
        Bar.AddTool("mnuFindGraphics", "&Find Graphics", "Find pictures", "find-graphics",
                    QKeySequence(Qt::CTRL | Qt::Key_F));
        Bar.AddTool("mnuExit", "Exit", "Close the window", "exit");
        auto* Layout = new QVBoxLayout(&Window);
        Layout->addWidget(&Bar);
        Window.resize(900, 100);
        Window.show();
        Window.activateWindow();
        QApplication::processEvents();
    }
    QToolButton* Button(const char* Name) { return Bar.findChild<QToolButton*>(QString(Name)); }
    QStringList Names() const {
        QStringList All;
        for (const auto& Each : Clicked) All << Each[0].toString();
        return All;
    }

    QWidget Window;
    ToolBar Bar{&Window};
    QSignalSpy Clicked{&Bar, &ToolBar::ToolClicked};
};

TEST_F(ToolBarOf, AClickReportsTheName) {
    QTest::mouseClick(Button("mnuExit"), Qt::LeftButton);
    QTest::mouseClick(Button("mnuImportDirectory"), Qt::LeftButton);
    EXPECT_EQ(Names(), QStringList({"mnuExit", "mnuImportDirectory"}));
}

TEST_F(ToolBarOf, AToolThatIsSwitchedOffReportsNothing) {
    Bar.SetToolEnabled("mnuExit", false);
    EXPECT_FALSE(Bar.IsToolEnabled("mnuExit"));
    QTest::mouseClick(Button("mnuExit"), Qt::LeftButton);
    EXPECT_EQ(Clicked.count(), 0);
    Bar.SetToolEnabled("mnuExit", true);
    EXPECT_TRUE(Bar.IsToolEnabled("mnuExit"));
    Bar.SetToolEnabled("mnuNoSuch", true);
    EXPECT_FALSE(Bar.IsToolEnabled("mnuNoSuch"));
    EXPECT_EQ(Bar.Tool("mnuNoSuch"), nullptr);
}

TEST_F(ToolBarOf, TheKeyboardReachesAndPressesTheTools) {
    Button("mnuImportDirectory")->setFocus(Qt::TabFocusReason);
    ASSERT_TRUE(Button("mnuImportDirectory")->hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    EXPECT_TRUE(Button("mnuFindGraphics")->hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(Button("mnuExit")->hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    EXPECT_TRUE(Button("mnuExit")->hasFocus());
    EXPECT_EQ(Names(), QStringList({"mnuFindGraphics", "mnuExit"}));
}

TEST_F(ToolBarOf, TheArrowKeysPassOverToolsThatAreOff) {
    Bar.SetToolEnabled("mnuFindGraphics", false);
    Button("mnuExit")->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
    EXPECT_TRUE(Button("mnuImportDirectory")->hasFocus());
}

TEST_F(ToolBarOf, AShortcutPressesItsTool) {
    QTest::keyClick(&Window, Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(Names(), QStringList({"mnuFindGraphics"}));
    EXPECT_EQ(Bar.Tool("mnuFindGraphics")->toolTip(), "Find pictures (Ctrl+F)");
}

TEST_F(ToolBarOf, TextAndToolTipAreThere) {
    QToolButton* Import = Button("mnuImportDirectory");
    EXPECT_EQ(Import->text(), "Import Graphics Directory");
    EXPECT_EQ(Import->toolTip(), "Import the graphics in a directory");
    EXPECT_EQ(Import->accessibleName(), "Import Graphics Directory");
    EXPECT_EQ(Button("mnuFindGraphics")->accessibleName(), "Find Graphics");
    EXPECT_EQ(Import->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
}

TEST(ThemeIcon, AnIconThatNobodyHasIsNull) {
    EXPECT_TRUE(ThemeIcon("no-such-icon").isNull());
    EXPECT_TRUE(ThemeIcon("").isNull());
}

}  // namespace
}  // namespace neb
