// The directory selector: its answer, its count, and what it remembers in "DS.ini".
#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>

#include "FindGraphicsHarness.h"
#include "albums/modPictureFiles.h"
#include "controls/directories/DirectoryTree.h"
#include "harness/ByTheClock.h"
#include "harness/WithoutPrivileges.h"
#include "windows/import/DirectoryPanel.h"
#include "windows/import/frmDirSelect.h"

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
    static QCheckBox& Recurse(const QWidget& Shown) {
        return In<QCheckBox>(Shown, "chkRecurseDir");
    }
    static QString Memory() {
        MakeDirs(MemoryDir());
        return MemoryDir() + u"DS.ini"_s;
    }
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

TEST_F(DirSelect, BeginsWhereAnEarlierVersionEndedWhichKeptThatBesideTheProgram) {
    WriteFile(App / u"DS.ini"_s, Folder().toUtf8() + '\n');
    EXPECT_EQ(Folder(), ReadLastDirectory());
    WriteLastDirectory(Pics / u"sub"_s);
    EXPECT_EQ(Pics / u"sub"_s, ReadLastDirectory());
    EXPECT_EQ(Folder().toUtf8() + '\n', ReadFile(App / u"DS.ini"_s)) << "nothing is written there";
}

TEST_F(DirSelect, OfAlbumsThatMayNotBeChangedItBeginsWhereItEndedBefore) {
    WriteLastDirectory(Folder());
    ReadOnlyDB = true;
    EXPECT_EQ(Folder(), ReadLastDirectory());
    WriteLastDirectory(Pics / u"sub"_s);
    EXPECT_EQ(Pics / u"sub"_s, ReadLastDirectory());
    EXPECT_EQ((Pics / u"sub"_s).toUtf8() + '\n', ReadFile(OwnFiles / u"DS.ini"_s));
    EXPECT_EQ(Folder().toUtf8() + '\n', ReadFile(SettingsDir() + u"DS.ini"_s));
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

TEST_F(DirSelect, LeavesTheChoiceAsItWasWithoutTheOfferOfSubdirectories) {
    Window = NewForm<frmDirSelect>();
    Window->SetRecurseDirOption(false);
    EXPECT_FALSE(Window->RecurseDir());
    Dir1(*Window).SetPath(Folder());
    Recurse(*Window).click();
    EXPECT_FALSE(Window->RecurseDir());
    EXPECT_EQ("2 graphics files detected.", Summary(*Window));
    Window->Unload();
}

// A folder below which nobody counts to the end: it holds links to links to many pictures.
QString EndlessFolder(const QString& Root) {
    const auto Below = [&Root](int Level) { return Root + u"deep%1"_s.arg(Level); };
    MakeDirs(Below(0));
    for (int I = 0; I < 1000; ++I) WriteFile(Below(0) + u"/%1.jpg"_s.arg(I), {});
    for (int Level = 1; Level <= 3; ++Level) {
        MakeDirs(Below(Level));
        for (int I = 0; I < 40; ++I)
            EXPECT_TRUE(QFile::link(Below(Level - 1), Below(Level) + u"/%1"_s.arg(I)));
    }
    return Below(3);
}

TEST_F(DirSelect, AnswersTheKeyboardWhileItCounts) {
    harness::GoByTheClock();
    const QString Endless = EndlessFolder(Pics.Path());
    Ask([&](frmDirSelect& Shown) {
        const auto& Label = In<QLabel>(Shown, "lblDirSummary");
        Recurse(Shown).setFocus();
        QTest::keyClick(&Recurse(Shown), Qt::Key_Space);
        QElapsedTimer Watch;
        Watch.start();
        Dir1(Shown).SetPath(Endless);
        EXPECT_TRUE(QTest::qWaitFor([&] { return Label.text() > "1"; }));
        EXPECT_TRUE(Label.text().endsWith(u" graphics files so far ..."))
            << Label.text().toStdString();
        EXPECT_EQ(Pointer::Hourglass, ScreenPointer());
        QTest::keyClick(&Recurse(Shown), Qt::Key_Space);
        EXPECT_FALSE(Recurse(Shown).isChecked());
        EXPECT_EQ("0 graphics files detected.", Summary(Shown)) << "counted anew, without the rest";
        QTest::keyClick(&Recurse(Shown), Qt::Key_Space);
        EXPECT_TRUE(QTest::qWaitFor([&] { return Label.text().endsWith(u"so far ..."); }));
        QTest::keyClick(&Shown, Qt::Key_Escape);
        EXPECT_FALSE(Shown.IsLoaded()) << "nor does the end of the window wait";
        EXPECT_LT(Watch.elapsed(), 2500) << "a count to its end takes far longer";
    });
    EXPECT_EQ(Pointer::Default, ScreenPointer());
}

// The stop of the walk waits for nothing but the entry at hand, however long the walk would be.
TEST_F(DirSelect, ForgetsTheCountThatNobodyWantsAnyMore) {
    for (int I = 0; I < 40; ++I)
        for (int J = 0; J < 50; ++J) WriteFile(Pics / u"many%1-%2.jpg"_s.arg(I).arg(J), {});
    int Turns = 0;
    Ask([&](frmDirSelect& Shown) {
        Dir1(Shown).SetPath(Folder());
        Dir1(Shown).SetPath(Pics / u"sub"_s);
        EXPECT_TRUE(QTest::qWaitFor([&] { return ++Turns > 20; }));
        EXPECT_EQ("1 graphics files detected.", Summary(Shown));
        EXPECT_EQ(Pointer::Default, ScreenPointer());
        Dir1(Shown).SetPath(Folder());
        EXPECT_EQ("2002 graphics files detected.", Summary(Shown));
        Dir1(Shown).SetPath(Pics / u"sub"_s);
        Dir1(Shown).SetPath(Folder());
        Shown.close();
    });
    EXPECT_EQ(Pointer::Default, ScreenPointer());
    EXPECT_EQ(Folder().toUtf8() + '\n', ReadFile(Memory()));
}

TEST_F(DirSelect, CountsNothingInADirectoryThatCannotBeRead) {
    MakePicture(Pics / u"locked/a.jpg"_s);
    const auto All = QFile::Permissions(0x7755);
    QFile::setPermissions(Pics.Path(), All);
    QFile::setPermissions(Pics / u"locked"_s, {});
    Ask([&](frmDirSelect& Shown) {
        const WithoutPrivileges User;
        Dir1(Shown).SetPath(Pics / u"locked"_s);
        EXPECT_EQ(Pics / u"locked"_s, Dir1(Shown).Path());
        EXPECT_EQ("0 graphics files detected.", Summary(Shown));
        Shown.close();
    });
    QFile::setPermissions(Pics / u"locked"_s, All);
}

TEST_F(DirSelect, CountsFilesWhoseNamesAreNoText) {
    const std::string Dir = Pics.Path().toStdString() + "sub/\xe4";
    EXPECT_EQ(0, mkdir(Dir.c_str(), 0755));
    for (const std::string& Name : {Dir + "/a.jpg", Dir + ".jpg"})
        EXPECT_EQ(0, mknod(Name.c_str(), S_IFREG | 0644, 0));
    MakePicture(Pics / u"sub/Grün.jpg"_s);
    JobState Count;
    EXPECT_EQ(4, CountGraphicFiles(Pics / u"sub"_s, true, Count));
    for (const std::string& Name : {Dir + "/a.jpg", Dir + ".jpg", Dir})
        EXPECT_EQ(0, remove(Name.c_str()));  // Qt cannot address them
}

TEST_F(DirSelect, FollowsMediaThatComeAndGo) {
    ScriptedDrives Drives;
    MakeDirs(Pics / u"stick"_s);
    Ask([&](frmDirSelect& Shown) {
        auto& Places = In<QComboBox>(Shown, "Drive1");
        const int Before = Places.count();
        Drives.Sticks = {{u"STICK"_s, Pics / u"stick"_s}};
        Drives.TellChange();
        EXPECT_EQ(Before + 1, Places.count());
        EXPECT_EQ(Before - 1, Places.findText(u"STICK"_s)) << "the computer is the last";
        Places.setCurrentText(u"STICK"_s);
        Q_EMIT Places.activated(Places.currentIndex());
        EXPECT_EQ(Pics / u"stick"_s, Dir1(Shown).Path());
        Drives.TellChange();
        EXPECT_EQ("STICK", Places.currentText().toStdString());
        Drives.Sticks.clear();
        Drives.TellChange();
        EXPECT_EQ(Before, Places.count());
        EXPECT_EQ(-1, Places.findText(u"STICK"_s));
        Shown.close();
    });
    Drives.TellChange();  // nobody hears it any more
}

TEST_F(DirSelect, IsWorkedWithTheKeyboardAlone) {
    const QString Answer = Ask([&](frmDirSelect& Shown) {
        const auto Key = [&](Qt::Key Code, Qt::KeyboardModifiers With = {}) {
            QTest::keyClick(Shown.focusWidget() ? Shown.focusWidget() : &Shown, Code, With);
        };
        Activate(Shown);
        In<QComboBox>(Shown, "Drive1").setFocus();
        Key(Qt::Key_Tab);
        QTest::keyClick(Shown.focusWidget(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(Shown.focusWidget(), Folder());
        Key(Qt::Key_Return);
        EXPECT_EQ("2 graphics files detected.", Summary(Shown));
        Key(Qt::Key_I, Qt::AltModifier);  // a button's key takes a moment to press it
        EXPECT_TRUE(QTest::qWaitFor([&] { return Shown.RecurseDir(); }, 2000));
        EXPECT_EQ("4 graphics files detected.", Summary(Shown));
        Key(Qt::Key_S, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !Shown.IsLoaded(); }, 2000));
        if (Shown.IsLoaded()) Shown.close();
    });
    EXPECT_EQ(Folder(), Answer);
    EXPECT_TRUE(Window->RecurseDir());
    EXPECT_EQ("", Ask([](frmDirSelect& Shown) { QTest::keyClick(&Shown, Qt::Key_Escape); }));
}

TEST_F(DirSelect, RemembersNothingInAFolderThatCannotBeWritten) {
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.endsWith(u"DS.ini")) throw Fault(u"read-only"_s, Path);
    });
    const QString Answer = Ask([&](frmDirSelect& Shown) {
        Dir1(Shown).SetPath(Folder());
        Press(Shown, "cmdSelect");
    });
    EXPECT_EQ(Folder(), Answer);
    SetHostWatcher({});
    EXPECT_EQ("", ReadLastDirectory());
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
