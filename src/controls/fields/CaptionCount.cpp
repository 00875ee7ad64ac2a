#include "controls/fields/CaptionCount.h"

#include <QEvent>
#include <QLocale>
#include <QStyle>

#include "support/modCharacters.h"
#include "support/modDEValidation.h"
#include "support/modText.h"

namespace neb {
namespace {

constexpr qsizetype NearlyAll = 70;    // bytes of those that a record has
constexpr qsizetype NearlyMost = 100;  // units below MaxCaption
constexpr int LeastShareOfText = 2;    // the caption itself has this part of the field
constexpr int Gap = 6;                 // pixels

QString Number(qsizetype Value) {
    return QLocale().toString(static_cast<qlonglong>(Value));
}

// From the most words to the fewest: a cell may be narrow.
QStringList WordsFor(const QString& Caption) {
    if (MaxCaption - Caption.size() <= NearlyMost)
        return {CaptionCount::tr("%1 of %2").arg(Number(Caption.size()), Number(MaxCaption))};
    const QString Count = Number(CountCharacters(Caption));
    const QString First = Number(CountCharacters(FitToRecord(Caption)));
    QStringList Words{CaptionCount::tr("%1 characters").arg(Count), Count};
    if (First != Count)
        Words.prepend(CaptionCount::tr("%1 characters, %2 in earlier versions").arg(Count, First));
    return Words;
}

}  // namespace

CaptionCount::CaptionCount(QLineEdit* Field)
    : QLabel(Field), mField(Field), mFieldTip(Field->toolTip()) {
    setObjectName(QStringLiteral("lblCaptionCount"));
    setTextFormat(Qt::PlainText);
    setForegroundRole(QPalette::PlaceholderText);
    setCursor(Qt::ArrowCursor);
    hide();
    Field->setMaxLength(MaxCaption);
    Field->installEventFilter(this);
    connect(Field, &QLineEdit::textChanged, this, &CaptionCount::Tell);
    Tell();
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

void CaptionCount::Tell() {
    const QString Words = About(mField->text());
    mField->setToolTip(Words.isEmpty() ? mFieldTip : Words);
    mField->setAccessibleDescription(Words);
    setToolTip(Words);
    setVisible(!Words.isEmpty());
    Place();
}

// At the end of the line, where the caption of another script may begin.
void CaptionCount::Place() {
    if (isHidden()) return mField->setTextMargins({});
    const QRect Room = mField->rect();
    for (const QString& Words : WordsFor(mField->text())) {
        setText(Words);
        if (sizeHint().width() < Room.width() / LeastShareOfText) break;
    }
    const bool Mirrored = mField->layoutDirection() == Qt::RightToLeft;
    const int Width = sizeHint().width() + 2 * Gap;
    mField->setTextMargins(Mirrored ? Width : 0, 0, Mirrored ? 0 : Width, 0);
    const Qt::Alignment End = QStyle::visualAlignment(mField->layoutDirection(), Qt::AlignRight);
    setGeometry(QStyle::alignedRect(Qt::LeftToRight, End | Qt::AlignVCenter, sizeHint(),
                                    Room.adjusted(Gap, 0, -Gap, 0)));
}

bool CaptionCount::eventFilter(QObject* Watched, QEvent* Event) {
    if (Event->type() == QEvent::Resize || Event->type() == QEvent::LayoutDirectionChange) Place();
    return QLabel::eventFilter(Watched, Event);
}

}  // namespace neb
