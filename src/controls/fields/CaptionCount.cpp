#include "controls/fields/CaptionCount.h"

#include <QLocale>

#include "support/modCharacters.h"
#include "support/modDEValidation.h"
#include "support/modText.h"

namespace neb {
namespace {

constexpr qsizetype NearlyAll = 70;    // bytes of those that a record has
constexpr qsizetype NearlyMost = 100;  // units below MaxCaption

QString Number(qsizetype Value) {
    return QLocale().toString(static_cast<qlonglong>(Value));
}

}  // namespace

CaptionCount::CaptionCount(QLineEdit* Field) : FieldCount(Field) {
    setObjectName(QStringLiteral("lblCaptionCount"));
    Field->setMaxLength(MaxCaption);
    Begin();
}

QStringList CaptionCount::Counts(const QString& Caption) const {
    if (MaxCaption - Caption.size() <= NearlyMost)
        return {tr("%1 of %2").arg(Number(Caption.size()), Number(MaxCaption))};
    const QString Count = Number(CountCharacters(Caption));
    const QString First = Number(CountCharacters(FitToRecord(Caption)));
    QStringList Words{tr("%1 characters").arg(Count), Count};
    if (First != Count)
        Words.prepend(tr("%1 characters, %2 in earlier versions").arg(Count, First));
    return Words;
}

QString CaptionCount::About(const QString& Caption) {
    const QString Fitting = FitToRecord(Caption);  // of a long one, all of it is slow to turn
    if (Fitting == Caption && ToAnsi(Caption).size() < NearlyAll) return {};
    const qsizetype Count = CountCharacters(Caption);
    const qsizetype First = CountCharacters(Fitting);
    if (First == Count)
        return tr("%1 characters. Longer captions are kept whole, but earlier versions of this "
                  "program show only their first %2 letters.")
            .arg(Number(Count), Number(RecordTextBytes));
    return tr("%1 characters, kept whole. Earlier versions of this program show only the first %2.")
        .arg(Number(Count), Number(First));
}

}  // namespace neb
