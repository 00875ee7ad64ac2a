#include "controls/forms/DefaultButton.h"

#include <QApplication>
#include <QPointer>
#include <QPushButton>

namespace neb {
namespace {

QPushButton* DefaultOf(const QDialog& Of) {
    for (QPushButton* Each : Of.findChildren<QPushButton*>())
        if (Each->isDefault()) return Each;
    return nullptr;
}

void MakeOnlyDefault(const QDialog& Of, const QPushButton* Chosen) {
    for (QPushButton* Each : Of.findChildren<QPushButton*>()) Each->setDefault(Each == Chosen);
}

}  // namespace

void KeepDefaultButton(QDialog& Of) {
    const QPointer<QPushButton> Default = DefaultOf(Of);
    QObject::connect(
        qApp, &QApplication::focusChanged, &Of, [&Of, Default](QWidget*, QWidget* Now) {
            if (Of.isWindow() || !Of.isAncestorOf(Now)) return;
            const auto* Button = qobject_cast<QPushButton*>(Now);
            MakeOnlyDefault(Of, Button && Button->autoDefault() ? Button : Default.data());
        });
}

}  // namespace neb
