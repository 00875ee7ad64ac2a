#include "support/work/TimeLeft.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

namespace neb {
namespace {

// Work of so many items on a made-up clock; Look is called after each of them.
template <class Cost, class Look>
void Work(int Items, Cost MsOfItem, Look Looks) {
    TimeLeft Left;
    double Now = 5000;
    Left.Note(0, Now);
    for (int I = 1; I <= Items; ++I) {
        Now += MsOfItem(I);
        Left.Note(double(I) / Items, Now);
        Looks(Left, Now - 5000);
    }
}

TEST(TimeLeft, SaysNothingInTheFirstSeconds) {
    Work(
        1000, [](int) { return 100; },
        [](const TimeLeft& Left, double Passed) {
            if (Passed >= 3000) return;
            EXPECT_FALSE(Left.Seconds()) << Passed;
            EXPECT_EQ("", Left.Text().toStdString()) << Passed;
        });
}

TEST(TimeLeft, OfAnEvenPaceIsRightFromItsFirstWord) {
    int Told = 0;
    Work(
        2000, [](int) { return 100; },
        [&](const TimeLeft& Left, double Passed) {
            if (!Left.Seconds()) return;
            ++Told;
            EXPECT_NEAR(200 - Passed / 1000, *Left.Seconds(), 2) << Passed;
        });
    EXPECT_GT(Told, 1900);
}

TEST(TimeLeft, GoesDownInCalmSteps) {
    QStringList Texts;
    Work(
        2000, [](int) { return 100; },
        [&](const TimeLeft& Left, double) {
            if (!Left.Text().isEmpty() && (Texts.isEmpty() || Texts.back() != Left.Text()))
                Texts << Left.Text();
        });
    EXPECT_EQ(
        "About 3 minutes left|About 2 minutes left|About a minute left|About 20 seconds left|"
        "A few seconds left",
        Texts.join(u'|').toStdString());
}

// Photographs are not alike: some take ten times as long as others.
TEST(TimeLeft, DoesNotJumpOrFlickerWhereItemsAreUneven) {
    std::mt19937 Random(7);
    std::lognormal_distribution<double> Cost(5, 1);
    std::vector<double> Left, At;
    int Changes = 0;
    QString Last;
    Work(
        2000, [&](int) { return Cost(Random); },
        [&](const TimeLeft& Told, double Passed) {
            if (!Told.Seconds()) return;
            At.push_back(Passed);
            Left.push_back(*Told.Seconds());
            Changes += std::exchange(Last, Told.Text()) != Told.Text() ? 1 : 0;
        });
    ASSERT_GT(Left.size(), 1000u);
    for (size_t I = 1; I < Left.size(); ++I) {
        const double Jump = std::abs(Left[I] - Left[I - 1]);
        const double Passed = (At[I] - At[I - 1]) / 1000;
        EXPECT_LE(Jump, 3 + Passed + Left[I - 1] * .15) << I;
    }
    EXPECT_LT(Changes, 25);
}

TEST(TimeLeft, FollowsAPaceThatHalves) {
    bool Looked = false;
    Work(
        1000, [](int I) { return I <= 500 ? 100 : 200; },
        [&](const TimeLeft& Left, double Passed) {
            const double Right = (150000 - Passed) / 1000;
            if (Passed < 100000) return;
            Looked = true;
            EXPECT_NEAR(Right, *Left.Seconds(), 4 + Right * .15) << Passed;
        });
    EXPECT_TRUE(Looked);
}

TEST(TimeLeft, BeginsAnewWithOtherWork) {
    TimeLeft Left;
    for (int I = 0; I <= 100; ++I) Left.Note(I / 1000.0, I * 100);
    ASSERT_TRUE(Left.Seconds());
    Left.Note(0, 11000);
    EXPECT_FALSE(Left.Seconds());
    EXPECT_EQ("", Left.Text().toStdString());
}

TEST(TimeLeft, DoesNotCountTheTimeOfAQuestion) {
    TimeLeft Left;
    for (int I = 0; I <= 100; ++I) Left.Note(I / 1000.0, I * 100);
    const double Before = *Left.Seconds();
    Left.Skip(600000);
    Left.Note(101 / 1000.0, 610100);
    Left.Note(105 / 1000.0, 610500);
    EXPECT_NEAR(Before - .5, *Left.Seconds(), 1);
}

TEST(TimeLeft, OfWorkThatStandsStillSaysNothing) {
    TimeLeft Left;
    for (int I = 0; I < 100; ++I) Left.Note(0, I * 1000);
    EXPECT_FALSE(Left.Seconds());
}

TEST(TimeLeft, TellsHoursInQuarters) {
    const struct {
        double Minutes;
        const char* Text;
    } Rows[] = {{12, "About 10 minutes left"},
                {59, "About an hour left"},
                {76, "About an hour and 15 minutes left"},
                {118, "About 2 hours left"},
                {152, "About 2 hours and 30 minutes left"}};
    for (const auto& Row : Rows) {
        TimeLeft Left;
        const double WholeMs = Row.Minutes * 60000 + 10000;
        for (int Ms = 0; Ms <= 10000; Ms += 500) Left.Note(Ms / WholeMs, Ms);
        EXPECT_EQ(Row.Text, Left.Text().toStdString()) << Row.Minutes;
    }
}

}  // namespace
}  // namespace neb
