// All tasks around albums and slides by somebody who has no mouse: controls are reached by Tab
// alone and pressed with Space or Enter, lists and trees are walked with the arrows.
#include <QApplication>
#include <QListWidget>
#include <QTreeView>

#include "AllWindowsRig.h"
#include "controls/picture/XShow.h"
#include "sound/RecorderRig.h"
#include "windows/albums/frmAlbumDelete.h"
#include "windows/albums/frmAlbumRename.h"
#include "windows/albums/frmGetObjectName.h"
#include "windows/albums/modAlbumNames.h"
#include "windows/import/DirectoryPanel.h"
#include "windows/import/FindGraphicsHarness.h"
#include "windows/import/frmNewAlbumWzd1.h"
#include "windows/import/frmQuickShow.h"
#include "windows/lists/frmPicturePopup.h"
#include "windows/recorder/frmSoundRecorder.h"
#include "windows/show/frmSlideShowProjector.h"
#include "windows/transfer/frmAlbumExport.h"
#include "windows/transfer/frmAlbumImport.h"
#include "windows/transfer/frmSlideShowExport.h"
#include "windows/transfer/frmSlideShowImport.h"

namespace neb {
namespace {

using namespace harness;

class KeyboardTasks : public AllWindowsRig {
  protected:
    KeyboardTasks() { XShow::SetReader(&ReadBack); }
    ~KeyboardTasks() override { XShow::SetReader({}); }

