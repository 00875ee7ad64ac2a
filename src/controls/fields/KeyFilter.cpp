#include "controls/fields/KeyFilter.h"

#include <QKeyEvent>
#include <optional>

#include "support/modText.h"

namespace neb {
namespace {

constexpr std::int16_t Backspace = 8;

// Ctrl and Alt together are how some keyboards say AltGr, which types characters.
bool IsShortcut(Qt::KeyboardModifiers Modifiers) {
    const bool Ctrl = Modifiers & Qt::ControlModifier;
    const bool Alt = Modifiers & Qt::AltModifier;
    return Ctrl != Alt || Modifiers & Qt::MetaModifier;
}

std::optional<std::int16_t> CodeOf(const QKeyEvent& Key) {
    if (Key.key() == Qt::Key_Backspace) return Backspace;
    if (Key.text().size() != 1 || !Key.text()[0].isPrint()) return std::nullopt;
    const QByteArray Bytes = ToAnsi(Key.text());
    if (Bytes.size() != 1 || FromAnsi(Bytes) != Key.text()) return std::nullopt;
    return static_cast<unsigned char>(Bytes[0]);
}

EntryState StateOf(const QLineEdit& Field) {
    return {Field.text(),
            Field.hasSelectedText() ? Field.selectionStart() : Field.cursorPosition()};
}

}  // namespace

KeyFilter::KeyFilter(QLineEdit* Field, KeyPressFilter Filter)
    : QObject(Field), mField(Field), mFilter(std::move(Filter)) {
    Field->installEventFilter(this);
}

bool KeyFilter::eventFilter(QObject* Watched, QEvent* Event) {
    if (Watched == mField && Event->type() == QEvent::KeyPress && !mField->isReadOnly() &&
        FilterKey(static_cast<const QKeyEvent&>(*Event)))
        return true;
    return QObject::eventFilter(Watched, Event);
}

// True when the key is dealt with; false lets it go its ordinary way.
bool KeyFilter::FilterKey(const QKeyEvent& Key) {
    const auto Typed = CodeOf(Key);
    if (!Typed || !mFilter || IsShortcut(Key.modifiers())) return false;
    std::int16_t Code = *Typed;
    mFilter(StateOf(*mField), Code);
    if (Code == *Typed) return false;
    if (Code == 0) return true;
    const char Byte = static_cast<char>(Code);
    mField->insert(FromAnsi(&Byte, 1));
    return true;
}

}  // namespace neb
