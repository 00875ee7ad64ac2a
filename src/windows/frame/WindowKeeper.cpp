#include "windows/frame/WindowKeeper.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMdiSubWindow>

#include "controls/forms/Form.h"
#include "controls/forms/modTwips.h"
#include "windows/frame/WindowSize.h"
#include "windows/frame/modWindowState.h"

namespace neb {
namespace {

WindowMemory MemoryOf(const Form& Window) {
    return {Window.objectName(), ToTwips(Window.height()), ToTwips(Window.width())};
}

bool IsChild(const Form& Window) {
    return qobject_cast<const QMdiSubWindow*>(Window.parentWidget());
}

}  // namespace

void RestoreKept(Form& Window) {
    if (IsKeptFromOutside(Window.objectName())) RestoreWindow(Window, MemoryOf(Window));
}

WindowKeeper::WindowKeeper(QObject* Parent) : QObject(Parent) {
    QCoreApplication::instance()->installEventFilter(this);
}

// A child that is hidden for a while, as when it is minimised, is not saved: only what has been
// unloaded has its last size.
bool WindowKeeper::eventFilter(QObject* Watched, QEvent* Event) {
    if (Event->type() != QEvent::Show && Event->type() != QEvent::Hide) return false;
    auto* Window = qobject_cast<Form*>(Watched);
    if (!Window || Event->spontaneous() || !IsKeptFromOutside(Window->objectName())) return false;
    if (Event->type() == QEvent::Hide && !Window->IsLoaded())
        SaveWindow(*Window, MemoryOf(*Window));
    else if (Event->type() == QEvent::Show && !IsChild(*Window))
        RestoreKept(*Window);
    return false;
}

}  // namespace neb
