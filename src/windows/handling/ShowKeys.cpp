#include "windows/handling/ShowKeys.h"

#include <QKeyEvent>
#include <algorithm>

namespace neb {
namespace {

using enum ShowCommand;

struct KeyRow {
    int Key;
    ShowCommand Command;
};

// Keys that count whatever is held down with them.
constexpr KeyRow WithAnything[] = {
    {Qt::Key_Up, Next},
    {Qt::Key_Down, Previous},
    {Qt::Key_W, Next},
    {Qt::Key_S, Previous},
    {Qt::Key_8, Next},
    {Qt::Key_2, Previous},
    {Qt::Key_P, PlayPause},
    {Qt::Key_R, StopRestart},
    {Qt::Key_Escape, Leave},
    {Qt::Key_Menu, Menu},
    {Qt::Key_MediaNext, Next},
    {Qt::Key_MediaPrevious, Previous},
    {Qt::Key_F1, Card},
    {Qt::Key_MediaPause, Pause},
    {Qt::Key_MediaPlay, PlayPause},
    {Qt::Key_MediaStop, Stop},
    {Qt::Key_MediaTogglePlayPause, PlayPause},
};

// Keys that have other meanings with Ctrl, Alt or Meta.
constexpr KeyRow Alone[] = {
    {Qt::Key_Right, Next},
    {Qt::Key_Left, Previous},
    {Qt::Key_PageDown, Next},
    {Qt::Key_PageUp, Previous},
    {Qt::Key_Return, Next},
    {Qt::Key_Enter, Next},
    {Qt::Key_Backspace, Previous},
    {Qt::Key_N, Next},
    {Qt::Key_Space, Space},
    {Qt::Key_Home, First},
    {Qt::Key_End, Last},
    {Qt::Key_G, Goto},
    {Qt::Key_B, Black},
    {Qt::Key_Period, Black},
    {Qt::Key_C, Captions},
};

// A place on the keyboard, as the kernel numbers it, and the key that stands there on the keyboards
// that the commands were named after.
struct PlaceRow {
    quint32 Place;
    int Key;
};

constexpr PlaceRow Places[] = {
    {3, Qt::Key_2},  {9, Qt::Key_8},  {17, Qt::Key_W},      {19, Qt::Key_R},
    {25, Qt::Key_P}, {31, Qt::Key_S}, {34, Qt::Key_G},      {46, Qt::Key_C},
    {48, Qt::Key_B}, {49, Qt::Key_N}, {52, Qt::Key_Period},
};
constexpr quint32 FirstScanCode = 8;  // X11 and Wayland number the places from here on

constexpr Qt::KeyboardModifiers OtherMeaning =
    Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

template <size_t Count>
ShowCommand Find(const KeyRow (&Rows)[Count], int Key) {
    const auto* Found = std::ranges::find(Rows, Key, &KeyRow::Key);
    return Found == std::end(Rows) ? None : Found->Command;
}

ShowCommand CommandOfKey(int Key, bool IsAlone) {
    const ShowCommand Command = Find(WithAnything, Key);
    return Command == None && IsAlone ? Find(Alone, Key) : Command;
}

int KeyAt(quint32 ScanCode) {
    const auto* Found = std::ranges::find(Places, ScanCode - FirstScanCode, &PlaceRow::Place);
    return Found == std::end(Places) ? 0 : Found->Key;
}

}  // namespace

ShowCommand CommandOf(const QKeyEvent& Event) {
    if (Event.key() == Qt::Key_F10 && Event.modifiers() & Qt::ShiftModifier) return Menu;
    const bool IsAlone = !(Event.modifiers() & OtherMeaning);
    const ShowCommand ByLetter = CommandOfKey(Event.key(), IsAlone);
    if (ByLetter != None || !IsAlone) return ByLetter;
    return CommandOfKey(KeyAt(Event.nativeScanCode()), IsAlone);
}

}  // namespace neb
