// What is shown for a slide: caption, picture, effect; failures and missing files.
#include "ProjectorRig.h"

#include <QAccessible>
#include <QTest>

#include "effects/MotionWish.h"
#include "settings/modNEBSlideShow.h"
#include "support/files/modHostFiles.h"

namespace neb::test {
namespace {

using Projector = frmSlideShowProjector;
using ProjectorSlide = ProjectorRig;
using ProjectorFailure = ProjectorRig;
using ProjectorStart = ProjectorRig;

TEST_F(ProjectorStart, ReadsTheSettingsWithItsOwnDefaults) {
    AddSlides(1);
    Put("MaxEffectLevel", QStringLiteral("7"));
    Put("Effect.002", QStringLiteral("no"), QStringLiteral("Effect Selections"));
    Run([&](Projector& Window) {
        EXPECT_EQ(10, SlideTimeout);
        EXPECT_EQ(0, Window.Settings().MaxEffectLevel);
        EXPECT_TRUE(Window.Effects().EffectSelected[1]);
        EXPECT_FALSE(Window.Effects().EffectSelected[2]);
    });
}

TEST_F(ProjectorStart, ClassesTheEffectsByTheirMeasuredTimes) {
    AddSlides(1);
    Engine.SaveEffectStat(1, 1.2);
    Engine.SaveEffectStat(2, 3);
    Run([&](Projector& Window) {
        EXPECT_EQ(2, Window.Effects().EffectLevels[1]);
        EXPECT_EQ(3, Window.Effects().EffectLevels[2]);
        EXPECT_EQ(1, Window.Effects().EffectLevels[3]);
        EXPECT_EQ(3, Picture->EffectNumber()) << "the first of level 1";
    });
}

TEST_F(ProjectorStart, BeginsWhereTheActiveShowWasLeft) {
    AddSlides(3);
    MakeActive();
    Put("NextSlideSeq", QStringLiteral("2"));
    Run([&](Projector&) {
        EXPECT_EQ(2, CurrentSlideSeq);
        EXPECT_EQ("Slide 2", Caption());
    });
}

TEST_F(ProjectorStart, BeginsAtTheFirstSlideOfAnyOtherShow) {
    AddSlides(3);
    Put("ActiveAlbum", QString::number(Album));
    Put("ActiveSlideShow", QString::number(Show + 1));
    Put("NextSlideSeq", QStringLiteral("2"));
    Run([&](Projector&) { EXPECT_EQ(1, CurrentSlideSeq); });
    EXPECT_EQ("2", Setting("NextSlideSeq").toStdString()) << "it is the other show's";
}

TEST_F(ProjectorStart, BeginsAtTheFirstSlideWithNoPlaceKept) {
    AddSlides(3);
    MakeActive();
    Put("NextSlideSeq", QStringLiteral("0"));
    Run([&](Projector&) { EXPECT_EQ(1, CurrentSlideSeq); });
}

TEST_F(ProjectorStart, BeginsAtTheFirstSlideWhenThePlaceKeptIsBeyondTheLast) {
    AddSlides(3);
    MakeActive();
    Put("NextSlideSeq", QStringLiteral("40"));
    Run([&](Projector&) {
        EXPECT_EQ(1, CurrentSlideSeq);
        EXPECT_EQ("Step 1 at the start", Sound.Taken());
    });
}

TEST_F(ProjectorSlide, PrefersTheCaptionOfTheShow) {
    AddSlides(2);
    Detail(1).SlideText = QStringLiteral("Tom & Anna\r\nat the lake");
    Slide(2).SlideText.clear();
    Run([&](Projector& Window) {
        EXPECT_EQ("Tom & Anna at the lake", Caption());
        EXPECT_EQ("Tom && Anna at the lake", Label->text().toStdString());
        Window.NextSlide();
        EXPECT_EQ("", Caption());
    });
}

TEST_F(ProjectorSlide, HandsTheSlidesOwnClipToTheSound) {
    AddSlides(2);
    Slide(1).SoundTrackLoc = QStringLiteral("00000001.wav");
    Slide(1).Override = Slide(1).Repeat = true;
    Slide(2).Override = Slide(2).Repeat = true;
    Run([&](Projector& Window) {
        EXPECT_EQ("Step 1 00000001.wav override repeat at the start", Sound.Taken());
        Window.NextSlide();
        EXPECT_EQ("Step 2 by the user", Sound.Taken()) << "without a clip the flags are false";
    });
}

TEST_F(ProjectorSlide, IsToldWithItsPlaceAndCaptionByThePictureThatHasTheKeys) {
    AddSlides(2);
    Slide(2).SlideText.clear();
    Run([&](Projector& Window) {
        Spin(20);
        EXPECT_EQ("Slide 1 of 2: Slide 1", Picture->accessibleName().toStdString());
        EXPECT_EQ(Picture, Window.focusWidget());
        Window.NextSlide();
        Spin(20);
        EXPECT_EQ("Slide 2 of 2", Picture->accessibleName().toStdString());
        const auto* Told = QAccessible::queryAccessibleInterface(Picture);
        EXPECT_EQ(QAccessible::Graphic, Told->role());
    });
}

TEST_F(ProjectorSlide, IsToldToBePausedWhileTheShowWaits) {
    AddSlides(2);
    Run([&](Projector& Window) {
        Spin(20);
        Window.PlayPause();
        EXPECT_EQ("Paused. Slide 1 of 2: Slide 1", Picture->accessibleName().toStdString());
        Window.PlayPause();
        EXPECT_EQ("Slide 1 of 2: Slide 1", Picture->accessibleName().toStdString());
    });
}

struct StillDesktop : MotionWish {
    StillDesktop() { TheMotionWish() = this; }
    ~StillDesktop() override { TheMotionWish() = nullptr; }
    bool IsStill() const override { return Is; }
    bool Is = true;
};

TEST_F(ProjectorSlide, FadesForAsLongAsTheDesktopStandsStill) {
    AddSlides(4);
    StillDesktop Desktop;
    Run([&](Projector& Window) {
        for (int I = 0; I < 2; ++I) {
            Window.NextSlide();
            EXPECT_EQ(1, Picture->EffectNumber());
        }
        Desktop.Is = false;
        Window.NextSlide();
        EXPECT_EQ(4, Picture->EffectNumber());
    });
}

TEST_F(ProjectorSlide, WalksTheEffectsAtTheirLevelsSpeed) {
    AddSlides(3);
    Put("DelayL", QStringLiteral("40"));
    Put("StepL", QStringLiteral("50"));
    Run([&](Projector& Window) {
        EXPECT_EQ(1, Picture->EffectNumber());
        EXPECT_EQ(40, Picture->EffectDelay());
        EXPECT_EQ(50, Picture->EffectStep());
        EXPECT_TRUE(Picture->ShowOptionA() && Picture->ShowOptionB() && Picture->ShowOptionC() &&
                    Picture->ShowOptionD());
        EXPECT_TRUE(Picture->IsRunning());
        Window.NextSlide();
        EXPECT_EQ(2, Picture->EffectNumber());
        EXPECT_EQ(2, Window.Effects().CurrentEffect);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !Picture->IsRunning(); }, 500));
    });
}

