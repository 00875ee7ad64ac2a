// The level at which a recording is taken.
#include "sound/RecordingLevel.h"

#include <gtest/gtest.h>

namespace neb {
namespace {

QByteArray At(int Volume, QByteArray Samples) {
    RecordingLevel Level;
    Level.Begin(Volume);
    Level.Apply(Samples, 0);
    return Samples.toHex();
}

TEST(RecordingLevel, IsAQuarterOfADecibelAStepAround50) {
    EXPECT_EQ(RecordingLevel::GainOf(50), 1);
    EXPECT_NEAR(RecordingLevel::GainOf(51), 1.0292, 0.0001);
    EXPECT_NEAR(RecordingLevel::GainOf(100), 4.2170, 0.0001);
    EXPECT_NEAR(RecordingLevel::GainOf(1), 0.2441, 0.0001);
}

TEST(RecordingLevel, LeavesEverySampleAsItComesAt50) {
    QByteArray All;
    for (int I = 0; I < 256; ++I) All.append(static_cast<char>(I));
    EXPECT_EQ(At(50, All), All.toHex());
}

TEST(RecordingLevel, CutsWhatWouldGrowBeyondFull) {
    EXPECT_EQ(At(100, QByteArray("\x00\x40\x61\x80\x9d\xc0\xff", 7)), "00000080faffff");
    EXPECT_EQ(At(1, QByteArray("\x00\x80\xff", 3)), "61809f");
}

TEST(RecordingLevel, AppliesToAnyPieceWhatWasSetForIt) {
    RecordingLevel Level;
    Level.Begin(74);
    Level.ChangeAt(2, 26);
    Level.ChangeAt(4, 50);
    QByteArray Piece(4, '\x90');
    Level.Apply(Piece, 1);
    EXPECT_EQ(Piece.toHex(), "a0888890");
}

}  // namespace
}  // namespace neb
