#include "support/Fault.h"

#include <utility>

#include "support/modText.h"

namespace neb {

Fault::Fault(QString What, QString File, quint32 Number)
    : mWhat(std::move(What)), mFile(std::move(File)), mNumber(Number), mUtf8(Text().toUtf8()) {}

QString Fault::Text() const {
    return ReadableText(mFile.isEmpty() ? mWhat : mWhat + u'\n' + mFile);
}

}  // namespace neb