TEST_F(ProjectorSlide, ChangesPlainlyWithNoEffectSelected) {
    AddSlides(2);
    Put("UseEffectLevel", QStringLiteral("False"));
    for (int Place = 1; Place <= 127; ++Place)
        Put(qPrintable(QStringLiteral("Effect.%1").arg(Place, 3, 10, QLatin1Char('0'))),
            QStringLiteral("False"), QStringLiteral("Effect Selections"));
    Run([&](Projector& Window) {
        Picture->SetEffectNumber(55);
        Window.NextSlide();
        EXPECT_EQ(55, Picture->EffectNumber()) << "no number is given";
        EXPECT_EQ(0, Picture->EffectDelay());
        EXPECT_EQ(100, Picture->EffectStep());
        EXPECT_EQ(0, Window.Effects().CurrentEffect);
    });
}

TEST_F(ProjectorSlide, ChangesPlainlyAtLevelZeroAndGivesNoNumber) {
    AddSlides(2);
    Put("MaxEffectLevel", QStringLiteral("0"));
    Run([&](Projector& Window) {
        Picture->SetEffectNumber(55);
        Window.NextSlide();
        EXPECT_EQ(55, Picture->EffectNumber());
        EXPECT_EQ(100, Picture->EffectStep());
    });
}

TEST_F(ProjectorSlide, ReadsTheNextPictureAhead) {
    AddSlides(3);
    Run([&](Projector&) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return Read().size() >= 2; }, 900));
        EXPECT_EQ((std::vector{PicturePath(1), PicturePath(2)}), Read());
    });
}

