#include "program/MainMenu.h"

#include <QAction>
#include <QApplication>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>

#include "controls/fields/Icons.h"
#include "controls/fields/MenuIcon.h"
#include "program/ActiveShow.h"
#include "program/EditMenu.h"
#include "program/Workspace.h"
#include "program/frmAbout.h"
#include "program/frmNEBSlideShow.h"
#include "program/help/modHelp.h"
#include "program/modMachineSettings.h"
#include "program/report/CopyReport.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "windows/albums/frmCheckPictures.h"
#include "windows/albums/frmRestore.h"
#include "windows/albums/modAlbumNames.h"
#include "windows/disc/frmDiscFolder.h"
#include "windows/disc/modDiscCheck.h"
#include "windows/frame/AlbumInHand.h"
#include "windows/frame/Openers.h"
#include "windows/frame/modNotice.h"
#include "windows/home/HomePage.h"
#include "windows/import/frmNewAlbumWzd1.h"
#include "windows/printing/frmPrintAlbum.h"
#include "windows/printing/frmPrintSlideShow.h"
#include "windows/show/modSlideShows.h"
#include "windows/slides/frmSlideDBM.h"
#include "windows/slides/frmSlideMgrBulk.h"
#include "windows/transfer/frmAlbumExport.h"
#include "windows/transfer/frmAlbumImport.h"
#include "windows/transfer/frmSlideShowExport.h"
#include "windows/transfer/frmSlideShowImport.h"

