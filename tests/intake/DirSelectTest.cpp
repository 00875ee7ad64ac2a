// The directory selector: its answer, its count, and what it remembers in "DS.ini".
#include <QCheckBox>
#include <QComboBox>

#include "IntakeHarness.h"
#include "intake/frmDirSelect.h"
#include "platform/DirectoryTree.h"

namespace neb {
namespace {

using namespace harness;

class DirSelect : public Intake {
  protected:
    DirSelect() {
        MakePicture(Pics / u"one.JPG"_s);
        MakePicture(Pics / u"two.jpg"_s);
        WriteFile(Pics / u"three.jpg.bak"_s, "x");
        MakePicture(Pics / u"sub/four.png"_s);
        MakePicture(Pics / u"x.jpg/five.png"_s);
    }
    // Shows the window, lets Do work in it, and gives its answer.
    QString Ask(std::function<void(frmDirSelect&)> Do) {
        Window = NewForm<frmDirSelect>();
        WhenOpen<frmDirSelect>([Do](frmDirSelect& Shown) { Do(Shown); });
        return Window->SelectDirectory();
    }
    static DirectoryTree& Dir1(const QWidget& Shown) { return In<DirectoryTree>(Shown, "Dir1"); }
    static std::string Summary(const QWidget& Shown) {
        return In<QLabel>(Shown, "lblDirSummary").text().toStdString();
    }
    static QCheckBox& Recurse(const QWidget& Shown) {
        return In<QCheckBox>(Shown, "chkRecurseDir");
    }
    QString Memory() { return App / u"DS.ini"_s; }
    QString Folder() { return Pics.Path().chopped(1); }
    std::shared_ptr<frmDirSelect> Window;
};

TEST_F(DirSelect, GivesTheDirectoryAndWhetherToRecurse) {
    const QString Answer = Ask([&](frmDirSelect& Shown) {
        EXPECT_EQ("Directory  Selector", Shown.windowTitle().toStdString());
        Dir1(Shown).SetPath(Folder());
        Recurse(Shown).click();
        Press(Shown, "cmdSelect");
    });
    EXPECT_EQ(Folder(), Answer);
    EXPECT_TRUE(Window->RecurseDir());
    EXPECT_EQ(Folder().toUtf8() + '\n', ReadFile(Memory()));
}

TEST_F(DirSelect, CancelledAnswersNothingAndRemembersThePlace) {
    WriteFile(Memory(), "/nowhere\n");
    const QString Answer = Ask([&](frmDirSelect& Shown) {
        Dir1(Shown).SetPath(Folder());
        Recurse(Shown).click();
        Press(Shown, "cmdCancel");
    });
    EXPECT_EQ("", Answer.toStdString());
    EXPECT_EQ(Folder().toUtf8() + '\n', ReadFile(Memory()));
}

TEST_F(DirSelect, BeginsWhereItLastEnded) {
    WriteFile(Memory(), Folder().toUtf8() + "\r\nmore\r\n");
    QString Shown, Count;
    Ask([&](frmDirSelect& Open) {
        Shown = Dir1(Open).Path();
        Count = QString::fromStdString(Summary(Open));
        Open.close();
    });
    EXPECT_EQ(Folder(), Shown);
    EXPECT_EQ("2 graphics files detected.", Count.toStdString());
}

TEST_F(DirSelect, KeepsTheBlanksOfADirectorysName) {
    MakeDirs(Pics / u"trip "_s);
    WriteLastDirectory(Pics / u"trip "_s);
    EXPECT_EQ(Pics / u"trip "_s, ReadLastDirectory());
}

TEST_F(DirSelect, StaysAtItsDefaultWhenTheDirectoryHasGone) {
    const QString Default = DirectoryTree().Path();
    WriteFile(Memory(), "/gone/for/good\n");
    QString Shown;
    Ask([&](frmDirSelect& Open) {
        Shown = Dir1(Open).Path();
        Open.close();
    });
    EXPECT_EQ(Default, Shown);
}

TEST_F(DirSelect, CountsAtOnceWithAndWithoutSubdirectories) {
    Ask([&](frmDirSelect& Shown) {
        Dir1(Shown).SetPath(Folder());
        EXPECT_EQ("2 graphics files detected.", Summary(Shown));
        Recurse(Shown).click();
        EXPECT_EQ("4 graphics files detected.", Summary(Shown));
        Recurse(Shown).click();
        EXPECT_EQ("2 graphics files detected.", Summary(Shown));
        Dir1(Shown).SetPath(Pics / u"x.jpg"_s);
        EXPECT_EQ("1 graphics files detected.", Summary(Shown));
        EXPECT_EQ(Pointer::Default, ScreenPointer());
        Shown.close();
    });
    EXPECT_FALSE(Window->RecurseDir());
}

TEST_F(DirSelect, SaysNoughtForADirectoryWithoutPictures) {
    MakeDirs(Pics / u"empty"_s);
    WriteFile(Pics / u"empty/a.txt"_s, "x");
    Ask([&](frmDirSelect& Shown) {
        Dir1(Shown).SetPath(Pics / u"empty"_s);
        EXPECT_EQ("0 graphics files detected.", Summary(Shown));
        DeleteTree(Pics / u"empty"_s);
        Recurse(Shown).click();
        EXPECT_EQ("0 graphics files detected.", Summary(Shown));
        Shown.close();
    });
}

TEST_F(DirSelect, OffersTheBoxAndTheCountOnlyWhenWanted) {
    Window = NewForm<frmDirSelect>();
    Window->SetRecurseDirOption(false);
    Window->SetCountGraphics(false);
    WhenOpen<frmDirSelect>([&](frmDirSelect& Shown) {
        EXPECT_FALSE(Recurse(Shown).isVisible());
        EXPECT_FALSE(In<QLabel>(Shown, "lblDirSummary").isVisible());
        Dir1(Shown).SetPath(Folder());
        EXPECT_EQ("", Summary(Shown));
        Recurse(Shown).click();
        Press(Shown, "cmdSelect");
    });
    EXPECT_EQ(Folder(), Window->SelectDirectory());
}

TEST_F(DirSelect, RemembersNothingInAFolderThatCannotBeWritten) {
    AppPathCache = App / u"gone/"_s;
    const QString Answer = Ask([&](frmDirSelect& Shown) {
        Dir1(Shown).SetPath(Folder());
        Press(Shown, "cmdSelect");
    });
    EXPECT_EQ(Folder(), Answer);
    EXPECT_FALSE(FileExists(Memory()));
}

TEST_F(DirSelect, TakesTheTypedDirectoryThoughTheKeyboardNeverLeftIt) {
    const QString Answer = Ask([&](frmDirSelect& Shown) {
        auto& Typed = *Dir1(Shown).findChild<QLineEdit*>();
        Typed.setFocus();
        Typed.selectAll();
        QTest::keyClicks(&Typed, Pics / u"sub"_s);
        In<QPushButton>(Shown, "cmdSelect").click();  // as its key does, which moves no focus
        if (Shown.IsLoaded()) Shown.close();
    });
    EXPECT_EQ(Pics / u"sub"_s, Answer);
}

TEST_F(DirSelect, ChoosesNoOtherDirectoryThanTheOneTyped) {
    Boxes.Expect(u"There is no directory of this name.\n/no/such/place"_s);
    const QString Answer = Ask([&](frmDirSelect& Shown) {
        auto& Typed = *Dir1(Shown).findChild<QLineEdit*>();
        Typed.setFocus();
        Typed.selectAll();
        QTest::keyClicks(&Typed, u"/no/such/place"_s);
        Press(Shown, "cmdSelect");
        EXPECT_TRUE(Shown.IsLoaded());
        Shown.close();
    });
    EXPECT_EQ("", Answer.toStdString());
}

}  // namespace
}  // namespace neb