TEST_F(ProjectorSlide, ReadsTheFirstPictureAheadOnTheLastSlide) {
    AddSlides(2);
    MakeActive();
    Put("NextSlideSeq", QStringLiteral("2"));
    Run([&](Projector&) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return Read().size() >= 2; }, 900));
        EXPECT_EQ((std::vector{PicturePath(2), PicturePath(1)}), Read());
    });
}

TEST_F(ProjectorSlide, FindsAPictureWhoseNameDiffersInCase) {
    AddSlides(1);
    Slide(1).SlideLoc = Slide(1).SlideLoc.toUpper();
    Run([&](Projector&) { EXPECT_EQ("Slide 1", Caption()); });
}

TEST_F(ProjectorSlide, ShowsAPictureThatLiesOutsideTheAlbum) {
    AddSlides(1);
    const QString Outside = Folder / QStringLiteral("outside/lake.bmp");
    MakePicture(Outside, Qt::red);
    Slide(1).SlideLoc = Outside;
    Run([&](Projector& Window) {
        EXPECT_EQ("Slide 1", Caption());
        EXPECT_EQ(Outside.toStdString(), Window.CurrentFile().toStdString());
    });
}

TEST_F(ProjectorFailure, GoesOnWithTheStandInForAMissingPicture) {
    AddSlides(3);
    Detail(2).SlideText = QStringLiteral("Second");
    DeleteFile(PicturePath(2));
    DeleteFile(PicturePath(3));
    Run([&](Projector& Window) {
        EXPECT_EQ(1, Window.Effects().CurrentEffect);
        Window.NextSlide();
        EXPECT_EQ("Second: Current slide missing!", Caption());
        EXPECT_EQ(100, Picture->EffectDelay());
        EXPECT_EQ(100, Picture->EffectStep());
        EXPECT_EQ(1, Window.Effects().CurrentEffect) << "the effect does not move";
        EXPECT_EQ(1, Picture->EffectNumber());
        EXPECT_EQ((AppPath() + QStringLiteral("NoSlide.bmp")).toStdString(),
                  Window.CurrentFile().toStdString());
        EXPECT_EQ("Pause/Stop", Words(Window));
        Window.NextSlide();
        EXPECT_EQ("Slide 3: Current slide missing!", Caption());
        EXPECT_EQ(3, CurrentSlideSeq);
        Window.NextSlide();
        EXPECT_EQ("Slide 1", Caption());
        EXPECT_EQ(2, Picture->EffectNumber());
    });
}

TEST_F(ProjectorFailure, TakesAPictureThatCannotBeReadAsMissing) {
    AddSlides(2);
    WriteFile(PicturePath(2), QByteArrayLiteral("no picture at all"));
    Run([&](Projector& Window) {
        Spin(50);
        Window.NextSlide();
        EXPECT_EQ("Slide 2: Current slide missing!", Caption());
        EXPECT_EQ("Pause/Stop", Words(Window));
        EXPECT_EQ(1, Window.Effects().CurrentEffect);
        EXPECT_EQ(2, CurrentSlideSeq);
    });
}

