// The frames of a film: which step of a transition is seen when, to the bit.
#include "FilmStageRig.h"

#include <deque>
#include <set>

#include "effects/EffectSteps.h"

namespace neb::test {
namespace {

class FilmStageFrames : public FilmStageRig {};
class FilmStagePace : public FilmStageRig {};
class FilmStageStill : public FilmStageRig {};
class FilmStageChange : public FilmStageRig {};

TEST_F(FilmStageFrames, AreTheTransitionsOwnAboveTheCaption) {
    const QSize View = ViewOver(Lake);
    const QImage Old = FittedIn(Picture(1), View), New = FittedIn(Picture(2), View);
    for (const int Number : {1, 2, 17, 33, 48, 64, 79, 95, 110, 127})
        for (const int Step : {1, 7, 25, 50}) {
            FilmStage Stage(Film, true);
            Stage.ShowSlide(Slide(0, 1, 0, 0, 100));
            Stage.ShowSlide(Slide(5, 2, Number, 200, Step));
            const QImage Caption = CaptionOf(Stage.FrameAt(5), View);
            const Transition Way(Number, Old, New);
            for (int I = 1; I < EffectStepCount(Step); I += 1 + EffectStepCount(Step) / 6) {
                QImage Wanted;
                Way.Draw(I * Step / 100.0, Wanted);
                const QImage Frame = Stage.FrameAt(5 + I * 0.02);
                EXPECT_EQ(Wanted, PictureOf(Frame, View)) << Number << " at " << I << '*' << Step;
                EXPECT_EQ(Caption, CaptionOf(Frame, View)) << Number << " at " << I << '*' << Step;
                EXPECT_EQ(QImage::Format_RGB32, Frame.format());
            }
        }
}

TEST_F(FilmStageFrames, BeginWithTheOldPictureAndEndWithTheNewOne) {
    const QSize View = ViewOver(Lake);
    FilmStage Stage(Film, true);
    Stage.ShowSlide(Slide(0, 1, 0, 0, 100));
    EXPECT_EQ(FittedIn(Picture(1), View), PictureOf(Stage.FrameAt(0), View));
    Stage.ShowSlide(Slide(1, 3, 2, 100, 10));
    EXPECT_EQ(FittedIn(Picture(1), View), PictureOf(Stage.FrameAt(1), View));
    EXPECT_EQ(FittedIn(Picture(1), View), PictureOf(Stage.FrameAt(1.0099), View));
    EXPECT_NE(FittedIn(Picture(1), View), PictureOf(Stage.FrameAt(1.05), View));
    EXPECT_NE(FittedIn(Picture(3), View), PictureOf(Stage.FrameAt(1.05), View));
    EXPECT_EQ(FittedIn(Picture(3), View), PictureOf(Stage.FrameAt(1.1), View));
    EXPECT_EQ(FittedIn(Picture(3), View), PictureOf(Stage.FrameAt(100), View));
}

TEST_F(FilmStageFrames, ComeOutOfBlack) {
    const QSize View = ViewOver(Lake);
    FilmStage Stage(Film, true);
    EXPECT_EQ(effectstest::Plain(Film, 0xFF000000), Stage.FrameAt(0));
    Stage.ShowSlide(Slide(0, 1, 17, 100, 10));
    EXPECT_EQ(0, Inked(PictureOf(Stage.FrameAt(0), View)));
    EXPECT_LT(0, Inked(CaptionOf(Stage.FrameAt(0), View))) << "the caption is there at once";
    QImage Wanted;
    Transition(17, FittedIn({}, View), FittedIn(Picture(1), View)).Draw(0.5, Wanted);
    EXPECT_EQ(Wanted, PictureOf(Stage.FrameAt(0.05), View));
}

TEST_F(FilmStageFrames, OfASlideWithoutAPictureAreBlack) {
    FilmStage Stage(Film, true);
    FilmSlide Missing = Slide(0, 1, 0, 0, 100);
    Missing.Picture = {};
    Stage.ShowSlide(Missing);
    const QSize View = ViewOver(Lake);
    EXPECT_EQ(0, Inked(PictureOf(Stage.FrameAt(0), View)));
    EXPECT_LT(0, Inked(CaptionOf(Stage.FrameAt(0), View)));
}

// Progress in hundredths that is seen at a frame; -1: the new picture.
int SeenAt(FilmStage& Stage, double Seconds, const Transition& Way, int Step) {
    const QImage Frame = Stage.FrameAt(Seconds);
    QImage Drawn;
    for (int I = 0; I <= EffectStepCount(Step); ++I) {
        Way.Draw(EffectProgress(I, Step), Drawn);
        if (Drawn == Frame.copy(0, 0, Drawn.width(), Drawn.height()))
            return I == EffectStepCount(Step) ? -1 : std::min(100, I * Step);
    }
    return -2;
}

struct Pace {
    int Delay, Step, Rate;  // as a slide and a film have them
    double At;
    std::vector<int> Seen;  // frame by frame from the slide's own on
};

TEST_F(FilmStagePace, IsThatOfTheShowAtEveryRate) {
    const Pace Paces[] = {
        // every frame falls upon a step
        {500, 20, 20, 3, {0, 20, 40, 60, 80, -1, -1}},
        {500, 20, 60, 3, {0, 0, 0, 20, 20, 20, 40, 40, 40, 60, 60, 60, 80, 80, 80, -1}},
        {1000, 40, 30, 0.1, {0, 0, 0, 40, 40, 40, 80, 80, 80, -1, -1}},
        {1000, 25, 50, 7.7, {0, 0, 0, 0, 0, 25, 25, 25, 25, 25, 50, 50, 50, 50, 50, 75}},
        // several steps a frame
        {125, 10, 24, 2, {0, 30, 60, -1, -1}},
        {100, 1, 25, 2, {0, 4, 8, 12, 16, 20, 24}},
        // between the frames
        {70, 9, 60, 1, {0, 18, 36, 63, 81, 99, -1}},
        {300, 33, 24, 600, {0, 33, 66, -1}},
        // all at once
        {0, 5, 30, 1, {-1, -1}},
        {0, 100, 60, 1, {-1, -1}},
        // a single step waits for its time, with nothing between
        {1000, 100, 30, 1, {0, 0, 0, -1}},
        {333, 100, 30, 1, {0, -1, -1}},
    };
    for (const Pace& Each : Paces) {
        FilmStage Stage(Film, false);
        Stage.ShowSlide(Slide(0, 1, 0, 0, 100));
        Stage.ShowSlide(Slide(Each.At, 2, 2, Each.Delay, Each.Step));
        const Transition Way(2, FittedIn(Picture(1), Film), FittedIn(Picture(2), Film));
        const double First = std::round(Each.At * Each.Rate);
        ASSERT_NEAR(Each.At, First / Each.Rate, 1e-9) << "the table itself";
        std::vector<int> Seen;
        for (std::size_t K = 0; K < Each.Seen.size(); ++K)
            Seen.push_back(
                SeenAt(Stage, (First + static_cast<double>(K)) / Each.Rate, Way, Each.Step));
        EXPECT_EQ(Each.Seen, Seen)
            << Each.Delay << " a step of " << Each.Step << " at " << Each.Rate;
    }
}

// A slide comes up between two frames, and late in a long film.
TEST_F(FilmStagePace, CountsFromTheSlidesOwnTime) {
    for (const double At : {0.123, 86400.7, 604799.9}) {
        FilmStage Stage(Film, false);
        Stage.ShowSlide(Slide(0, 1, 0, 0, 100));
        Stage.ShowSlide(Slide(At, 2, 2, 1000, 25));
        const Transition Way(2, FittedIn(Picture(1), Film), FittedIn(Picture(2), Film));
        EXPECT_EQ(0, SeenAt(Stage, At, Way, 25)) << At;
        EXPECT_EQ(0, SeenAt(Stage, At + 0.0999, Way, 25)) << At;
        EXPECT_EQ(25, SeenAt(Stage, At + 0.1, Way, 25)) << At;
        EXPECT_EQ(75, SeenAt(Stage, At + 0.3999, Way, 25)) << At;
        EXPECT_EQ(-1, SeenAt(Stage, At + 0.4, Way, 25)) << At;
        EXPECT_NEAR(At + 0.4, Stage.StillFrom(), FilmHair);
        EXPECT_EQ(-1, SeenAt(Stage, Stage.StillFrom(), Way, 25)) << At;
    }
}

// What no show asks for, and what a table of effects could still hold.
TEST_F(FilmStagePace, KeepsWithinWhatAViewTakes) {
    FilmStage Stage(Film, false);
    Stage.ShowSlide(Slide(0, 1, 0, 0, 100));
    Stage.ShowSlide(Slide(1, 2, 2, 5000, 0));
    EXPECT_NEAR(1 + 100 * 0.1, Stage.StillFrom(), FilmHair);
    Stage.ShowSlide(Slide(20, 3, 2, -5, 300));
    EXPECT_NEAR(20, Stage.StillFrom(), FilmHair);
    EXPECT_EQ(FittedIn(Picture(3), Film), Stage.FrameAt(20));
}

TEST_F(FilmStageStill, SharesItsBitsUntilSomethingMoves) {
    FilmStage Stage(Film, true);
    Stage.ShowSlide(Slide(0, 1, 0, 0, 100));
    const qint64 First = Stage.FrameAt(0).cacheKey();
    EXPECT_EQ(First, Stage.FrameAt(1).cacheKey());
    EXPECT_EQ(First, Stage.FrameAt(4.9).cacheKey());
    Stage.ShowSlide(Slide(5, 2, 17, 1000, 50));
    const qint64 Before = Stage.FrameAt(5).cacheKey();
    EXPECT_EQ(Before, Stage.FrameAt(5.099).cacheKey());
    const qint64 Half = Stage.FrameAt(5.1).cacheKey();
    EXPECT_NE(Before, Half);
    EXPECT_EQ(Half, Stage.FrameAt(5.199).cacheKey()) << "within a step nothing moves either";
    const qint64 After = Stage.FrameAt(Stage.StillFrom()).cacheKey();
    EXPECT_NE(Half, After);
    EXPECT_EQ(After, Stage.FrameAt(60).cacheKey());
}

TEST_F(FilmStageStill, EachStepHasAKeyOfItsOwn) {
    FilmStage Stage(Film, true);
    Stage.ShowSlide(Slide(0, 1, 0, 0, 100));
    Stage.ShowSlide(Slide(1, 2, 17, 100, 5));
    std::set<qint64> Keys;
    for (int I = 0; I <= 20; ++I) Keys.insert(Stage.FrameAt(1 + I * 0.01).cacheKey());
    EXPECT_EQ(21u, Keys.size());
}

TEST_F(FilmStageStill, WhatOthersHoldIsNotDrawnInto) {
    FilmStage Stage(Film, true), Other(Film, true);
    std::vector<QImage> Held, Copies;
    for (int Seq = 0; Seq < 4; ++Seq) {
        Stage.ShowSlide(Slide(Seq, Seq + 1, 17, 100, 20, QString(Seq * 12, u'W')));
        for (int I = 0; I < 12; ++I) {
            Held.push_back(Stage.FrameAt(Seq + I * 0.01));
            Copies.push_back(Held.back().copy());
        }
    }
    for (std::size_t I = 0; I < Held.size(); ++I) EXPECT_EQ(Copies[I], Held[I]) << I;
}

// The memory of a frame that nobody holds any more is used again.
TEST_F(FilmStageStill, ASheetThatIsFreeIsDrawnOnAgain) {
    FilmStage Stage(Film, true);
    Stage.ShowSlide(Slide(0, 1, 0, 0, 100));
    Stage.ShowSlide(Slide(1, 2, 17, 100, 1));
    std::set<const uchar*> Places;
    std::deque<QImage> Queue;
    for (int I = 1; I < 100; ++I) {
        Queue.push_back(Stage.FrameAt(1 + I * 0.01));
        Places.insert(Queue.back().constBits());
        if (Queue.size() > 3) Queue.pop_front();
    }
    EXPECT_GE(5u, Places.size());
    EXPECT_LE(4u, Places.size());
}

TEST_F(FilmStageChange, ASlideThatComesIntoATransitionEndsIt) {
    const QSize View = ViewOver(Lake);
    FilmStage Stage(Film, true);
    Stage.ShowSlide(Slide(0, 1, 0, 0, 100));
    Stage.ShowSlide(Slide(1, 2, 17, 100, 10));
    Stage.FrameAt(1.05);
    Stage.ShowSlide(Slide(1.06, 3, 33, 100, 10));
    EXPECT_EQ(FittedIn(Picture(2), View), PictureOf(Stage.FrameAt(1.06), View));
    QImage Wanted;
    Transition(33, FittedIn(Picture(2), View), FittedIn(Picture(3), View)).Draw(0.5, Wanted);
    EXPECT_EQ(Wanted, PictureOf(Stage.FrameAt(1.11), View));
}

TEST_F(FilmStageChange, SlidesOfWhichNoFrameIsSeenLeaveNoTrace) {
    FilmStage Stage(Film, false);
    for (int Seq = 0; Seq < 5; ++Seq) Stage.ShowSlide(Slide(Seq * 0.001, Seq + 1, 17, 100, 10));
    QImage Wanted;
    Transition(17, FittedIn(Picture(4), Film), FittedIn(Picture(5), Film)).Draw(0.5, Wanted);
    EXPECT_EQ(Wanted, Stage.FrameAt(0.054));
}

TEST_F(FilmStageChange, ACaptionOfAnotherHeightGivesBothPicturesAnotherRoom) {
    const QString Long = QStringLiteral("a caption of several lines, one below the other, ");
    const QSize Narrow = ViewOver(Long), Wide = ViewOver({});
    ASSERT_LT(Narrow.height(), Wide.height());
    const auto Alone = [&](const QString& Caption) {
        FilmStage Fresh(Film, true);
        Fresh.ShowSlide(Slide(0, 1, 0, 0, 100, Caption));
        return CaptionOf(Fresh.FrameAt(0), ViewOver(Caption));
    };
    FilmStage Stage(Film, true);
    Stage.ShowSlide(Slide(0, 1, 0, 0, 100, {}));
    EXPECT_EQ(FittedIn(Picture(1), Wide), PictureOf(Stage.FrameAt(0), Wide));
    EXPECT_EQ(0, Inked(CaptionOf(Stage.FrameAt(0), Wide)));
    Stage.ShowSlide(Slide(1, 2, 17, 100, 10, Long));
    EXPECT_EQ(FittedIn(Picture(1), Narrow), PictureOf(Stage.FrameAt(1), Narrow));
    QImage Wanted;
    Transition(17, FittedIn(Picture(1), Narrow), FittedIn(Picture(2), Narrow)).Draw(0.3, Wanted);
    EXPECT_EQ(Wanted, PictureOf(Stage.FrameAt(1.03), Narrow));
    EXPECT_EQ(Alone(Long), CaptionOf(Stage.FrameAt(1.03), Narrow));
    // in the middle of that one comes a slide without a caption
    Stage.ShowSlide(Slide(1.05, 3, 17, 100, 10, {}));
    Transition(17, FittedIn(Picture(2), Wide), FittedIn(Picture(3), Wide)).Draw(0.3, Wanted);
    EXPECT_EQ(Wanted, PictureOf(Stage.FrameAt(1.08), Wide));
    EXPECT_EQ(0, Inked(CaptionOf(Stage.FrameAt(1.08), Wide))) << "no line of the one before";
}

TEST_F(FilmStageChange, WithoutCaptionsThePictureHasAllTheRoom) {
    FilmStage Stage(Film, false);
    Stage.ShowSlide(Slide(0, 1, 0, 0, 100));
    EXPECT_EQ(FittedIn(Picture(1), Film), Stage.FrameAt(0));
    Stage.ShowSlide(Slide(1, 2, 17, 100, 10));
    QImage Wanted;
    Transition(17, FittedIn(Picture(1), Film), FittedIn(Picture(2), Film)).Draw(0.7, Wanted);
    EXPECT_EQ(Wanted, Stage.FrameAt(1.07));
}

TEST_F(FilmStageChange, APictureFittedBeforehandIsTheSame) {
    FilmStage Stage(Film, true), Ready(Film, true);
    for (int Seq = 0; Seq < 3; ++Seq) {
        FilmSlide Each = Slide(Seq, Seq + 1, 17, 100, 10, QString(Seq * 30, u'W'));
        Stage.ShowSlide(Each);
        Each.Fitted = FilmStage::FitFor(Film, true, Each.Caption, Each.Picture);
        Ready.ShowSlide(Each);
        for (const double Later : {0.0, 0.05, 0.5})
            EXPECT_EQ(Stage.FrameAt(Seq + Later), Ready.FrameAt(Seq + Later)) << Seq << Later;
    }
}

// It is taken as it is, so that nothing is done twice; one of another size is not.
TEST_F(FilmStageChange, APictureFittedBeforehandIsTakenWhereItFits) {
    FilmStage Stage(Film, false);
    FilmSlide Each = Slide(0, 1, 0, 0, 100);
    Each.Fitted = effectstest::Plain(Film, 0xFF336699);
    Stage.ShowSlide(Each);
    EXPECT_EQ(Each.Fitted, Stage.FrameAt(0));
    Each.Fitted = effectstest::Plain(Film / 2, 0xFF336699);
    Stage.ShowSlide(Each);
    EXPECT_EQ(FittedIn(Each.Picture, Film), Stage.FrameAt(0));
}

}  // namespace
}  // namespace neb::test
