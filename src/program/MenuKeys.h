// Keys of the main window's menu that a text field would take for itself, as an old habit of some
// desktops: Ctrl+E, Ctrl+K. In the children of the main window the menu has them; what everybody
// edits text with stays with the field.
#pragma once

#include <QObject>

QT_BEGIN_NAMESPACE
class QKeyEvent;
class QMainWindow;
QT_END_NAMESPACE

namespace neb {

class MenuKeys : public QObject {
  public:
    explicit MenuKeys(QMainWindow& Main);

    bool eventFilter(QObject* Watched, QEvent* Event) override;

  private:
    bool AreOfMenu(const QKeyEvent& Keys) const;

    QMainWindow& mMain;
};

}  // namespace neb
