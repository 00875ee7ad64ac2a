#include "support/Grouped.h"

#include <QLocale>

namespace neb {

// A machine without a language of its own would run the digits together.
QString Grouped(qint64 Number) {
    QLocale Words;
    Words.setNumberOptions(Words.numberOptions() & ~QLocale::OmitGroupSeparator);
    return Words.toString(Number);
}

}  // namespace neb
