// The boxes of a running show as they are: real boxes over the real window, on real timers, with
// nobody there to answer them.
#include "ProjectorRig.h"

#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include "controls/forms/DesktopBoxes.h"
#include "db/modAlbumFiles.h"
#include "show/EngineSound.h"
#include "sound/devices/ClockedSound.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb::test {
namespace {

using Projector = frmSlideShowProjector;

const auto NoClip = QStringLiteral("The Sound Track for this slide does not exist.");
const auto NoTrack = QStringLiteral("The Sound Track for this group of slides does not exist.");
const auto EmptyTrack =
    QStringLiteral("The Sound Track for this group of slides appears to be empty.");

std::vector<QMessageBox*> BoxesThatAreUp() {
    std::vector<QMessageBox*> Up;
    for (QWidget* Each : QApplication::topLevelWidgets())
        if (auto* Box = qobject_cast<QMessageBox*>(Each); Box && Box->isVisible())
            Up.push_back(Box);
    return Up;
}

class ShowBox : public ProjectorRig {
  protected:
    ShowBox() : mScripted(std::exchange(TheServices().Boxes, &mDesktop)) {
        TheServices().Time = mBefore.Time;
        Put("Timeout", QStringLiteral("0.4"));
        AddSlides(6);
    }
    ~ShowBox() override { TheServices().Boxes = mScripted; }

    // The program's own sound, without its noise: every file is a sound of no length at all.
    void PlayInSilence() {
        Maker = [this](const ShowTeller& Tell) {
            return std::make_unique<EngineSound>(&Engine, &mClocked, Tell);
        };
    }
    void AddTrack(const QString& Name, bool Fit) {
        SlideShow->SaveSoundTrack(1, Name, 2, 2, false, Fit, false);
    }
    // As soon as a box is up, in the events that go on behind it.
    void BehindTheBox(std::function<void(QMessageBox& Box)> Do) {
        auto* Look = new QTimer(qApp);
        QObject::connect(Look, &QTimer::timeout, Look, [Look, Do = std::move(Do)] {
            if (BoxesThatAreUp().empty()) return;
            Look->deleteLater();
            Look->stop();
            Do(*BoxesThatAreUp().front());
        });
        Look->start(5);
    }
    static void Answer(QMessageBox& Box) {
        QTest::mouseClick(Box.button(QMessageBox::Ok), Qt::LeftButton);
    }
    // The show of which nobody answers a box goes on, and its keys are alive behind it.
    void ExpectToGoOnBehind(const QString& Text) {
        Run([&](Projector& Window) {
            bool Answered = false;
            BehindTheBox([&](QMessageBox& Box) {
                EXPECT_EQ(Text.toStdString(), Box.text().toStdString());
                const QPointer<QMessageBox> Up = &Box;
                EXPECT_TRUE(QTest::qWaitFor([] { return CurrentSlideSeq == 5; }, 8000))
                    << "the show stands still at " << CurrentSlideSeq;
                EXPECT_TRUE(Up && Up->isVisible()) << "it waits for its answer";
                EXPECT_EQ("Pause/Stop", Words(Window));
                Answered = true;
                Answer(Box);
            });
            EXPECT_TRUE(
                QTest::qWaitFor([&] { return Answered && BoxesThatAreUp().empty(); }, 9000));
            QTest::qWait(50);
            QTest::keyClick(&Window, Qt::Key_P);
            EXPECT_EQ("Resume/Stop", Words(Window));
            const int Before = CurrentSlideSeq;
            QTest::keyClick(&Window, Qt::Key_Down);
            EXPECT_EQ(Before - 1, CurrentSlideSeq);
            QTest::keyClick(&Window, Qt::Key_Escape);
            EXPECT_FALSE(Window.IsLoaded());
        });
    }

