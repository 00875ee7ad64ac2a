#include "show/EngineSound.h"
#include "show/ShowWorld.h"

#include <gtest/gtest.h>

#include <QMap>

#include "db/clsDBEngine.h"
#include "db/clsNEBSlideShow.h"
#include "db/modAlbumFiles.h"
#include "harness/TempFolder.h"
#include "settings/modNEBSlideShow.h"
#include "sound/devices/ClockedSound.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb::test {
namespace {

const auto NoTrack = QStringLiteral("The Sound Track for this group of slides does not exist.");
const auto NoClip = QStringLiteral("The Sound Track for this slide does not exist.");
const auto EmptyTrack =
    QStringLiteral("The Sound Track for this group of slides appears to be empty.");

class StillClock : public Clock {
  public:
    QDateTime Now() const override { return QDate(2004, 5, 6).startOfDay(); }
    double Ticks() const override { return Milliseconds; }
    double Milliseconds = 0;
};

// A show on sound that keeps time and makes none; the length of a file stands in it as text.
class EngineSoundRun : public ::testing::Test {
  protected:
    EngineSoundRun() {
        Engine.SetDBPath(Folder / QStringLiteral("db/"));
        Engine.InitializeDB();
        Sound = std::make_unique<EngineSound>(&Engine, &Devices,
                                              [this](const QString& Text) { Told << Text; });
    }
    ~EngineSoundRun() override { Sound.reset(); }  // what it does then is still noted

    void AddTrack(const QString& Name, std::int32_t First, std::int32_t Last, bool Fit = false,
                  bool Repeat = false) {
        Show.SaveSoundTrack(1, Name, First, Last, Repeat, Fit, false);
    }
    void AddFile(const QString& Dir, const QString& Name, double Seconds) {
        MakeDirs(Dir);
        WriteFile(Dir + Name, QByteArray::number(Seconds));
    }
    void AddSong(const QString& Name, double Seconds) {
        AddFile(SoundTracksFolder(Engine.DBPath(), 7), Name, Seconds);
    }
    void AddClip(const QString& Name, double Seconds) {
        AddFile(SlidesFolder(Engine.DBPath(), 7), Name, Seconds);
    }
    SlideSound Slide(std::int32_t Seq, const QString& Clip = {}, bool Override = false) {
        return {7, &Show, Seq, Clip, Override, false};
    }
    bool Step(std::int32_t Seq, const QString& Clip = {}, bool Override = false,
              StepCause Cause = StepCause::Timer) {
        Fields.FitToSong = Fields.FadeOnLast = Fields.TrackEndsHere = false;
        Fields.SlideInterval = 12;
        return Sound->SoundStep(Slide(Seq, Clip, Override), Cause, Fields);
    }
    void Pass(double Seconds) { Time.Milliseconds += Seconds * 1000; }
    // What happened since the last call: "run song.mp3 0|moved song.mp3 30".
    std::string Taken() { return std::exchange(mEvents, {}).join(u'|').toStdString(); }

    harness::TempFolder Folder;
    QStringList Told;
    StillClock Time;
    clsDBEngine Engine;
    clsNEBSlideShow Show;
    ShowSoundFields Fields;
    ClockedSoundDevices Devices{Time,
                                [](const QString& Path) {
                                    bool IsNumber = false;
                                    const double Seconds = ReadFile(Path).toDouble(&IsNumber);
                                    if (!IsNumber) throw Fault(QStringLiteral("No sound."), Path);
                                    return Seconds;
                                },
                                [this](const SoundEvent& Event) { Note(Event); }};
    std::unique_ptr<EngineSound> Sound;

  private:
    void Note(const SoundEvent& Event) {
        using Kind = SoundEvent::Kind;
        static const QMap<Kind, QString> Names = {
            {Kind::LoadedAhead, "ahead"}, {Kind::Loaded, "loaded"},    {Kind::Run, "run"},
            {Kind::Paused, "paused"},     {Kind::Stopped, "stopped"},  {Kind::Moved, "moved"},
            {Kind::Volume, "volume"},     {Kind::Released, "released"}};
        const double Value =
            Event.What == SoundEvent::Kind::Volume ? Event.Hundredths : Event.Position;
        mEvents << QStringLiteral("%1 %2 %3")
                       .arg(Names[Event.What], Event.Path.section(u'/', -1),
                            QString::number(Value));
    }

