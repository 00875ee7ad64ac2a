// Which command a key is, by its letter and by its place.
#include "windows/handling/ShowKeys.h"

#include <gtest/gtest.h>

#include <QKeyEvent>

namespace neb {
namespace {

using enum ShowCommand;

// Place: as the kernel numbers the keys; 0: told by nobody.
ShowCommand CommandAt(int Key, Qt::KeyboardModifiers With, quint32 Place = 0) {
    const quint32 ScanCode = Place ? Place + 8 : 0;
    return CommandOf(QKeyEvent(QEvent::KeyPress, Key, With, ScanCode, 0, 0));
}

TEST(ShowKeys, AreKnownByTheirLetters) {
    const std::pair<ShowCommand, std::vector<int>> Keys[] = {
        {Next,
         {Qt::Key_Up, Qt::Key_W, Qt::Key_8, Qt::Key_Right, Qt::Key_PageDown, Qt::Key_Return,
          Qt::Key_Enter, Qt::Key_N, Qt::Key_MediaNext}},
        {Previous,
         {Qt::Key_Down, Qt::Key_S, Qt::Key_2, Qt::Key_Left, Qt::Key_PageUp, Qt::Key_Backspace,
          Qt::Key_MediaPrevious}},
        {First, {Qt::Key_Home}},
        {Last, {Qt::Key_End}},
        {Space, {Qt::Key_Space}},
        {PlayPause, {Qt::Key_P, Qt::Key_MediaPlay, Qt::Key_MediaTogglePlayPause}},
        {Pause, {Qt::Key_MediaPause}},
        {StopRestart, {Qt::Key_R}},
        {Stop, {Qt::Key_MediaStop}},
        {Goto, {Qt::Key_G}},
        {Black, {Qt::Key_B, Qt::Key_Period}},
        {Captions, {Qt::Key_C}},
        {Card, {Qt::Key_F1}},
        {Menu, {Qt::Key_Menu}},
        {Leave, {Qt::Key_Escape}},
        {None, {Qt::Key_4, Qt::Key_Tab, Qt::Key_Q, Qt::Key_F10, Qt::Key_Shift, Qt::Key_F5}},
    };
    for (const auto& [Command, Of] : Keys)
        for (const int Key : Of) EXPECT_EQ(Command, CommandAt(Key, {})) << std::hex << Key;
    EXPECT_EQ(Menu, CommandAt(Qt::Key_F10, Qt::ShiftModifier));
}

TEST(ShowKeys, StandWhereTheyStandOnAnyAlphabet) {
    const struct {
        quint32 Place;
        int Cyrillic, Greek;
        ShowCommand Command;
    } Rows[] = {
        {17, 0x426, 0x3C2, Next},      {31, 0x42B, 0x3A3, Previous},
        {25, 0x417, 0x3A0, PlayPause}, {19, 0x41A, 0x3A1, StopRestart},
        {49, 0x422, 0x39D, Next},      {34, 0x41F, 0x393, Goto},
        {48, 0x418, 0x392, Black},     {46, 0x421, 0x3A8, Captions},
        {52, 0x42E, 0x2E, Black},
    };
    for (const auto& Row : Rows) {
        EXPECT_EQ(Row.Command, CommandAt(Row.Cyrillic, {}, Row.Place)) << Row.Place;
        EXPECT_EQ(Row.Command, CommandAt(Row.Greek, {}, Row.Place)) << Row.Place;
        EXPECT_EQ(Row.Command, CommandAt(Row.Cyrillic, Qt::ShiftModifier, Row.Place));
        EXPECT_EQ(None, CommandAt(Row.Cyrillic, {})) << "without its place";
    }
    EXPECT_EQ(None, CommandAt(0x419, {}, 16)) << "a place that has no meaning";
}

TEST(ShowKeys, CountByTheLetterWhereLetterAndPlaceDiffer) {
    EXPECT_EQ(Next, CommandAt(Qt::Key_W, {}, 44)) << "AZERTY: W where Z is elsewhere";
    EXPECT_EQ(Next, CommandAt(Qt::Key_Z, {}, 17)) << "and Z where W is";
    EXPECT_EQ(Next, CommandAt(Qt::Key_Underscore, {}, 9));
    EXPECT_EQ(Previous, CommandAt(Qt::Key_Eacute, {}, 3));
    EXPECT_EQ(Next, CommandAt(Qt::Key_8, Qt::ShiftModifier, 9));
    EXPECT_EQ(Black, CommandAt(Qt::Key_B, {}, 49)) << "Dvorak: B where N is elsewhere";
    EXPECT_EQ(PlayPause, CommandAt(Qt::Key_P, {}, 19)) << "Colemak: P where R is elsewhere";
}

TEST(ShowKeys, HaveOtherMeaningsWithCtrlAltAndMeta) {
    for (const auto With : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
        for (const int Key : {Qt::Key_C, Qt::Key_B, Qt::Key_G, Qt::Key_N, Qt::Key_Home,
                              Qt::Key_Left, Qt::Key_Space})
            EXPECT_EQ(None, CommandAt(Key, With)) << Key;
        EXPECT_EQ(None, CommandAt(0x426, With, 17)) << "nor do they count by place";
        EXPECT_EQ(Next, CommandAt(Qt::Key_W, With)) << "as ever";
    }
}

}  // namespace
}  // namespace neb
