#include "controls/fields/ComboBoxList.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QScreen>
#include <QSignalBlocker>
#include <QStyle>

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

void ChooseNotByWheel(QComboBox& Box) {
    class Filter : public QObject {
      public:
        using QObject::QObject;
        bool eventFilter(QObject*, QEvent* Event) override {
            if (Event->type() != QEvent::Wheel) return false;
            Event->ignore();
            return true;
        }
    };
    Box.installEventFilter(new Filter(&Box));
}

// Not every style opens a list wider than its box by itself.
void OpenAsWideAsNames(QComboBox& Box) {
    int Widest = 0;
    for (int Item = 0; Item < Box.count(); ++Item)
        Widest = std::max(Widest, Box.fontMetrics().horizontalAdvance(Box.itemText(Item)));
    const int Margins = 2 * Box.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr);
    const int Room = Box.screen()->availableSize().width() * 2 / 3;
    Box.view()->setMinimumWidth(std::min(Widest + Margins, Room));
}

}  // namespace neb
