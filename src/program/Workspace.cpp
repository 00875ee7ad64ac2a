#include "program/Workspace.h"

#include <QEvent>

namespace neb {

Workspace::Workspace(QWidget* Parent) : QMdiArea(Parent) {
    setBackground(palette().brush(QPalette::Base));
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

}  // namespace neb
