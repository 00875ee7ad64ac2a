// Films of whole shows: each frame, each sample and what is told of them.
#include "FilmShowRig.h"
#include "effects/EffectSteps.h"
#include "effects/Transition.h"

namespace neb::test {
namespace {

// The frame at a moment as a stage of its own gives it.
class OwnStage {
  public:
    OwnStage(const FilmOrder& Order, const std::vector<RehearsalCue>& Cues)
        : mStage(Order.Size, Order.CaptionsInPicture), mCues(Cues) {}
    const QImage& FrameAt(double Seconds) {
        for (; mNext < mCues.size() && mCues[mNext].At <= Seconds; ++mNext) {
            const RehearsalCue& Cue = mCues[mNext];
            mStage.ShowSlide({Cue.At,
                              PictureOfFile(Cue.Picture),
                              Cue.Caption,
                              Cue.EffectNumber,
                              Cue.EffectDelay,
                              Cue.EffectStep,
                              {}});
        }
        return mStage.FrameAt(Seconds);
    }

  private:
    FilmStage mStage;
    const std::vector<RehearsalCue>& mCues;
    size_t mNext = 0;
};

TEST_F(FilmShowRig, EveryFrameOfAFilmIsTheStagesOwn) {
    AddTenSlidesWithAllKindsOfSounds();
    const FilmReport Report = Make();
    ASSERT_EQ(10u, Report.Cues.size());
    EXPECT_EQ(FilmEnd::Made, Report.End);
    EXPECT_DOUBLE_EQ(10.4, Report.Seconds);
    ASSERT_EQ(312u, Film->Frames.size());
    OwnStage Stage(Order, Report.Cues);
    for (size_t K = 0; K < Film->Frames.size(); ++K)
        ASSERT_EQ(Stage.FrameAt(static_cast<double>(K) / 30), Film->Frames[K]) << "frame " << K;
    EXPECT_TRUE(Film->IsFinished);
}

}  // namespace
}  // namespace neb::test
