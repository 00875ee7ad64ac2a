#include "controls/fields/NumberKeys.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <cmath>

#include "support/Grouped.h"
#include "support/modNumbers.h"

namespace neb {
namespace {

class Filter : public QObject {
  public:
    Filter(QLineEdit& Field, double Step, double Least)
        : QObject(&Field), mField(Field), mStep(Step), mLeast(Least) {}

    bool eventFilter(QObject*, QEvent* Event) override {
        if (Event->type() != QEvent::KeyPress) return false;
        const auto& Key = *static_cast<QKeyEvent*>(Event);
        const bool Up = Key.key() == Qt::Key_Up;
        if ((!Up && Key.key() != Qt::Key_Down) || Key.modifiers() & ~Qt::KeypadModifier)
            return false;
        const double Steps = Val(mField.text().replace(u',', u'.')) / mStep;
        const double Next = Up ? std::floor(Steps) + 1 : std::ceil(Steps) - 1;
        mField.setText(Decimal(std::max(Next * mStep, mLeast)));
        mField.selectAll();
        return true;
    }

  private:
    QLineEdit& mField;
    const double mStep, mLeast;
};

}  // namespace

void StepByKeys(QLineEdit& Field, double Step, double Least) {
    Field.installEventFilter(new Filter(Field, Step, Least));
}

}  // namespace neb