namespace neb {
namespace {

void ShowHelpOfWindow(const frmNEBSlideShow& Main) {
    const QMdiSubWindow* Child = Main.Area().activeSubWindow();
    ShowHelp(HelpPageOf(Child ? Child->widget() : nullptr));
}

struct Header {
    const char* Name;
    const char* Text;
};

constexpr Header Headers[] = {
    {"mnuFileHdr", QT_TR_NOOP("&File")},
    {"mnuEditHdr",
     QT_TR_NOOP("Edit")},  // each of its letters means something in the windows inside
    {"mnuAlbumHdr", QT_TR_NOOP("&Album")},
    {"mnuSlideShowHdr", QT_TR_NOOP("S&lide Show")},  // Alt+S is Save in the windows inside
    {"mnuImportExportHdr", QT_TR_NOOP("&Import/Export")},
    {"mnuPrintHdr", QT_TR_NOOP("&Print")},
    {"mnuWindows", QT_TR_NOOP("&Window")},
    {"mnuHelpHdr", QT_TR_NOOP("&Help")},
};

using Handler = void (*)(frmNEBSlideShow& Main);

struct Entry {
    const char* Header;
    const char* Name;  // empty: a separator
    const char* Text;
    const char* Keys;
    const char* Icon;
    const char* Tip;
    Handler Run;
};

constexpr Entry Entries[] = {
    {"mnuFileHdr", "mnuQuickShow", QT_TR_NOOP("&Quick Show..."), "Ctrl+K", "quick-show",
     QT_TR_NOOP("Turn a folder of pictures into a running show"),
     [](frmNEBSlideShow& Main) { Main.OpenQuickShow(); }},
    {"mnuFileHdr", "", "", "", "", "", nullptr},
    {"mnuFileHdr", "mnuRestore", QT_TR_NOOP("Restore &Earlier Albums..."), "", "",
     QT_TR_NOOP("Go back to all albums and slide shows as they were saved before"),
     [](frmNEBSlideShow& Main) {
         NewForm<frmRestore>()->ShowModal();
         Main.Home().Fill();  // nobody tells of single albums then
     }},
    {"mnuFileHdr", "mnuCheckPictures", QT_TR_NOOP("&Check All Pictures..."), "", "find-graphics",
     QT_TR_NOOP("Read all pictures and sounds and name what has changed or is missing"),
     [](auto&) { NewForm<frmCheckPictures>()->ShowModal(); }},
    {"mnuFileHdr", "", "", "", "", "", nullptr},
    {"mnuFileHdr", "mnuExit", QT_TR_NOOP("E&xit"), "Ctrl+Q", "exit",
     QT_TR_NOOP("Save everything and end the program"),
     [](frmNEBSlideShow& Main) { Main.close(); }},
    {"mnuEditHdr", "mnuUndo", QT_TR_NOOP("&Undo"), "Ctrl+Z", "",
     QT_TR_NOOP("Take back what was done last"), [](auto&) { UndoLast(); }},
    {"mnuEditHdr", "mnuRedo", QT_TR_NOOP("&Redo"), "Ctrl+Shift+Z", "",
     QT_TR_NOOP("Do again what was taken back last"), [](auto&) { RedoLast(); }},
    {"mnuAlbumHdr", "mnuAlbumNew", QT_TR_NOOP("&New Album..."), "Ctrl+N", "album-new",
     QT_TR_NOOP("Make a new album and fill it with pictures"),
     [](auto&) { NewForm<frmNewAlbumWzd1>()->ShowModal(); }},
    {"mnuAlbumHdr", "mnuAlbumRename", QT_TR_NOOP("&Rename Album..."), "", "album-rename",
     QT_TR_NOOP("Rename an album"), [](auto&) { ShowRenameAlbum(AlbumInHand()); }},
    {"mnuAlbumHdr", "mnuAlbumDelete", QT_TR_NOOP("&Delete Album..."), "", "album-delete",
     QT_TR_NOOP("Delete an album and all that it holds"),
     [](auto&) { ShowDeleteAlbum(AlbumInHand()); }},
    {"mnuAlbumHdr", "", "", "", "", "", nullptr},
    {"mnuAlbumHdr", "mnuSlideMgr", QT_TR_NOOP("&Slide Manager"), "Ctrl+E", "slide-manager",
     QT_TR_NOOP("Edit the slides of an album one by one"),
     [](auto&) { NewForm<frmSlideDBM>()->LoadSlideMgr(); }},
    {"mnuAlbumHdr", "mnuSlideMgrBulk", QT_TR_NOOP("&Bulk Slide Manager"), "Ctrl+B",
     "slide-manager-bulk", QT_TR_NOOP("Edit the captions of a whole album"),
     [](auto&) { NewForm<frmSlideMgrBulk>()->LoadAlbumMgr(0); }},
    {"mnuSlideShowHdr", "mnuSlideShowMgr", QT_TR_NOOP("Slide Show &Manager"), "Ctrl+M",
     "slide-show-manager", QT_TR_NOOP("Compose slide shows"),
     [](auto&) { TheOpeners().SlideShowMgr(AlbumInHand(), 0); }},
    {"mnuSlideShowHdr", "mnuSlideShowViewer", QT_TR_NOOP("&Play Slide Show"), "F5",
     "slide-show-play", QT_TR_NOOP("Play the active slide show"),
     [](frmNEBSlideShow& Main) { PlayActiveShow(Main); }},
    {"mnuSlideShowHdr", "mnuSlideShowRehearse", QT_TR_NOOP("Re&hearse..."), "", "find-graphics",
     QT_TR_NOOP("See what comes up when in the active slide show, and what is wrong"),
     [](frmNEBSlideShow& Main) { RehearseActiveShow(Main); }},
    {"mnuSlideShowHdr", "mnuSlideShowFilm", QT_TR_NOOP("Make a &Film..."), "", "film",
     QT_TR_NOOP("Make a video file of the active slide show"),
     [](frmNEBSlideShow& Main) { FilmActiveShow(Main); }},
    {"mnuSlideShowHdr", "", "", "", "", "", nullptr},
    {"mnuSlideShowHdr", "mnuSlideShowPrefs", QT_TR_NOOP("P&references..."), "Ctrl+R", "preferences",
     QT_TR_NOOP("Choose the active slide show and its effects"),
     [](auto&) { EditSlideShowPreferences(); }},
    {"mnuSlideShowHdr", "mnuSpeedTest", QT_TR_NOOP("Test &Graphics Speed"), "", "",
     QT_TR_NOOP("Measure once more which effects this computer shows smoothly"),
     [](auto&) { TestGraphicsSpeed(); }},
    {"mnuImportExportHdr", "mnuAlbumImport", QT_TR_NOOP("Import &Album..."), "", "import",
     QT_TR_NOOP("Bring an album in from another database"),
     [](auto&) { TheOpeners().ShowAsChild(*NewForm<frmAlbumImport>()); }},
    {"mnuImportExportHdr", "mnuAlbumExport", QT_TR_NOOP("E&xport Album..."), "", "export",
     QT_TR_NOOP("Take an album to another database"),
     [](auto&) { TheOpeners().ShowAsChild(*NewForm<frmAlbumExport>()); }},
    {"mnuImportExportHdr", "", "", "", "", "", nullptr},
    {"mnuImportExportHdr", "mnuSlideShowImport", QT_TR_NOOP("Import &Slide Show..."), "", "import",
     QT_TR_NOOP("Bring a slide show in from another database"),
     [](auto&) { TheOpeners().ShowAsChild(*NewForm<frmSlideShowImport>()); }},
    {"mnuImportExportHdr", "mnuSlideShowExport", QT_TR_NOOP("Exp&ort Slide Show..."), "", "export",
     QT_TR_NOOP("Take a slide show to another database"),
     [](auto&) { TheOpeners().ShowAsChild(*NewForm<frmSlideShowExport>()); }},
    {"mnuImportExportHdr", "", "", "", "", "", nullptr},
    {"mnuImportExportHdr", "mnuDiscWrite", QT_TR_NOOP("&Write to a Folder for a Disc..."), "",
     "export",
     QT_TR_NOOP("Write albums and slide shows into a folder that plays and checks itself"),
     [](auto&) { TheOpeners().ShowAsChild(*NewForm<frmDiscFolder>()); }},
    {"mnuImportExportHdr", "mnuDiscCheck", QT_TR_NOOP("&Check a Disc..."), "", "find-graphics",
     QT_TR_NOOP("Compare a folder that was written for a disc with its check sums"),
     [](auto&) { CheckDisc(); }},
    {"mnuPrintHdr", "mnuAlbumPrint", QT_TR_NOOP("Print &Album..."), "", "print",
     QT_TR_NOOP("Print the pages of an album"),
     [](auto&) { NewForm<frmPrintAlbum>()->PrintAlbum(AlbumInHand()); }},
    {"mnuPrintHdr", "mnuSlideShowPrint", QT_TR_NOOP("Print &Slide Show..."), "", "print",
     QT_TR_NOOP("Print the pages of a slide show"),
     [](auto&) { NewForm<frmPrintSlideShow>()->PrintSlideShow(AlbumInHand(), 0); }},
    // Alt+Home: where people who browse have their home page, and no list or field takes it
    {"mnuWindows", "mnuHome", QT_TR_NOOP("&Home"), "Alt+Home", "album",
     QT_TR_NOOP("Go to the albums and slide shows; once more: back to the windows"),
     [](frmNEBSlideShow& Main) { Main.ShowHome(); }},
    {"mnuWindows", "mnuCascade", QT_TR_NOOP("&Cascade"), "", "",
     QT_TR_NOOP("Lay the windows one over the other"),
     [](frmNEBSlideShow& Main) { Main.Area().CascadeChildren(); }},
    {"mnuWindows", "mnuTile", QT_TR_NOOP("&Tile"), "", "",
     QT_TR_NOOP("Lay the windows side by side"),
     [](frmNEBSlideShow& Main) { Main.Area().TileChildren(); }},
    {"mnuWindows", "", "", "", "", "", nullptr},
    {"mnuWindows", "mnuNextWindow", QT_TR_NOOP("&Next"), "Ctrl+Tab", "",
     QT_TR_NOOP("Go to the next window"),
     [](frmNEBSlideShow& Main) { Main.Area().activateNextSubWindow(); }},
    {"mnuWindows", "mnuPreviousWindow", QT_TR_NOOP("&Previous"), "Ctrl+Shift+Tab", "",
     QT_TR_NOOP("Go to the previous window"),
     [](frmNEBSlideShow& Main) { Main.Area().activatePreviousSubWindow(); }},
    {"mnuWindows", "mnuCloseWindow", QT_TR_NOOP("C&lose"), "Ctrl+F4; Ctrl+W", "",
     QT_TR_NOOP("Close the window in use"),
     [](frmNEBSlideShow& Main) { Main.Area().closeActiveSubWindow(); }},
    {"mnuHelpHdr", "mnuHelpWindow", QT_TR_NOOP("Help for This &Window"), "F1", "help",
     QT_TR_NOOP("What can be done in the window in front"),
     [](frmNEBSlideShow& Main) { ShowHelpOfWindow(Main); }},
    {"mnuHelpHdr", "mnuHelpContents", QT_TR_NOOP("&Contents"), "", "",
     QT_TR_NOOP("What the program can do"), [](auto&) { ShowHelp(QStringLiteral("contents")); }},
    {"mnuHelpHdr", "mnuHelpIndex", QT_TR_NOOP("&Index"), "", "",
     QT_TR_NOOP("Find a subject by its name"), [](auto&) { ShowHelp(QStringLiteral("index")); }},
    {"mnuHelpHdr", "", "", "", "", "", nullptr},
    {"mnuHelpHdr", "mnuCopyReport", QT_TR_NOOP("Copy &Report"), "", "",
     QT_TR_NOOP("Copy what is to be known of this computer, for a letter about a problem"),
     [](auto&) { CopyReport(); }},
    {"mnuHelpHdr", "mnuAbout", QT_TR_NOOP("&About NEB Slide Show"), "", "about",
     QT_TR_NOOP("The program's version"), [](auto&) { NewForm<frmAbout>()->ShowModal(); }},
};

// Queued, so that a modal window does not hold whoever pressed the entry. What was pressed twice
// comes while the window of the first time is up, and is not opened inside it.
void Connect(frmNEBSlideShow& Main, QAction& Action, Handler Run) {
    const auto Guarded = [&Main, Run] {
        if (QApplication::activeModalWidget()) return;
        try {
            Run(Main);
        } catch (const Fault& Problem) {
            ShowNotice(Problem.Text());
        }
    };
    QObject::connect(&Action, &QAction::triggered, &Main, Guarded, Qt::QueuedConnection);
}

QAction* MakeAction(frmNEBSlideShow& Main, const Entry& Row) {
    auto* Action = new QAction(tr(Row.Text), &Main);
    Action->setObjectName(QString::fromLatin1(Row.Name));
    Action->setShortcuts(QKeySequence::listFromString(QString::fromLatin1(Row.Keys)));
    Action->setStatusTip(tr(Row.Tip));
    Connect(Main, *Action, Row.Run);
    return Action;
}

void AddEntry(frmNEBSlideShow& Main, QMenu& Menu, const Entry& Row, MainMenu& Made) {
    if (!*Row.Name) {
        Menu.addSeparator();
        return;
    }
    QAction* Action = MakeAction(Main, Row);
    Menu.addAction(Action);
    // looked up when the menu is first opened: the start need not wait for a dozen icons
    QObject::connect(
        &Menu, &QMenu::aboutToShow, Action,
        [Action, &Menu, Icon = QString::fromLatin1(Row.Icon), In = qint64(0)]() mutable {
            const qint64 Colours = Menu.palette().cacheKey();
            if (std::exchange(In, Colours) != Colours)
                Action->setIcon(MenuIcon(ThemeIcon(Icon), Menu.palette()));
        });
    Made.Entries.insert(Action->objectName(), Action);
}

}  // namespace

MainMenu BuildMainMenu(frmNEBSlideShow& Window) {
    MainMenu Made;
    for (const Header& Each : Headers) {
        QMenu* Menu = Window.menuBar()->addMenu(tr(Each.Text));
        Menu->setObjectName(QString::fromLatin1(Each.Name));
        for (const Entry& Row : Entries)
            if (qstrcmp(Row.Header, Each.Name) == 0) AddEntry(Window, *Menu, Row, Made);
        if (qstrcmp(Each.Name, "mnuWindows") == 0) Made.Windows = Menu;
    }
    return Made;
}

}  // namespace neb
