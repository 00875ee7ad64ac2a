// Shows in worlds of their own: a rehearsal beside a show on the screen, and boxes behind which the
// show goes on. Real timers and real boxes.
#include <QApplication>
#include <QDeadlineTimer>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include "ProjectorRig.h"
#include "controls/forms/DesktopBoxes.h"
#include "db/modAlbumFiles.h"
#include "settings/modNEBSlideShow.h"
#include "show/EngineSound.h"
#include "show/rehearsal/Rehearsal.h"
#include "sound/devices/ClockedSound.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"
#include "windows/show/frmPreferences.h"

namespace neb::test {
namespace {

using Projector = frmSlideShowProjector;

class ProjectorWorld : public ProjectorRig {
  protected:
    // The machine's own clock: a second is a second.
    ProjectorWorld() { TheServices().Time = mBefore.Time; }

    // A show of another album and another length.
    void MakeOtherShow(std::int32_t& OtherAlbum, std::int32_t& OtherShow) {
        Engine.SaveAlbum(OtherAlbum, QStringLiteral("Other"));
        clsNEBAlbum& In = *Engine.GetAlbum(OtherAlbum);
        In.SaveSlideShow(OtherShow, QStringLiteral("Long"), 0, Engine);
        for (std::int32_t Seq = 1; Seq <= 40; ++Seq) {
            std::int32_t SlideID = 0;
            In.SaveSlide(SlideID, QStringLiteral("Other %1").arg(Seq), {}, {}, false, false,
                         Engine);
            In.GetSlide(SlideID)->SlideLoc = PicturePath(1);
            In.GetSlideShow(OtherShow)->SaveDetail(SlideID, Seq, {});
        }
        In.GetSlideShow(OtherShow)->SaveSoundTrack(1, QStringLiteral("gone.wav"), 3, 4, false,
                                                   false, false);
    }
};

TEST_F(ProjectorWorld, ARehearsalRunsBesideAShowOnTheScreenAndAnOpenWindow) {
    AddSlides(3);
    std::int32_t OtherAlbum = 0, OtherShow = 0;
    MakeOtherShow(OtherAlbum, OtherShow);
    Put("Timeout", QStringLiteral("1"));
    Run([&](Projector& Window) {
        const auto Preferences = NewForm<frmPreferences>();
        Preferences->Load();
        const Services Machine = TheServices();
        Sound.Taken();
        Rehearsal Of(Engine, OtherAlbum, OtherShow);
        Of.Start();
        size_t Seconds = 0;
        while (CurrentSlideSeq < 2 && Seconds < 500) {
            Of.RunFor(1);
            ++Seconds;
            Spin(20);
        }
        EXPECT_EQ(Seconds + 1, Of.Cues().size()) << "a slide for each second of its own clock";
        EXPECT_FALSE(Of.Boxes().empty());
        EXPECT_EQ(0, Boxes.ShownCount()) << "and none on the screen";
        EXPECT_EQ((ShowMemory{2, Show, 1}), TheShowMemory);
        EXPECT_EQ("Slide 2", Caption());
        EXPECT_EQ("Pause/Stop", Words(Window));
        EXPECT_EQ(1, QString::fromStdString(Sound.Taken()).count(QStringLiteral("Step")));
        EXPECT_EQ(1, Preferences->SlideTimeout());
        EXPECT_EQ(Machine.Time, TheServices().Time);
        EXPECT_EQ(Machine.Boxes, TheServices().Boxes);
        EXPECT_EQ(Machine.Sound, TheServices().Sound);
        EXPECT_EQ(&Engine, DBEngine);
        EXPECT_FALSE(ReadOnlyDB);
        Preferences->Unload();
    });
}

// A show with the real player on sounds that keep time and make none, and with the desktop's boxes.
class ProjectorBox : public ProjectorWorld {
  protected:
    ProjectorBox() {
        TheServices().Boxes = &mReal;
        Maker = [this](const ShowTeller& Tell) {
            return std::make_unique<EngineSound>(&Engine, &Devices, Tell);
        };
        Put("Timeout", QStringLiteral("1"));
        MakeDirs(SoundTracksFolder(Engine.DBPath(), Album));
    }
    ~ProjectorBox() override { TheServices().Boxes = &Boxes; }

