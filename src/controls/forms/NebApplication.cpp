#include "controls/forms/NebApplication.h"

#include <QScopeGuard>
#include <new>

#include "controls/forms/ScreenPointer.h"
#include "support/Fault.h"
#include "support/Services.h"

namespace neb {
namespace {

// One box at a time: what fails while a box is up is told after it, the same thing only once.
void Report(const QString& Text) {
    static QStringList Waiting;
    if (Waiting.contains(Text)) return;
    Waiting.append(Text);
    if (Waiting.size() > 1) return;
    const auto Emptied = qScopeGuard([] { Waiting.clear(); });
    while (!Waiting.isEmpty()) {
        SetScreenPointer(Pointer::Default);
        MsgBox(Waiting.front(), QStringLiteral("Operation Failed"), BoxIcon::Critical);
        Waiting.removeFirst();
    }
}

}  // namespace

bool NebApplication::notify(QObject* Receiver, QEvent* Event) {
    try {
        return QApplication::notify(Receiver, Event);
    } catch (const Fault& Problem) {
        Report(Problem.Text());
    } catch (const std::bad_alloc&) {
        Report(tr("There is not enough memory to do this."));
    } catch (const std::exception& Problem) {
        Report(QString::fromUtf8(Problem.what()));
    }
    return true;
}

}  // namespace neb
