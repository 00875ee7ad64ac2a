// Browsing for a directory: by path, by typing, by the tree and by the list of places.
#include "controls/directories/DirectoryTree.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QCompleter>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>
#include <QUrl>
#include <QVBoxLayout>

#include "harness/TempFolder.h"
#include "support/files/HostNames.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;
using harness::TempFolder;

class DirectoryTreeTest : public ::testing::Test {
  protected:
    DirectoryTreeTest() {
        auto* Layout = new QVBoxLayout(&Window);
        Layout->addWidget(&Drives);
        Layout->addWidget(&Tree);
        Layout->addWidget(&Select);
        Select.setDefault(true);
        Tree.SetDrives(&Drives);
        Window.resize(300, 300);
        Window.show();
        QApplication::processEvents();
    }
    QLineEdit& Typed() { return *Tree.findChild<QLineEdit*>(); }
    QTreeView& View() { return *Tree.findChild<QTreeView*>(); }
    bool CurrentIsInSight() {
        const QRect Row = View().visualRect(View().currentIndex());
        return Row.isValid() && View().viewport()->rect().contains(Row.center()) &&
               View().currentIndex().data().toString() == Tree.Path().section(u'/', -1);
    }
    // Many directories side by side, each with one below.
    QString MakeMany() {
        for (int I = 0; I < 80; ++I) MakeDirs(Folder / u"d%1/inner"_s.arg(I, 3, 10, QChar(u'0')));
        return Folder / u"d060/inner"_s;
    }
    void Enter(const QString& Text) {
        Typed().setFocus();
        Typed().selectAll();
        QTest::keyClicks(&Typed(), Text);
        QTest::keyClick(&Typed(), Qt::Key_Return);
    }

    TempFolder Folder;
    QDialog Window;
    QComboBox Drives{&Window};
    DirectoryTree Tree{&Window};
    QPushButton Select{&Window};
};

TEST_F(DirectoryTreeTest, GoesToADirectoryAndTellsItOnce) {
    MakeDirs(Folder / u"a"_s);
    QSignalSpy Changes(&Tree, &DirectoryTree::Change);
    Tree.SetPath(Folder / u"a"_s);
    EXPECT_EQ(Folder / u"a"_s, Tree.Path());
    EXPECT_EQ(Folder / u"a"_s, Typed().text());
    EXPECT_EQ(1, Changes.count());
    Tree.SetPath(Folder / u"a/"_s);
    EXPECT_EQ(Folder / u"a"_s, Tree.Path());
    EXPECT_EQ(1, Changes.count()) << "a closing separator is no other directory";
    Tree.SetPath(Folder / u"gone"_s);
    Tree.SetPath({});
    EXPECT_EQ(Folder / u"a"_s, Tree.Path());
    EXPECT_EQ(1, Changes.count());
    Tree.SetPath(u"/"_s);
    EXPECT_EQ("/", Tree.Path().toStdString());
}

TEST_F(DirectoryTreeTest, GoesToAHiddenDirectory) {
    MakeDirs(Folder / u".hidden/b"_s);
    Tree.SetPath(Folder / u".hidden/b"_s);
    EXPECT_EQ(Folder / u".hidden/b"_s, Tree.Path());
}

TEST_F(DirectoryTreeTest, BringsTheDirectoryIntoSightWhenTheTreeFillsLater) {
    const QString Path = MakeMany();
    Tree.SetPath(Path);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return View().model()->rowCount(View().currentIndex().parent().parent()) == 80; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return CurrentIsInSight(); }, 1000));
    QTest::qWait(150);
    EXPECT_TRUE(CurrentIsInSight()) << "and it stays there";
}

TEST_F(DirectoryTreeTest, LeavesTheTreeToTheUserOnceItIsScrolled) {
    Tree.SetPath(MakeMany());
    ASSERT_TRUE(QTest::qWaitFor([&] { return CurrentIsInSight(); }, 1000));
    QTest::qWait(150);
    View().verticalScrollBar()->triggerAction(QScrollBar::SliderToMinimum);
    MakeDirs(Folder / u"d000x"_s);
    QTest::qWait(200);
    EXPECT_EQ(View().verticalScrollBar()->minimum(), View().verticalScrollBar()->value());
}

