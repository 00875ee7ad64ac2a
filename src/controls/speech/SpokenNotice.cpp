#include "controls/speech/SpokenNotice.h"

#include <QStatusBar>

#include "controls/speech/SpokenRole.h"

namespace neb {

SpokenNotice::SpokenNotice(QStatusBar& Bar) : QWidget(&Bar) {
    SpeakAs(*this, QAccessible::Notification);
    setFixedSize(0, 0);
    hide();
    connect(&Bar, &QStatusBar::messageChanged, this, &QWidget::hide);
}

void SpokenNotice::Say(const QString& Text) {
    hide();  // the same words may come once more
    setAccessibleName(Text);
    show();
}

}  // namespace neb
