#include "support/ReasonOf.h"

#include <QCoreApplication>
#include <new>

#include "support/Fault.h"

namespace neb {
namespace {

QString OtherReason(const std::exception& Problem) {
    if (dynamic_cast<const std::bad_alloc*>(&Problem))
        return QCoreApplication::translate("neb", "There is not enough memory to do this.");
    return QString::fromUtf8(Problem.what());
}

}  // namespace

QString ReasonOf(const std::exception& Problem) {
    const auto* Told = dynamic_cast<const Fault*>(&Problem);
    return Told ? Told->Text() : OtherReason(Problem);
}

QString SentenceOf(const std::exception& Problem) {
    const auto* Told = dynamic_cast<const Fault*>(&Problem);
    return Told ? Told->What() : OtherReason(Problem);
}

}  // namespace neb
