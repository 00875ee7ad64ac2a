#include "controls/fields/WheelGuard.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QScrollBar>

namespace neb {
namespace {

bool IsChoice(const QWidget& Control) {
    if (qobject_cast<const QScrollBar*>(&Control)) return false;
    return qobject_cast<const QComboBox*>(&Control) ||
           qobject_cast<const QAbstractSpinBox*>(&Control) ||
           qobject_cast<const QAbstractSlider*>(&Control);
}

// What is ignored goes on to what lies around.
class WheelGuard : public QObject {
  public:
    using QObject::QObject;
    bool eventFilter(QObject* Control, QEvent* Event) override {
        if (Event->type() != QEvent::Wheel || static_cast<QWidget*>(Control)->hasFocus())
            return false;
        Event->ignore();
        return true;
    }
};

}  // namespace

void KeepChoicesFromWheel(QWidget& Window) {
    auto* Guard = new WheelGuard(&Window);
    for (QWidget* Each : Window.findChildren<QWidget*>()) {
        if (!IsChoice(*Each)) continue;
        if (Each->focusPolicy() == Qt::WheelFocus) Each->setFocusPolicy(Qt::StrongFocus);
        Each->installEventFilter(Guard);
    }
}

}  // namespace neb
