// The room in which the main window holds its children. While there are none it says what to do
// first; it tells of folders that are dropped on it.
#pragma once

#include <QMdiArea>

namespace neb {

class Workspace : public QMdiArea {
    Q_OBJECT

  public:
    explicit Workspace(QWidget* Parent = nullptr);

  Q_SIGNALS:
    void FolderDropped(const QString& Folder);

  protected:
    void paintEvent(QPaintEvent* Event) override;
    bool viewportEvent(QEvent* Event) override;
    void dragEnterEvent(QDragEnterEvent* Event) override;
    void dropEvent(QDropEvent* Event) override;
};

}  // namespace neb
