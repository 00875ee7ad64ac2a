#include "support/modDEComboUFL.h"

namespace neb {
namespace {

int FindByData(const ComboList& Combo, std::int32_t ItemData) {
    for (int I = 0; I < Combo.ListCount(); ++I)
        if (Combo.ItemData(I) == ItemData) return I;
    return -1;
}

}  // namespace

bool ComboRemoveByData(ComboList& Combo, std::int32_t ItemData) {
    const int Index = FindByData(Combo, ItemData);
    if (Index >= 0) Combo.RemoveItem(Index);
    return Index >= 0;
}

bool ComboSelectByData(ComboList& Combo, std::int32_t ItemData, int FallbackIndex) {
    const int Index = FindByData(Combo, ItemData);
    if (Index >= 0)
        Combo.SetListIndex(Index);
    else if (FallbackIndex > -2 && FallbackIndex < Combo.ListCount())
        Combo.SetListIndex(FallbackIndex);
    return Index >= 0;
}

void ComboAddItem(ComboList& Combo, const QString& Text, std::int32_t ItemData) {
    Combo.AddItem(Text, ItemData);
}

void MemoryComboList::Clear() {
    mEntries.clear();
    mListIndex = -1;
}

void MemoryComboList::AddItem(const QString& Text, std::int32_t ItemData) {
    mEntries.push_back({Text, ItemData});
}

void MemoryComboList::RemoveItem(int Index) {
    mEntries.erase(mEntries.begin() + Index);
    if (mListIndex == Index)
        mListIndex = -1;
    else if (mListIndex > Index)
        --mListIndex;
}

int MemoryComboList::ListCount() const {
    return static_cast<int>(mEntries.size());
}

QString MemoryComboList::List(int Index) const {
    return mEntries.at(static_cast<size_t>(Index)).Text;
}

std::int32_t MemoryComboList::ItemData(int Index) const {
    return mEntries.at(static_cast<size_t>(Index)).Data;
}

}  // namespace neb
