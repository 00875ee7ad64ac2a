// The menu bar of the main window as a table: which entries there are, under which header, with
// which text, keys and icon.
#pragma once

#include <QHash>
#include <QString>

QT_BEGIN_NAMESPACE
class QAction;
class QMainWindow;
class QMenu;
QT_END_NAMESPACE

namespace neb {

struct MainMenu {
    QHash<QString, QAction*> Entries;  // by name, such as "mnuQuickShow"
    QMenu* Windows = nullptr;          // takes the list of open windows as well
};

// Fills the window's menu bar. Every entry is there; the caller connects and enables them.
MainMenu BuildMainMenu(QMainWindow& Window);

}  // namespace neb
