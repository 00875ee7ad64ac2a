// How a show ends: the place that is kept, and everything that comes back, faults included.
#include "ProjectorRig.h"

#include "controls/forms/ScreenPointer.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb::test {
namespace {

using Projector = frmSlideShowProjector;
using ProjectorEnd = ProjectorRig;

TEST_F(ProjectorEnd, KeepsThePlaceOfTheActiveShow) {
    AddSlides(3);
    MakeActive();
    Run([&](Projector& Window) { Window.NextSlide(); });
    EXPECT_EQ("2", Setting("NextSlideSeq").toStdString()) << "the slide that was on the screen";
    Run([&](Projector&) { EXPECT_EQ("Slide 2", Caption()); });
}

TEST_F(ProjectorEnd, KeepsNoPlaceOfAnyOtherShow) {
    AddSlides(3);
    Run([&](Projector& Window) { Window.NextSlide(); });
    EXPECT_EQ("none", Setting("NextSlideSeq").toStdString());
}

TEST_F(ProjectorEnd, KeepsNoPlaceOfARunThatBeganWhereItWasTold) {
    AddSlides(3);
    MakeActive();
    Put("NextSlideSeq", QStringLiteral("2"));
    WhenStarted([&](Projector& Window) {
        EXPECT_EQ("Slide 1", Caption());
        Window.PreviousSlide();
    });
    RunSlideShowIn(World(), Album, QStringLiteral("Holiday"), Show, 1);
    EXPECT_EQ("2", Setting("NextSlideSeq").toStdString());
}

TEST_F(ProjectorEnd, LeavesAPlaceThatTheUserHasNamedMeanwhile) {
    AddSlides(3);
    MakeActive();
    Put("NextSlideSeq", QStringLiteral("2"));
    Run([&](Projector& Window) {
        Put("NextSlideSeq", QStringLiteral("3"));
        Window.GotoStart();
    });
    EXPECT_EQ("3", Setting("NextSlideSeq").toStdString());
    Run([&](Projector&) { EXPECT_EQ("Slide 3", Caption()); });
    Run([&](Projector&) { Put("ActiveSlideShow", QStringLiteral("77")); });
    EXPECT_EQ("3", Setting("NextSlideSeq").toStdString()) << "it is another show's by now";
}

TEST_F(ProjectorEnd, StopsTheSoundAndTheTimers) {
    AddSlides(1);
    Run([&](Projector& Window) {
        Sound.Taken();
        Window.Unload();
        EXPECT_EQ("Release", Sound.Taken());
        EXPECT_EQ("off off", Timers());
    });
    EXPECT_EQ("", Sound.Taken()) << "only once";
}

TEST_F(ProjectorEnd, ShowsTheHourglassOnlyWhileItEnds) {
    AddSlides(1);
    std::vector<Pointer> WhileItEnds;
    Sound.OnRelease = [&] { WhileItEnds.push_back(ScreenPointer()); };
    Run([&](Projector&) { EXPECT_EQ(Pointer::Default, ScreenPointer()); });
    EXPECT_EQ((std::vector{Pointer::Hourglass}), WhileItEnds);
    EXPECT_EQ(Pointer::Default, ScreenPointer());
}

TEST_F(ProjectorEnd, IgnoresAFaultOfTheSoundWhileStopping) {
    AddSlides(1);
    MakeActive();
    Sound.OnRelease = [] { throw Fault(QStringLiteral("the device is gone")); };
    Run([&](Projector&) {});
    EXPECT_EQ("1", Setting("NextSlideSeq").toStdString());
    EXPECT_EQ(0, Blanking.Held);
    EXPECT_EQ(Pointer::Default, ScreenPointer());
}

TEST_F(ProjectorEnd, ComesEvenWhenThePlaceCannotBeKept) {
    AddSlides(1);
    MakeActive();
    const auto FullDisk = [&](Projector& Window) {
        SetHostWatcher([](HostStep, const QString& Path, qint64&) {
            throw Fault(QStringLiteral("The disk is full."), Path);
        });
        Window.Unload();
        SetHostWatcher({});
        EXPECT_FALSE(Window.isVisible());
    };
    EXPECT_THROW(Run(FullDisk), Fault);
    EXPECT_EQ(0, Blanking.Held);
    EXPECT_EQ(Pointer::Default, ScreenPointer());
    RunThroughModule(FullDisk);
    EXPECT_TRUE(LoadedForms().empty());
}

TEST_F(ProjectorEnd, ComesAfterAFaultInTheFirstSlide) {
    AddSlides(1);
    Sound.OnStep = [](const SlideSound&, ShowSoundFields&) -> bool {
        throw Fault(QStringLiteral("no sound device"));
    };
    RunSlideShowIn(World(), Album, QStringLiteral("Holiday"), Show);
    EXPECT_EQ(1, Blanking.Asked);
    EXPECT_EQ(0, Blanking.Held);
    EXPECT_EQ(Pointer::Default, ScreenPointer());
    EXPECT_TRUE(LoadedForms().empty());
}

TEST_F(ProjectorEnd, ComesAfterAFaultWhileLoading) {
    AddSlides(1);
    Maker = [](const ShowTeller&) -> std::unique_ptr<ShowSound> {
        throw Fault(QStringLiteral("no sound at all"));
    };
    RunSlideShowIn(World(), Album, QStringLiteral("Holiday"), Show);
    EXPECT_EQ(0, Blanking.Held);
    EXPECT_TRUE(LoadedForms().empty());
}

TEST_F(ProjectorEnd, MayComeWhileAFailureBoxIsOpen) {
    AddSlides(2);
    Run([&](Projector& Window) {
        Detail(2).SlideID = 77;
        Boxes.WhileNextIsOpen([&] { Window.Unload(); });
        Boxes.Expect(QStringLiteral("Slide #2 of the current slide show does not exist!"));
        Window.NextSlide();
        Spin(10);
        EXPECT_FALSE(Window.IsLoaded());
        EXPECT_EQ("off off", Timers());
    });
    EXPECT_EQ(0, Blanking.Held);
}

TEST_F(ProjectorEnd, LeavesTheModuleValuesBehind) {
    AddSlides(3);
    RunThroughModule([&](Projector& Window) { Window.GotoEnd(); });
    EXPECT_EQ(3, CurrentSlideSeq);
    EXPECT_EQ(Show, CurrentSlideShowID);
}

}  // namespace
}  // namespace neb::test
