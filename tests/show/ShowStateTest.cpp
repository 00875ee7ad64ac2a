#include "show/ShowState.h"

#include <gtest/gtest.h>

#include "db/clsNEBSlideShow.h"
#include "show/DetailChooser.h"

namespace neb {
namespace {

using Clock = ClockCommand;

ShowState In(const char* Play, const char* Stop) {
    return {QString::fromLatin1(Play), QString::fromLatin1(Stop)};
}

std::string Words(const ShowState& State) {
    return (State.PlayCommand + u'/' + State.StopCommand).toStdString();
}

struct Row {
    ShowState From;
    const char* Words;
    SoundCommand Sound;
    bool ToStart, ShowsSlide;
    ClockCommand Clock;
    bool Timer1, Timer2;
};

void Check(const Row& Expected, const ShowTransition& Transition) {
    ShowState State = Expected.From;
    EnterState(State, Transition);
    EXPECT_EQ(Expected.Words, Words(State));
    EXPECT_EQ(Expected.Sound, Transition.Sound);
    EXPECT_EQ(Expected.ToStart, Transition.ToStart);
    EXPECT_EQ(Expected.ShowsSlide, Transition.ShowsSlide);
    EXPECT_EQ(Expected.Clock, Transition.Clock);
    EXPECT_EQ(Expected.Timer1, Transition.Timer1);
    EXPECT_EQ(Expected.Timer2, Transition.Timer2);
}

TEST(ShowState, PlayPauseGoesByTheWordOfferedNext) {
    const Row Rows[] = {
        {In("Pause", "Stop"), "Resume/Stop", SoundCommand::Pause, false, false, Clock::Hold, false,
         true},
        {In("Resume", "Stop"), "Pause/Stop", SoundCommand::Play, false, false, Clock::GoOn, true,
         true},
        {In("", ""), "Pause/Stop", SoundCommand::None, true, true, Clock::Start, true, true},
        {In("Play", "Resume"), "Pause/Stop", SoundCommand::None, true, true, Clock::Start, true,
         true},
    };
    for (const Row& Expected : Rows) Check(Expected, PlayPauseTransition(Expected.From));
}

TEST(ShowState, ResumingLeavesTheStopWordAsItIs) {
    ShowState State = In("Resume", "Resume");
    EnterState(State, PlayPauseTransition(State));
    EXPECT_EQ("Pause/Resume", Words(State));
}

TEST(ShowState, StopRestartGoesByItsOwnWord) {
    const Row Rows[] = {
        {In("Pause", "Stop"), "Play/Resume", SoundCommand::Stop, false, false, Clock::Hold, false,
         false},
        {In("Resume", "Stop"), "Play/Resume", SoundCommand::Stop, false, false, Clock::Hold, false,
         false},
        {In("Play", "Resume"), "Pause/Stop", SoundCommand::Play, false, true, Clock::Start, true,
         true},
        {In("", ""), "Pause/Stop", SoundCommand::Play, false, true, Clock::Start, true, true},
    };
    for (const Row& Expected : Rows) Check(Expected, StopRestartTransition(Expected.From));
}

TEST(ShowState, AStepLeavesAPausedShowPausedAndSetsAnyOtherGoing) {
    const std::pair<ShowState, const char*> Rows[] = {{In("Pause", "Stop"), "Pause/Stop"},
                                                      {In("Resume", "Stop"), "Resume/Stop"},
                                                      {In("Play", "Resume"), "Pause/Stop"},
                                                      {In("", ""), "Pause/Stop"}};
    for (const auto& [From, After] : Rows) {
        ShowState State = From;
        EnterStep(State);
        EXPECT_EQ(After, Words(State));
    }
}

TEST(UserSteps, WrapAtBothEnds) {
    EXPECT_EQ(2, SeqAfter(1, 5));
    EXPECT_EQ(5, SeqAfter(4, 5));
    EXPECT_EQ(1, SeqAfter(5, 5));
    EXPECT_EQ(1, SeqAfter(9, 5));
    EXPECT_EQ(1, SeqAfter(0, 0));
    EXPECT_EQ(1, SeqBefore(2, 5));
    EXPECT_EQ(5, SeqBefore(1, 5));
    EXPECT_EQ(5, SeqBefore(0, 5));
    EXPECT_EQ(0, SeqBefore(1, 0));
}

TEST(ChooseDetail, GoesByTheNumberAndRoundToTheFirst) {
    clsNEBSlideShow Show;
    Show.SaveDetail(30, 3, {});
    Show.SaveDetail(10, 1, {});
    Show.SaveDetail(31, 3, {});
    Show.SaveDetail(70, 7, {});
    const struct {
        int Seq, SlideID, Number, After;
    } Rows[] = {{0, 10, 1, 1}, {-4, 10, 1, 1}, {1, 10, 1, 1}, {3, 30, 3, 3},
                {7, 70, 7, 7}, {2, 10, 1, 1},  {8, 10, 1, 1}};
    for (const auto& Expected : Rows) {
        const ChosenDetail Chosen = ChooseDetail(Show, Expected.Seq);
        ASSERT_NE(nullptr, Chosen.Detail) << Expected.Seq;
        EXPECT_EQ(Expected.SlideID, Chosen.Detail->SlideID) << Expected.Seq;
        EXPECT_EQ(Expected.Number, Chosen.Number);
        EXPECT_EQ(Expected.After, Chosen.CurrentSeq);
    }
}

TEST(ChooseDetail, OffersNothingWithoutAFirstPlace) {
    clsNEBSlideShow Show;
    EXPECT_EQ(nullptr, ChooseDetail(Show, 1).Detail);
    Show.SaveDetail(5, 5, {});
    EXPECT_EQ(nullptr, ChooseDetail(Show, 0).Detail);
    EXPECT_EQ(nullptr, ChooseDetail(Show, 6).Detail);
    EXPECT_NE(nullptr, ChooseDetail(Show, 5).Detail);
}

}  // namespace
}  // namespace neb
