// What every transition promises at sizes from one pixel to a large screen, on one thread and on
// several.
#include <gtest/gtest.h>

#include <thread>

#include "effects/EachNumber.h"
#include "effects/Pictures.h"
#include "effects/Transition.h"

using namespace neb;
using namespace neb::effectstest;

namespace neb::effectstest {
INSTANTIATE_TEST_SUITE_P(Catalogue, EachNumber, testing::ValuesIn(KnownNumbers()), NumberAndName);
}

namespace {

const QSize kSizes[] = {{1, 1}, {1, 720}, {1280, 1}, {2, 3}, {3, 1}, {31, 801}, {641, 359}};
const QSize kLarge(3840, 2160);
constexpr int kGroups = 16;

struct Scenes {
    explicit Scenes(QSize Size) : Old(Scene(Size, 1)), New(Scene(Size, 2)) {}
    QImage Old, New;
};

void ExpectBothEnds(const Transition& T, const Scenes& S, QImage& Out) {
    T.Draw(0, Out);
    EXPECT_EQ(Out, S.Old) << T.Number() << " at " << Out.width() << "x" << Out.height();
    T.Draw(1, Out);
    EXPECT_EQ(Out, S.New) << T.Number() << " at " << Out.width() << "x" << Out.height();
}

// Draws the frame in so many bands, each by a thread of its own.
void DrawOnThreads(const Transition& T, double Progress, QImage& Out, int Threads) {
    Out.bits();
    const int Height = Out.height();
    std::vector<std::thread> Crew;
    for (int I = 0; I < Threads; ++I)
        Crew.emplace_back([&, I] {
            T.DrawRows(Progress, Out, Height * I / Threads, Height * (I + 1) / Threads);
        });
    for (std::thread& Each : Crew) Each.join();
}

// Over different grounds, so that a pixel left out shows as well.
void ExpectSameOnThreads(const Transition& T, double Progress, QSize Size, int Threads) {
    QImage One = Plain(Size, 0xFF123456u), Many = Plain(Size, 0xFFEDCBA9u);
    T.Draw(Progress, One);
    DrawOnThreads(T, Progress, Many, Threads);
    EXPECT_EQ(One, Many) << T.Number() << " at " << Progress << ", " << Size.width() << "x"
                         << Size.height();
}

// Each sixteenth effect, so that the tests of a large screen may run side by side.
class LargeScreen : public testing::TestWithParam<int> {};

}  // namespace

TEST_P(EachNumber, HoldsItsEndsToTheBitAtEverySize) {
    for (const QSize Size : kSizes) {
        const Scenes S(Size);
        QImage Out(Size, QImage::Format_RGB32);
        ExpectBothEnds(Transition(GetParam(), S.Old, S.New), S, Out);
    }
}

TEST_P(EachNumber, DrawsTheSameBitsOnSeveralThreadsAsOnOne) {
    for (const QSize Size : {QSize(641, 359), QSize(1280, 1), QSize(1, 720), QSize(31, 801)}) {
        const Scenes S(Size);
        const Transition T(GetParam(), S.Old, S.New);
        for (const double Progress : {0.03, 0.41, 0.77}) ExpectSameOnThreads(T, Progress, Size, 3);
    }
}

TEST_P(EachNumber, AWipeNeverTakesBackAtAnySize) {
    if (!effects::FindRecipe(GetParam())->KeepsWhatItShowed) return;
    for (const QSize Size : {QSize(1, 720), QSize(1280, 1), QSize(321, 181)}) {
        const Transition T(GetParam(), Plain(Size, 0xFF000000u), Plain(Size, 0xFFFFFFFFu));
        QImage Before = Plain(Size, 0xFF000000u), Now(Size, QImage::Format_RGB32);
        for (int Step = 1; Step <= 60; ++Step) {
            T.Draw(Step / 60.0, Now);
            bool Kept = true;
            for (int Y = 0; Y < Size.height(); ++Y) {
                const uchar* A = Before.constScanLine(Y);
                const uchar* B = Now.constScanLine(Y);
                for (int X = 0; X < 4 * Size.width(); ++X) Kept &= B[X] >= A[X];
            }
            ASSERT_TRUE(Kept) << "step " << Step << ", " << Size.width() << "x" << Size.height();
            std::swap(Before, Now);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Group, LargeScreen, testing::Range(0, kGroups));

TEST_P(LargeScreen, HoldsItsEndsAndDrawsTheSameBitsOnSeveralThreads) {
    const Scenes S(kLarge);
    QImage Out(kLarge, QImage::Format_RGB32);
    for (const int Number : KnownNumbers()) {
        if (Number % kGroups != GetParam()) continue;
        const Transition T(Number, S.Old, S.New);
        ExpectBothEnds(T, S, Out);
        ExpectSameOnThreads(T, 0.37, kLarge, 2);
    }
}
