// A whole session ends by a kill or a loss of power at every single step of what it does to the
// disk, and so do the starts that follow: whatever was accepted is there in the end, every record
// has its picture, and nothing is left over.
#include "CutSession.h"
#include "harness/DiskKiller.h"

namespace neb::harness {
namespace {

constexpr int MostSteps = 2000;

void CutAtEachStep(const CutSession& Session, Kill How, int Stride) {
    int Number = 1;
    for (bool Through = false; !Through; Number += Stride) {
        MemoryFolder Dir;
        const Progress Told;
        Through = RunsThrough(Number, How, Dir.Path(), [&] { Session.Run(Dir.Path(), Told); });
        Session.ExpectAll(Dir.Path(), Told, How == Kill::PowerLoss,
                          "cut at step " + std::to_string(Number));
        ASSERT_FALSE(::testing::Test::HasFailure());
        ASSERT_LT(Number, MostSteps);
    }
    EXPECT_GT(Number, CutSession::Count());
}

TEST(SessionCrash, AKillAtAnyStepLosesNothing) {
    CutAtEachStep(CutSession(), Kill::BeforeStep, 1);
}

TEST(SessionCrash, AKillInTheMidstOfAnyWriteLosesNothing) {
    CutAtEachStep(CutSession(), Kill::InsideWrite, 1);
}

TEST(SessionCrash, ALossOfPowerAtAnyStepLosesNothing) {
    CutAtEachStep(CutSession(), Kill::PowerLoss, 1);
}

// The session is cut at step First, the start behind it at some of its own steps, others for each
// First, and once more a step later.
bool CutTheStarts(const CutSession& Session, int First, Kill How) {
    constexpr int Stride = 17;
    for (int Second = 1 + First % Stride;; Second += Stride) {
        MemoryFolder Dir;
        const Progress Told;
        if (RunsThrough(First, How, Dir.Path(), [&] { Session.Run(Dir.Path(), Told); }))
            return false;
        bool Through = false;
        for (int Number = Second; Number < Second + 2 && !Through; ++Number)
            Through =
                RunsThrough(Number, How, Dir.Path(), [&] { CutSession::StartAndEnd(Dir.Path()); });
        Session.ExpectAll(Dir.Path(), Told, How == Kill::PowerLoss,
                          "cut at step " + std::to_string(First) + ", then twice from " +
                              std::to_string(Second) + " on");
        if (Through || ::testing::Test::HasFailure()) return true;
    }
}

void CutEachStart(Kill How) {
    const CutSession Session;
    constexpr int Stride = 7;
    for (int First = 1; CutTheStarts(Session, First, How); First += Stride) {
        ASSERT_FALSE(::testing::Test::HasFailure());
        ASSERT_LT(First, MostSteps);
    }
}

TEST(SessionCrash, AKillOfTheNextStartsLosesNothing) {
    CutEachStart(Kill::BeforeStep);
}

TEST(SessionCrash, ALossOfPowerInTheNextStartsLosesNothing) {
    CutEachStart(Kill::PowerLoss);
}

}  // namespace
}  // namespace neb::harness
