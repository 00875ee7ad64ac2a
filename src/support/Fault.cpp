#include "support/Fault.h"

#include <utility>

namespace neb {

Fault::Fault(QString What, QString File, quint32 Number)
    : mWhat(std::move(What)), mFile(std::move(File)), mNumber(Number), mUtf8(Text().toUtf8()) {}

QString Fault::Text() const {
    return mFile.isEmpty() ? mWhat : mWhat + u'\n' + mFile;
}

}  // namespace neb