    harness::TempFolder mOwn;
    DesktopBoxes mDesktop;
    MessageBoxes* mScripted;
    ClockedSoundDevices mClocked{*mBefore.Time, [](const QString&) { return 0.0; }};
};

TEST_F(ShowBox, AMissingClipDoesNotHoldUpTheShow) {
    PlayInSilence();
    Slide(2).SoundTrackLoc = QStringLiteral("none.wav");
    ExpectToGoOnBehind(NoClip);
}

TEST_F(ShowBox, AMissingClipThatOverridesDoesNotHoldUpTheShow) {
    PlayInSilence();
    Slide(2).SoundTrackLoc = QStringLiteral("none.wav");
    Slide(2).Override = true;
    ExpectToGoOnBehind(NoClip);
}

TEST_F(ShowBox, AMissingTrackDoesNotHoldUpTheShow) {
    PlayInSilence();
    AddTrack(QStringLiteral("none.wav"), false);
    ExpectToGoOnBehind(NoTrack);
}

TEST_F(ShowBox, AnEmptyTrackDoesNotHoldUpTheShow) {
    PlayInSilence();
    AddTrack(QStringLiteral("empty.wav"), true);
    MakeDirs(SoundTracksFolder(Engine.DBPath(), Album));
    WriteFile(SoundTracksFolder(Engine.DBPath(), Album) + QStringLiteral("empty.wav"), "x");
    ExpectToGoOnBehind(EmptyTrack);
}

// A timer whose own work waits in a box does not tick, however the show came to that work.
TEST_F(ShowBox, ATickIsOverBeforeItsBoxComesUp) {
    PlayInSilence();
    AddTrack(QStringLiteral("none.wav"), false);
    Run([&](Projector& Window) {
        Timer1->stop();
        bool Returned = false, Answered = false;
        BehindTheBox([&](QMessageBox& Box) {
            EXPECT_TRUE(Returned);
            Answered = true;
            Answer(Box);
        });
        QTest::qSleep(450);
        Window.Timer1_Timer();
        Returned = true;
        EXPECT_EQ(2, CurrentSlideSeq);
        EXPECT_TRUE(QTest::qWaitFor([&] { return Answered && BoxesThatAreUp().empty(); }, 9000));
    });
}

TEST_F(ShowBox, AFaultInATickDoesNotHoldUpTheShow) {
    Sound.OnStep = [](const SlideSound& Slide, ShowSoundFields&) -> bool {
        if (Slide.SlideSeq == 2) throw Fault(QStringLiteral("The device is on fire."));
        return false;
    };
    ExpectToGoOnBehind(Fault(QStringLiteral("The device is on fire.")).Text());
}

TEST_F(ShowBox, OfTheSameTroubleThereIsOneBoxHoweverOftenItComesRound) {
    PlayInSilence();
    Put("Timeout", QStringLiteral("0.1"));
    for (const int Seq : {2, 4, 5}) Slide(Seq).SoundTrackLoc = QStringLiteral("none.wav");
    Run([&](Projector&) {
        bool Answered = false;
        BehindTheBox([&](QMessageBox& Box) {
            QTest::qWait(1200);  // a round and more
            EXPECT_EQ(1U, BoxesThatAreUp().size());
            Answered = true;
            Answer(Box);
        });
        EXPECT_TRUE(QTest::qWaitFor([&] { return Answered; }, 9000));
    });
}

TEST_F(ShowBox, AShowThatFailsStandsStoppedUnderItsBoxAndItsKeysWorkAfterwards) {
    Detail(2).SlideID = 77;
    Run([&](Projector& Window) {
        bool Answered = false;
        BehindTheBox([&](QMessageBox& Box) {
            EXPECT_EQ("Slide #2 of the current slide show does not exist!",
                      Box.text().toStdString());
            EXPECT_EQ("Play/Resume", Words(Window));
            EXPECT_EQ("off off", Timers());
            Answered = true;
            Answer(Box);
        });
        EXPECT_TRUE(QTest::qWaitFor([&] { return Answered && BoxesThatAreUp().empty(); }, 9000));
        QTest::qWait(50);
        QTest::keyClick(&Window, Qt::Key_Up);
        EXPECT_EQ("Pause/Stop", Words(Window));
        EXPECT_EQ("Slide 3", Caption());
        QTest::keyClick(&Window, Qt::Key_Escape);
        EXPECT_FALSE(Window.IsLoaded());
    });
}

TEST_F(ShowBox, AShowWhoseFirstSlideFailsIsToldOnItsWindow) {
    Detail(1).SlideID = 77;
    bool Answered = false;
    BehindTheBox([&](QMessageBox& Box) {
        EXPECT_EQ(1U, LoadedForms().size());
        Answered = true;
        Answer(Box);
    });
    Run([&](Projector& Window) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return Answered; }, 9000));
        EXPECT_EQ("Play/Resume", Words(Window));
    });
}

}  // namespace
}  // namespace neb::test
