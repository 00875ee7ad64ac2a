#include "controls/fields/FieldCount.h"

#include <QEvent>
#include <QStyle>

namespace neb {
namespace {

constexpr int LeastShareOfText = 2;  // the text itself has this part of the field
constexpr int Gap = 6;               // pixels

}  // namespace

FieldCount::FieldCount(QLineEdit* Field) : QLabel(Field), mField(Field) {
    setTextFormat(Qt::PlainText);
    setForegroundRole(QPalette::PlaceholderText);
    setCursor(Qt::ArrowCursor);
    hide();
}

void FieldCount::Begin() {
    mField->installEventFilter(this);
    connect(mField, &QLineEdit::textChanged, this, &FieldCount::Tell);
    Tell();
}

// The field's own tip comes back.
void FieldCount::Tell() {
    const QString About = Words(mField->text());
    if (isHidden()) mFieldTip = mField->toolTip();
    mField->setToolTip(About.isEmpty() ? mFieldTip : About);
    mField->setAccessibleDescription(About);
    setToolTip(About);
    setVisible(!About.isEmpty());
    Place();
}

// At the end of the line, where the text of another script may begin.
void FieldCount::Place() {
    if (isHidden()) return mField->setTextMargins({});
    const QRect Room = mField->rect();
    for (const QString& Each : Counts(mField->text())) {
        setText(Each);
        if (sizeHint().width() < Room.width() / LeastShareOfText) break;
    }
    const bool Mirrored = mField->layoutDirection() == Qt::RightToLeft;
    const int Width = sizeHint().width() + 2 * Gap;
    mField->setTextMargins(Mirrored ? Width : 0, 0, Mirrored ? 0 : Width, 0);
    const Qt::Alignment End = QStyle::visualAlignment(mField->layoutDirection(), Qt::AlignRight);
    setGeometry(QStyle::alignedRect(Qt::LeftToRight, End | Qt::AlignVCenter, sizeHint(),
                                    Room.adjusted(Gap, 0, -Gap, 0)));
}

bool FieldCount::eventFilter(QObject* Watched, QEvent* Event) {
    if (Event->type() == QEvent::Resize || Event->type() == QEvent::LayoutDirectionChange) Place();
    return QLabel::eventFilter(Watched, Event);
}

}  // namespace neb
