#include "controls/speech/SpokenRole.h"

#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

namespace neb {
namespace {

constexpr const char* Kept = "neb_spoken_role";

QAccessibleInterface* Spoken(const QString&, QObject* Object) {
    auto* Widget = qobject_cast<QWidget*>(Object);
    const QVariant Role = Widget ? Widget->property(Kept) : QVariant();
    if (!Role.isValid()) return nullptr;
    return new QAccessibleWidget(Widget, static_cast<QAccessible::Role>(Role.toInt()));
}

// A name that was set before has been told already, of whatever it was taken for.
void ForgetWhatWasTold(QWidget& Widget) {
    if (auto* Told = QAccessible::queryAccessibleInterface(&Widget))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(Told));
}

}  // namespace

void SpeakAs(QWidget& Widget, QAccessible::Role Role) {
    static const bool IsInstalled = (QAccessible::installFactory(&Spoken), true);
    Q_UNUSED(IsInstalled)
    Widget.setProperty(Kept, static_cast<int>(Role));
    ForgetWhatWasTold(Widget);
}

}  // namespace neb
