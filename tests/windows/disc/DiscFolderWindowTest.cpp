// The window that writes a folder for a disc, worked with mouse and keyboard.
#include "DiscRig.h"
#include "db/Changes.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

using namespace harness;

class DiscWindow : public DiscUser {
  protected:
    DiscWindow() { ShowActive(*Window); }
    ~DiscWindow() override {
        SetDoEventsHook({});
        Window->Unload();
    }

    QTreeWidget& Tree() const { return In<QTreeWidget>(*Window, "trvAlbums"); }
    QTreeWidgetItem& Item(const QString& Name) const {
        return *Tree().findItems(Name, Qt::MatchExactly | Qt::MatchRecursive).at(0);
    }
    // Each row with its number; "x" is chosen, "-" in part.
    std::string Rows() const {
        QStringList All;
        for (QTreeWidgetItemIterator Each(&Tree()); *Each; ++Each) {
            const Qt::CheckState State = (*Each)->checkState(0);
            All << ((*Each)->parent() ? u"."_s : u""_s) + (*Each)->text(0) + u' ' +
                       (*Each)->text(1) +
                       (State == Qt::Checked            ? u" x"_s
                        : State == Qt::PartiallyChecked ? u" -"_s
                                                        : u""_s);
        }
        return All.join(u'|').toStdString();
    }
    void Tick(const QString& Name) const {
        const QRect Row = Tree().visualItemRect(&Item(Name));
        QTest::mouseClick(Tree().viewport(), Qt::LeftButton, {},
                          QPoint(Row.left() + 10, Row.center().y()));
    }
    std::string Told() const { return In<QLabel>(*Window, "lblChosen").text().toStdString(); }
    QLineEdit& Folder() const { return In<QLineEdit>(*Window, "txtFolder"); }
    void TypeFolder(const QString& Text) const {
        Folder().setFocus();
        Folder().selectAll();
        QTest::keyClicks(&Folder(), Text);
    }
    void ExpectNothingWritten() const {
        EXPECT_FALSE(FolderExists(Dir));
        EXPECT_TRUE(Window->IsLoaded());
        EXPECT_TRUE(Window->isEnabled());
    }

    const std::shared_ptr<frmDiscFolder> Window = NewForm<frmDiscFolder>();
};

TEST_F(DiscWindow, ListsTheAlbumsWithTheirShowsBelow) {
    EXPECT_EQ("Garden 3|.Spring 3|.Walk 2|Sea 1", Rows());
    EXPECT_EQ("Tick what is to be written. An album takes its slide shows along.", Told());
    EXPECT_TRUE(Item(u"Spring"_s).parent()->isExpanded());
}

TEST_F(DiscWindow, AnAlbumTakesItsShowsAlongAndCountsThem) {
    Tick(u"Garden"_s);
    EXPECT_EQ("Garden 3 x|.Spring 3 x|.Walk 2 x|Sea 1", Rows());
    EXPECT_EQ("1 album, 2 slide shows, 3 slides", Told());
    Tick(u"Sea"_s);
    EXPECT_EQ("2 albums, 2 slide shows, 4 slides", Told());
    Tick(u"Garden"_s);
    EXPECT_EQ("Garden 3|.Spring 3|.Walk 2|Sea 1 x", Rows());
}

TEST_F(DiscWindow, ShowsCanBeChosenWithoutTheirAlbumAndTakenOutOfIt) {
    Tick(u"Walk"_s);
    EXPECT_EQ("Garden 3 -|.Spring 3|.Walk 2 x|Sea 1", Rows());
    EXPECT_EQ("1 album, 1 slide show, 2 slides", Told());
    Tick(u"Garden"_s);
    EXPECT_EQ("Garden 3 x|.Spring 3 x|.Walk 2 x|Sea 1", Rows());
    Tick(u"Spring"_s);
    EXPECT_EQ("Garden 3 -|.Spring 3|.Walk 2 x|Sea 1", Rows());
    Tick(u"Walk"_s);
    EXPECT_EQ("Garden 3|.Spring 3|.Walk 2|Sea 1", Rows());
}

