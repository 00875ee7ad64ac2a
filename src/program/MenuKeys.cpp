#include "program/MenuKeys.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <algorithm>

namespace neb {
namespace {

// What the field itself is to have, whatever the menu offers by the same key.
bool AreForText(const QKeyEvent& Keys) {
    constexpr QKeySequence::StandardKey Editing[] = {QKeySequence::Undo,  QKeySequence::Redo,
                                                     QKeySequence::Cut,   QKeySequence::Copy,
                                                     QKeySequence::Paste, QKeySequence::SelectAll};
    return std::any_of(std::begin(Editing), std::end(Editing), [&](QKeySequence::StandardKey Each) {
        return const_cast<QKeyEvent&>(Keys).matches(Each);
    });
}

}  // namespace

MenuKeys::MenuKeys(QMainWindow& Main) : QObject(&Main), mMain(Main) {
    QApplication::instance()->installEventFilter(this);
}

// The field is passed over; the window that it is in may still want the keys for something else.
bool MenuKeys::eventFilter(QObject* Watched, QEvent* Event) {
    if (Event->type() != QEvent::ShortcutOverride) return false;
    const auto* Field = qobject_cast<const QWidget*>(Watched);
    const bool TakesText = Field && Field->testAttribute(Qt::WA_InputMethodEnabled);
    if (!TakesText || Field->window() != &mMain) return false;
    const auto& Keys = static_cast<const QKeyEvent&>(*Event);
    if (AreForText(Keys) || !AreOfMenu(Keys)) return false;
    Event->ignore();
    return true;
}

bool MenuKeys::AreOfMenu(const QKeyEvent& Keys) const {
    const QKeySequence Pressed(Keys.keyCombination());
    const auto Actions = mMain.findChildren<QAction*>(Qt::FindDirectChildrenOnly);
    return std::any_of(Actions.begin(), Actions.end(), [&](const QAction* Each) {
        return Each->isEnabled() && Each->shortcuts().contains(Pressed);
    });
}

}  // namespace neb