TEST_F(DirectoryTreeTest, FollowsTheCurrentRow) {
    MakeDirs(Folder / u"a"_s);
    MakeDirs(Folder / u"b"_s);
    Tree.SetPath(Folder / u"a"_s);
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return View().model()->rowCount(View().currentIndex().parent()) == 2; }));
    QSignalSpy Changes(&Tree, &DirectoryTree::Change);
    View().setFocus();
    QTest::keyClick(&View(), Qt::Key_Down);
    EXPECT_EQ(Folder / u"b"_s, Tree.Path());
    EXPECT_EQ(Folder / u"b"_s, Typed().text());
    EXPECT_EQ(1, Changes.count());
}

TEST_F(DirectoryTreeTest, GoesToATypedDirectoryAndPressesNothingElse) {
    MakeDirs(Folder / u"a"_s);
    QSignalSpy Pressed(&Select, &QPushButton::clicked);
    Enter(Folder / u"a"_s);
    EXPECT_EQ(Folder / u"a"_s, Tree.Path());
    EXPECT_EQ(0, Pressed.count());
    EXPECT_TRUE(Tree.TakeTyped());
}

TEST_F(DirectoryTreeTest, UnderstandsTheHomeAnAddressAndANameInTheDirectoryShown) {
    MakeDirs(Folder / u"a b/c"_s);
    Enter(QUrl::fromLocalFile(Folder / u"a b"_s).toString(QUrl::FullyEncoded));
    EXPECT_EQ(Folder / u"a b"_s, Tree.Path());
    Enter(u"c"_s);
    EXPECT_EQ(Folder / u"a b/c"_s, Tree.Path());
    EXPECT_EQ(Folder / u"a b/c"_s, Typed().text());
    Enter(u".."_s);
    EXPECT_EQ(Folder / u"a b"_s, Tree.Path());
    const QByteArray Home = qgetenv("HOME");
    qputenv("HOME", Folder.Path().chopped(1).toUtf8());
    Enter(u"~/a b/c"_s);
    EXPECT_EQ(Folder / u"a b/c"_s, Tree.Path());
    Enter(u"~"_s);
    EXPECT_EQ(Folder.Path().chopped(1), Tree.Path());
    qputenv("HOME", Home);
    Enter(u"~nobody"_s);
    EXPECT_FALSE(Tree.TakeTyped());
    EXPECT_EQ(Folder.Path().chopped(1), Tree.Path());
}

// An open list of completions would swallow the user's next click.
TEST_F(DirectoryTreeTest, IsWalkedThroughWithTheTabKey) {
    Drives.setFocus();
    for (QWidget* Next : {static_cast<QWidget*>(&Typed()), static_cast<QWidget*>(&View()),
                          static_cast<QWidget*>(&Select)}) {
        QTest::keyClick(Window.focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(Next, Window.focusWidget());
    }
}

TEST_F(DirectoryTreeTest, ShowsANameThatIsNoTextInLettersAndStaysThere) {
    const QString Odd = Folder / HostName("b\xFC");
    MakeDirs(Odd);
    Tree.SetPath(Odd);
    EXPECT_EQ(Odd, Tree.Path());
    EXPECT_EQ(Folder / u"bü"_s, Typed().text());
    EXPECT_EQ(u"bü"_s, View().currentIndex().data().toString());
    EXPECT_TRUE(Tree.TakeTyped());
    EXPECT_EQ(Odd, Tree.Path());
    DeleteTree(Odd);
}

TEST_F(DirectoryTreeTest, ProposesNothingMoreOnceATypedDirectoryIsTaken) {
    MakeDirs(Folder / u"fresh/a"_s);
    MakeDirs(Folder / u"fresh/ab"_s);
    QTest::qWait(50);
    Enter(Folder / u"fresh/a"_s);
    QTest::qWait(400);
    EXPECT_EQ(nullptr, QApplication::activePopupWidget());
    EXPECT_FALSE(Typed().completer()->popup()->isVisible());
}

TEST_F(DirectoryTreeTest, ProposesTheDirectoriesThatATypedPathMayMean) {
    MakeDirs(Folder / u"summer"_s);
    MakeDirs(Folder / u"Sunday"_s);
    MakeDirs(Folder / u"winter"_s);
    Typed().setFocus();
    Typed().selectAll();
    QTest::keyClicks(&Typed(), Folder / u"su"_s);
    const auto& Popup = *Typed().completer()->popup();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Popup.isVisible(); }, 2000));
    EXPECT_EQ(2, Popup.model()->rowCount());
    EXPECT_EQ(Folder / u"summer"_s, Popup.model()->index(0, 0).data().toString());
}