TEST_F(ProjectorFailure, StopsWithoutABoxWhenTheStandInIsMissingAsWell) {
    AddSlides(2);
    DeleteFile(PicturePath(2));
    DeleteFile(AppPath() + QStringLiteral("NoSlide.bmp"));
    Run([&](Projector& Window) {
        Sound.Taken();
        Window.NextSlide();
        EXPECT_EQ("Play/Resume", Words(Window));
        EXPECT_EQ("off off", Timers());
        EXPECT_EQ("Stop", Sound.Taken()) << "and no sound is started";
        EXPECT_EQ("Slide 2: Current slide missing!", Caption());
        EXPECT_EQ(PicturePath(1).toStdString(), Window.CurrentFile().toStdString());
    });
    EXPECT_EQ(0, Boxes.ShownCount());
}

TEST_F(ProjectorFailure, AStepThatCameToNothingIsNoCauseOfALaterOne) {
    AddSlides(2);
    DeleteFile(PicturePath(2));
    DeleteFile(AppPath() + QStringLiteral("NoSlide.bmp"));
    Run([&](Projector& Window) {
        Window.NextSlide();
        MakePicture(PicturePath(2), Qt::green);
        Sound.Taken();
        Window.StopRestart();
        EXPECT_EQ("Play 0|Step 2 again", Sound.Taken());
    });
}

TEST_F(ProjectorFailure, StaysStoppedWhenTheVeryFirstSlideCannotBeShown) {
    AddSlides(1);
    DeleteFile(PicturePath(1));
    WriteFile(AppPath() + QStringLiteral("NoSlide.bmp"), QByteArrayLiteral("damaged"));
    Run([&](Projector& Window) {
        EXPECT_EQ("Play/Resume", Words(Window));
        EXPECT_EQ("off off", Timers());
    });
}

TEST_F(ProjectorFailure, NeedsAShow) {
    Show = 0;
    Boxes.Expect(QStringLiteral("You must have an active slideshow!"), {}, BoxIcon::Plain,
                 BoxAnswer::Ok);
    Run([&](Projector& Window) {
        Spin(10);
        EXPECT_EQ("Play/Resume", Words(Window));
        EXPECT_EQ("off off", Timers());
    });
}

TEST_F(ProjectorFailure, NeedsTheAlbum) {
    Album = 99;
    Boxes.Expect(QStringLiteral("Could not find album."), {}, BoxIcon::Plain, BoxAnswer::Ok);
    Run([&](Projector& Window) {
        Spin(10);
        EXPECT_EQ("Play/Resume", Words(Window));
    });
}

TEST_F(ProjectorFailure, NeedsTheShowInTheAlbum) {
    Show = 99;
    Boxes.Expect(QStringLiteral("The Active Slide Show does not exist!  Please select a new one!"),
                 {}, BoxIcon::Plain, BoxAnswer::Ok);
    Run([&](Projector& Window) {
        Spin(10);
        EXPECT_EQ("Play/Resume", Words(Window));
        EXPECT_TRUE(Window.IsLoaded()) << "a failing show does not close its window";
    });
}

TEST_F(ProjectorFailure, ComesToRestWithAShowThatHasNoSlides) {
    Boxes.Expect(QStringLiteral("Slide #1 of the current slide show does not exist!"), {},
                 BoxIcon::Plain, BoxAnswer::Ok);
    Run([&](Projector& Window) {
        Spin(10);
        EXPECT_EQ("Play/Resume", Words(Window));
        EXPECT_EQ("off off", Timers());
        EXPECT_EQ(0, CurrentSlideSeq);
    });
}

