// The wizard of a new album: what it asks for, what it refuses, and what the import makes of it.
#include <QCheckBox>
#include <QMap>
#include <QTreeView>

#include "IntakeHarness.h"
#include "controls/directories/DirectoryTree.h"
#include "windows/frame/Openers.h"
#include "windows/import/DirectoryPanel.h"
#include "windows/import/frmNewAlbumWzd1.h"

namespace neb {
namespace {

using namespace harness;

class NewAlbumWzd : public Intake {
  protected:
    NewAlbumWzd() {
        MakePicture(Pics / u"one.JPG"_s);
        MakePicture(Pics / u"two.jpg"_s);
        MakePicture(Pics / u"sub/three.png"_s);
        Others->Load();
    }
    ~NewAlbumWzd() override {
        TheOpeners().SlideShowMgr = {};
        Others->Unload();
    }
    // Shows the wizard at the folder of pictures, lets Do work in it, and returns when it is over.
    void Ask(std::function<void(frmNewAlbumWzd1&)> Do) {
        WhenOpen<frmNewAlbumWzd1>([this, Do](frmNewAlbumWzd1& Shown) {
            Dir1(Shown).SetPath(Folder());
            Do(Shown);
        });
        NewForm<frmNewAlbumWzd1>()->ShowModal();
    }
    static QLineEdit& Name(const QWidget& Shown) { return In<QLineEdit>(Shown, "txtAlbumName"); }
    // Types a name, goes on, and lets Do work in the import window that then opens.
    void Import(const QString& AlbumName, std::function<void(frmImportFilter&)> Do) {
        Ask([&](frmNewAlbumWzd1& Shown) {
            Name(Shown).selectAll();
            QTest::keyClicks(&Name(Shown), AlbumName);
            WhenOpen<frmImportFilter>(Do);
            Press(Shown, "cmdNext");
            EXPECT_FALSE(Shown.IsLoaded());
        });
    }
    // What the wizard says instead of going on; it stays open.
    void Refuses(const QString& AlbumName, const QString& Directory) {
        Ask([&](frmNewAlbumWzd1& Shown) {
            Dir1(Shown).SetPath(Directory);
            Name(Shown).setText(AlbumName);
            const int Before = Boxes.ShownCount();
            Press(Shown, "cmdNext");
            EXPECT_EQ(Before + 1, Boxes.ShownCount());
            EXPECT_TRUE(Shown.IsLoaded());
            const bool OfName = AlbumName.trimmed().isEmpty() || Directory == Folder();
            EXPECT_EQ(OfName ? Name(Shown).text() : QString(), Name(Shown).selectedText());
            const QWidget* Tree = Dir1(Shown).findChild<QTreeView*>();
            EXPECT_EQ(OfName ? &Name(Shown) : Tree, Shown.focusWidget());
            Shown.close();
        });
        EXPECT_EQ(nullptr, Open<frmImportFilter>());
    }
    QString Folder() { return Pics.Path().chopped(1); }
    static QString Memory() {
        MakeDirs(MemoryDir());
        return MemoryDir() + u"DS.ini"_s;
    }
    std::shared_ptr<Listener> Others = NewForm<Listener>();
};

TEST_F(NewAlbumWzd, HasItsTextsAndTips) {
    Ask([](frmNewAlbumWzd1& Shown) {
        EXPECT_EQ("New Album Wizard - Step 1: Album Name", Shown.windowTitle().toStdString());
        QStringList Labels;
        for (const auto* Each : Shown.findChildren<QLabel*>()) Labels << Each->text().remove(u'&');
        EXPECT_TRUE(Labels.contains(u"Enter the name for your new Photo Album"_s));
        EXPECT_TRUE(Labels.contains(u"Initial Album Graphics Location"_s));
        const struct {
            const char *Control, *Text, *Tip;
        } Rows[] = {{"chkRecurseDir", "Import Sub-directories", "Import graphics recursively"},
                    {"cmdNext", "Next", "Move to the next step"},
                    {"cmdCancel", "Cancel", "Abort album creation"}};
        for (const auto& Row : Rows) {
            const auto& Button = In<QAbstractButton>(Shown, Row.Control);
            EXPECT_EQ(Row.Text, Button.text().remove(u'&').toStdString());
            EXPECT_EQ(Row.Tip, Button.toolTip().toStdString());
        }
        Press(Shown, "cmdCancel");
    });
}

TEST_F(NewAlbumWzd, CountsAtOnceWithAndWithoutSubdirectories) {
    WriteLastDirectory(Folder());
    Ask([this](frmNewAlbumWzd1& Shown) {
        EXPECT_EQ("2 graphics files detected.", Summary(Shown));
        In<QCheckBox>(Shown, "chkRecurseDir").click();
        EXPECT_EQ("3 graphics files detected.", Summary(Shown));
        Dir1(Shown).SetPath(Pics / u"sub"_s);
        EXPECT_EQ("1 graphics files detected.", Summary(Shown));
        Press(Shown, "cmdCancel");
        EXPECT_FALSE(Shown.IsLoaded());
    });
    EXPECT_EQ((Pics / u"sub"_s).toUtf8() + '\n', ReadFile(Memory()));
}

TEST_F(NewAlbumWzd, BeginsWhereADirectoryWasLastShown) {
    WriteLastDirectory(Pics / u"sub"_s);
    QString First;
    WhenOpen<frmNewAlbumWzd1>([&](frmNewAlbumWzd1& Shown) {
        First = Dir1(Shown).Path();
        Shown.close();
    });
    NewForm<frmNewAlbumWzd1>()->ShowModal();
    EXPECT_EQ(Pics / u"sub"_s, First);
}

TEST_F(NewAlbumWzd, MakesTheAlbumAtTheEndOfItsImport) {
    std::int32_t ManagedAlbum = 0, ManagedShow = -1;
    TheOpeners().SlideShowMgr = [&](std::int32_t AlbumID, std::int32_t SlideShowID) {
        ManagedAlbum = AlbumID;
        ManagedShow = SlideShowID;
    };
    Boxes.Expect(u"2 slides successfully imported."_s);
    Import(u"Rose's"_s, [this](frmImportFilter& Filter) {
        EXPECT_EQ("Picture Import Filter - Rose\xE2\x80\x99s", Filter.windowTitle().toStdString());
        EXPECT_EQ("one,two", CaptionsOf(NonSelected(Filter)));
        EXPECT_TRUE(Engine.Albums.empty()) << "nothing of the album exists yet";
        Press(Filter, "cmdMoveRightAll");
        Press(Filter, "cmdImport");
    });
    ASSERT_EQ(1u, Engine.Albums.size());
    EXPECT_EQ("Rose\xE2\x80\x99s", Engine.Albums[0]->AlbumName.toStdString());
    EXPECT_EQ(2u, Engine.Albums[0]->Slides.size());
    EXPECT_EQ("Album Insert 1|Album Add Slides 1 0", Others->Heard.join(u'|').toStdString());
    EXPECT_EQ(1, ManagedAlbum);
    EXPECT_EQ(0, ManagedShow);
}

TEST_F(NewAlbumWzd, EndsWithTheImportWhereThereIsNoSlideShowManager) {
    Boxes.Expect(u"2 slides successfully imported."_s);
    Import(u"Rose"_s, [](frmImportFilter& Filter) {
        Press(Filter, "cmdMoveRightAll");
        Press(Filter, "cmdImport");
        EXPECT_FALSE(Filter.IsLoaded());
    });
    EXPECT_EQ(1u, Engine.Albums.size());
}

TEST_F(NewAlbumWzd, ImportsSubdirectoriesWhenTheBoxIsChecked) {
    Ask([&](frmNewAlbumWzd1& Shown) {
        Name(Shown).setText(u"Rose"_s);
        In<QCheckBox>(Shown, "chkRecurseDir").click();
        WhenOpen<frmImportFilter>([](frmImportFilter& Filter) {
            EXPECT_EQ("one,two,three", CaptionsOf(NonSelected(Filter)));
            Press(Filter, "cmdCancel");
        });
        Press(Shown, "cmdNext");
    });
}

TEST_F(NewAlbumWzd, LeavesNoAlbumBehindWhenTheImportIsCancelled) {
    Boxes.Expect(u"Are you sure you want to discard the selected pictures?"_s, BoxAnswer::Discard);
    Import(u"Rose"_s, [](frmImportFilter& Filter) {
        Press(Filter, "cmdMoveRightAll");
        Press(Filter, "cmdCancel");
    });
    EXPECT_TRUE(Engine.Albums.empty());
    EXPECT_TRUE(ListDir(Db.Path()).empty());
    EXPECT_TRUE(Others->Heard.isEmpty());
    EXPECT_EQ(1, Engine.NextAlbumID);
}

TEST_F(NewAlbumWzd, EndsWithoutTheImportWhenTheReadIsClosed) {
    AtReadValue(1, [] {
        for (const auto& Each : LoadedForms())
            if (auto* Filter = dynamic_cast<frmImportFilter*>(Each.get())) Filter->Unload();
    });
    int Opened = 0;
    Ask([&](frmNewAlbumWzd1& Shown) {
        Name(Shown).setText(u"Rose"_s);
        WhenOpen<frmImportFilter>([&](frmImportFilter& Filter) {
            ++Opened;
            Filter.Unload();
        });
        Press(Shown, "cmdNext");
        EXPECT_FALSE(Shown.IsLoaded());
    });
    EXPECT_EQ(0, Opened);
    EXPECT_TRUE(Engine.Albums.empty());
}

TEST_F(NewAlbumWzd, RefusesANameOfBlanksAlone) {
    for (const auto& AlbumName : {u""_s, u"   "_s}) {
        Boxes.Expect(u"You must enter a name for your new album."_s);
        Refuses(AlbumName, Folder());
    }
}

TEST_F(NewAlbumWzd, RefusesANameThatIsTakenAlsoWhenItsQuotesDiffer) {
    MakeAlbum(u"Rose\u2019s \u201cred\u201d"_s);
    for (const auto& AlbumName : {u"Rose's \"red\""_s, u"ROSE\u2019s \u201cred\u201d"_s}) {
        Boxes.Expect(u"Album Name is already in use."_s, u"Invalid Album Name"_s, BoxIcon::Critical,
                     BoxAnswer::Ok);
        Refuses(AlbumName, Folder());
    }
}

TEST_F(NewAlbumWzd, RefusesTheDirectoryOfTheDatabaseAndAllBelowIt) {
    MakeDirs(Db / u"Albums/1/Slides"_s);
    MakeDirs(Db / u"Mine"_s);
    for (const auto& Directory : {u""_s, u"Albums/1/Slides"_s, u"Mine"_s}) {
        Boxes.Expect(
            u"This directory is reserved for NEB Slide Show.  You cannot import from it."_s);
        Refuses(u"Rose"_s, Db / Directory);
    }
}

TEST_F(NewAlbumWzd, TakesADirectoryWhoseNameOnlyBeginsLikeTheDatabase) {
    const QString Beside = Db.Path().chopped(1) + u"-more"_s;
    MakePicture(Beside + u"/four.jpg"_s);
    Ask([&](frmNewAlbumWzd1& Shown) {
        Name(Shown).setText(u"Rose"_s);
        Dir1(Shown).SetPath(Beside);
        WhenOpen<frmImportFilter>([](frmImportFilter& Filter) {
            EXPECT_EQ("four", CaptionsOf(NonSelected(Filter)));
            Filter.close();
        });
        Press(Shown, "cmdNext");
    });
    DeleteTree(Beside);
}

TEST_F(NewAlbumWzd, AsksForTheNameBeforeItLooksAtTheDirectory) {
    Boxes.Expect(u"You must enter a name for your new album."_s);
    Refuses({}, Db.Path());
}

TEST_F(NewAlbumWzd, ProposesTheNameOfTheDirectoryUntilOneIsTyped) {
    MakeDirs(Pics / u"Lake's"_s);
    MakeDirs(Pics / u"Rome"_s);
    MakeDirs(Pics / QString(100, u'n'));
    MakeAlbum(u"ROME"_s);
    WriteLastDirectory(Pics / u"sub"_s);
    WhenOpen<frmNewAlbumWzd1>([this](frmNewAlbumWzd1& Shown) {
        EXPECT_EQ("", Name(Shown).text().toStdString()) << "nothing has been chosen yet";
        const auto Proposed = [&](const QString& Directory) {
            Dir1(Shown).SetPath(Pics / Directory);
            return Name(Shown).text();
        };
        EXPECT_EQ(u"Lake’s"_s, Proposed(u"Lake's"_s));
        EXPECT_EQ(u"Rome 2"_s, Proposed(u"Rome"_s)) << "there is an album of that name";
        EXPECT_EQ(QString(80, u'n'), Proposed(QString(100, u'n')));
        Dir1(Shown).SetPath(u"/"_s);
        EXPECT_EQ("", Name(Shown).text().toStdString());
        Activate(Shown);
        QTest::keyClicks(&Name(Shown), u"Mine"_s);
        EXPECT_EQ(u"Mine"_s, Proposed(u"Rome"_s));
        Shown.close();
    });
    NewForm<frmNewAlbumWzd1>()->ShowModal();
}

TEST_F(NewAlbumWzd, GoesOnWithNoNameThatNobodyHasSeen) {
    Boxes.Expect(u"You must enter a name for your new album."_s);
    Ask([&](frmNewAlbumWzd1& Shown) {
        Name(Shown).clear();
        Dir1(Shown).findChild<QLineEdit*>()->setText(Pics / u"sub"_s);
        Press(Shown, "cmdNext");
        ASSERT_TRUE(Shown.IsLoaded());
        EXPECT_EQ("sub", Name(Shown).selectedText().toStdString());
        WhenOpen<frmImportFilter>([](frmImportFilter& Filter) {
            EXPECT_EQ("Picture Import Filter - sub", Filter.windowTitle().toStdString());
            Filter.close();
        });
        Press(Shown, "cmdNext");
    });
}

TEST_F(NewAlbumWzd, GoesNowhereWithADirectoryThatDoesNotExist) {
    Boxes.Expect(u"There is no directory of this name.\n/no/such/place"_s);
    Ask([&](frmNewAlbumWzd1& Shown) {
        Name(Shown).setText(u"Rose"_s);
        Dir1(Shown).findChild<QLineEdit*>()->setText(u"/no/such/place"_s);
        In<QPushButton>(Shown, "cmdNext").click();
        EXPECT_TRUE(Shown.IsLoaded());
        Shown.close();
    });
}

TEST_F(NewAlbumWzd, CleansTheNameWhileItIsTypedAndWhenItIsPasted) {
    Ask([&](frmNewAlbumWzd1& Shown) {
        Activate(Shown);
        Name(Shown).clear();
        QTest::keyClicks(&Name(Shown), u"\"a\" 'b'"_s);
        EXPECT_EQ(u"\u201ca\u201d \u2018b\u2019"_s, Name(Shown).text());
        Name(Shown).setText(u"it's"_s);
        Name(Shown).setFocus();
        In<QPushButton>(Shown, "cmdCancel").setFocus();
        EXPECT_EQ(u"it\u2019s"_s, Name(Shown).text());
        Shown.close();
    });
}

TEST_F(NewAlbumWzd, MakesNoSecondAlbumOfANameThatWasTakenMeanwhile) {
    Boxes.Expect(u"An Album with this name already exists."_s);
    Boxes.Expect(u"Failed to create album."_s);
    Import(u"Rose"_s, [&](frmImportFilter& First) {
        MakeAlbum(u"Rose"_s);  // as another window would
        Press(First, "cmdMoveRightAll");
        Press(First, "cmdImport");
        EXPECT_EQ("one,two", CaptionsOf(Selected(First))) << "the choice is not lost";
        Drop(First);
    });
    EXPECT_EQ(1u, Engine.Albums.size());
}

TEST_F(NewAlbumWzd, IsWorkedWithTheKeyboardAlone) {
    Boxes.Expect(u"2 slides successfully imported."_s);
    Ask([&](frmNewAlbumWzd1& Shown) {
        Activate(Shown);
        EXPECT_EQ(&Name(Shown), Shown.focusWidget()) << "the name comes first";
        Name(Shown).selectAll();
        QTest::keyClicks(Shown.focusWidget(), u"Rose"_s);
        QSet<QWidget*> Reached;
        for (int I = 0; I < 8; ++I) {
            QTest::keyClick(Shown.focusWidget(), Qt::Key_Tab);
            Reached << Shown.focusWidget();
        }
        EXPECT_LE(7, Reached.size());
        QTest::keyClick(Shown.focusWidget(), Qt::Key_G, Qt::AltModifier);
        EXPECT_EQ(Dir1(Shown).findChild<QTreeView*>(), Shown.focusWidget());
        QTest::keyClick(Shown.focusWidget(), Qt::Key_E, Qt::AltModifier);
        EXPECT_EQ(&Name(Shown), Shown.focusWidget());
        WhenOpen<frmImportFilter>([](frmImportFilter& Filter) {
            Filter.activateWindow();
            for (const char* Button : {"cmdMoveRightAll", "cmdImport"}) {
                In<QPushButton>(Filter, Button).setFocus();
                QTest::keyClick(&In<QPushButton>(Filter, Button), Qt::Key_Space);
            }
        });
        QTest::keyClick(Shown.focusWidget(), Qt::Key_Return);
        EXPECT_FALSE(Shown.IsLoaded());
    });
    EXPECT_EQ(1u, Engine.Albums.size());
    Ask([](frmNewAlbumWzd1& Shown) {
        QTest::keyClick(&Shown, Qt::Key_Escape);
        EXPECT_FALSE(Shown.IsLoaded());
    });
}

TEST_F(NewAlbumWzd, ChangesNothingInAReadOnlyDatabase) {
    MakePicture(Db / u"Albums/1/Slides/00000001.jpg"_s);
    WriteFile(Db / u"NextIDs.dat"_s, "x");
    const auto Everything = [this] {
        QMap<QString, std::pair<QByteArray, QDateTime>> Now;
        for (const auto& Name : {u"NextIDs.dat"_s, u"Albums/1/Slides/00000001.jpg"_s})
            Now[Name] = {ReadFile(Db / Name), *FileTime(Db / Name)};
        for (const auto& Each : {u""_s, u"Albums/"_s, u"Albums/1/"_s, u"Albums/1/Slides/"_s})
            for (const DirEntry& Entry : ListDir(Db / Each)) Now[Each + Entry.Name].first += "!";
        return Now;
    };
    const auto Before = Everything();
    ReadOnlyDB = true;
    Import(u"Rose"_s, [](frmImportFilter& Filter) {
        EXPECT_EQ("one,two", CaptionsOf(NonSelected(Filter)));
        for (const char* Button : {"cmdMoveRightAll", "cmdImport"}) {
            EXPECT_FALSE(In<QPushButton>(Filter, Button).isEnabled());
            Press(Filter, Button);
        }
        Filter.close();
    });
    EXPECT_EQ(Before, Everything());
    EXPECT_TRUE(Engine.Albums.empty());
}

}  // namespace
}  // namespace neb
