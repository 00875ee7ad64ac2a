// A combo box on the screen as the album store and the utilities know it: entries with a text
// and a 32-bit key. Changes of the entries tell nobody; only a new choice does.
#pragma once

#include <QComboBox>

#include "support/modDEComboUFL.h"

namespace neb {

class ComboBoxList : public ComboList {
  public:
    explicit ComboBoxList(QComboBox& Box) : mBox(Box) {}

    void Clear() override;
    void AddItem(const QString& Text, std::int32_t ItemData) override;
    void InsertItem(int Index, const QString& Text, std::int32_t ItemData);  // 0 to ListCount
    void RemoveItem(int Index) override;  // the chosen one leaves nothing chosen
    int ListCount() const override { return mBox.count(); }
    QString List(int Index) const override { return mBox.itemText(Index); }
    std::int32_t ItemData(int Index) const override;  // 0 outside the list
    int ListIndex() const override { return mBox.currentIndex(); }
    void SetListIndex(int Index) override { mBox.setCurrentIndex(Index); }

  private:
    QComboBox& mBox;
};

// For a box whose choice takes the place of work in hand: a turn of the wheel, meant for what lies
// below, chooses nothing.
void ChooseNotByWheel(QComboBox& Box);

// Opens the list wide enough for the names, which may differ at their end alone, however narrow
// the box itself is; to be called when the entries are new.
void OpenAsWideAsNames(QComboBox& Box);

}  // namespace neb
