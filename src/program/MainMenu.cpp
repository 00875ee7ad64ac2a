#include "program/MainMenu.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include "controls/fields/Icons.h"

namespace neb {
namespace {

struct Header {
    const char* Name;
    const char* Text;
};

constexpr Header Headers[] = {
    {"mnuFileHdr", "&File"},
    {"mnuAlbumHdr", "&Album"},
    {"mnuSlideShowHdr", "S&lide Show"},  // Alt+S is Save in the windows inside
    {"mnuImportExportHdr", "&Import/Export"},
    {"mnuPrintHdr", "&Print"},
    {"mnuWindows", "&Window"},
    {"mnuHelpHdr", "&Help"},
};

struct Entry {
    const char* Header;
    const char* Name;  // empty: a separator
    const char* Text;
    const char* Keys;
    const char* Icon;
    const char* Tip;
};

constexpr Entry Entries[] = {
    {"mnuFileHdr", "mnuQuickShow", "&Quick Show...", "Ctrl+K", "quick-show",
     "Turn a folder of pictures into a running show"},
    {"mnuFileHdr", "", "", "", "", ""},
    {"mnuFileHdr", "mnuExit", "E&xit", "Ctrl+Q", "exit", "Save everything and end the program"},
    {"mnuAlbumHdr", "mnuAlbumNew", "&New Album...", "Ctrl+N", "album-new",
     "Make a new album and fill it with pictures"},
    {"mnuAlbumHdr", "mnuAlbumRename", "&Rename Album...", "", "album-rename", "Rename an album"},
    {"mnuAlbumHdr", "mnuAlbumDelete", "&Delete Album...", "", "album-delete",
     "Delete an album and all that it holds"},
    {"mnuAlbumHdr", "", "", "", "", ""},
    {"mnuAlbumHdr", "mnuSlideMgr", "&Slide Manager", "Ctrl+E", "slide-manager",
     "Edit the slides of an album one by one"},
    {"mnuAlbumHdr", "mnuSlideMgrBulk", "&Bulk Slide Manager", "Ctrl+B", "slide-manager-bulk",
     "Edit the captions of a whole album"},
    {"mnuSlideShowHdr", "mnuSlideShowMgr", "Slide Show &Manager", "Ctrl+M", "slide-show-manager",
     "Compose slide shows"},
    {"mnuSlideShowHdr", "mnuSlideShowViewer", "&Play Slide Show", "F5", "slide-show-play",
     "Play the active slide show"},
    {"mnuSlideShowHdr", "", "", "", "", ""},
    {"mnuSlideShowHdr", "mnuSlideShowPrefs", "P&references...", "Ctrl+R", "preferences",
     "Choose the active slide show and its effects"},
    {"mnuImportExportHdr", "mnuAlbumImport", "Import &Album...", "", "import",
     "Bring an album in from another database"},
    {"mnuImportExportHdr", "mnuAlbumExport", "E&xport Album...", "", "export",
     "Take an album to another database"},
    {"mnuImportExportHdr", "", "", "", "", ""},
    {"mnuImportExportHdr", "mnuSlideShowImport", "Import &Slide Show...", "", "import",
     "Bring a slide show in from another database"},
    {"mnuImportExportHdr", "mnuSlideShowExport", "Exp&ort Slide Show...", "", "export",
     "Take a slide show to another database"},
    {"mnuPrintHdr", "mnuAlbumPrint", "Print &Album...", "", "print", "Print the pages of an album"},
    {"mnuPrintHdr", "mnuSlideShowPrint", "Print &Slide Show...", "", "print",
     "Print the pages of a slide show"},
    {"mnuWindows", "mnuCascade", "&Cascade", "", "", "Lay the windows one over the other"},
    {"mnuWindows", "mnuTile", "&Tile", "", "", "Lay the windows side by side"},
    {"mnuHelpHdr", "mnuHelpContents", "&Contents", "F1", "help", "What the program can do"},
    {"mnuHelpHdr", "mnuHelpIndex", "&Index", "", "", "Find a subject by its name"},
    {"mnuHelpHdr", "", "", "", "", ""},
    {"mnuHelpHdr", "mnuAbout", "&About NEB Slide Show", "", "about", "The program's version"},
};

void AddEntry(QMainWindow& Window, QMenu& Menu, const Entry& Row, MainMenu& Made) {
    if (!*Row.Name) {
        Menu.addSeparator();
        return;
    }
    auto* Action = new QAction(QObject::tr(Row.Text), &Window);
    Action->setObjectName(QString::fromLatin1(Row.Name));
    Action->setShortcut(QKeySequence(QString::fromLatin1(Row.Keys)));
    Action->setStatusTip(QObject::tr(Row.Tip));
    Menu.addAction(Action);
    // looked up when the menu is first opened: the start need not wait for a dozen icons
    QObject::connect(
        &Menu, &QMenu::aboutToShow, Action,
        [Action, Icon = QString::fromLatin1(Row.Icon)] { Action->setIcon(ThemeIcon(Icon)); },
        Qt::SingleShotConnection);
    Made.Entries.insert(Action->objectName(), Action);
}

}  // namespace

MainMenu BuildMainMenu(QMainWindow& Window) {
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
