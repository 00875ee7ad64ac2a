#include "support/modCollation.h"

#include <QLocale>

namespace neb {
namespace {

// A collator of no language goes by the codes of the letters and knows no numbers.
QCollator MakeCollator() {
    const QLocale User = QLocale().collation();
    QCollator Collator(User.language() == QLocale::C ? QLocale(QLocale::English) : User);
    Collator.setNumericMode(true);
    Collator.setCaseSensitivity(Qt::CaseInsensitive);
    return Collator;
}

}  // namespace

const QCollator& NameOrder() {
    static thread_local const QCollator Collator = MakeCollator();
    return Collator;
}

}  // namespace neb
