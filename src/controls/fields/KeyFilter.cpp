#include "controls/fields/KeyFilter.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <optional>

#include "support/modCharacters.h"
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

bool IsPlainBackspace(const QKeyEvent& Key) {
    return Key.key() == Qt::Key_Backspace && Key.modifiers() == Qt::NoModifier;
}

std::optional<std::int16_t> CodeOf(const QString& Typed) {
    if (Typed.size() != 1 || !Typed[0].isPrint()) return std::nullopt;
    const QByteArray Bytes = ToAnsi(Typed);
    if (Bytes.size() != 1 || FromAnsi(Bytes) != Typed) return std::nullopt;
    return static_cast<unsigned char>(Bytes[0]);
}

std::optional<std::int16_t> CodeOf(const QKeyEvent& Key) {
    if (Key.key() == Qt::Key_Backspace) return Backspace;
    return CodeOf(Key.text());
}

QString CharacterOf(std::int16_t Code) {
    const char Byte = static_cast<char>(Code);
    return Code == 0 ? QString() : FromAnsi(&Byte, 1);
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
    const bool Types = Watched == mField && mFilter && !mField->isReadOnly();
    if (Types && Event->type() == QEvent::KeyPress &&
        FilterKey(static_cast<const QKeyEvent&>(*Event)))
        return true;
    if (Types && Event->type() == QEvent::InputMethod &&
        FilterCommit(static_cast<const QInputMethodEvent&>(*Event)))
        return true;
    return QObject::eventFilter(Watched, Event);
}

// True when the key is dealt with; false lets it go its ordinary way.
bool KeyFilter::FilterKey(const QKeyEvent& Key) {
    const auto Typed = CodeOf(Key);
    if (!Typed || IsShortcut(Key.modifiers())) return false;
    std::int16_t Code = *Typed;
    mFilter(StateOf(*mField), Code);
    if (Code == *Typed) return IsPlainBackspace(Key) && TakeEmojiBack();
    if (Code != 0) mField->insert(CharacterOf(Code));
    return true;
}

// A family or a flag goes as it came, and leaves no part of itself.
bool KeyFilter::TakeEmojiBack() {
    const int Caret = mField->cursorPosition();
    const auto Size = static_cast<int>(EmojiAtEnd(mField->text().left(Caret)));
    if (Size == 0 || mField->hasSelectedText()) return false;
    mField->setSelection(Caret - Size, Size);
    mField->del();
    return true;
}

// What is typed by way of an input method or a dead key comes as a whole.
QString KeyFilter::Filtered(const QString& Typed) const {
    EntryState State = StateOf(*mField);
    State.Text.truncate(State.SelStart);
    QString Passed;
    for (const QChar Unit : Typed) {
        QString Character(Unit);
        if (const auto Code = CodeOf(Character)) {
            std::int16_t Now = *Code;
            mFilter({State.Text + Passed, State.SelStart + static_cast<int>(Passed.size())}, Now);
            Character = CharacterOf(Now);
        }
        Passed += Character;
    }
    return Passed;
}

// True when the words have been inserted as the filter wants them. What is still being composed is
// the input method's own.
bool KeyFilter::FilterCommit(const QInputMethodEvent& Event) {
    const QString Passed = Filtered(Event.commitString());
    if (Passed == Event.commitString()) return false;
    QInputMethodEvent Instead(Event.preeditString(), Event.attributes());
    Instead.setCommitString(Passed, Event.replacementStart(), Event.replacementLength());
    QCoreApplication::sendEvent(mField, &Instead);
    return true;
}

}  // namespace neb
