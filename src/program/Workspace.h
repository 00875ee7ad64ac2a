// The room in which the main window holds its children, with a page behind them that fills it; it
// tells of folders that are dropped on it.
#pragma once

#include <QMdiArea>

namespace neb {

class Workspace : public QMdiArea {
    Q_OBJECT

  public:
    explicit Workspace(QWidget* Parent = nullptr);
    // The page behind the children, which the room owns from here on.
    void SetPage(QWidget* Page);

  Q_SIGNALS:
    void FolderDropped(const QString& Folder);

  protected:
    bool viewportEvent(QEvent* Event) override;
    bool eventFilter(QObject* Watched, QEvent* Event) override;  // of the children
    void dragEnterEvent(QDragEnterEvent* Event) override;
    void dropEvent(QDropEvent* Event) override;

  private:
    QWidget* mPage = nullptr;
};

}  // namespace neb
