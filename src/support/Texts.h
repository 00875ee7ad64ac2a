// Texts that people read, where no window speaks them: tr("...") in routines and rules, also of
// what is no QObject, and QT_TR_NOOP("...") in tables, whose texts go through tr where they are
// shown. Nothing that is stored or compared is such a text. docs/TRANSLATING.md tells the rest.
#pragma once

#include <QCoreApplication>

namespace neb {

// In the user's language. Note: which of several meanings is meant, where one word has them.
inline QString tr(const char* Text, const char* Note = nullptr) {
    return QCoreApplication::translate("neb", Text, Note);
}

}  // namespace neb
