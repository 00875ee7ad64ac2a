// Films of whole shows: each frame, how long they are, and what is told of them.
#include "FilmShowRig.h"
#include "effects/EffectSteps.h"
#include "effects/Transition.h"

namespace neb::test {
namespace {

class FilmMakerFrames : public FilmShowRig {};
class FilmMakerLength : public FilmShowRig {};
class FilmMakerFault : public FilmShowRig {};
class FilmMakerPart : public FilmShowRig {};

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

std::string PlacesOf(const FilmReport& Report) {
    std::string Text;
    for (const RehearsalCue& Cue : Report.Cues)
        Text += QStringLiteral("%1@%2 ").arg(Cue.SlideSeq).arg(Cue.At).toStdString();
    return Text;
}

std::string TextsOf(const std::vector<RehearsalFinding>& Found) {
    QStringList Lines;
    for (const RehearsalFinding& Each : Found)
        Lines << QStringLiteral("%1|").arg(Each.SlideSeq) + Each.Text;
    return Lines.join(u'\n').toStdString();
}

TEST_F(FilmMakerFrames, AreTheStagesOwn) {
    AddTenSlidesWithAllKindsOfSounds();
    const FilmReport Report = Make();
    ASSERT_EQ(10u, Report.Cues.size());
    EXPECT_EQ(FilmEnd::Made, Report.End);
    ASSERT_EQ(312u, Film->Frames.size());
    OwnStage Stage(Order, Report.Cues);
    for (size_t K = 0; K < Film->Frames.size(); ++K)
        ASSERT_EQ(Stage.FrameAt(static_cast<double>(K) / 30), Film->Frames[K]) << "frame " << K;
    EXPECT_TRUE(Film->IsFinished);
}

TEST_F(FilmMakerFrames, InTheMiddleOfASlideAreItsPictureAsAScreenShowsIt) {
    Order.CaptionsInPicture = false;
    AddPictures(3);
    const FilmReport Report = Make();
    for (size_t Slide = 0; Slide < 3; ++Slide)
        EXPECT_EQ(
            FitToView(PictureOfFile(Report.Cues[Slide].Picture), {Order.Size, true, true, true}),
            Film->Frames.at(30 * Slide + 20));
}

TEST_F(FilmMakerFrames, OfATransitionAreOfTheStepThatIsDue) {
    Order.CaptionsInPicture = false;
    Put("DelayL", u"1000"_s);
    Put("StepL", u"20"_s);
    AddPictures(3);
    const FilmReport Report = Make();
    const auto Fitted = [&](size_t Slide) {
        return FitToView(PictureOfFile(Report.Cues[Slide].Picture), {Order.Size, true, true, true});
    };
    const RehearsalCue& Cue = Report.Cues[2];
    ASSERT_LT(0, Cue.EffectNumber);
    const Transition Way(Cue.EffectNumber, Fitted(1), Fitted(2));
    const double StepSeconds = Cue.EffectDelay / 10000.0;
    const int Steps = EffectStepCount(Cue.EffectStep);
    ASSERT_LT(2, Steps);
    for (int Step = 1; Step < Steps; ++Step) {
        QImage Wanted;
        Way.Draw(EffectProgress(Step, Cue.EffectStep), Wanted);
        const double Middle = Cue.At + (Step + 0.5) * StepSeconds;
        EXPECT_EQ(Wanted, Film->Frames.at(static_cast<size_t>(Middle * 30))) << Step;
    }
}

TEST_F(FilmMakerFrames, OfAManualShowLeaveEachSlideItsTime) {
    AddPictures(3);
    SlideShow->ProgressionMethod = 1;
    const FilmReport Report = Make();
    EXPECT_EQ("1@0 2@1 3@2 ", PlacesOf(Report));
    EXPECT_EQ(90u, Film->Frames.size());
}

TEST_F(FilmMakerFrames, AreTheSameOnEveryRun) {
    AddTenSlidesWithAllKindsOfSounds();
    Make();
    const CaughtFilm First = *Film;
    Make();
    EXPECT_EQ(First.Frames, Film->Frames);
    EXPECT_EQ(First.Sound, Film->Sound);
}

TEST_F(FilmMakerLength, IsThatOfTheCueSheet) {
    AddPictures(2);
    for (const auto& [Timeout, Rate, Frames, Pairs] : {std::tuple(u"0.37"_s, 24, 18u, 32634),
                                                       {u"0.371"_s, 25, 19u, 32722},
                                                       {u"1"_s, 60, 120u, 88200},
                                                       {u"0.505"_s, 50, 51u, 44541}}) {
        Put("Timeout", Timeout);
        Order.Rate = Rate;
        const FilmPlan Planned = Plan();
        const FilmReport Report = Make(Planned);
        EXPECT_EQ(Planned.Sheet.RunningTime, Report.Seconds);
        EXPECT_EQ(Frames, Film->Frames.size()) << Timeout.toStdString();
        EXPECT_EQ(Pairs, Film->Pairs()) << Timeout.toStdString();
    }
}

TEST_F(FilmMakerLength, OfSoundAndFramesIsNeverASecondApart) {
    Put("Timeout", u"7"_s);
    AddPictures(2);
    Make();
    EXPECT_LT(Film->MostApart, 1);
    EXPECT_LE(Film->LongestSound, 4410u);
    EXPECT_EQ(420u, Film->Frames.size());
}

// What is not there when the film is made.
TEST_F(FilmMakerLength, IsThatOfTheRunWhereFilesHaveGoneSinceThePlan) {
    AddPictures(4);
    AddTrack(u"fitted.wav"_s, 1, 4, harness::Ramp(8, FilmSoundRate)).FitToSong = true;
    const FilmPlan Planned = Plan();
    ASSERT_EQ(8, Planned.Sheet.RunningTime);
    DeleteFile(TrackPath(u"fitted.wav"_s));
    double Total = 0;
    FilmWatch Watch;
    Watch.GoesOn = [&](const FilmProgress& SoFar) {
        EXPECT_LE(SoFar.Seconds, SoFar.Total);
        Total = SoFar.Total;
        return true;
    };
    const FilmReport Report = Make(Planned, Watch);
    EXPECT_EQ(4, Report.Seconds);
    EXPECT_EQ(4, Total) << "when it is known";
    EXPECT_EQ(120u, Film->Frames.size());
}

TEST_F(FilmMakerFault, IsListedOnceWithItsSlideAndItsFile) {
    AddTenSlidesWithAllKindsOfSounds();
    SlideShow->Details[4]->SlideID = SlideShow->Details[8]->SlideID;  // the missing picture again
    WriteFile(TrackPath(u"long.wav"_s), "no sound");
    const FilmReport Report = Make();
    const QString Slides = SlidesFolder(Engine.DBPath(), Album);
    QStringList Lines = QString::fromStdString(TextsOf(Report.Faults)).split(u'\n');
    ASSERT_EQ(4, Lines.size()) << TextsOf(Report.Faults);
    EXPECT_EQ(u"5|slide 5: the picture is missing: "_s + Slides + u"00000009.jpg"_s, Lines[0]);
    EXPECT_TRUE(Lines[1].startsWith(u"6|slide 6: the sound cannot be played: "_s +
                                    TrackPath(u"long.wav"_s) + u": "_s));
    EXPECT_TRUE(Lines[2].startsWith(u"10|slide 10: the picture cannot be read: "_s + Slides +
                                    u"00000010.jpg: "_s));
    EXPECT_EQ(u"10|slide 10: the sound is missing: "_s + TrackPath(u"none.wav"_s), Lines[3]);
}

TEST_F(FilmMakerFault, IsSeenAsInAShow) {
    AddTenSlidesWithAllKindsOfSounds();
    const FilmReport Report = Make();
    EXPECT_EQ("Slide 9: Current slide missing!", Report.Cues[8].Caption.toStdString());
    EXPECT_EQ("Slide 10: Current slide missing!", Report.Cues[9].Caption.toStdString());
    EXPECT_EQ(AppPathCache + u"NoSlide.bmp"_s, Report.Cues[9].Picture);
}

TEST_F(FilmMakerFault, OfAShowThatStopsEndsTheFilmThere) {
    AddPictures(3);
    SlideShow->Details[1]->SlideID = 99;
    FilmReport Report = Make();
    EXPECT_EQ(30u, Film->Frames.size());
    EXPECT_EQ("2|slide 2: Slide #2 of the current slide show does not exist!",
              TextsOf(Report.Faults));
    SlideShow->Details[1]->SlideID = SlideShow->Details[2]->SlideID;
    DeleteFile(PicturePath(Slide(2).SlideID));
    DeleteFile(AppPathCache + u"NoSlide.bmp"_s);
    Report = Make();
    EXPECT_EQ(30u, Film->Frames.size());
    EXPECT_EQ(2u, Report.Faults.size()) << TextsOf(Report.Faults);
    EXPECT_EQ(2, Report.Faults.front().SlideSeq);
}

TEST_F(FilmMakerFault, OfAShowThatStopsAtADamagedPictureEndsTheChaptersToo) {
    AddPictures(3);
    QByteArray Damaged = ReadFile(PicturePath(Slide(2).SlideID));
    Damaged.truncate(Damaged.size() / 2);
    WriteFile(PicturePath(Slide(2).SlideID), Damaged);
    Make();
    EXPECT_EQ(3u, Film->Setup.Chapters.size());
    EXPECT_EQ(90u, Film->Frames.size());
    DeleteFile(AppPathCache + u"NoSlide.bmp"_s);
    Make();
    EXPECT_EQ(1u, Film->Setup.Chapters.size());
    EXPECT_EQ(30u, Film->Frames.size());
}

TEST_F(FilmMakerFault, IsThrownWhereNothingComesUp) {
    const auto Thrown = [this] {
        try {
            Make();
        } catch (const Fault& Problem) {
            return Problem.What().toStdString();
        }
        return std::string();
    };
    EXPECT_NE(std::string::npos, Thrown().find("No slide of the show comes up")) << Thrown();
    AddPictures(2);
    Order.First = 5;
    EXPECT_NE(std::string::npos, Thrown().find("No slide of the show comes up")) << Thrown();
    EXPECT_FALSE(FileExists(Order.Path));
}

TEST_F(FilmMakerPart, BeginsAsIfTheShowWereBegunThereAndEndsWithItsLastSlide) {
    AddTenSlidesWithAllKindsOfSounds();
    Order.First = 4;
    Order.Last = 6;
    const FilmReport Report = Make();
    EXPECT_EQ("4@0 5@1.2 6@2.2 ", PlacesOf(Report));
    EXPECT_EQ(96u, Film->Frames.size());
    EXPECT_TRUE(Report.Faults.empty()) << TextsOf(Report.Faults);
    EXPECT_NEAR(1.2, harness::RampTime(Left(At(0.1))) - 0.1, 1e-4)
        << "the fitted track at its place";
}

TEST_F(FilmMakerPart, IsNotConcernedWithSlidesBehindIt) {
    AddPictures(3);
    SlideShow->Details[1]->SlideID = 99;
    Order.Last = 1;
    const FilmReport Report = Make();
    EXPECT_EQ("1@0 ", PlacesOf(Report));
    EXPECT_TRUE(Report.Faults.empty()) << TextsOf(Report.Faults);
    Order.Size = {1280, 720};  // so that the captions fit
    EXPECT_EQ("", TextsOf(Plan().Sheet.Findings.Problems));
}

TEST_F(FilmMakerPart, IsNotConcernedWithPicturesBehindItEither) {
    AddPictures(3);
    DeleteFile(PicturePath(Slide(2).SlideID));
    DeleteFile(AppPathCache + u"NoSlide.bmp"_s);
    Order.Last = 1;
    const FilmReport Report = Make();
    EXPECT_EQ("1@0 ", PlacesOf(Report));
    EXPECT_EQ("", TextsOf(Report.Faults));
}

// The show comes round to its first slide, which is not the film's.
TEST_F(FilmMakerPart, IsNotConcernedWithPicturesBeforeItEither) {
    AddPictures(3);
    DeleteFile(PicturePath(Slide(1).SlideID));
    DeleteFile(AppPathCache + u"NoSlide.bmp"_s);
    Order.First = 2;
    Order.Size = {1280, 720};  // so that the captions fit
    const FilmPlan Planned = Plan();
    EXPECT_EQ("", TextsOf(Planned.Sheet.Findings.Problems));
    EXPECT_EQ(RehearsalEnd::CameRound, Planned.Sheet.End);
    const FilmReport Report = Make(Planned);
    EXPECT_EQ("2@0 3@1 ", PlacesOf(Report));
    EXPECT_EQ("", TextsOf(Report.Faults));
}

}  // namespace
}  // namespace neb::test