    void AddTrack(const QString& Name, int First, int Last) {
        SlideShow->SaveSoundTrack(static_cast<std::int32_t>(SlideShow->SoundTracks.size()) + 1,
                                  Name, First, Last, false, false, false);
    }
    void AddSong(const QString& Name) {
        WriteFile(SoundTracksFolder(Engine.DBPath(), Album) + Name, "a minute");
    }
    // Presses OK in the box that is up as soon as that is so; a box that stays up for ten seconds
    // is answered, too.
    void AnswerWhen(std::function<bool()> IsSo) {
        mAnswer.callOnTimeout([this, IsSo, Since = QDeadlineTimer(10000)] {
            auto* Box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!Box || (!IsSo() && !Since.hasExpired())) return;
            EXPECT_FALSE(Since.hasExpired()) << "it stayed up";
            mAnswer.stop();
            Answered = Box->text();
            Box->button(QMessageBox::Ok)->click();
        });
        mAnswer.start(10);
    }

    // "loaded song.wav|run song.wav"
    QStringList Heard;
    QString Answered;
    ClockedSoundDevices Devices{*TheServices().Time,
                                [](const QString& Path) {
                                    ReadFile(Path);  // throws when there is none
                                    return 60.0;
                                },
                                [this](const SoundEvent& Event) { Hear(Event); }};

  private:
    void Hear(const SoundEvent& Event) {
        using Kind = SoundEvent::Kind;
        if (Event.What == Kind::Volume || Event.What == Kind::LoadedAhead) return;
        const char* What = Event.What == Kind::Loaded     ? "loaded "
                           : Event.What == Kind::Run      ? "run "
                           : Event.What == Kind::Released ? "released "
                                                          : "else ";
        Heard << QLatin1String(What) + Event.Path.section(u'/', -1);
    }

    DesktopBoxes mReal;
    QTimer mAnswer;
};

TEST_F(ProjectorBox, TheMusicOfTheSlideThatCameUpBehindABoxPlaysOnWhenItIsAnswered) {
    AddSlides(3);
    AddTrack(QStringLiteral("gone.wav"), 2, 2);
    AddTrack(QStringLiteral("song.wav"), 3, 3);
    AddSong(QStringLiteral("song.wav"));
    Run([&](Projector& Window) {
        AnswerWhen([&] { return CurrentSlideSeq == 3 && Heard.contains(u"run song.wav"); });
        QTest::keyClick(&Window, Qt::Key_Up);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !Answered.isEmpty(); }, 12000));
        EXPECT_EQ("The Sound Track for this group of slides does not exist.",
                  Answered.toStdString());
        EXPECT_EQ("loaded song.wav|run song.wav", Heard.join(u'|').toStdString());
        EXPECT_EQ("Slide 3", Caption());
        EXPECT_EQ("on on", Timers()) << "the newer step's track is watched";
    });
}

TEST_F(ProjectorBox, AStepIsDoneBeforeItsBoxComesUp) {
    AddSlides(3);
    AddTrack(QStringLiteral("song.wav"), 1, 1);
    AddSong(QStringLiteral("song.wav"));
    AddTrack(QStringLiteral("gone.wav"), 2, 3);
    Put("Timeout", QStringLiteral("60"));
    Run([&](Projector& Window) {
        AnswerWhen([&] { return CurrentSlideSeq == 2; });
        QTest::keyClick(&Window, Qt::Key_Up);
        EXPECT_EQ("loaded song.wav|run song.wav|released song.wav", Heard.join(u'|').toStdString());
        EXPECT_EQ("on on", Timers());
        EXPECT_EQ(2, CurrentSlideSeq);
        EXPECT_EQ("", Answered.toStdString());
        EXPECT_TRUE(QTest::qWaitFor([&] { return !Answered.isEmpty(); }, 12000));
    });
}

}  // namespace
}  // namespace neb::test
