// Looks at each character typed into a line of text before it is inserted, and may change or
// cancel it: straight quotes become typographic, number fields take digits alone. Used by the
// cell editor of FlexGrid and by the text fields of the windows.
#pragma once

#include <QLineEdit>
#include <QObject>
#include <cstdint>
#include <functional>

#include "support/modDEValidation.h"

class QInputMethodEvent;
class QKeyEvent;

namespace neb {

// KeyAscii is the Windows-1252 code of the key; the filter changes it, 0 cancels the key.
using KeyPressFilter = std::function<void(const EntryState& Field, std::int16_t& KeyAscii)>;

// Characters outside Windows-1252, shortcuts and pasted text pass unseen; what an input method
// commits is looked at like so many keys.
class KeyFilter : public QObject {
    Q_OBJECT
  public:
    KeyFilter(QLineEdit* Field, KeyPressFilter Filter);  // belongs to Field

  protected:
    bool eventFilter(QObject* Watched, QEvent* Event) override;

  private:
    bool FilterKey(const QKeyEvent& Key);
    bool TakeEmojiBack();
    QString Filtered(const QString& Typed) const;
    bool FilterCommit(const QInputMethodEvent& Event);
    QLineEdit* mField;
    KeyPressFilter mFilter;
};

}  // namespace neb
