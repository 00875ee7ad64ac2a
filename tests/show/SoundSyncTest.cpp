#include <gtest/gtest.h>

#include <cmath>

#include "show/SoundSteps.h"

namespace neb::test {
namespace {

// What a fitted track at this position is told, as "to 30, play".
std::string Told(std::int32_t Place, double Interval, bool Force, double Position, bool Playing,
                 bool Repeat = false) {
    std::string Line;
    for (const SoundAction& Each :
         SyncSoundToSlide(Place, Interval, Force, Repeat, {Playing, Position, 100, QString()})) {
        if (!Line.empty()) Line += ", ";
        if (const auto* Move = std::get_if<SoundDo::SetPosition>(&Each))
            Line += "to " + QString::number(Move->Seconds).toStdString();
        else if (const auto* Start = std::get_if<SoundDo::Play>(&Each))
            Line += Start->Repeat ? "play again and again" : "play";
        else
            Line += "?";
    }
    return Line;
}

struct SyncCase {
    std::int32_t Place;
    double Interval;
    bool Force;
    double Position;
    bool Playing;
    const char* Told;
};

const SyncCase Table[] = {
    {1, 10, false, 40, true, "to 0, play"},
    {1, 10, false, 0, true, "to 0, play"},
    {1, 10, true, 40, false, "to 0, play"},
    {0, 10, false, 40, true, "to 0, play"},
    {-3, 10, true, 40, true, "to 0, play"},
    {4, 10, true, 31, true, "to 30, play"},
    {4, 10, true, 30, true, "to 30, play"},
    {4, 10, true, 30, false, "to 30, play"},
    {2, 12.5, true, 0, false, "to 12.5, play"},
    {4, 10, false, 30, true, ""},
    {4, 10, false, 30, false, "play"},
    {4, 10, false, 28.5, true, ""},
    {4, 10, false, 28.5, false, "play"},
    {4, 10, false, 28.4999, true, "to 30, play"},
    {4, 10, false, 31.5, true, ""},
    {4, 10, false, 31.5, false, "play"},
    {4, 10, false, 31.5001, true, "to 30, play"},
    {4, 10, false, 31.5001, false, "to 30, play"},
    {4, 10, false, 0, true, "to 30, play"},
    {4, 10, false, 0, false, "to 30, play"},
    {4, 10, false, 99, true, "to 30, play"},
};

TEST(SoundSync, MovesAFittedTrackOnlyWhenItIsATwentiethOff) {
    for (const SyncCase& Row : Table)
        EXPECT_EQ(Told(Row.Place, Row.Interval, Row.Force, Row.Position, Row.Playing), Row.Told)
            << Row.Place << ' ' << Row.Force << ' ' << Row.Position << ' ' << Row.Playing;
}

TEST(SoundSync, TheSlackEndsAtTheNextNumberThatThereIs) {
    EXPECT_EQ(Told(4, 10, false, std::nextafter(28.5, 0), true), "to 30, play");
    EXPECT_EQ(Told(4, 10, false, std::nextafter(31.5, 99), true), "to 30, play");
}

TEST(SoundSync, PassesTheRepeatFlagOn) {
    EXPECT_EQ(Told(1, 10, false, 5, true, true), "to 0, play again and again");
    EXPECT_EQ(Told(4, 10, true, 5, true, true), "to 30, play again and again");
    EXPECT_EQ(Told(4, 10, false, 30, false, true), "play again and again");
}

}  // namespace
}  // namespace neb::test
