#include "support/windows/NebApplication.h"

#include <new>

#include "support/Fault.h"
#include "support/Services.h"
#include "support/windows/ScreenPointer.h"

namespace neb {
namespace {

void Report(const QString& Text) {
    SetScreenPointer(Pointer::Default);
    MsgBox(Text, QStringLiteral("Operation Failed"), BoxIcon::Critical);
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
