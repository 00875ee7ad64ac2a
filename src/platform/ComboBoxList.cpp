#include "platform/ComboBoxList.h"

#include <QSignalBlocker>

namespace neb {

void ComboBoxList::Clear() {
    const QSignalBlocker Quiet(mBox);
    mBox.clear();
}

void ComboBoxList::AddItem(const QString& Text, std::int32_t ItemData) {
    InsertItem(ListCount(), Text, ItemData);
}

// The box chooses the first entry by itself when it comes into an empty list.
void ComboBoxList::InsertItem(int Index, const QString& Text, std::int32_t ItemData) {
    const QSignalBlocker Quiet(mBox);
    const bool NothingChosen = mBox.currentIndex() < 0;
    mBox.insertItem(Index, Text, ItemData);
    if (NothingChosen && mBox.currentIndex() >= 0) mBox.setCurrentIndex(-1);
}

// The box would choose a neighbour of an entry that goes.
void ComboBoxList::RemoveItem(int Index) {
    const QSignalBlocker Quiet(mBox);
    if (mBox.currentIndex() == Index) mBox.setCurrentIndex(-1);
    mBox.removeItem(Index);
}

std::int32_t ComboBoxList::ItemData(int Index) const {
    return mBox.itemData(Index).toInt();
}

}  // namespace neb
