#include "show/captions/CaptionText.h"

namespace neb {

QString FixCaptionText(const QString& Text) {
    QString Fixed = Text;
    Fixed.replace(u'&', QStringLiteral("&&"));
    Fixed.remove(u'\n');
    Fixed.replace(u'\r', u' ');
    return Fixed;
}

QString ShownCaptionText(const QString& LabelText) {
    QString Shown;
    for (qsizetype I = 0; I < LabelText.size(); ++I) {
        if (LabelText[I] == u'&' && ++I == LabelText.size()) break;
        Shown += LabelText[I];
    }
    return Shown;
}

}  // namespace neb