    static QWidget* Focus() { return QApplication::focusWidget(); }
    static std::string FocusName() {
        return Focus() ? Focus()->objectName().toStdString() : "nowhere";
    }
    // A key for whatever has the keyboard.
    static void Key(Qt::Key Pressed, Qt::KeyboardModifiers With = {}) {
        QWidget* On = Focus() ? Focus() : QApplication::activeWindow();
        ASSERT_TRUE(On);
        QTest::keyClick(On, Pressed, With);
    }
    static void Keys(std::initializer_list<Qt::Key> All) {
        for (const Qt::Key Each : All) Key(Each);
    }
    static void Write(const QString& Text) {
        ASSERT_TRUE(Focus());
        QTest::keyClicks(Focus(), Text);
    }
    static void Rewrite(const QString& Text) {
        Key(Qt::Key_A, Qt::ControlModifier);
        Write(Text);
    }
    // By its name, or by what a screen reader calls it.
    static bool IsAt(const QString& Name) {
        return Focus() && (Focus()->objectName() == Name || Focus()->accessibleName() == Name);
    }
    static void TabTo(const char* Name) {
        constexpr int MostSteps = 40;
        for (int I = 0; I < MostSteps && !IsAt(QString::fromLatin1(Name)); ++I) Key(Qt::Key_Tab);
        EXPECT_TRUE(IsAt(QString::fromLatin1(Name))) << "Tab never comes to " << Name;
    }
    static void PressKeyOn(const char* Name) {
        TabTo(Name);
        Key(Qt::Key_Space);
    }
    // In a list that stands in several rows of unlike items: down along the first ones, then along
    // the row.
    static void ArrowsTo(QListWidget& List, QListWidgetItem& Item) {
        Key(Qt::Key_Home);
        for (int I = 0; I < List.count() && List.currentItem() != &Item; ++I) {
            const QPoint Way = List.visualItemRect(&Item).topLeft() -
                               List.visualItemRect(List.currentItem()).topLeft();
            Key(Way.y() > 0 ? Qt::Key_Down : Way.x() > 0 ? Qt::Key_Right : Qt::Key_Left);
        }
        EXPECT_EQ(&Item, List.currentItem()) << "the arrows never come there";
    }
    // The directory windows.
    static void WriteDirectory(const QString& Directory) {
        TabTo("Directory");
        Rewrite(Directory);
        Key(Qt::Key_Return);
    }
    static void ChooseIn(const QString& Directory) {
        WhenOpen<frmDirSelect>([Directory](frmDirSelect& Selector) {
            Activate(Selector);
            WriteDirectory(Directory);
            PressKeyOn("cmdSelect");
        });
    }
    QString Folder() { return Pics.Path().chopped(1); }
    clsNEBAlbum& Album(const QString& Name) {
        for (const auto& Each : Engine.Albums)
            if (Each->AlbumName == Name) return *Each;
        throw Fault(u"no album "_s + Name);
    }
    static std::string CaptionsIn(const clsNEBAlbum& Album) {
        QStringList All;
        for (const auto& Each : Album.Slides) All << Each->SlideText;
        return All.join(u'|').toStdString();
    }
    static void SelectFirstAndThird() {
        Keys({Qt::Key_Home, Qt::Key_Space});
        for (int I = 0; I < 2; ++I) Key(Qt::Key_Down, Qt::ControlModifier);
        Key(Qt::Key_Space, Qt::ControlModifier);
    }
    // Of three pictures the first and the last, with a caption of one's own.
    static void ImportTwoOfThree(ImportForm& Window) {
        Activate(Window);
        TabTo("flxNonSelected");
        SelectFirstAndThird();
        PressKeyOn("cmdMoveRightOne");
        NameTheFirstAndImport(Window);
    }
    // In Quick Show all are chosen already.
    static void LeaveTheSecondOut(ImportForm& Window) {
        Activate(Window);
        TabTo("flxSelected");
        for (const Qt::Key Each : {Qt::Key_Home, Qt::Key_Down}) Key(Each);
        PressKeyOn("cmdMoveLeftOne");
        NameTheFirstAndImport(Window);
    }
    static void NameTheFirstAndImport(ImportForm& Window) {
        EXPECT_EQ("a,c", CaptionsOf(Selected(Window)));
        TabTo("flxSelected");
        Key(Qt::Key_Home);
        Key(Qt::Key_F2);
        Rewrite(u"Rose"_s);
        Key(Qt::Key_Return);
        EXPECT_EQ("Rose,c", CaptionsOf(Selected(Window)));
        PressKeyOn("cmdImport");
    }
};

TEST_F(KeyboardTasks, ANewAlbumIsMadeOfAFolderOfPictures) {
    MakePictures(3);
    Boxes.Expect(u"2 slides successfully imported."_s);
    WhenOpen<frmNewAlbumWzd1>([this](frmNewAlbumWzd1& Wizard) {
        Activate(Wizard);
        Write(u"Holiday"_s);
        WriteDirectory(Folder());
        EXPECT_EQ("3 graphics files detected.", Summary(Wizard));
        PressKeyOn("chkRecurseDir");
        WhenOpen<frmImportFilter>([](frmImportFilter& Window) { ImportTwoOfThree(Window); });
        PressKeyOn("cmdNext");
        EXPECT_FALSE(Wizard.IsLoaded());
    });
    NewForm<frmNewAlbumWzd1>()->ShowModal();
    EXPECT_EQ("Rose|c", CaptionsIn(Album(u"Holiday"_s)));
}

TEST_F(KeyboardTasks, AQuickShowIsMadeAndLeft) {
    MakePictures(3);
    const auto Window = NewForm<frmQuickShow>();
    ShowActive(*Window);
    ChooseIn(Folder());
    PressKeyOn("mnuImportDirectory");
    Activate(*Window);
    TabTo("txtName");
    Rewrite(u"Holiday"_s);
    bool Ran = false;
    WhenOpen<frmSlideShowProjector>([&](frmSlideShowProjector& Shown) {
        Ran = true;
        QTest::keyClick(&Shown, Qt::Key_Escape);
    });
    LeaveTheSecondOut(*Window);
    EXPECT_TRUE(Ran);
    EXPECT_EQ("Rose|c", CaptionsIn(Album(u"Holiday"_s)));
}

TEST_F(KeyboardTasks, ASlideIsMadeTurnedSavedAndDeleted) {
    AddSlide(u"b"_s);
    OpenWindow();
    TabTo("cboAlbum");
    Key(Qt::Key_Down);
    Dialogs.Answer = MakePicture(Pics / u"a.png"_s, 60, 30);
    PressKeyOn("cmdPicture");
    PressKeyOn("cmdRotate1");
    EXPECT_EQ(QSize(30, 60), Shown().size());
    for (const char* Turn : {"cmdRotate2", "cmdFlip1", "cmdFlip2", "cmdRotate2"}) PressKeyOn(Turn);
    TabTo("txtDscr");
    Write(u"a"_s);
    PressKeyOn("cmdSave");
    EXPECT_EQ("b|a", CaptionsIn(SlideRig::Album()));
    EXPECT_EQ(QSize(30, 60), SizeOf(Stored(u"00000002.jpg"_s)));
    EXPECT_EQ(2, Chosen());
    PressKeyOn("cmdNext");
    EXPECT_EQ("b", Text());
    PressKeyOn("cmdPrev");
    EXPECT_EQ("a", Text());
    TabTo("cboSlides");
    Key(Qt::Key_Down);
    EXPECT_EQ("b", Text());
    TabTo("txtDscr");
    Rewrite(u"x"_s);
    PressKeyOn("cmdCancel");
    EXPECT_EQ("b", Text());
    ExpectSlideDeletion();
    PressKeyOn("cmdDelete");
    EXPECT_EQ("a", CaptionsIn(SlideRig::Album()));
    EXPECT_EQ(0, Index());
    PressKeyOn("cmdNew");
    PressKeyOn("cmdClose");
    EXPECT_FALSE(W->IsLoaded());
}

TEST_F(KeyboardTasks, ASoundIsRecordedSetAndCleared) {
    test::FakeSound Sound;
    const auto ID = AddSlide(u"a"_s);
    OpenWindow();
    TabTo("cboAlbum");
    Key(Qt::Key_Down);
    TabTo("cboSlides");
    Key(Qt::Key_Down);
    WhenOpen<frmSoundRecorder>([&](frmSoundRecorder& Recorder) {
        Activate(Recorder);
        PressKeyOn("cmdRecord");
        if (Sound.Buffer) Sound.Buffer->Feed(test::Speech(500));
        PressKeyOn("cmdStop");
        PressKeyOn("cmdSave");
        if (Recorder.IsLoaded()) Key(Qt::Key_Escape);
        EXPECT_FALSE(Recorder.IsLoaded());
    });
    PressKeyOn("cmdRecord");
    Activate(*W);
    PressKeyOn("chkOverride");
    PressKeyOn("chkRepeat");
    PressKeyOn("cmdSave");
    EXPECT_EQ(u"00000001.wav"_s, Slide(ID).SoundTrackLoc);
    EXPECT_TRUE(Slide(ID).Override && Slide(ID).Repeat);
    EXPECT_TRUE(ReadFile(Stored(u"00000001.wav"_s)).contains(test::Speech(500)));
    PressKeyOn("cmdClearSound");
    PressKeyOn("cmdSave");
    EXPECT_EQ(u""_s, Slide(ID).SoundTrackLoc);
}

TEST_F(KeyboardTasks, ADirectoryIsImportedFromTheSlideManager) {
    MakePictures(3);
    OpenWindow();
    TabTo("cboAlbum");
    Key(Qt::Key_Down);
    ChooseIn(Folder());
    WhenOpen<frmImportFilter>([](frmImportFilter& Window) {
        Activate(Window);
        TabTo("flxNonSelected");
        Keys({Qt::Key_Home, Qt::Key_Left});
        int Popups = 0;
        WhenOpen<frmPicturePopup>([&](frmPicturePopup& Popup) {
            ++Popups;
            QTest::keyClick(&Popup, Qt::Key_Escape);
        });
        Key(Qt::Key_Return);
        EXPECT_EQ(1, Popups);
        Activate(Window);
        PressKeyOn("cmdMoveRightAll");
        PressKeyOn("cmdMoveLeftAll");
        ImportTwoOfThree(Window);
    });
    Boxes.Expect(u"2 slides successfully imported."_s);
    PressKeyOn("mnuImport");
    EXPECT_EQ("Rose|c", CaptionsIn(SlideRig::Album()));
}

TEST_F(KeyboardTasks, CaptionsAreEditedInTheBulkManagerAndSlidesDeleted) {
    for (const char* Text : {"a", "b", "c", "d"}) AddSlide(QString::fromLatin1(Text));
    MakeAlbum(u"Attic"_s);
    const auto Window = NewForm<frmSlideMgrBulk>();
    Window->LoadAlbumMgr(0);
    Activate(*Window);
    TabTo("cboAlbum");
    Key(Qt::Key_Down);
    Activate(*Window);
    TabTo("flxAlbum");
    Key(Qt::Key_Home);
    Key(Qt::Key_F2);
    Rewrite(u"Anemone"_s);
    Key(Qt::Key_Tab);
    Rewrite(u"Begonia"_s);
    Key(Qt::Key_Return);
    ExpectDone(u"2 slides successfully saved."_s);
    PressKeyOn("cmdSave");
    EXPECT_EQ("Anemone|Begonia|c|d", CaptionsIn(SlideRig::Album()));
    EXPECT_EQ("cboAlbum", FocusName());
    TabTo("flxAlbum");
    Key(Qt::Key_End);
    Key(Qt::Key_F2);
    Rewrite(u"x"_s);
    Key(Qt::Key_Return);
    PressKeyOn("cmdCancel");
    Activate(*Window);
    TabTo("flxAlbum");
    SelectFirstAndThird();
    Boxes.Expect(u"Are you sure you want to delete the selected slides?"_s, BoxAnswer::Yes);
    ExpectDone(u"2 slides successfully deleted."_s);
    PressKeyOn("cmdDelete");
    EXPECT_EQ("Begonia|d", CaptionsIn(SlideRig::Album()));
    Activate(*Window);
    PressKeyOn("cmdClose");
    EXPECT_FALSE(Window->IsLoaded());
}

TEST_F(KeyboardTasks, GraphicsAreFoundAndChosen) {
    LongStrides Strides;
    ScriptedDrives Drives;
    Drives.Paths = {Folder()};
    for (const char* Name : {"sub/p1.png", "sub/p2.jpg", "sub/p3.png", "sub/p4.png", "sub/q.png"})
        MakePicture(Pics / QString::fromLatin1(Name));
    const auto Window = NewForm<frmFindGraphics>();
    ShowActive(*Window);
    TabTo("cboSearchPath");
    ChooseIn(Pics / u"sub"_s);
    Key(Qt::Key_End);
    Activate(*Window);
    EXPECT_EQ(Pics / u"sub"_s, In<QComboBox>(*Window, "cboSearchPath").currentText());
    TabTo("txtFilter");
    Rewrite(u"p"_s);
    TabTo("lstTypeFilter");
    auto& Types = In<QListWidget>(*Window, "lstTypeFilter");
    for (int I = 0; I < Types.count(); ++I) {
        ArrowsTo(Types, *Types.item(I));
        if (!Types.item(I)->text().contains(u"png", Qt::CaseInsensitive)) Key(Qt::Key_Space);
    }
    EXPECT_EQ(1, Types.selectedItems().size());
    PressKeyOn("cmdSearch");
    auto& Grid = In<FlexGrid>(*Window, "flxResults");
    EXPECT_EQ("p1.png|p3.png|p4.png", Column(Grid, 0).join(u'|').toStdString());
    TabTo("flxResults");
    Key(Qt::Key_Home);
    Key(Qt::Key_Down, Qt::ShiftModifier);
    PressKeyOn("cmdImport");
    EXPECT_FALSE(Window->IsLoaded());
    EXPECT_EQ(2, Window->FileCnt());
}

TEST_F(KeyboardTasks, ADirectoryIsChosenByWalkingTheTree) {
    MakePicture(Pics / u"below/deep/a.jpg"_s);
    MakePicture(Pics / u"beside/b.jpg"_s);
    const auto Selector = NewForm<frmDirSelect>();
    WhenOpen<frmDirSelect>([this](frmDirSelect& Window) {
        Activate(Window);
        WriteDirectory(Folder());
        TabTo("Directories");
        const auto Comes = [&](Qt::Key Pressed, const QString& Path) {
            EXPECT_TRUE(QTest::qWaitFor([&] {
                if (Dir1(Window).Path() != Path) Key(Pressed);
                return Dir1(Window).Path() == Path;
            })) << Path.toStdString();
        };
        Comes(Qt::Key_Right, Pics / u"below"_s);
        Comes(Qt::Key_Down, Pics / u"beside"_s);
        Comes(Qt::Key_Up, Pics / u"below"_s);
        Comes(Qt::Key_Right, Pics / u"below/deep"_s);
        Comes(Qt::Key_Left, Pics / u"below"_s);
        PressKeyOn("chkRecurseDir");
        EXPECT_EQ("1 graphics files detected.", Summary(Window));
        PressKeyOn("cmdSelect");
    });
    EXPECT_EQ(Pics / u"below"_s, Selector->SelectDirectory());
    EXPECT_TRUE(Selector->RecurseDir());
}

TEST_F(KeyboardTasks, AnAlbumAndAShowGoToAnotherDatabaseAndComeBack) {
    AddSlide(u"a"_s);
    std::int32_t ShowID = 0;
    SlideRig::Album().SaveSlideShow(ShowID, u"Summer"_s, 0, Engine);
    SlideRig::Album().GetSlideShow(ShowID)->SaveDetail(1, 1, {});
    TempFolder Stick;
    const auto Out = NewForm<frmAlbumExport>();
    ShowActive(*Out);
    EXPECT_EQ("cboSrcAlbum", FocusName());
    TabTo("txtDstDB");
    Write(Stick.Path());
    Boxes.Expect(
        u"The specified directory does not hold an NEB Slide Show Database.\nDo you want to make a "
        "new one there?"_s,
        u"Invalid Directory"_s, BoxIcon::Question, BoxAnswer::Yes);
    Key(Qt::Key_Return);
    TabTo("txtAlbumName");
    Rewrite(u"Flowers"_s);
    PressKeyOn("cmdExport");
    EXPECT_FALSE(Out->IsLoaded());
    const auto ShowOut = NewForm<frmSlideShowExport>();
    ShowActive(*ShowOut);
    TabTo("txtDstDB");
    Key(Qt::Key_Down, Qt::AltModifier);
    ASSERT_NE(nullptr, QApplication::activePopupWidget());
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    DoEvents();  // what was chosen is opened once the list has gone
    Activate(*ShowOut);
    TabTo("cboDstAlbum");
    Key(Qt::Key_End);
    TabTo("txtSlideShowName");
    Rewrite(u"Winter"_s);
    Key(Qt::Key_Return);
    EXPECT_FALSE(ShowOut->IsLoaded()) << "Enter presses Export";
    const auto In = NewForm<frmSlideShowImport>();
    ShowActive(*In);
    EXPECT_EQ("txtSrcDB", FocusName());
    Write(Stick.Path());
    Key(Qt::Key_Return);
    TabTo("cboSrcSlideShow");
    Key(Qt::Key_End);
    PressKeyOn("cmdImport");
    EXPECT_FALSE(In->IsLoaded());
    const auto AlbumIn = NewForm<frmAlbumImport>();
    ShowActive(*AlbumIn);
    Write(Stick.Path());
    Key(Qt::Key_Return);
    TabTo("txtAlbumName");
    Rewrite(u"Again"_s);
    PressKeyOn("cmdImport");
    EXPECT_EQ("a", CaptionsIn(Album(u"Flowers"_s)));
    EXPECT_EQ("a|a", CaptionsIn(Album(u"Again"_s)));
    EXPECT_EQ(2u, Album(u"Again"_s).SlideShows.size());
    EXPECT_EQ("Winter", Album(u"Flowers"_s).SlideShows[0]->SlideShowName.toStdString());
    const auto Left = NewForm<frmAlbumImport>();
    ShowActive(*Left);
    PressKeyOn("cmdCancel");
    EXPECT_FALSE(Left->IsLoaded());
}

TEST_F(KeyboardTasks, AnAlbumIsRenamedAndDeleted) {
    MakeAlbum(u"Pears"_s);
    WhenOpen<frmAlbumRename>([](frmAlbumRename& Window) {
        Activate(Window);
        TabTo("cboAlbum");
        Key(Qt::Key_End);
        TabTo("txtAlbumName");
        Rewrite(u"Plums"_s);
        PressKeyOn("cmdSave");
    });
    EXPECT_TRUE(ShowRenameAlbum(0));
    EXPECT_EQ(0u, Album(u"Plums"_s).Slides.size());
    ExpectAlbumDeletion();
    WhenOpen<frmAlbumDelete>([](frmAlbumDelete& Window) {
        Activate(Window);
        TabTo("cboAlbum");
        Key(Qt::Key_End);
        PressKeyOn("cmdDelete");
    });
    EXPECT_TRUE(ShowDeleteAlbum(0));
    EXPECT_EQ(1u, Engine.Albums.size());
    WhenOpen<frmGetObjectName>([](frmGetObjectName& Window) {
        Activate(Window);
        TabTo("txtObjectName");
        Rewrite(u"New"_s);
        PressKeyOn("cmdSave");
    });
    EXPECT_EQ(u"New"_s, NewForm<frmGetObjectName>()->GetObjectName(u"Old"_s));
}

}  // namespace
}  // namespace neb
