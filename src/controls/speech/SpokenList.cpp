#include "controls/speech/SpokenList.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QTreeView>

namespace neb {

QString AboutList(const QAbstractItemView& List) {
    const QString Described = List.accessibleDescription();
    return Described.isEmpty() ? List.toolTip() : Described;
}

void DescribeList(QObject* Receiver) {
    auto* List = qobject_cast<QAbstractItemView*>(Receiver);
    if (List && List->accessibleDescription().isEmpty())
        List->setAccessibleDescription(AboutList(*List));
}

void TellCurrent(QAbstractItemView& List) {
    const QModelIndex At = List.currentIndex();
    if (!QAccessible::isActive() || !List.hasFocus() || !At.isValid()) return;
    auto* Told = QAccessible::queryAccessibleInterface(&List);
    auto* Table = Told ? Told->tableInterface() : nullptr;
    auto* Cell = Table ? Table->cellAt(At.row(), At.column()) : nullptr;
    if (!Cell) return;
    QAccessibleEvent Event(Cell, QAccessible::Focus);
    QAccessible::updateAccessibility(&Event);
}

void TellCurrentOf(QObject* Receiver) {
    auto* List = qobject_cast<QAbstractItemView*>(Receiver);
    if (List && !qobject_cast<QTreeView*>(List))
        TellCurrent(*List);  // rows of trees have no number
}

}  // namespace neb
