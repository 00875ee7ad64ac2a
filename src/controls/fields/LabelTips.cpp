#include "controls/fields/LabelTips.h"

#include <QHelpEvent>
#include <QLabel>
#include <QToolTip>

namespace neb {
namespace {

// Asked for when it is wanted: tips change with what stands in their field.
class TipOfBuddy : public QObject {
  public:
    using QObject::QObject;
    bool eventFilter(QObject* Watched, QEvent* Event) override {
        auto* Label = qobject_cast<QLabel*>(Watched);
        if (Event->type() != QEvent::ToolTip || !Label || !Label->buddy()) return false;
        if (!Label->toolTip().isEmpty()) return false;
        QToolTip::showText(static_cast<QHelpEvent*>(Event)->globalPos(), Label->buddy()->toolTip(),
                           Label);
        return true;
    }
};

}  // namespace

void GiveLabelsTips(QWidget& Of) {
    auto* Tips = new TipOfBuddy(&Of);
    for (QLabel* Each : Of.findChildren<QLabel*>())
        if (Each->buddy()) Each->installEventFilter(Tips);
}

}  // namespace neb