    QStringList mEvents;
};

const auto Song = QStringLiteral("song.mp3");
const auto Bird = QStringLiteral("bird.wav");
const auto Frog = QStringLiteral("frog.wav");

TEST_F(EngineSoundRun, IsTheSoundOfAShowOnTheDesktop) {
    const std::unique_ptr<ShowSound> Made = DesktopShowWorld().Sound([](const QString&) {});
    EXPECT_NE(dynamic_cast<EngineSound*>(Made.get()), nullptr);
}

TEST_F(EngineSoundRun, ATrackRunsOnThroughItsGroupAndEndsBehindIt) {
    AddSong(Song, 100);
    AddTrack(Song, 1, 2);
    EXPECT_TRUE(Step(1));
    EXPECT_EQ(Taken(), "loaded song.mp3 0|run song.mp3 0");
    Pass(12);
    EXPECT_TRUE(Step(2));
    EXPECT_EQ(Taken(), "");
    Pass(12);
    EXPECT_FALSE(Step(3));
    EXPECT_EQ(Taken(), "released song.mp3 24");
}

TEST_F(EngineSoundRun, ATrackResumesWhereARunOfOverridingClipsCutItOff) {
    AddSong(Song, 100);
    AddClip(Bird, 5);
    AddClip(Frog, 5);
    AddTrack(Song, 1, 4);
    Step(1);
    Pass(12);
    EXPECT_FALSE(Step(2, Bird, true));
    Pass(12);
    EXPECT_FALSE(Step(3, Frog, true));
    Pass(12);
    Taken();
    EXPECT_TRUE(Step(4));
    EXPECT_EQ(Taken(), "released frog.wav 5|loaded song.mp3 0|moved song.mp3 12|run song.mp3 12");
}

TEST_F(EngineSoundRun, AFittedTrackIsPlacedByTheSlideAfterOverridingClips) {
    AddSong(Song, 100);
    AddClip(Bird, 5);
    AddTrack(Song, 1, 10, true);
    Step(1);
    Pass(9);
    Step(2, Bird, true);
    Pass(12);
    Taken();
    Step(3);
    EXPECT_EQ(Taken(), "released bird.wav 5|loaded song.mp3 0|moved song.mp3 20|run song.mp3 20");
    EXPECT_EQ(Fields.SlideInterval, 10);
}

TEST_F(EngineSoundRun, AUsersStepMovesAFittedTrackExactlyToTheSlidesPlace) {
    AddSong(Song, 100);
    AddTrack(Song, 1, 10, true);
    Step(1);
    Pass(31);
    Taken();
    EXPECT_EQ(Fields.SlideInterval, 10);
    Step(4, {}, false, StepCause::User);
    EXPECT_EQ(Taken(), "moved song.mp3 30|run song.mp3 30");
}

TEST_F(EngineSoundRun, AUsersStepOutOfAFadeIsLoudAtOnce) {
    AddSong(Song, 100);
    AddTrack(Song, 1, 10, true);
    Step(1);
    Sound->SetVolume(40);
    Taken();
    Step(4, {}, false, StepCause::User);
    EXPECT_EQ(Taken(), "moved song.mp3 30|volume song.mp3 0|run song.mp3 30");
}

TEST_F(EngineSoundRun, AUsersStepInAGroupThatBeginsLaterMovesOnceToThePlaceInTheTrack) {
    AddSong(Song, 100);
    AddTrack(Song, 3, 12, true);
    Step(3);
    Pass(8);
    Taken();
    Step(4, {}, false, StepCause::User);
    EXPECT_EQ(Taken(), "moved song.mp3 10|run song.mp3 10");
}

TEST_F(EngineSoundRun, AnAutomaticAdvanceLeavesAFittedTrackAlone) {
    AddSong(Song, 100);
    AddTrack(Song, 1, 10, true);
    Step(1);
    Pass(13);
    Taken();
    Step(2);
    EXPECT_EQ(Taken(), "");
}

TEST_F(EngineSoundRun, ARepeatingTrackComesRoundByItself) {
    AddSong(Song, 10);
    AddTrack(Song, 1, 9, false, true);
    Step(1);
    Taken();
    for (int Seconds = 0; Seconds < 40; ++Seconds) {
        Pass(1);
        Sound->CheckRepeat();
    }
    EXPECT_EQ(Taken(), "") << "nothing has to start it";
    Pass(3);
    Sound->SetVolume(100);
    EXPECT_EQ(Taken(), "volume song.mp3 0") << "a level";
    Sound->PauseSound();
    EXPECT_EQ(Taken(), "paused song.mp3 3");
}

TEST_F(EngineSoundRun, NothingIsStartedInAPause) {
    AddSong(Song, 10);
    AddTrack(Song, 1, 9, false, true);
    Step(1);
    Pass(4);
    Sound->PauseSound();
    Taken();
    Pass(20);
    Sound->CheckRepeat();
    Sound->SetVolume(100);
    Step(2);
    EXPECT_EQ(Taken(), "volume song.mp3 0");
    Sound->Play(Fields.SoundRepeat);
    EXPECT_EQ(Taken(), "run song.mp3 4");
}

// A step in a pause does what it would have done, but for the sound itself.
TEST_F(EngineSoundRun, AStepInAPauseMakesTheSoundReadyAtItsPlace) {
    AddSong(Song, 100);
    AddSong(QStringLiteral("next.mp3"), 60);
    AddClip(Bird, 5);
    AddTrack(Song, 1, 10, true);
    AddTrack(QStringLiteral("next.mp3"), 12, 14);
    Step(1);
    Pass(4);
    Sound->PauseSound();
    Taken();
    Step(4, {}, false, StepCause::User);
    EXPECT_EQ(Taken(), "moved song.mp3 30");
    Step(11, Bird, false, StepCause::User);
    EXPECT_EQ(Taken(), "released song.mp3 30|loaded bird.wav 0");
    Step(12, {}, false, StepCause::User);
    EXPECT_EQ(Taken(), "released bird.wav 0|loaded next.mp3 0");
    Step(13, {}, false, StepCause::User);
    Step(12, {}, false, StepCause::User);
    EXPECT_EQ(Taken(), "moved next.mp3 0") << "it comes round to its first slide";
    Pass(100);
    Sound->CheckRepeat();
    Sound->Play(Fields.SoundRepeat);
    EXPECT_EQ(Taken(), "run next.mp3 0");
}

TEST_F(EngineSoundRun, AStopEndsAPause) {
    AddSong(Song, 100);
    AddTrack(Song, 1, 10);
    Step(1);
    Sound->PauseSound();
    Sound->StopSound();
    Taken();
    Step(2, {}, false, StepCause::User);
    EXPECT_EQ(Taken(), "run song.mp3 0");
}

TEST_F(EngineSoundRun, PauseStopAndVolumeReachTheSound) {
    AddSong(Song, 100);
    AddTrack(Song, 1, 9);
    Step(1);
    Pass(4);
    Taken();
    Sound->PauseSound();
    Sound->Play(false);
    Sound->SetVolume(50);
    Sound->StopSound();
    EXPECT_EQ(Taken(),
              "paused song.mp3 4|run song.mp3 4|volume song.mp3 -1250|moved song.mp3 0|"
              "stopped song.mp3 0");
}

TEST_F(EngineSoundRun, MissingFilesAreToldAndTheOldSoundIsGone) {
    AddSong(Song, 100);
    AddTrack(Song, 1, 1);
    AddTrack(QStringLiteral("none.mp3"), 2, 2);
    Step(1);
    Taken();
    EXPECT_TRUE(Step(2));
    EXPECT_EQ(Taken(), "released song.mp3 0");
    EXPECT_FALSE(Step(3, Bird, false));
    EXPECT_FALSE(Step(4, Bird, true));
    EXPECT_EQ(Taken(), "");
    EXPECT_EQ(Told, QStringList({NoTrack, NoClip, NoClip}));
}

TEST_F(EngineSoundRun, AFittedTrackThatCannotBePlayedIsToldAsEmpty) {
    AddFile(SoundTracksFolder(Engine.DBPath(), 7), Song, 0);
    WriteFile(SoundTracksFolder(Engine.DBPath(), 7) + Song, "noise");
    AddTrack(Song, 1, 9, true);
    EXPECT_TRUE(Step(1));
    EXPECT_EQ(Told, QStringList({EmptyTrack}));
    EXPECT_EQ(Fields.SlideInterval, 12);
    EXPECT_EQ(Taken(), "");
}

TEST_F(EngineSoundRun, AReleasedSoundDoesNothingMore) {
    AddSong(Song, 100);
    AddTrack(Song, 1, 9);
    Step(1);
    Taken();
    Sound->Release();
    EXPECT_EQ(Taken(), "moved song.mp3 0|stopped song.mp3 0|released song.mp3 0");
    const ShowSoundFields Before = Fields;
    EXPECT_FALSE(Sound->SoundStep(Slide(2), StepCause::Timer, Fields));
    EXPECT_FALSE(Sound->TakeLate(5, Fields));
    Sound->Play(true);
    Sound->PauseSound();
    Sound->StopSound();
    Sound->SetVolume(10);
    Sound->CheckRepeat();
    Sound->LoadAhead(Slide(2));
    Sound->Release();
    EXPECT_EQ(Taken(), "");
    EXPECT_EQ(Fields.SavedSoundSeq, Before.SavedSoundSeq);
}

TEST_F(EngineSoundRun, TheNextSoundIsOpenedAheadUnlessItIsLoaded) {
    AddSong(Song, 100);
    AddClip(Bird, 5);
    AddTrack(Song, 1, 3);
    Sound->LoadAhead(Slide(1));
    EXPECT_EQ(Taken(), "ahead song.mp3 0");
    Step(1);
    Taken();
    Sound->LoadAhead(Slide(2));
    Sound->LoadAhead(Slide(4));
    EXPECT_EQ(Taken(), "");
    Sound->LoadAhead(Slide(4, Bird));
    EXPECT_EQ(Taken(), "ahead bird.wav 0");
}

TEST_F(EngineSoundRun, AFileThatIsDeletedPlaysOnInItsGroupAndIsMissedWhenItIsWantedAgain) {
    AddSong(Song, 100);
    AddTrack(Song, 1, 3);
    Step(1);
    Taken();
    DeleteFile(SoundTracksFolder(Engine.DBPath(), 7) + Song);
    EXPECT_TRUE(Step(2));
    EXPECT_EQ(Taken(), "");
    Step(4);
    EXPECT_EQ(Taken(), "released song.mp3 0");
    EXPECT_TRUE(Step(1));
    EXPECT_EQ(Taken(), "");
    EXPECT_EQ(Told, QStringList({NoTrack}));
}

TEST_F(EngineSoundRun, AFileThatIsReplacedIsMeasuredAnewWhenItIsLoadedAgain) {
    AddSong(Song, 100);
    AddTrack(Song, 1, 2, true);
    Step(1);
    EXPECT_EQ(Fields.SlideInterval, 50);
    AddSong(Song, 30);
    Step(2);
    EXPECT_EQ(Fields.SlideInterval, 50) << "what plays is still the old one";
    Step(4);
    Step(1);
    EXPECT_EQ(Fields.SlideInterval, 15);
}

TEST_F(EngineSoundRun, AMachineWithoutSoundShowsItsShowInSilence) {
    AddSong(Song, 100);
    AddTrack(Song, 1, 3);
    Sound = std::make_unique<EngineSound>(&Engine, nullptr, [](const QString&) {});
    EXPECT_TRUE(Step(1));
    EXPECT_TRUE(Step(2));
    EXPECT_FALSE(Step(4));
    Sound->LoadAhead(Slide(1));
    EXPECT_EQ(Taken(), "");
}

}  // namespace
}  // namespace neb::test
