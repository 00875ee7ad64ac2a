// Find Graphics through its window: the drives, the filter, the counts, what may go wrong, and what
// it hands back.
#include <QComboBox>
#include <QElapsedTimer>
#include <QLayout>
#include <QListWidget>

#include "FindGraphicsHarness.h"
#include "albums/GraphicsSearch.h"
#include "harness/WithoutExtraFormats.h"
#include "harness/WithoutPrivileges.h"
#include "support/files/HostNames.h"

namespace neb {
namespace {

using namespace harness;

constexpr const char* FirstTypes = "BMP EMF JPEG/JPG PCD PCX PNG PSD TGA TIFF/TIF TLA WBMP WMF";

std::string TypeEntries(const frmFindGraphics& Window) {
    QStringList Texts;
    const auto& Types = In<QListWidget>(Window, "lstTypeFilter");
    for (int I = 0; I < Types.count(); ++I) Texts << Types.item(I)->text();
    return Texts.join(u' ').toStdString();
}

TEST_F(FindGraphics, OffersReadyDrivesThenAllOfThemThenBrowse) {
    MakeDirs(Pics / u"one"_s);
    Drives.Paths = {Pics / u"one"_s, Pics / u"empty"_s};
    Show();
    EXPECT_EQ(QStringList({Pics / u"one"_s, u"All Drives"_s, u"Browse"_s}), PathTexts());
    EXPECT_EQ("All Drives", Path().currentText().toStdString());
    EXPECT_EQ("Find Graphics", Window->windowTitle().toStdString());
    EXPECT_EQ(GraphicTypes().size(),
              In<QListWidget>(*Window, "lstTypeFilter").selectedItems().size());
    EXPECT_EQ("0 Results", Label("lblResults"));
    EXPECT_EQ("0 Selected", Label("lblSelected"));
    EXPECT_FALSE(Button("cmdCancel").isEnabled());
    EXPECT_TRUE(Button("cmdImport").isEnabled());
}

TEST_F(FindGraphics, OffersTheKindsOfTodayBehindTheOthers) {
    Make({"a.heic", "b.HIF", "c.avif", "d.jpg"});
    Show();
    const std::string Entries = TypeEntries(*Window);
    EXPECT_TRUE(Entries.starts_with(FirstTypes)) << Entries;
    EXPECT_TRUE(Entries.ends_with("WMF AVIF GIF HEIC/HEIF/HIF JP2/J2K/JPF/JPX MPO WEBP"))
        << Entries;
    Search();
    EXPECT_EQ("a.heic,b.HIF,c.avif,d.jpg", Names());
    auto& Types = In<QListWidget>(*Window, "lstTypeFilter");
    Types.clearSelection();
    Types.item(14)->setSelected(true);
    Search();
    EXPECT_EQ("a.heic,b.HIF", Names());
}

TEST_F(FindGraphics, OffersTheKindsOfTodayNoMoreWhereTheyAreSwitchedOff) {
    const WithoutExtraFormats Off;
    Make({"a.heic", "b.HIF", "c.avif", "d.jpg"});
    Show();
    EXPECT_EQ(FirstTypes, TypeEntries(*Window));
    Search();
    EXPECT_EQ("d.jpg", Names());
}

TEST_F(FindGraphics, ListsNamePathSizeAndDate) {
    WriteFile(Pics / u"a.JPG"_s, QByteArray(1536, 'x'));
    Show();
    Search();
    ASSERT_EQ(1, Grid().Rows());
    EXPECT_EQ("a.JPG", Grid().TextMatrix(0, 0).toStdString());
    EXPECT_EQ(Pics.Path(), Grid().TextMatrix(0, 1));
    EXPECT_EQ("1.5 KB", Grid().TextMatrix(0, 2).toStdString());
    EXPECT_EQ(FileTime(Pics / u"a.JPG"_s)->toString(u"MM/dd/yyyy hh:mm AP"_s),
              Grid().TextMatrix(0, 3));
    EXPECT_EQ("1 Results", Label("lblResults"));
    EXPECT_EQ("*.*", Filter().text().toStdString());
}

TEST_F(FindGraphics, ShowsTheFilterAsItTookIt) {
    Make({"photo1.jpg", "photograph.png", "myphoto.jpg"});
    Show();
    QTest::keyClicks(&Filter(), u"photo"_s);
    QTest::keyClick(&Filter(), Qt::Key_Return);
    EXPECT_EQ("photo*.*", Filter().text().toStdString());
    EXPECT_EQ("photo1.jpg,photograph.png", Names());
}

TEST_F(FindGraphics, FindsTheSelectedTypesAlone) {
    Make({"a.tif", "b.jpeg", "c.JPG", "d.txt"});
    Show();
    auto& Types = In<QListWidget>(*Window, "lstTypeFilter");
    Types.clearSelection();
    Search();
    EXPECT_EQ("", Names());
    EXPECT_FALSE(Button("cmdImport").isEnabled());
    Types.item(2)->setSelected(true);
    Search();
    EXPECT_EQ("b.jpeg,c.JPG", Names());
    Filter().setText(u"*.tif"_s);
    Search();
    EXPECT_EQ("", Names());
}

TEST_F(FindGraphics, CountsOnInItsCaptionButNotInItsResults) {
    Make({"a.jpg", "sub/b.jpg"});
    Show();
    QStringList Captions;
    SetDoEventsHook([&] { Captions << Window->windowTitle(); });
    Search();
    Search();
    SetDoEventsHook({});
    EXPECT_EQ("a.jpg,b.jpg", Names());
    EXPECT_EQ("2 Results", Label("lblResults"));
    EXPECT_EQ("Find Graphics", Window->windowTitle().toStdString());
    for (const char* Seen : {"Find Graphics - 1 Directories Searched: 1 Graphics Files Found",
                             "Find Graphics - 2 Directories Searched: 2 Graphics Files Found",
                             "Find Graphics - 3 Directories Searched: 3 Graphics Files Found",
                             "Find Graphics - 4 Directories Searched: 4 Graphics Files Found"})
        EXPECT_TRUE(Captions.contains(QString::fromLatin1(Seen))) << Seen;
}

TEST_F(FindGraphics, HandsBackTheSelectedRowsInTheOrderOfTheGrid) {
    Make({"x/a.jpg", "x/b.jpg", "y/c.jpg"});
    Show();
    Search();
    Grid().SelectRow(2);
    Grid().SelectRow(0);
    EXPECT_EQ("2 Selected", Label("lblSelected"));
    Press(*Window, "cmdImport");
    EXPECT_FALSE(Window->IsLoaded());
    ASSERT_EQ(2, Window->FileCnt());
    EXPECT_EQ(Pics / u"x/a.jpg"_s, Window->Files(1));
    EXPECT_EQ(Pics / u"y/c.jpg"_s, Window->Files(2));
}

TEST_F(FindGraphics, HandsBackNothingWhenClosed) {
    Make({"a.jpg"});
    Show();
    Search();
    Grid().selectAll();
    Press(*Window, "cmdClose");
    EXPECT_FALSE(Window->IsLoaded());
    EXPECT_EQ(0, Window->FileCnt());
}

TEST_F(FindGraphics, AsksForASelectionBeforeAnImport) {
    Make({"a.jpg"});
    Show();
    Search();
    Grid().ClearSelection();
    Boxes.Expect(u"You must first select the files you want to import."_s,
                 u"Missing Selection(s)"_s, BoxIcon::Information, BoxAnswer::Ok);
    Press(*Window, "cmdImport");
    EXPECT_TRUE(Window->IsLoaded());
    EXPECT_EQ(0, Window->FileCnt());
}

TEST_F(FindGraphics, BrowsesToADirectoryThatAllDrivesLeavesOut) {
    Make({"drive/a.jpg", "other/b.jpg"});
    Drives.Paths = {Pics / u"drive"_s};
    Show();
    Browse(Pics / u"other"_s);
    EXPECT_EQ(QStringList({Pics / u"drive"_s, Pics / u"other"_s, u"All Drives"_s, u"Browse"_s}),
              PathTexts());
    EXPECT_EQ(1, Path().currentIndex());
    Search();
    EXPECT_EQ("b.jpg", Names());
    Path().setCurrentText(u"All Drives"_s);
    Search();
    EXPECT_EQ("a.jpg", Names());
}

TEST_F(FindGraphics, StaysAtBrowseWhenNoDirectoryIsChosen) {
    Make({"a.jpg"});
    Show();
    Browse({});
    EXPECT_EQ("Browse", Path().currentText().toStdString());
    WhenOpen<frmDirSelect>([](frmDirSelect& Selector) { Press(Selector, "cmdCancel"); });
    Search();
    EXPECT_EQ(0, Grid().Rows());
    EXPECT_TRUE(Button("cmdSearch").isEnabled());
    Answer(Pics.Path().chopped(1));
    Search();
    EXPECT_EQ("a.jpg", Names());
}

TEST_F(FindGraphics, KeepsWhatWasFoundWhenItIsCancelled) {
    MakeMany(30);
    Show();
    AtDirectory(5, [&] {
        EXPECT_TRUE(Button("cmdCancel").isEnabled());
        for (const char* Name : {"cmdImport", "cmdSearch"})
            EXPECT_FALSE(Button(Name).isEnabled()) << Name;
        EXPECT_EQ(Pointer::Hourglass, ScreenPointer());
        Press(*Window, "cmdCancel");
    });
    Search();
    EXPECT_EQ(4, Grid().Rows());
    EXPECT_EQ("4 Results", Label("lblResults"));
    EXPECT_TRUE(Button("cmdImport").isEnabled());
    EXPECT_FALSE(Button("cmdCancel").isEnabled());
    Search();
    EXPECT_EQ(30, Grid().Rows());
}

TEST_F(FindGraphics, LetsTheRowsBeLookedAtDuringTheSearch) {
    MakeMany(60);
    Show();
    AtDirectory(40, [&] {
        EXPECT_EQ(39, Grid().Rows());
        Grid().setFocus();
        QTest::keyClick(&Grid(), Qt::Key_End);
        EXPECT_EQ(38, Grid().Row());
        EXPECT_EQ("1 Selected", Label("lblSelected"));
        QTest::keyClick(&Grid(), Qt::Key_Up, Qt::ShiftModifier);
        EXPECT_EQ("2 Selected", Label("lblSelected"));
    });
    Search();
    EXPECT_EQ(60, Grid().Rows());
    EXPECT_EQ("2 Selected", Label("lblSelected"));
    EXPECT_TRUE(Grid().IsSelected(37) && Grid().IsSelected(38));
}

TEST_F(FindGraphics, EscEndsTheSearchFirstAndThenTheWindow) {
    MakeMany(20);
    Show();
    AtDirectory(5, [&] { QTest::keyClick(&*Window, Qt::Key_Escape); });
    Search();
    EXPECT_TRUE(Window->IsLoaded());
    EXPECT_EQ("4 Results", Label("lblResults"));
    QTest::keyClick(&*Window, Qt::Key_Escape);
    EXPECT_FALSE(Window->IsLoaded());
}

TEST_F(FindGraphics, MayBeClosedDuringTheSearch) {
    MakeMany(20);
    Show();
    AtDirectory(5, [&] { Window->close(); });
    Search();
    EXPECT_FALSE(Window->IsLoaded());
    EXPECT_EQ(0, Window->FileCnt());
    EXPECT_EQ(4, Grid().Rows()) << "the search ends with it";
}

TEST_F(FindGraphics, GoesOnPastADriveThatMayNotBeReadAndNamesItAtTheEnd) {
    Make({"one/a.jpg", "two/b.jpg", "three/c.jpg"});
    Drives.Paths = {Pics / u"one"_s, Pics / u"two"_s, Pics / u"three"_s};
    Show();
    Lock(u"two"_s);
    {
        const WithoutPrivileges User;
        Search();
    }
    EXPECT_EQ("a.jpg,c.jpg", Names());
    EXPECT_EQ("2 Results", Label("lblResults"));
    EXPECT_EQ("1 folder was passed over.", Label("lblPassedOver"));
    Boxes.Expect(u"1 folder could not be opened."_s);
    Press(*Window, "cmdPassedOver");
    EXPECT_EQ(u"These folders could not be opened:\n"_s + Pics / u"two: Permission denied"_s,
              Boxes.Last().Details);
}

TEST_F(FindGraphics, GoesOnPastDirectoriesBelowAndNamesThemInALine) {
    Make({"a.jpg", "locked/b.jpg", "n/locked/c.jpg", "z/d.jpg"});
    Show();
    Lock(u"locked"_s);
    Lock(u"n/locked"_s);
    {
        const WithoutPrivileges User;
        Search();
    }
    EXPECT_EQ("a.jpg,d.jpg", Names());
    EXPECT_EQ("2 Results", Label("lblResults"));
    EXPECT_TRUE(Button("cmdImport").isEnabled());
    EXPECT_TRUE(Button("cmdSearch").isEnabled());
    EXPECT_EQ("2 folders were passed over.", Label("lblPassedOver"));
    EXPECT_TRUE(In<QLabel>(*Window, "lblPassedOver").isVisible());
    Search();  // by the administrator
    EXPECT_FALSE(In<QLabel>(*Window, "lblPassedOver").isVisible());
    EXPECT_EQ("a.jpg,b.jpg,c.jpg,d.jpg", Names());
}

TEST_F(FindGraphics, LeavesTheProgramsOwnAlbumsOut) {
    WriteFile(Pics / u"a.jpg"_s, "x");
    for (const auto& Folder : {u"Albums/1/Slides"_s, u"Backups"_s, u"Temp"_s}) {
        MakeDirs(Db / Folder);
        WriteFile(Db / Folder + u"/b.jpg"_s, "x");
    }
    MakePicture(Db / u"mine.jpg"_s);
    Drives.Paths = {Pics.Path(), Db.Path()};
    Show();
    Search();
    EXPECT_EQ("a.jpg,mine.jpg", Names());
}

TEST_F(FindGraphics, LeavesANetworkOutOfAllDrivesAndSearchesItByItself) {
    Make({"one/a.jpg", "nas/b.jpg"});
    Drives.Paths = {Pics / u"one"_s, Pics / u"nas"_s};
    Drives.Far = Pics / u"nas"_s;
    Show();
    Search();
    EXPECT_EQ("a.jpg", Names());
    Boxes.Expect(u"1 folder could not be opened."_s);
    Press(*Window, "cmdPassedOver");
    EXPECT_TRUE(Boxes.Last().Details.contains(Pics / u"nas: A network drive"_s));
    Path().setCurrentIndex(1);
    Search();
    EXPECT_EQ("b.jpg", Names());
    EXPECT_FALSE(In<QLabel>(*Window, "lblPassedOver").isVisible());
}

TEST_F(FindGraphics, SaysWhyTheListIsEmpty) {
    Make({"a.txt"});
    Show();
    EXPECT_TRUE(Grid().EmptyText().startsWith(u"Choose where to look"));
    SetDoEventsHook([&] { EXPECT_EQ("Searching ...", Grid().EmptyText().toStdString()); });
    Search();
    SetDoEventsHook({});
    EXPECT_TRUE(Grid().EmptyText().startsWith(u"No pictures were found."));
    In<QListWidget>(*Window, "lstTypeFilter").clearSelection();
    Search();
    EXPECT_TRUE(Grid().EmptyText().startsWith(u"No type of files is chosen."));
    MakePicture(Db / u"Albums/1/Slides/b.jpg"_s);
    Browse(Db / u"Albums/1"_s);
    Search();
    EXPECT_EQ("", Names());
    EXPECT_EQ("This directory is reserved for Albums.  You cannot import from it.",
              Grid().EmptyText().toStdString());
}

TEST_F(FindGraphics, TellsHowFarItIsWithinTheWindowToo) {
    MakeMany(20);
    Show();
    Window->resize(430, 400);
    AtDirectory(10, [&] {
        const QString Told = In<QLabel>(*Window, "lblProgress").text();
        EXPECT_TRUE(Told.startsWith(u"10 Directories Searched: 9 Graphics Files Found"));
        EXPECT_EQ("9 Results", Label("lblResults"));
        EXPECT_LE(Window->width(), 440) << "a long path makes the window no wider";
    });
    Search();
    EXPECT_EQ(" ", Label("lblProgress"));
}

TEST_F(FindGraphics, ShowsNamesThatAreNoTextAsLettersAndHandsThemBackAsTheyAre) {
    const QByteArray Name = HostBytes(Pics.Path()) + "Gru\xdf.jpg";
    ASSERT_EQ(0, mknod(Name.constData(), S_IFREG | 0644, 0));
    Show();
    Search();
    ASSERT_EQ(1, Grid().Rows());
    EXPECT_EQ(u"Gruß.jpg", Grid().model()->index(0, 0).data().toString());
    EXPECT_EQ(u"Gruß.jpg", Grid().model()->index(0, 0).data(Qt::AccessibleTextRole).toString());
    Grid().selectAll();
    Press(*Window, "cmdImport");
    EXPECT_EQ(Name, HostBytes(Window->Files(1)));
    remove(Name.constData());  // Qt cannot address it
}

TEST_F(FindGraphics, ImportsTheSelectedRowsByEnterAmongThem) {
    Make({"a.jpg", "b.jpg"});
    Show();
    Search();
    Grid().setFocus();
    QTest::keyClick(&Grid(), Qt::Key_Home);
    QTest::keyClick(&Grid(), Qt::Key_Return);
    EXPECT_FALSE(Window->IsLoaded());
    ASSERT_EQ(1, Window->FileCnt());
    EXPECT_EQ(Pics / u"a.jpg"_s, Window->Files(1));
    Show();
    Search();
    Grid().setFocus();
    QTest::keyClick(&Grid(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&Grid(), Qt::Key_Return);
    EXPECT_EQ(2, Window->FileCnt());
}

TEST_F(FindGraphics, KeepsTheTypesChosenWhenEnterIsPressedAmongThem) {
    Make({"a.jpg", "b.png"});
    Show();
    auto& Types = In<QListWidget>(*Window, "lstTypeFilter");
    Types.setFocus();
    Types.clearSelection();
    QTest::mouseClick(Types.viewport(), Qt::LeftButton, {},
                      Types.visualItemRect(Types.item(2)).center());
    ASSERT_EQ(1, Types.selectedItems().size());
    for (int Time = 0; Time < 2; ++Time) {
        Types.setFocus();
        QTest::keyClick(&Types, Time == 0 ? Qt::Key_Return : Qt::Key_Enter);
        EXPECT_TRUE(Window->IsLoaded());
        ASSERT_EQ(1, Types.selectedItems().size());
        EXPECT_EQ(Types.item(2), Types.selectedItems()[0]);
        EXPECT_EQ("a.jpg", Names()) << "Enter searches, as it does in the other fields";
    }
}

TEST_F(FindGraphics, PassesOverADriveThatHasGone) {
    Make({"one/a.jpg", "two/b.jpg"});
    Drives.Paths = {Pics / u"one"_s, Pics / u"two"_s};
    Show();
    DeleteTree(Pics / u"one"_s);
    Search();
    EXPECT_EQ("b.jpg", Names());
}

TEST_F(FindGraphics, TellsOfAnErrorOfAnotherKindAndIsReadyAgain) {
    Make({"a.jpg"});
    Show();
    SetDoEventsHook([] { throw Fault(u"The lights went out."_s); });
    Boxes.Expect(u"Error Searching\nThe lights went out."_s, u"Operation Failed"_s);
    Search();
    SetDoEventsHook({});
    EXPECT_TRUE(Button("cmdSearch").isEnabled());
    EXPECT_EQ("Find Graphics", Window->windowTitle().toStdString());
}

TEST_F(FindGraphics, RemembersItsSizePlaceAndColumns) {
    Show();
    EXPECT_GE(Grid().columnWidth(0), 131);
    Window->resize(700, 500);
    Window->move(40, 60);
    Grid().setColumnWidth(1, 333);
    Window->Unload();
    const QString Section = u"Find Graphics Window"_s;
    EXPECT_EQ("0", OpenSettings().GetValue(Section, u"WindowState"_s, {}).toStdString());
    EXPECT_EQ("10500", OpenSettings().GetValue(Section, u"WindowWidth"_s, {}).toStdString());
    EXPECT_EQ("7500", OpenSettings().GetValue(Section, u"WindowHeight"_s, {}).toStdString());
    EXPECT_EQ("4995", OpenSettings().GetValue(Section, u"Col1.Width"_s, {}).toStdString());
    Show();
    EXPECT_EQ(QRect(40, 60, 700, 500), QRect(Window->pos(), Window->size()));
    EXPECT_EQ(333, Grid().columnWidth(1));
    Window->setWindowState(Qt::WindowMaximized);
    QCoreApplication::processEvents();
    Window->Unload();
    EXPECT_EQ("2", OpenSettings().GetValue(Section, u"WindowState"_s, {}).toStdString());
    EXPECT_EQ("10500", OpenSettings().GetValue(Section, u"WindowWidth"_s, {}).toStdString());
    Show();
    EXPECT_TRUE(Window->isMaximized());
}

// What is seen of the window at its smallest: each control whole, and none over another's edge.
// Names those that are not.
std::string NotWhole(const QWidget& Window) {
    QStringList Names;
    for (const QWidget* Each : Window.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (!Each->isVisible() || Each->isWindow()) continue;
        const QSize Needed = Each->minimumSizeHint();
        if (!Window.rect().contains(Each->geometry()) || Each->width() < Needed.width() ||
            Each->height() < Needed.height())
            Names << Each->objectName();
    }
    return Names.join(u' ').toStdString();
}

TEST_F(FindGraphics, IsNeverSmallerThanItsControlsNeed) {
    const QFont Before = QApplication::font();
    for (const double Factor : {1.0, 1.5}) {
        QFont Font = Before;
        Font.setPointSizeF(Before.pointSizeF() * Factor);
        QApplication::setFont(Font);
        Show();
        Window->resize(10, 10);
        // the list of types has more rows then, and the window grows with it
        QTest::qWaitFor([this] { return NotWhole(*Window).empty(); });
        EXPECT_EQ("", NotWhole(*Window));
        Window->Unload();
    }
    QApplication::setFont(Before);
}

TEST_F(FindGraphics, IsNeverSmallerThanItsOwnLeastSizeHoweverSmallItsControls) {
    const QFont Before = QApplication::font();
    QFont Tiny = Before;
    Tiny.setPixelSize(2);
    QApplication::setFont(Tiny);
    Show();
    ASSERT_LT(Window->layout()->minimumSize().height(), 233);
    Window->resize(10, 10);
    EXPECT_GE(Window->width(), 413);
    EXPECT_EQ(233, Window->height());
    QApplication::setFont(Before);
}

TEST_F(FindGraphics, IsWorkedByTheKeyboardAlone) {
    Make({"a.jpg", "b.jpg", "c.png"});
    Show();
    Path().setFocus();
    QTest::keyClick(&*Window, Qt::Key_F, Qt::AltModifier);
    EXPECT_TRUE(Filter().hasFocus());
    QTest::keyClicks(&Filter(), u"?.jpg"_s);
    QTest::keyClick(&*Window, Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Label("lblResults") == "2 Results"; }));
    EXPECT_EQ("a.jpg,b.jpg", Names());
    QTest::keyClick(&*Window, Qt::Key_R, Qt::AltModifier);
    EXPECT_TRUE(Grid().hasFocus());
    QTest::keyClick(&Grid(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ("2 Selected", Label("lblSelected"));
    QTest::keyClick(&*Window, Qt::Key_I, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Window->IsLoaded(); }));
    EXPECT_EQ(2, Window->FileCnt());
}

}  // namespace
}  // namespace neb
