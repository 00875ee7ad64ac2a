// More pictures for an import window that is already open: another directory by the tool bar,
// and files and folders dropped on it.
#include <QCheckBox>
#include <QDropEvent>
#include <QMimeData>

#include "IntakeHarness.h"
#include "controls/directories/DirectoryTree.h"
#include "controls/fields/ToolBar.h"
#include "windows/import/frmDirSelect.h"
#include "windows/import/frmQuickShow.h"

namespace neb {
namespace {

using namespace harness;

const auto DiscardQuestion = u"Do you want to discard the remaining non-selected graphics?"_s;

class ImportMore : public Intake {
  protected:
    ImportMore() {
        MakePicture(Pics / u"first/a.jpg"_s);
        MakePicture(Pics / u"second/b.jpg"_s);
        MakePicture(Pics / u"second/sub/c.jpg"_s);
    }
    ~ImportMore() override {
        if (Window) Intake::Drop(*Window);
    }
    void Show() { Window = ShowFilter(0, Pics / u"first"_s); }
    void PressTool(const char* Name) {
        auto& Bar = In<ToolBar>(*Window, "abrMenu");
        QTest::mouseClick(Bar.widgetForAction(Bar.Tool(QString::fromLatin1(Name))), Qt::LeftButton);
    }
    void Choose(const QString& Directory, bool Recurse, const char* Button = "cmdSelect") {
        WhenOpen<frmDirSelect>([=](frmDirSelect& Selector) {
            In<DirectoryTree>(Selector, "Dir1").SetPath(Directory);
            if (Recurse) In<QCheckBox>(Selector, "chkRecurseDir").click();
            Press(Selector, Button);
        });
        PressTool("mnuImportDirectory");
    }
    // As the desktop does it: the drag comes in and is let go. False when it was not taken.
    static bool Drop(QWidget& On, const QStringList& Paths) {
        QMimeData Data;
        QList<QUrl> Urls;
        for (const QString& Path : Paths) Urls << QUrl::fromLocalFile(Path);
        Data.setUrls(Urls);
        QDragEnterEvent Enter({9, 9}, Qt::CopyAction, &Data, Qt::LeftButton, {});
        Enter.ignore();
        QCoreApplication::sendEvent(&On, &Enter);
        if (!Enter.isAccepted()) return false;
        QDropEvent Event({9, 9}, Qt::CopyAction, &Data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&On, &Event);
        QCoreApplication::processEvents();
        return Event.isAccepted();
    }
    std::shared_ptr<ImportForm> Window;
};

TEST_F(ImportMore, AddsAnotherDirectoryBehindTheRowsThatStay) {
    Show();
    Boxes.Expect(DiscardQuestion, u"Discard Confirmation"_s, BoxIcon::Question, BoxAnswer::No);
    Choose(Pics / u"second"_s, true);
    EXPECT_EQ("a,b,c", CaptionsOf(NonSelected(*Window)));
    EXPECT_EQ(Pics / u"second/"_s, Window->ImportDir());
}

TEST_F(ImportMore, DiscardsTheRestWhenToldTo) {
    Show();
    Boxes.Expect(DiscardQuestion, u"Discard Confirmation"_s, BoxAnswer::Yes);
    Choose(Pics / u"second"_s, false);
    EXPECT_EQ("b", CaptionsOf(NonSelected(*Window)));
}

TEST_F(ImportMore, AsksNothingWhenAllAreSelected) {
    Show();
    Press(*Window, "cmdMoveRightAll");
    Choose(Pics / u"second"_s, false);
    EXPECT_EQ("b", CaptionsOf(NonSelected(*Window)));
    EXPECT_EQ("a", CaptionsOf(Selected(*Window)));
    EXPECT_TRUE(In<QPushButton>(*Window, "cmdMoveRightAll").isEnabled());
}

TEST_F(ImportMore, ChangesNothingWhenTheDirectoryIsCancelled) {
    Show();
    Boxes.Expect(DiscardQuestion, u"Discard Confirmation"_s, BoxAnswer::No);
    Choose(Pics / u"second"_s, true, "cmdCancel");
    EXPECT_EQ("a", CaptionsOf(NonSelected(*Window)));
    EXPECT_EQ(Pics / u"first"_s, Window->ImportDir());
}

TEST_F(ImportMore, RefusesTheProgramsAlbumsAlone) {
    MakePicture(App / u"Albums/1/Slides/x.jpg"_s);
    MakePicture(Db / u"Albums/1/Slides/y.jpg"_s);
    Show();
    Press(*Window, "cmdMoveRightAll");
    Boxes.Expect(u"This directory is reserved for Albums.  You cannot import from it."_s);
    Choose(App / u"Albums/1/Slides"_s, false);
    EXPECT_EQ(0, NonSelected(*Window).Rows());
    Boxes.Expect(u"This directory is reserved for Albums.  You cannot import from it."_s);
    Choose(App / u"Albums"_s, true);
    EXPECT_EQ(0, NonSelected(*Window).Rows());
    Choose(Db / u"Albums/1/Slides"_s, false);
    EXPECT_EQ("y", CaptionsOf(NonSelected(*Window)));
}

TEST_F(ImportMore, EndsByTheExitTool) {
    Show();
    EXPECT_TRUE(In<ToolBar>(*Window, "abrMenu").Tool(u"mnuFindGraphics"_s)->isEnabled());
    PressTool("mnuExit");
    EXPECT_FALSE(Window->IsLoaded());
}

TEST_F(ImportMore, ReadsFilesAndFoldersThatAreDropped) {
    Show();
    Boxes.Expect(DiscardQuestion, u"Discard Confirmation"_s, BoxAnswer::No);
    WriteFile(Pics / u"notes.txt"_s, "no picture");
    EXPECT_TRUE(
        Drop(*Window, {Pics / u"second"_s, Pics / u"notes.txt"_s, Pics / u"first/a.jpg"_s}));
    EXPECT_EQ("a,a,b", CaptionsOf(NonSelected(*Window))) << "the row that was there, then by name";
    EXPECT_EQ("1 file was passed over.", In<QLabel>(*Window, "lblPassedOver").text().toStdString());
    EXPECT_TRUE(In<QPushButton>(*Window, "cmdMoveRightAll").isEnabled());
}

TEST_F(ImportMore, TakesADropOnQuickShowAndItsName) {
    Window = NewForm<frmQuickShow>();
    Window->ShowModeless();
    EXPECT_TRUE(Drop(*Window, {Pics / u"second"_s}));
    EXPECT_EQ("b", CaptionsOf(Selected(*Window)));
    EXPECT_EQ("second", In<QLineEdit>(*Window, "txtName").text().toStdString());
}

TEST_F(ImportMore, QuickShowIsNamedAfterTheFolderItBeganWithUntilANameIsTyped) {
    Window = NewForm<frmQuickShow>();
    Window->ShowModeless();
    auto& Name = In<QLineEdit>(*Window, "txtName");
    Choose(Pics / u"first"_s, false);
    EXPECT_EQ("first", Name.text().toStdString());
    Choose(Pics / u"second"_s, false);
    EXPECT_EQ("a,b", CaptionsOf(Selected(*Window)));
    EXPECT_EQ("first", Name.text().toStdString());
    Press(*Window, "cmdMoveLeftAll");
    Boxes.Expect(DiscardQuestion, u"Discard Confirmation"_s, BoxAnswer::No);
    Choose(Pics / u"second"_s, false);
    EXPECT_EQ("a,b", CaptionsOf(NonSelected(*Window)));
    EXPECT_EQ("b", CaptionsOf(Selected(*Window)));
    EXPECT_EQ("first", Name.text().toStdString());
    Press(*Window, "cmdMoveLeftAll");
    Boxes.Expect(DiscardQuestion, u"Discard Confirmation"_s, BoxAnswer::Yes);
    Choose(Pics / u"second"_s, false);
    EXPECT_EQ("second", Name.text().toStdString());
    Name.setText(u"My own"_s);
    Press(*Window, "cmdMoveLeftAll");
    Boxes.Expect(DiscardQuestion, u"Discard Confirmation"_s, BoxAnswer::Yes);
    Choose(Pics / u"first"_s, false);
    EXPECT_EQ("My own", Name.text().toStdString());
}

TEST_F(ImportMore, RefusesADropOfTheProgramsAlbums) {
    MakePicture(App / u"Albums/1/Slides/x.jpg"_s);
    Window = ShowFilter(0, {});
    Boxes.Expect(u"This directory is reserved for Albums.  You cannot import from it."_s);
    EXPECT_TRUE(Drop(*Window, {App / u"Albums/1"_s}));
    EXPECT_EQ(0, NonSelected(*Window).Rows());
}

// A drop that was stopped must not come back in place of the directory chosen next.
TEST_F(ImportMore, ForgetsADropThatWasStopped) {
    Window = ShowFilter(0, {});
    Boxes.Expect(AbortQuestion, BoxAnswer::Yes);
    bool Done = false;
    SetDoEventsHook([&] {
        if (Open<frmLoading>() && !std::exchange(Done, true))
            QTest::keyClick(Open<frmLoading>(), Qt::Key_Escape);
    });
    Drop(*Window, {Pics / u"first"_s});
    EXPECT_EQ(0, NonSelected(*Window).Rows());
    Choose(Pics / u"second"_s, false);
    EXPECT_EQ("b", CaptionsOf(NonSelected(*Window)));
}

TEST_F(ImportMore, TakesNoDropWhilePicturesAreRead) {
    Window = ShowFilter(0, {});
    bool Taken = true, Tried = false;
    AtReadValue(1, [&] {
        Tried = true;
        Taken = Drop(*Window, {Pics / u"second"_s});
    });
    Drop(*Window, {Pics / u"first"_s});
    EXPECT_TRUE(Tried);
    EXPECT_FALSE(Taken);
    EXPECT_EQ("a", CaptionsOf(NonSelected(*Window)));
}

TEST_F(ImportMore, SurvivesItsEndWhileTheDirectoryIsChosen) {
    Show();
    Press(*Window, "cmdMoveRightAll");
    bool Gone = false;
    WhenOpen<frmDirSelect>([&](frmDirSelect& Selector) {
        QObject::connect(Window.get(), &QObject::destroyed, qApp, [&] { Gone = true; });
        Intake::Drop(*Window);
        Window.reset();
        QTest::qWait(5);
        EXPECT_FALSE(Gone) << "it still stands below";
        In<DirectoryTree>(Selector, "Dir1").SetPath(Pics / u"second"_s);
        Press(Selector, "cmdSelect");
    });
    PressTool("mnuImportDirectory");
    EXPECT_EQ(nullptr, Open<frmLoading>());
    QTest::qWait(5);
    EXPECT_TRUE(Gone);
}

}  // namespace
}  // namespace neb
