#include "program/Workspace.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QMdiSubWindow>
#include <QMimeData>

#include "support/files/HostNames.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

constexpr int IconSide = 96;  // logical pixels
constexpr int Gap = 18;

QString FirstFolder(const QMimeData& Data) {
    for (const QUrl& Url : Data.urls())
        if (const QString Path = FileOfUrl(Url); FolderExists(Path)) return Path;
    return {};
}

QFont LargeFont(const QFont& Base) {
    QFont Font = Base;
    Font.setPointSizeF(Base.pointSizeF() * 1.6);
    return Font;
}

}  // namespace

Workspace::Workspace(QWidget* Parent) : QMdiArea(Parent) {
    setBackground(palette().brush(QPalette::Base));
    setAcceptDrops(true);
    setActivationOrder(ActivationHistoryOrder);  // a viewer leaves the window it was opened from
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void Workspace::paintEvent(QPaintEvent* Event) {
    QMdiArea::paintEvent(Event);
    if (!subWindowList().isEmpty()) return;
    QPainter Painter(viewport());
    const QRect Room = viewport()->rect();
    QRect Icon(0, 0, IconSide, IconSide);
    Icon.moveCenter(Room.center() - QPoint(0, IconSide));
    QApplication::windowIcon().paint(&Painter, Icon);
    QRect Below = Room;
    Below.setTop(Icon.bottom() + Gap);
    Painter.setPen(palette().color(QPalette::Text));
    Painter.setFont(LargeFont(font()));
    QRect Used;
    Painter.drawText(Below, Qt::AlignHCenter | Qt::AlignTop, tr("NEB Slide Show"), &Used);
    Below.setTop(Used.bottom() + Gap);
    Painter.setFont(font());
    Painter.setPen(palette().color(QPalette::PlaceholderText));
    Painter.drawText(Below, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap,
                     tr("To turn a folder of pictures into a running show, choose\n"
                        "File, Quick Show, or drop the folder here."));
}

// The greeting goes with the first window and comes back when the last one has gone.
bool Workspace::viewportEvent(QEvent* Event) {
    const bool Handled = QMdiArea::viewportEvent(Event);
    if (Event->type() == QEvent::ChildAdded || Event->type() == QEvent::ChildRemoved)
        viewport()->update();
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
