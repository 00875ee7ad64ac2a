#include "controls/speech/SpokenComboBox.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QLineEdit>

namespace neb {
namespace {

// The text cannot be typed in: whoever is told of it reads it as a whole.
class SpokenComboBox : public QAccessibleWidget, public QAccessibleTextInterface {
  public:
    explicit SpokenComboBox(QComboBox* Box)
        : QAccessibleWidget(Box, QAccessible::ComboBox), mBox(*Box) {}

    QString text(QAccessible::Text Of) const override {
        return Of == QAccessible::Value ? mBox.currentText() : QAccessibleWidget::text(Of);
    }
    QAccessible::State state() const override {
        QAccessible::State Is = QAccessibleWidget::state();
        Is.expandable = true;
        Is.expanded = Is.collapsed = false;
        (mBox.view()->isVisible() ? Is.expanded : Is.collapsed) = true;
        Is.editable = mBox.isEditable();
        return Is;
    }
    int childCount() const override { return mBox.isEditable() ? 2 : 1; }
    QAccessibleInterface* child(int Index) const override {
        if (Index == 0) return QAccessible::queryAccessibleInterface(mBox.view());
        return Index == 1 && mBox.isEditable()
                   ? QAccessible::queryAccessibleInterface(mBox.lineEdit())
                   : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* Child) const override {
        if (Child->object() == mBox.view()) return 0;
        return mBox.isEditable() && Child->object() == mBox.lineEdit() ? 1 : -1;
    }
    QStringList actionNames() const override { return {pressAction(), showMenuAction()}; }
    void doAction(const QString&) override {
        mBox.view()->isVisible() ? mBox.hidePopup() : mBox.showPopup();
    }
    void* interface_cast(QAccessible::InterfaceType Type) override {
        if (Type == QAccessible::TextInterface && !mBox.isEditable())
            return static_cast<QAccessibleTextInterface*>(this);
        return QAccessibleWidget::interface_cast(Type);
    }

    QString text(int From, int To) const override {
        return mBox.currentText().mid(From, To < 0 ? -1 : To - From);
    }
    int characterCount() const override { return static_cast<int>(mBox.currentText().size()); }
    int cursorPosition() const override { return 0; }
    QString attributes(int, int* From, int* To) const override {
        *From = 0;
        *To = characterCount();
        return {};
    }
    QRect characterRect(int) const override { return rect(); }
    int offsetAtPoint(const QPoint&) const override { return 0; }
    void selection(int, int* From, int* To) const override { *From = *To = 0; }
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    void setCursorPosition(int) override {}
    void scrollToSubstring(int, int) override {}

  private:
    QComboBox& mBox;
};

QAccessibleInterface* SpokenBox(const QString&, QObject* Object) {
    auto* Box = qobject_cast<QComboBox*>(Object);
    return Box ? new SpokenComboBox(Box) : nullptr;
}

}  // namespace

void NameComboBoxes() {
    QAccessible::installFactory(&SpokenBox);
}

}  // namespace neb
