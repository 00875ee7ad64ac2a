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
#include "support/Fault.h"
#include "support/Services.h"
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
    {"mnuFileHdr", "&File"},
    {"mnuEditHdr", "Edit"},  // each of its letters means something in the windows inside
    {"mnuAlbumHdr", "&Album"},
    {"mnuSlideShowHdr", "S&lide Show"},  // Alt+S is Save in the windows inside
    {"mnuImportExportHdr", "&Import/Export"},
    {"mnuPrintHdr", "&Print"},
    {"mnuWindows", "&Window"},
    {"mnuHelpHdr", "&Help"},
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
    {"mnuFileHdr", "mnuQuickShow", "&Quick Show...", "Ctrl+K", "quick-show",
     "Turn a folder of pictures into a running show",
     [](frmNEBSlideShow& Main) { Main.OpenQuickShow(); }},
    {"mnuFileHdr", "", "", "", "", "", nullptr},
    {"mnuFileHdr", "mnuRestore", "Restore &Earlier Albums...", "", "",
     "Go back to all albums and slide shows as they were saved before",
     [](frmNEBSlideShow& Main) {
         NewForm<frmRestore>()->ShowModal();
         Main.Home().Fill();  // nobody tells of single albums then
     }},
    {"mnuFileHdr", "mnuCheckPictures", "&Check All Pictures...", "", "find-graphics",
     "Read all pictures and sounds and name those that have changed or are missing",
     [](auto&) { NewForm<frmCheckPictures>()->ShowModal(); }},
    {"mnuFileHdr", "", "", "", "", "", nullptr},
    {"mnuFileHdr", "mnuExit", "E&xit", "Ctrl+Q", "exit", "Save everything and end the program",
     [](frmNEBSlideShow& Main) { Main.close(); }},
    {"mnuEditHdr", "mnuUndo", "&Undo", "Ctrl+Z", "", "Take back what was done last",
     [](auto&) { UndoLast(); }},
    {"mnuEditHdr", "mnuRedo", "&Redo", "Ctrl+Shift+Z", "", "Do again what was taken back last",
     [](auto&) { RedoLast(); }},
    {"mnuAlbumHdr", "mnuAlbumNew", "&New Album...", "Ctrl+N", "album-new",
     "Make a new album and fill it with pictures",
     [](auto&) { NewForm<frmNewAlbumWzd1>()->ShowModal(); }},
    {"mnuAlbumHdr", "mnuAlbumRename", "&Rename Album...", "", "album-rename", "Rename an album",
     [](auto&) { ShowRenameAlbum(AlbumInHand()); }},
    {"mnuAlbumHdr", "mnuAlbumDelete", "&Delete Album...", "", "album-delete",
     "Delete an album and all that it holds", [](auto&) { ShowDeleteAlbum(AlbumInHand()); }},
    {"mnuAlbumHdr", "", "", "", "", "", nullptr},
    {"mnuAlbumHdr", "mnuSlideMgr", "&Slide Manager", "Ctrl+E", "slide-manager",
     "Edit the slides of an album one by one",
     [](auto&) { NewForm<frmSlideDBM>()->LoadSlideMgr(); }},
    {"mnuAlbumHdr", "mnuSlideMgrBulk", "&Bulk Slide Manager", "Ctrl+B", "slide-manager-bulk",
     "Edit the captions of a whole album",
     [](auto&) { NewForm<frmSlideMgrBulk>()->LoadAlbumMgr(0); }},
    {"mnuSlideShowHdr", "mnuSlideShowMgr", "Slide Show &Manager", "Ctrl+M", "slide-show-manager",
     "Compose slide shows", [](auto&) { TheOpeners().SlideShowMgr(AlbumInHand(), 0); }},
    {"mnuSlideShowHdr", "mnuSlideShowViewer", "&Play Slide Show", "F5", "slide-show-play",
     "Play the active slide show", [](frmNEBSlideShow& Main) { PlayActiveShow(Main); }},
    {"mnuSlideShowHdr", "mnuSlideShowRehearse", "Re&hearse...", "", "find-graphics",
     "See what comes up when in the active slide show, and what is wrong with it",
     [](frmNEBSlideShow& Main) { RehearseActiveShow(Main); }},
    {"mnuSlideShowHdr", "mnuSlideShowFilm", "Make a &Film...", "", "film",
     "Make a video file of the active slide show",
     [](frmNEBSlideShow& Main) { FilmActiveShow(Main); }},
    {"mnuSlideShowHdr", "", "", "", "", "", nullptr},
    {"mnuSlideShowHdr", "mnuSlideShowPrefs", "P&references...", "Ctrl+R", "preferences",
     "Choose the active slide show and its effects", [](auto&) { EditSlideShowPreferences(); }},
    {"mnuSlideShowHdr", "mnuSpeedTest", "Test &Graphics Speed", "", "",
     "Measure once more which effects this computer shows smoothly",
     [](auto&) { TestGraphicsSpeed(); }},
    {"mnuImportExportHdr", "mnuAlbumImport", "Import &Album...", "", "import",
     "Bring an album in from another database",
     [](auto&) { TheOpeners().ShowAsChild(*NewForm<frmAlbumImport>()); }},
    {"mnuImportExportHdr", "mnuAlbumExport", "E&xport Album...", "", "export",
     "Take an album to another database",
     [](auto&) { TheOpeners().ShowAsChild(*NewForm<frmAlbumExport>()); }},
    {"mnuImportExportHdr", "", "", "", "", "", nullptr},
    {"mnuImportExportHdr", "mnuSlideShowImport", "Import &Slide Show...", "", "import",
     "Bring a slide show in from another database",
     [](auto&) { TheOpeners().ShowAsChild(*NewForm<frmSlideShowImport>()); }},
    {"mnuImportExportHdr", "mnuSlideShowExport", "Exp&ort Slide Show...", "", "export",
     "Take a slide show to another database",
     [](auto&) { TheOpeners().ShowAsChild(*NewForm<frmSlideShowExport>()); }},
    {"mnuImportExportHdr", "", "", "", "", "", nullptr},
    {"mnuImportExportHdr", "mnuDiscWrite", "&Write to a Folder for a Disc...", "", "export",
     "Write albums and slide shows into a folder that plays and checks itself",
     [](auto&) { TheOpeners().ShowAsChild(*NewForm<frmDiscFolder>()); }},
    {"mnuImportExportHdr", "mnuDiscCheck", "&Check a Disc...", "", "find-graphics",
     "Compare a folder that was written for a disc with its check sums",
     [](auto&) { CheckDisc(); }},
    {"mnuPrintHdr", "mnuAlbumPrint", "Print &Album...", "", "print", "Print the pages of an album",
     [](auto&) { NewForm<frmPrintAlbum>()->PrintAlbum(AlbumInHand()); }},
    {"mnuPrintHdr", "mnuSlideShowPrint", "Print &Slide Show...", "", "print",
     "Print the pages of a slide show",
     [](auto&) { NewForm<frmPrintSlideShow>()->PrintSlideShow(AlbumInHand(), 0); }},
    // Alt+Home: where people who browse have their home page, and no list or field takes it
    {"mnuWindows", "mnuHome", "&Home", "Alt+Home", "album",
     "Go to the albums and slide shows; once more: back to the windows",
     [](frmNEBSlideShow& Main) { Main.ShowHome(); }},
    {"mnuWindows", "mnuCascade", "&Cascade", "", "", "Lay the windows one over the other",
     [](frmNEBSlideShow& Main) { Main.Area().CascadeChildren(); }},
    {"mnuWindows", "mnuTile", "&Tile", "", "", "Lay the windows side by side",
     [](frmNEBSlideShow& Main) { Main.Area().TileChildren(); }},
    {"mnuWindows", "", "", "", "", "", nullptr},
    {"mnuWindows", "mnuNextWindow", "&Next", "Ctrl+Tab", "", "Go to the next window",
     [](frmNEBSlideShow& Main) { Main.Area().activateNextSubWindow(); }},
    {"mnuWindows", "mnuPreviousWindow", "&Previous", "Ctrl+Shift+Tab", "",
     "Go to the previous window",
     [](frmNEBSlideShow& Main) { Main.Area().activatePreviousSubWindow(); }},
    {"mnuWindows", "mnuCloseWindow", "C&lose", "Ctrl+F4; Ctrl+W", "", "Close the window in use",
     [](frmNEBSlideShow& Main) { Main.Area().closeActiveSubWindow(); }},
    {"mnuHelpHdr", "mnuHelpWindow", "Help for This &Window", "F1", "help",
     "What can be done in the window in front",
     [](frmNEBSlideShow& Main) { ShowHelpOfWindow(Main); }},
    {"mnuHelpHdr", "mnuHelpContents", "&Contents", "", "", "What the program can do",
     [](auto&) { ShowHelp(QStringLiteral("contents")); }},
    {"mnuHelpHdr", "mnuHelpIndex", "&Index", "", "", "Find a subject by its name",
     [](auto&) { ShowHelp(QStringLiteral("index")); }},
    {"mnuHelpHdr", "", "", "", "", "", nullptr},
    {"mnuHelpHdr", "mnuAbout", "&About NEB Slide Show", "", "about", "The program's version",
     [](auto&) { NewForm<frmAbout>()->ShowModal(); }},
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
    auto* Action = new QAction(QObject::tr(Row.Text), &Main);
    Action->setObjectName(QString::fromLatin1(Row.Name));
    Action->setShortcuts(QKeySequence::listFromString(QString::fromLatin1(Row.Keys)));
    Action->setStatusTip(QObject::tr(Row.Tip));
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
        [Action, &Menu, Icon = QString::fromLatin1(Row.Icon)] {
            Action->setIcon(MenuIcon(ThemeIcon(Icon), Menu.palette()));
        },
        Qt::SingleShotConnection);
    Made.Entries.insert(Action->objectName(), Action);
}

}  // namespace

MainMenu BuildMainMenu(frmNEBSlideShow& Window) {
    MainMenu Made;
    for (const Header& Each : Headers) {
        QMenu* Menu = Window.menuBar()->addMenu(QObject::tr(Each.Text));
        Menu->setObjectName(QString::fromLatin1(Each.Name));
        for (const Entry& Row : Entries)
            if (qstrcmp(Row.Header, Each.Name) == 0) AddEntry(Window, *Menu, Row, Made);
        if (qstrcmp(Each.Name, "mnuWindows") == 0) Made.Windows = Menu;
    }
    return Made;
}

}  // namespace neb