TEST_F(DiscWindow, EverythingCanBeDoneWithoutAMouse) {
    EXPECT_EQ(&Tree(), QApplication::focusWidget());
    QTest::keyClick(&Tree(), Qt::Key_Down);
    QTest::keyClick(&Tree(), Qt::Key_Space);
    EXPECT_EQ("Garden 3 -|.Spring 3 x|.Walk 2|Sea 1", Rows());
    QTest::keyClick(&Tree(), Qt::Key_Tab);
    EXPECT_EQ(&Folder(), QApplication::focusWidget());
    QTest::keyClicks(&Folder(), Dir);
    QTest::keyClick(&Folder(), Qt::Key_Return);
    EXPECT_EQ("Garden: elm pond; Spring=Spring2@elm Spring3@pond Spring2@elm +1", ContentsOf(Dir));
}

TEST_F(DiscWindow, WritesWhatIsChosenAndTellsHowItIsChecked) {
    Tick(u"Garden"_s);
    Tick(u"Sea"_s);
    TypeFolder(Dir);
    Press(*Window, "cmdWrite");
    EXPECT_FALSE(Window->IsLoaded());
    EXPECT_EQ(0, Sha256Sum(Dir));
    EXPECT_NE(std::string::npos, ContentsOf(Dir).find("| Sea: wave"));
    ASSERT_EQ(1u, Said.Shown.size());
    EXPECT_EQ(u"Operation Completed"_s, LastBox().Title);
    for (const QString& Part :
         {Dir, u"2 albums, 2 slide shows, 4 slides"_s,
          u"in %1 files of "_s.arg(ReadFile(Dir + u"Sums.sha256"_s).count('\n')), u"Check a Disc"_s,
          u"sha256sum -c Sums.sha256"_s})
        EXPECT_TRUE(LastBox().Text.contains(Part)) << LastBox().Text.toStdString();
}

TEST_F(DiscWindow, AFolderMayHaveAnyName) {
    for (const QString& Name : {u"50%1 %2"_s, u" two\nlines "_s}) {
        const QString Named = Out / Name + u'/';
        const auto Next = NewForm<frmDiscFolder>();
        ShowActive(*Next);
        In<QTreeWidget>(*Next, "trvAlbums").topLevelItem(1)->setCheckState(0, Qt::Checked);
        Dialog.Answer = Named.chopped(1);
        Press(*Next, "cmdBrowse");
        Press(*Next, "cmdWrite");
        EXPECT_FALSE(Next->IsLoaded());
        EXPECT_EQ(0, Sha256Sum(Named));
        EXPECT_TRUE(LastBox().Text.startsWith(
            u"The folder\n"_s + Named + u"\nis ready: 1 album, 0 slide shows, 1 slide, in "_s))
            << LastBox().Text.toStdString();
    }
}

TEST_F(DiscWindow, FilesThatWereLeftOutAreTold) {
    DeleteFile(SlidesFolder(Own.Path(), Source.Sea) + FileStem(4) + u".jpg"_s);
    Tick(u"Sea"_s);
    TypeFolder(Dir);
    Said.Answer = BoxAnswer::Yes;
    Press(*Window, "cmdWrite");
    EXPECT_FALSE(Window->IsLoaded());
    EXPECT_TRUE(LastBox().Text.contains(u", 1 file left out.\n"_s)) << LastBox().Text.toStdString();
}

TEST_F(DiscWindow, TellsWhatIsMissing) {
    Press(*Window, "cmdWrite");
    EXPECT_EQ(u"You must first select the albums or slide shows to write."_s, LastBox().Text);
    Tick(u"Sea"_s);
    TypeFolder(u"  "_s);
    Press(*Window, "cmdWrite");
    EXPECT_EQ(u"You must first name the folder to write to."_s, LastBox().Text);
    EXPECT_EQ(2u, Said.Shown.size());
    ExpectNothingWritten();
}

TEST_F(DiscWindow, AFolderThatIsNotEmptyIsRefusedAndTheChoiceStays) {
    WriteFile(Out / u"mine"_s, "x");
    Tick(u"Sea"_s);
    TypeFolder(Out.Path());
    Press(*Window, "cmdWrite");
    EXPECT_TRUE(
        LastBox().Text.startsWith(u"The folder %1 is not empty."_s.arg(Out.Path().chopped(1))))
        << LastBox().Text.toStdString();
    EXPECT_EQ("Garden 3|.Spring 3|.Walk 2|Sea 1 x", Rows());
    EXPECT_EQ(1u, ListDir(Out.Path()).size());
    ExpectNothingWritten();
}

