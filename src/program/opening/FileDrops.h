// Files and folders that are dropped on a window, wherever in it no control takes them for itself.
#pragma once

#include <QObject>
#include <QStringList>
#include <functional>

QT_BEGIN_NAMESPACE
class QMimeData;
class QWidget;
QT_END_NAMESPACE

namespace neb {

class FileDrops : public QObject {
    Q_OBJECT

  public:
    // Belongs to the window. Dropped is called when the drag is over, with at least one path.
    FileDrops(QWidget& On, std::function<void(const QStringList& Paths)> Dropped);

  protected:
    bool eventFilter(QObject* Watched, QEvent* Event) override;

  private:
    std::function<void(const QStringList& Paths)> mDropped;
};

}  // namespace neb
