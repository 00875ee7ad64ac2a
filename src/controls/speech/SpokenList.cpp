#include "controls/speech/SpokenList.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QTreeView>

namespace neb {
namespace {

void TellOf(QAbstractItemView& List, const QModelIndex& At, QAccessible::Event What) {
    auto* Told = QAccessible::queryAccessibleInterface(&List);
    auto* Table = Told ? Told->tableInterface() : nullptr;
    auto* Cell = Table ? Table->cellAt(At.row(), At.column()) : nullptr;
    if (!Cell) return;
    QAccessibleEvent Event(Cell, What);
    QAccessible::updateAccessibility(&Event);
}

bool IsHeardOf(const QAbstractItemView& List, const QModelIndex& At) {
    return At == List.currentIndex() || List.visualRect(At).intersects(List.viewport()->rect());
}

}  // namespace

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
    if (QAccessible::isActive() && List.hasFocus() && At.isValid())
        TellOf(List, At, QAccessible::Focus);
}

void TellChanges(QAbstractItemView& List) {
    const auto Tell = [&List](const QModelIndex& First, const QModelIndex& Last,
                              const QList<int>& Roles) {
        const bool IsPicture = Roles.size() == 1 && Roles[0] == Qt::DecorationRole;
        if (!QAccessible::isActive() || IsPicture) return;
        for (int Row = First.row(); Row <= Last.row(); ++Row)
            for (int Col = First.column(); Col <= Last.column(); ++Col)
                if (const QModelIndex At = First.sibling(Row, Col); IsHeardOf(List, At))
                    TellOf(List, At, QAccessible::NameChanged);
    };
    QObject::connect(List.model(), &QAbstractItemModel::dataChanged, &List, Tell);
}

void TellCurrentOf(QObject* Receiver) {
    auto* List = qobject_cast<QAbstractItemView*>(Receiver);
    if (List && !qobject_cast<QTreeView*>(List))
        TellCurrent(*List);  // rows of trees have no number
}

}  // namespace neb
