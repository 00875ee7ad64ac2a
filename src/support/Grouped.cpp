#include "support/Grouped.h"

#include <QLocale>
#include <cmath>

namespace neb {

// A machine without a language of its own would run the digits together.
QString Grouped(qint64 Number) {
    QLocale Words;
    Words.setNumberOptions(Words.numberOptions() & ~QLocale::OmitGroupSeparator);
    return Words.toString(Number);
}

QString ShortSize(qint64 Bytes) {
    const double Size = static_cast<double>(Bytes);
    if (Size < 1e3) return QStringLiteral("%1 bytes").arg(Bytes);
    if (Size < 1e6) return QStringLiteral("%1 KB").arg(std::lround(Size / 1e3));
    if (Size < 1e9) return QStringLiteral("%1 MB").arg(std::lround(Size / 1e6));
    const double Tenths = std::round(Size / 1e8);
    const QString Text = QString::number(Tenths / 10, 'f', std::fmod(Tenths, 10) == 0 ? 0 : 1);
    return Text + QStringLiteral(" GB");
}

}  // namespace neb
