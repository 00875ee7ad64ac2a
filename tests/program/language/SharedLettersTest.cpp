#include "program/language/SharedLetters.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>

#include "program/CutFinder.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

TEST(SharedLetters, AreThoseOfButtonsAndLabelsThatAreSeen) {
    QWidget Window;
    QPushButton Save(u"&Save"_s, &Window), Hidden(u"&Send"_s, &Window);
    QLabel Name(u"&Name"_s, &Window), Note(u"&Note"_s, &Window);
    QLineEdit Field(&Window);
    Name.setBuddy(&Field);
    Window.show();
    Hidden.hide();
    EXPECT_EQ("", harness::SharedLettersIn(Window).join(u'\n').toStdString());
    Hidden.show();
    Note.setBuddy(&Field);
    EXPECT_EQ(2, harness::SharedLettersIn(Window).size());
}

TEST(SharedLetters, AreSharedWithTheMenuBarAroundAWindowInsideAnother) {
    QMainWindow Main;
    QMenu* const Menu = Main.menuBar()->addMenu(u"&File"_s);
    Menu->addAction(u"&Open"_s);
    auto* const Area = new QMdiArea;
    Main.setCentralWidget(Area);
    auto* const Inside = new QWidget;
    new QPushButton(u"&Find"_s, Inside);
    Area->addSubWindow(Inside);
    Main.show();
    EXPECT_EQ(1, harness::SharedLettersIn(*Inside).size());
    const auto Before = harness::SharedLettersIn(Main).size();
    Menu->addAction(u"&Other"_s);
    EXPECT_EQ(Before + 1, harness::SharedLettersIn(Main).size());
}

TEST(CutTexts, AreMenusWiderThanTheScreenAndTipsLongerThanTheirBar) {
    QMainWindow Main;
    QMenu* const Menu = Main.menuBar()->addMenu(u"&File"_s);
    Menu->setObjectName(u"mnuFile"_s);
    QAction* const Entry = Menu->addAction(u"Open"_s);
    Entry->setObjectName(u"mnuOpen"_s);
    Entry->setStatusTip(u"Opens it"_s);
    Main.statusBar()->setSizeGripEnabled(false);
    Main.resize(400, 300);
    Main.show();
    EXPECT_EQ("", harness::CutsIn(Main).join(u'\n').toStdString());
    Entry->setText(u"Open "_s.repeated(400));
    Entry->setStatusTip(u"Opens it. "_s.repeated(40));
    const QString Found = harness::CutsIn(Main).join(u'\n');
    EXPECT_TRUE(Found.contains(u"mnuFile is"_s)) << Found.toStdString();
    EXPECT_TRUE(Found.contains(u"mnuOpen needs"_s)) << Found.toStdString();
}

}  // namespace
}  // namespace neb
