#include "support/FlagText.h"

#include <QStringList>

namespace neb {

QString FlagText(bool On) {
    return On ? QStringLiteral("True") : QStringLiteral("False");
}

bool FlagValue(const QString& Text) {
    static const QStringList Yes = {
        QStringLiteral("TRUE"), QStringLiteral("T"),  QStringLiteral("1"), QStringLiteral("-1"),
        QStringLiteral("YES"),  QStringLiteral("ON"), QLatin1String("")};
    return Yes.contains(Text.toUpper());
}

bool IsChecked(const QString& Text) {
    return Text.compare(u"True", Qt::CaseInsensitive) == 0 || Text == u"-1" || Text == u"1";
}

}  // namespace neb
