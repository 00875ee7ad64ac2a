#include "program/opening/FileDrops.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

#include "support/files/HostNames.h"

namespace neb {
namespace {

QStringList PathsIn(const QMimeData& Data) {
    QStringList Paths;
    for (const QUrl& Url : Data.urls())
        if (const QString Path = FileOfUrl(Url); Url.isLocalFile() && !Path.isEmpty())
            Paths << Path;
    return Paths;
}

}  // namespace

FileDrops::FileDrops(QWidget& On, std::function<void(const QStringList& Paths)> Dropped)
    : QObject(&On), mDropped(std::move(Dropped)) {
    On.setAcceptDrops(true);
    On.installEventFilter(this);
}

bool FileDrops::eventFilter(QObject* Watched, QEvent* Event) {
    if (Event->type() != QEvent::DragEnter && Event->type() != QEvent::Drop)
        return QObject::eventFilter(Watched, Event);
    auto* Drag = static_cast<QDropEvent*>(Event);
    const QStringList Paths = PathsIn(*Drag->mimeData());
    if (Paths.isEmpty()) return false;
    Drag->acceptProposedAction();
    if (Event->type() == QEvent::Drop)
        QMetaObject::invokeMethod(
            this, [this, Paths] { mDropped(Paths); }, Qt::QueuedConnection);
    return true;
}

}  // namespace neb