TEST_F(DirectoryTreeTest, ShowsWhatADirectoryHoldsByThenWhenItIsOpenedAgain) {
    MakeDirs(Folder / u"a/b"_s);
    MakeDirs(Folder / u"a/.hidden"_s);
    Tree.SetPath(Folder / u"a"_s);
    const QModelIndex Place = View().currentIndex();
    const auto Inside = [&] { return View().model()->rowCount(Place); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return Inside() == 1; }, 2000));
    MakeDirs(Folder / u"a/c"_s);
    DeleteTree(Folder / u"a/b"_s);
    View().collapse(Place);
    View().expand(Place);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Inside() == 1; }, 2000));
    EXPECT_EQ("c", View().model()->index(0, 0, Place).data().toString().toStdString());
    EXPECT_EQ(Folder / u"a"_s, Tree.Path());
    DeleteTree(Folder / u"a/c"_s);
    View().collapse(Place);
    EXPECT_TRUE(View().model()->hasChildren(Place)) << "nobody has looked yet";
    View().expand(Place);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !View().model()->hasChildren(Place); }, 2000));
}

TEST_F(DirectoryTreeTest, PutsAHiddenDirectoryInItsPlaceBeforeAndAfterTheOthersAreRead) {
    for (const char* Name : {"a", "B", "c", ".h", "x1", "X"})
        MakeDirs(Folder / QString::fromLatin1(Name));
    Tree.SetPath(Folder / u".h"_s);
    const QModelIndex Above = View().currentIndex().parent();
    EXPECT_TRUE(QTest::qWaitFor([&] { return View().model()->rowCount(Above) == 6; }, 2000));
    QStringList Names;
    for (int I = 0; I < 6; ++I) Names << View().model()->index(I, 0, Above).data().toString();
    EXPECT_EQ(".h a B c X x1", Names.join(u' ').toStdString());
    EXPECT_EQ(Folder / u".h"_s, Tree.Path());
    EXPECT_EQ(u".h"_s, View().currentIndex().data().toString());
}

TEST_F(DirectoryTreeTest, KeepsATypedDirectoryThatDoesNotExistUntilAnotherIsChosen) {
    Tree.SetPath(Folder.Path());
    const QString Before = Tree.Path();
    Enter(u"/no/such"_s);
    EXPECT_EQ(Before, Tree.Path());
    EXPECT_EQ("/no/such", Typed().text().toStdString());
    EXPECT_FALSE(Tree.TakeTyped());
    View().setFocus();
    EXPECT_EQ(Before, Typed().text());
    EXPECT_TRUE(Tree.TakeTyped());
}

TEST_F(DirectoryTreeTest, ListsThePlaceThatHoldsTheDirectory) {
    Drives.addItem(u"Mine"_s, Folder.Path().chopped(1));
    MakeDirs(Folder / u"a/b"_s);
    Tree.SetPath(Folder / u"a/b"_s);
    EXPECT_EQ("Mine", Drives.currentText().toStdString());
    Tree.SetPath(Folder.Path());
    EXPECT_EQ("Mine", Drives.currentText().toStdString());
    Tree.SetPath(u"/usr"_s);
    EXPECT_EQ("/", Drives.currentData().toString().toStdString());
    Drives.removeItem(Drives.findData(u"/"_s));
    Tree.SetPath(u"/etc"_s);
    EXPECT_EQ(-1, Drives.currentIndex());
}

TEST_F(DirectoryTreeTest, TakesNoPlaceForOneOfALongerName) {
    MakeDirs(Folder / u"pics"_s);
    MakeDirs(Folder / u"pics2"_s);
    Drives.addItem(u"Pics"_s, Folder / u"pics"_s);
    Tree.SetPath(Folder / u"pics2"_s);
    EXPECT_NE("Pics", Drives.currentText().toStdString());
}

TEST_F(DirectoryTreeTest, GoesToAChosenPlaceAndStaysWhenItHasGone) {
    MakeDirs(Folder / u"stick"_s);
    Drives.addItem(u"Stick"_s, Folder / u"stick"_s);
    const auto Choose = [&] {
        Drives.setCurrentText(u"Stick"_s);
        Q_EMIT Drives.activated(Drives.currentIndex());
    };
    Choose();
    EXPECT_EQ(Folder / u"stick"_s, Tree.Path());
    Tree.SetPath(u"/usr"_s);
    DeleteTree(Folder / u"stick"_s);
    Choose();
    EXPECT_EQ("/usr", Tree.Path().toStdString());
    EXPECT_NE("Stick", Drives.currentText().toStdString());
}

}  // namespace
}  // namespace neb