TEST_F(DiscWindow, TheFolderCanBePickedAndDropped) {
    Dialog.Answer = Out.Path();
    Press(*Window, "cmdBrowse");
    EXPECT_EQ(Out.Path(), Folder().text());
    Dialog.Answer.clear();
    Press(*Window, "cmdBrowse");
    EXPECT_EQ(Out.Path(), Folder().text()) << "cancelled";
    EXPECT_EQ(Out.Path(), Dialog.Proposed.last());
    QMimeData Data;
    Data.setUrls({QUrl::fromLocalFile(Pics.Path())});
    QDragEnterEvent Enter({9, 9}, Qt::CopyAction, &Data, Qt::LeftButton, {});
    Enter.ignore();
    QCoreApplication::sendEvent(Window.get(), &Enter);
    ASSERT_TRUE(Enter.isAccepted());
    QDropEvent Drop({9, 9}, Qt::CopyAction, &Data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(Window.get(), &Drop);
    EXPECT_EQ(Pics.Path(), WithSeparator(Folder().text()));
}

TEST_F(DiscWindow, StopAsksAndLeavesNothingWhetherItCopiesOrSums) {
    Tick(u"Garden"_s);
    TypeFolder(Dir);
    Said.Answer = BoxAnswer::Yes;
    // the last file before the check sums
    const std::function<bool()> Moments[] = {[] { return true; },
                                             [this] { return FileExists(Dir + u"README.txt"_s); }};
    for (const auto& Moment : Moments) {
        Said.Shown.clear();
        Notice.clear();
        StopWhen(Moment);
        Press(*Window, "cmdWrite");
        ASSERT_EQ(1u, Said.Shown.size());
        EXPECT_EQ(AbortQuestion, LastBox().Text);
        EXPECT_EQ(u"Stopped; nothing was written."_s, Notice);
        ExpectNothingWritten();
    }
}

TEST_F(DiscWindow, AFullDiskIsToldAndLeavesNothing) {
    Tick(u"Garden"_s);
    TypeFolder(Dir);
    SetHostWatcher([this](HostStep Step, const QString& Path, qint64& Length) {
        if (Step == HostStep::Write && Path.startsWith(Dir) && Path.contains(u"Slides.dat"))
            Length = 0;
    });
    Press(*Window, "cmdWrite");
    EXPECT_EQ(u"Operation Failed"_s, LastBox().Title);
    EXPECT_TRUE(LastBox().Text.contains(u"no space left on device"))
        << LastBox().Text.toStdString();
    ExpectNothingWritten();
}

TEST_F(DiscWindow, FollowsTheOthersAndKeepsTheChoice) {
    Tick(u"Walk"_s);
    Tick(u"Sea"_s);
    Changes Door(Source.Engine);
    auto Made = Door.MakeAlbum(u"Attic"_s);
    ASSERT_TRUE(Made);
    Made->Now();
    EXPECT_EQ("Attic 0|Garden 3 -|.Spring 3|.Walk 2 x|Sea 1 x", Rows());
    auto Gone = Door.DeleteShow(Source.Garden, Source.Walk);
    Gone->Now();
    EXPECT_EQ("Attic 0|Garden 3|.Spring 3|Sea 1 x", Rows());
    EXPECT_EQ("1 album, 0 slide shows, 1 slide", Told());
}

TEST_F(DiscWindow, EscAndTheButtonCloseIt) {
    QTest::keyClick(Window.get(), Qt::Key_Escape);
    EXPECT_FALSE(Window->IsLoaded());
    const auto Second = NewForm<frmDiscFolder>();
    ShowActive(*Second);
    Press(*Second, "cmdCancel");
    EXPECT_FALSE(Second->IsLoaded());
}

TEST_F(DiscWindow, WithoutAlbumsItSaysWhatToDo) {
    clsDBEngine Empty;
    DBEngine = &Empty;
    const auto None = NewForm<frmDiscFolder>();
    ShowActive(*None);
    EXPECT_EQ("There are no albums yet. New Album in the menu Album makes one.",
              In<QLabel>(*None, "lblChosen").text().toStdString());
    None->Unload();
    DBEngine = &Source.Engine;
}

}  // namespace
}  // namespace neb
