#include "support/Grouped.h"

#include <QLocale>
#include <cmath>

#include "support/Texts.h"
#include "support/modNumbers.h"

namespace neb {
namespace {

bool IsPlain = false;

// A machine without a language of its own would run the digits together.
QLocale Numbers() {
    QLocale Words = IsPlain ? QLocale::c() : QLocale();
    Words.setNumberOptions(Words.numberOptions() & ~QLocale::OmitGroupSeparator);
    return Words;
}

}  // namespace

QString Grouped(qint64 Number) {
    return Numbers().toString(Number);
}

QString Decimal(double Number, int Places) {
    return Numbers().toString(Number, 'f', Places);
}

QString Decimal(double Number) {
    return ShortestDecimal(Number).replace(u'.', Numbers().decimalPoint());
}

QString Counted(qint64 Number, const char* One, const char* Many) {
    return tr(Number == 1 ? One : Many).arg(Grouped(Number));
}

QString ShortSize(qint64 Bytes) {
    const double Size = static_cast<double>(Bytes);
    if (Size < 1e3) return tr("%1 bytes").arg(Bytes);
    if (Size < 1e6) return QStringLiteral("%1 KB").arg(std::lround(Size / 1e3));
    if (Size < 1e9) return QStringLiteral("%1 MB").arg(std::lround(Size / 1e6));
    const double Tenths = std::round(Size / 1e8);
    return Decimal(Tenths / 10, std::fmod(Tenths, 10) == 0 ? 0 : 1) + QStringLiteral(" GB");
}

void WriteNumbersPlainly() {
    IsPlain = true;
}

}  // namespace neb
