// Lists of entries with a text and a 32-bit key: what the album store fills and the windows show
// as combo boxes. The store knows only this interface.
#pragma once

#include <QString>
#include <cstdint>
#include <vector>

namespace neb {

class ComboList {
  public:
    virtual ~ComboList() = default;
    virtual void Clear() = 0;
    virtual void AddItem(const QString& Text, std::int32_t ItemData) = 0;
    virtual void RemoveItem(int Index) = 0;  // 0 to ListCount-1
    virtual int ListCount() const = 0;
    virtual QString List(int Index) const = 0;
    virtual std::int32_t ItemData(int Index) const = 0;
    virtual int ListIndex() const = 0;  // -1 when nothing is selected
    virtual void SetListIndex(int Index) = 0;
};

// Removes the first entry with this key; false when there is none.
bool ComboRemoveByData(ComboList& Combo, std::int32_t ItemData);
// Selects the first entry with this key. When there is none the answer is false, and a
// FallbackIndex from -1 up to the last entry is selected; -2 leaves the selection alone.
bool ComboSelectByData(ComboList& Combo, std::int32_t ItemData, int FallbackIndex);
void ComboAddItem(ComboList& Combo, const QString& Text, std::int32_t ItemData);

// A list without a window: for the command line and for tests.
class MemoryComboList : public ComboList {
  public:
    void Clear() override;
    void AddItem(const QString& Text, std::int32_t ItemData) override;
    void RemoveItem(int Index) override;
    int ListCount() const override;
    QString List(int Index) const override;
    std::int32_t ItemData(int Index) const override;
    int ListIndex() const override { return mListIndex; }
    void SetListIndex(int Index) override { mListIndex = Index; }

  private:
    struct Entry {
        QString Text;
        std::int32_t Data;
    };
    std::vector<Entry> mEntries;
    int mListIndex = -1;
};

}  // namespace neb
