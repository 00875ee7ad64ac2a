#include "windows/gallery/CaptionField.h"

#include <QKeyEvent>

#include "controls/fields/CaptionCount.h"
#include "controls/fields/KeyFilter.h"

namespace neb {

QLineEdit* NewCaptionField(QWidget* Parent) {
    auto* Field = new QLineEdit(Parent);
    Field->setObjectName(QStringLiteral("txtCaption"));
    Field->setAutoFillBackground(true);
    new CaptionCount(Field);
    new KeyFilter(Field, &FixQuoteKey);
    return Field;
}

CaptionKey CaptionKeyOf(const QEvent& Event) {
    if (Event.type() != QEvent::KeyPress) return CaptionKey::None;
    switch (static_cast<const QKeyEvent&>(Event).key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return CaptionKey::Store;
        case Qt::Key_Tab:
            return CaptionKey::StoreAndNext;
        case Qt::Key_Backtab:
            return CaptionKey::StoreAndPrevious;
        case Qt::Key_Escape:
            return CaptionKey::Leave;
        default:
            return CaptionKey::None;
    }
}

}  // namespace neb
