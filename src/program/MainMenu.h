// The menu of the main window as a table: which entries there are, under which header, with which
// text, keys, icon and what each does. A new entry is a new row.
#pragma once

#include <QHash>
#include <QString>

QT_BEGIN_NAMESPACE
class QAction;
class QMenu;
QT_END_NAMESPACE

namespace neb {

class frmNEBSlideShow;

struct MainMenu {
    QHash<QString, QAction*> Entries;  // by name, such as "mnuQuickShow"
    QMenu* Windows = nullptr;          // takes the list of open windows as well
};

// Fills the window's menu bar and connects every entry with what it does; an entry whose window is
// not there yet rests. What it does runs after the menu has closed; a fault in it is told in the
// status bar, and the window that was to come then simply does not appear.
MainMenu BuildMainMenu(frmNEBSlideShow& Window);

}  // namespace neb