TEST_F(ProjectorFailure, NamesTheFirstSlideWhoseRecordIsMissing) {
    AddSlides(2);
    Detail(1).SlideID = 77;
    Boxes.Expect(QStringLiteral("Slide #1 of the current slide show does not exist!"), {},
                 BoxIcon::Plain, BoxAnswer::Ok);
    Run([&](Projector& Window) {
        Spin(10);
        EXPECT_EQ("Play/Resume", Words(Window));
    });
}

TEST_F(ProjectorFailure, KnowsNoSlideOfAnEarlierRunWhenTheFirstOneFails) {
    AddSlides(1);
    Run([&](Projector&) { EXPECT_EQ(1, CurrentSlideSeq); });
    Detail(1).SlideID = 77;
    Boxes.Expect(QStringLiteral("Slide #1 of the current slide show does not exist!"));
    Run([&](Projector&) {
        Spin(10);
        EXPECT_EQ(0, CurrentSlideSeq);
    });
}

TEST_F(ProjectorFailure, NamesAnyOtherSlideWhoseRecordIsMissing) {
    AddSlides(3);
    Detail(3).SlideID = 77;
    Detail(3).SlideText = QStringLiteral("gone");
    Run([&](Projector& Window) {
        Boxes.Expect(QStringLiteral("Slide #3 of the current slide show does not exist!"), {},
                     BoxIcon::Plain, BoxAnswer::Ok);
        Sound.Taken();
        Window.GotoEnd();
        Spin(10);
        EXPECT_EQ("Play/Resume", Words(Window));
        EXPECT_EQ("off off", Timers());
        EXPECT_EQ("Stop", Sound.Taken());
        EXPECT_EQ(3, CurrentSlideSeq);
        EXPECT_EQ("gone", Caption());
        EXPECT_EQ(PicturePath(1).toStdString(), Window.CurrentFile().toStdString())
            << "the picture last shown stays up";
    });
}

TEST_F(ProjectorFailure, StopsTheShowAtOnceAndTellsAfterwards) {
    AddSlides(3);
    Run([&](Projector& Window) {
        Detail(2).SlideID = 77;
        Window.NextSlide();
        EXPECT_EQ("Play/Resume", Words(Window));
        EXPECT_EQ("off off", Timers());
        EXPECT_EQ(0, Boxes.ShownCount());
        Boxes.WhileNextIsOpen([&] {
            EXPECT_EQ("off off", Timers());
            Window.NextSlide();  // to the third: a step sets it going
            EXPECT_EQ("Slide 3", Caption());
        });
        Boxes.Expect(QStringLiteral("Slide #2 of the current slide show does not exist!"));
        Spin(10);
        EXPECT_EQ("Pause/Stop", Words(Window)) << "the answer stops nothing";
        EXPECT_EQ("Slide 3", Caption());
    });
}

TEST_F(ProjectorFailure, TellsNothingOfAShowThatHasEnded) {
    AddSlides(3);
    Run([&](Projector& Window) {
        Detail(2).SlideID = 77;
        Window.NextSlide();
        Window.Unload();
        Spin(10);
    });
    EXPECT_EQ(0, Boxes.ShownCount());
}

TEST_F(ProjectorFailure, StaysStoppedWhenARestartFails) {
    AddSlides(1);
    Run([&](Projector& Window) {
        Window.StopRestart();
        Detail(1).SlideID = 77;
        Boxes.Expect(QStringLiteral("Slide #1 of the current slide show does not exist!"));
        Window.StopRestart();
        Spin(10);
        EXPECT_EQ("Play/Resume", Words(Window));
        EXPECT_EQ("off off", Timers());
    });
}

TEST_F(ProjectorSlide, OpensTheSoundOfTheSlideAheadWhileThisOneIsUp) {
    AddSlides(3);
    Run([&](Projector& Window) {
        Window.NextSlide();
        Window.NextSlide();
        EXPECT_EQ((std::vector<std::int32_t>{2, 3, 1}), Sound.Ahead);
    });
}

}  // namespace
}  // namespace neb::test
