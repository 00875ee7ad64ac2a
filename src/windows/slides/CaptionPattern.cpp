#include "windows/slides/CaptionPattern.h"

#include <QRegularExpression>

#include "support/modCharacters.h"
#include "support/modDEValidation.h"

namespace neb {

// The caption of now comes last: a # in it is a letter of its own.
QString CaptionPattern::CaptionFor(const QString& Present, int Index) const {
    static const QRegularExpression Number(QStringLiteral("#+"));
    const QString Now = QString::fromUtf16(CaptionNow);
    QString Made;
    qsizetype Rest = 0;
    for (auto Each = Number.globalMatch(Text); Each.hasNext();) {
        const QRegularExpressionMatch Found = Each.next();
        Made += QStringView(Text).mid(Rest, Found.capturedStart() - Rest);
        Made += QString::number(First + Index).rightJustified(Found.capturedLength(), u'0');
        Rest = Found.capturedEnd();
    }
    Made += QStringView(Text).mid(Rest);
    return FirstUnits(Made.replace(Now, Present, Qt::CaseInsensitive).trimmed(), MaxCaption);
}

QStringList CaptionPattern::CaptionsFor(const QStringList& Present) const {
    QStringList Captions;
    for (const QString& Each : Present)
        Captions << CaptionFor(Each, static_cast<int>(Captions.size()));
    return Captions;
}

}  // namespace neb
