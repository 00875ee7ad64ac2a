#include "program/Workspace.h"

#include <QDragEnterEvent>
#include <QMdiSubWindow>
#include <QMimeData>

#include "support/files/HostNames.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

QString FirstFolder(const QMimeData& Data) {
    for (const QUrl& Url : Data.urls())
        if (const QString Path = FileOfUrl(Url); FolderExists(Path)) return Path;
    return {};
}

}  // namespace

Workspace::Workspace(QWidget* Parent) : QMdiArea(Parent) {
    setBackground(palette().brush(QPalette::Base));
    setAcceptDrops(true);
    setActivationOrder(ActivationHistoryOrder);  // a viewer leaves the window it was opened from
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void Workspace::SetPage(QWidget* Page) {
    mPage = Page;
    mPage->setParent(viewport());
    mPage->setGeometry(viewport()->rect());
    mPage->lower();
    mPage->show();
}

// The page fills the room at every size, and no child goes behind it.
bool Workspace::viewportEvent(QEvent* Event) {
    const bool Handled = QMdiArea::viewportEvent(Event);
    if (mPage && Event->type() == QEvent::Resize) mPage->setGeometry(viewport()->rect());
    if (mPage && Event->type() == QEvent::ChildAdded) mPage->lower();
    return Handled;
}

// A child that is minimised is put below all others by the toolkit: its bar would not be seen.
bool Workspace::eventFilter(QObject* Watched, QEvent* Event) {
    const bool Handled = QMdiArea::eventFilter(Watched, Event);
    if (mPage && Event->type() == QEvent::ZOrderChange) mPage->lower();
    return Handled;
}

void Workspace::dragEnterEvent(QDragEnterEvent* Event) {
    if (!FirstFolder(*Event->mimeData()).isEmpty()) Event->acceptProposedAction();
}

void Workspace::dropEvent(QDropEvent* Event) {
    const QString Folder = FirstFolder(*Event->mimeData());
    if (Folder.isEmpty()) return;
    Event->acceptProposedAction();
    QMetaObject::invokeMethod(
        this, [this, Folder] { Q_EMIT FolderDropped(Folder); }, Qt::QueuedConnection);
}

}  // namespace neb
