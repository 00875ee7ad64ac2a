// A running show and the desktop's media keys: what is offered, what is told, what is obeyed.
#include <QDialog>
#include <QTest>

#include "PreferencesRig.h"
#include "support/MediaControls.h"

namespace neb::test {
namespace {

using Projector = frmSlideShowProjector;
using enum MediaStatus::State;

class NotedMedia : public MediaControls {
  public:
    void Offer(MediaPlayer& Player) override { Offered = &Player; }
    void Withdraw(MediaPlayer&) override { Offered = nullptr; }
    void Changed() override { Told.push_back(Offered->Status()); }
    MediaPlayer* Offered = nullptr;
    std::vector<MediaStatus> Told;
};

class ShowRemoteOf : public ProjectorRig {
  protected:
    ShowRemoteOf() {
        TheServices().Media = &Media;
        AddSlides(3);
    }
    ~ShowRemoteOf() override { TheServices().Media = nullptr; }
    // What a media key does, and all that follows.
    void Key(MediaCommand Command) {
        ASSERT_TRUE(Media.Offered);
        Media.Offered->Obey(Command);
        Spin(20);
    }
    MediaStatus Now() { return Media.Offered->Status(); }

    NotedMedia Media;
};

TEST_F(ShowRemoteOf, IsThereAsLongAsTheShow) {
    EXPECT_FALSE(Media.Offered);
    Run([&](Projector&) { EXPECT_TRUE(Media.Offered); });
    EXPECT_FALSE(Media.Offered);
}

TEST_F(ShowRemoteOf, SaysWhatIsOnTheScreen) {
    Slide(2).SlideText.clear();
    Run([&](Projector& Window) {
        Spin(20);
        EXPECT_EQ("Slide 1", Now().Title);
        EXPECT_EQ("Lake", Now().Album);
        EXPECT_EQ(1, Now().TrackNumber);
        EXPECT_EQ(PicturePath(1), Now().PictureFile);
        EXPECT_EQ(10, Now().Length);
        EXPECT_TRUE(Now().CanGo);
        EXPECT_TRUE(Now().CanPause);
        EXPECT_EQ(Playing, Now().Is);
        Media.Told.clear();
        Window.NextSlide();
        Spin(20);
        ASSERT_EQ(1U, Media.Told.size()) << "once for a whole step";
        EXPECT_EQ("Slide 2 of 3", Media.Told[0].Title) << "it has no caption";
        EXPECT_EQ(2, Media.Told[0].TrackNumber);
    });
}

TEST_F(ShowRemoteOf, ObeysEveryKey) {
    Run([&](Projector& Window) {
        Key(MediaCommand::Next);
        EXPECT_EQ("Slide 2", Caption());
        Key(MediaCommand::Previous);
        Key(MediaCommand::Previous);
        EXPECT_EQ("Slide 3", Caption());
        Key(MediaCommand::Play);
        EXPECT_EQ("Pause/Stop", Words(Window)) << "it plays already";
        Key(MediaCommand::Pause);
        EXPECT_EQ("Resume/Stop", Words(Window));
        EXPECT_EQ(Paused, Media.Told.back().Is);
        Key(MediaCommand::Pause);
        EXPECT_EQ("Resume/Stop", Words(Window));
        Key(MediaCommand::Play);
        EXPECT_EQ("Pause/Stop", Words(Window));
        Key(MediaCommand::PlayPause);
        EXPECT_EQ("Resume/Stop", Words(Window));
        Key(MediaCommand::Stop);
        EXPECT_EQ("Play/Resume", Words(Window));
        EXPECT_EQ(Stopped, Media.Told.back().Is);
        Key(MediaCommand::Stop);
        EXPECT_EQ("Play/Resume", Words(Window)) << "a second stop is none";
        Key(MediaCommand::Play);
        EXPECT_EQ("Pause/Stop", Words(Window));
        EXPECT_EQ("Slide 3", Caption()) << "where it was stopped";
        Key(MediaCommand::Raise);
        Key(MediaCommand::Quit);
        EXPECT_FALSE(Window.IsLoaded());
    });
}

TEST_F(ShowRemoteOf, LeavesAManualShowToItsSteps) {
    SlideShow->ProgressionMethod = 1;
    Run([&](Projector& Window) {
        EXPECT_FALSE(Now().CanPause);
        EXPECT_EQ(0, Now().Length);
        Key(MediaCommand::PlayPause);
        Key(MediaCommand::Pause);
        EXPECT_EQ("Pause/Stop", Words(Window));
        Key(MediaCommand::Next);
        EXPECT_EQ("Slide 2", Caption());
        QTest::keyClick(&Window, Qt::Key_B);
        EXPECT_EQ(Paused, Now().Is);
        Key(MediaCommand::Play);
        EXPECT_EQ("Pause/Stop", Words(Window)) << "behind a black screen it has stood still";
    });
}

TEST_F(ShowRemoteOf, DoesNotSetGoingWhatPreferencesHold) {
    Run([&](Projector& Window) {
        WhenPreferencesOpen([&](frmPreferences&) {
            Key(MediaCommand::Play);
            Key(MediaCommand::Next);
            EXPECT_EQ("Resume/Stop", Words(Window));
            EXPECT_EQ("Slide 1", Caption());
        });
        Window.EditPreferences();
        EXPECT_EQ("Pause/Stop", Words(Window));
        Key(MediaCommand::Next);
        EXPECT_EQ("Slide 2", Caption());
    });
}

TEST_F(ShowRemoteOf, UncoversAShowThatItSetsGoing) {
    Run([&](Projector& Window) {
        const auto Press = [&](Qt::Key Key) { QTest::keyClick(&Window, Key); };
        const auto IsUp = [&](const char* Name) {
            return Window.findChild<QWidget*>(QLatin1String(Name))->isVisible();
        };
        for (const auto& [Key, Part] :
             {std::pair{Qt::Key_B, "BlackSheet"}, {Qt::Key_F1, "KeyCard"}})
            for (const auto& Command :
                 {MediaCommand::Play, MediaCommand::PlayPause, MediaCommand::Next}) {
                Press(Key);
                EXPECT_EQ("Resume/Stop", Words(Window));
                ASSERT_TRUE(IsUp(Part));
                this->Key(Command);
                EXPECT_FALSE(IsUp(Part)) << Part;
                EXPECT_EQ("Pause/Stop", Words(Window)) << Part;
            }
        EXPECT_EQ("Slide 3", Caption());
        Press(Qt::Key_B);
        Key(MediaCommand::Pause);
        EXPECT_TRUE(IsUp("BlackSheet"));
        Press(Qt::Key_B);
        EXPECT_EQ("Resume/Stop", Words(Window));
    });
}

TEST_F(ShowRemoteOf, DoesNotSetGoingWhatPreferencesHoldBehindABoxOfTheirs) {
    Run([&](Projector& Window) {
        WhenPreferencesOpen([&](frmPreferences& Preferences) {
            QDialog Box(&Preferences);
            Box.setModal(true);
            Box.show();
            Key(MediaCommand::Play);
            EXPECT_EQ("Resume/Stop", Words(Window));
        });
        Window.EditPreferences();
    });
}

// Its ticks go on by the real clock and by what a test adds.
class LeapingTicks : public SetClock {
  public:
    double Ticks() const override { return SetClock::Ticks() + Leapt; }
    double Leapt = 0;
};

TEST_F(ShowRemoteOf, CountsTheTimeOfASlideWithoutThePauses) {
    LeapingTicks Clock;
    TheServices().Time = &Clock;
    Run([&](Projector& Window) {
        Spin(20);
        Clock.Leapt += 60'000;
        EXPECT_NEAR(60, Media.Offered->Position(), 20);
        Window.PlayPause();
        Spin(20);
        Clock.Leapt += 600'000;
        EXPECT_NEAR(60, Media.Offered->Position(), 20);
        Window.PlayPause();
        Spin(20);
        Clock.Leapt += 60'000;
        EXPECT_NEAR(120, Media.Offered->Position(), 20);
        Window.NextSlide();
        Spin(20);
        EXPECT_NEAR(0, Media.Offered->Position(), 20) << "another slide";
    });
}

}  // namespace
}  // namespace neb::test
