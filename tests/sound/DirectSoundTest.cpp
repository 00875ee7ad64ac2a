#include <gtest/gtest.h>

#include <QStringList>
#include <cmath>

#include "sound/VolumeScale.h"
#include "sound/clsDirectSound.h"
#include "support/Fault.h"
#include "support/Services.h"

namespace neb {
namespace {

const char* const NothingLoaded = "You must first load a sound file to be played.";
const char* const BadVolume = "Volume must be >0 and <=100";

// A machine of which a test can read what it was asked, and which fails at will.
struct Machine {
    QStringList Calls;
    QStringList Failing;  // the calls that end in an error
    bool Running = false, Repeats = false;
    int Volume = 0;
    double Position = 0, Duration = 20;

    void Note(const QString& Name, const QString& Value = {}) {
        Calls << (Value.isEmpty() ? Name : Name + u' ' + Value);
        if (Failing.contains(Name)) throw Fault(Name + QStringLiteral(" failed"));
    }
    std::string Taken() { return std::exchange(Calls, {}).join(u'|').toStdString(); }
};

class LoggedGraph : public SoundGraph {
  public:
    explicit LoggedGraph(Machine& Of) : mOf(Of) {}
    ~LoggedGraph() override { mOf.Calls << QStringLiteral("Release"); }
    void RenderFile(const QString& Path) override { mOf.Note(QStringLiteral("Render"), Path); }
    void Run() override {
        mOf.Note(QStringLiteral("Run"));
        mOf.Running = true;
    }
    void Pause() override {
        mOf.Note(QStringLiteral("Pause"));
        mOf.Running = false;
    }
    void Stop() override {
        mOf.Note(QStringLiteral("Stop"));
        mOf.Running = false;
    }
    bool IsRunning() const override { return mOf.Running; }
    void PutRepeat(bool On) override { mOf.Repeats = On; }
    void PutVolume(int Hundredths) override {
        mOf.Note(QStringLiteral("Volume"), QString::number(Hundredths));
        mOf.Volume = Hundredths;
    }
    int GetVolume() const override { return mOf.Volume; }
    double GetDuration() const override { return mOf.Duration; }
    double GetCurrentPosition() const override { return mOf.Position; }
    void PutCurrentPosition(double Seconds) override {
        mOf.Note(QStringLiteral("Position"), QString::number(Seconds));
        mOf.Position = Seconds;
    }

  private:
    Machine& mOf;
};

class LoggedDevices : public SoundDevices, public Machine {
  public:
    std::unique_ptr<SoundGraph> CreateGraph() override {
        Note(QStringLiteral("Create"));
        return std::make_unique<LoggedGraph>(*this);
    }
    std::shared_ptr<void> Hold() override { return Held; }
    void LoadAhead(const QString& Path) override { Note(QStringLiteral("Ahead"), Path); }
    std::unique_ptr<CaptureDevice> CreateCapture() override { return nullptr; }
    PlaybackState CheckPlayback() override { return PlaybackState::Missing; }
    std::unique_ptr<SoundGraph> CreateSoundBuffer(const WaveFormat&, const QByteArray&) override {
        return nullptr;
    }

    const std::shared_ptr<int> Held = std::make_shared<int>();
};

class DirectSound : public ::testing::Test {
  protected:
    void Load() {
        ASSERT_TRUE(Sound.LoadFile(QStringLiteral("a.mp3")));
        Devices.Calls.clear();
    }
    std::string Error() const { return Sound.LastError().toStdString(); }
    void LeaveAnError() {
        Sound.SetVolume(101);
        ASSERT_EQ(Error(), BadVolume);
    }

    LoggedDevices Devices;
    clsDirectSound Sound{&Devices};
};

TEST_F(DirectSound, AFileIsRenderedAndNotPlayed) {
    EXPECT_TRUE(Sound.LoadFile(QStringLiteral("a.wav")));
    EXPECT_EQ(Devices.Taken(), "Create|Render a.wav");
    EXPECT_EQ(Sound.SoundFile(), QStringLiteral("a.wav"));
    EXPECT_FALSE(Sound.IsPlaying());
    EXPECT_EQ(Sound.Duration(), 20);
}

TEST_F(DirectSound, TheEarlierFileGoesBeforeTheNewOneIsMade) {
    Load();
    Sound.Play(true);
    Devices.Calls.clear();
    EXPECT_TRUE(Sound.LoadFile(QStringLiteral("b.mp3")));
    EXPECT_EQ(Devices.Taken(), "Release|Create|Render b.mp3");
    EXPECT_FALSE(Sound.RepeatFlag());
}

TEST_F(DirectSound, TheSameFileCanBeLoadedAgainByItsOwnName) {
    Load();
    EXPECT_TRUE(Sound.LoadFile(Sound.SoundFile()));
    EXPECT_EQ(Devices.Taken(), "Release|Create|Render a.mp3");
    EXPECT_EQ(Sound.SoundFile(), QStringLiteral("a.mp3"));
}

TEST_F(DirectSound, AFailedLoadKeepsThePathAndHasNothingLoaded) {
    Load();
    LeaveAnError();
    Devices.Failing << QStringLiteral("Render");
    EXPECT_FALSE(Sound.LoadFile(QStringLiteral("bad.mp3")));
    EXPECT_EQ(Sound.SoundFile(), QStringLiteral("bad.mp3"));
    EXPECT_EQ(Error(), "");
    EXPECT_EQ(Sound.Duration(), 0);
    EXPECT_FALSE(Sound.Play(false));
    EXPECT_EQ(Error(), NothingLoaded);
}

TEST_F(DirectSound, AMachineThatMakesNoGraphFailsTheLoad) {
    Devices.Failing << QStringLiteral("Create");
    EXPECT_FALSE(Sound.LoadFile(QStringLiteral("a.mp3")));
    clsDirectSound Silent(nullptr);
    for (clsDirectSound* Each : {&Sound, &Silent}) {
        EXPECT_FALSE(Each->LoadFile(QStringLiteral("b.mp3")));
        EXPECT_EQ(Each->SoundFile(), QStringLiteral("b.mp3"));
        EXPECT_FALSE(Each->IsPlaying());
    }
}

TEST_F(DirectSound, WithNoFileReadingIsNothingAndWritingIsSilent) {
    EXPECT_EQ(Sound.CurrentPosition(), 0);
    EXPECT_EQ(Sound.Duration(), 0);
    EXPECT_FALSE(Sound.IsPlaying());
    EXPECT_NO_THROW(Sound.SetCurrentPosition(-5));
    EXPECT_TRUE(Sound.StopSound());
    EXPECT_TRUE(Sound.PauseSound());
    Sound.CheckRepeat();
    Sound.UnloadFile();
    EXPECT_EQ(Error(), "");
    EXPECT_EQ(Devices.Taken(), "");
}

TEST_F(DirectSound, WithNoFilePlayAndTheVolumesSayWhatIsMissing) {
    EXPECT_FALSE(Sound.Play(true));
    EXPECT_EQ(Error(), NothingLoaded);
    EXPECT_FALSE(Sound.RepeatFlag());
    LeaveAnError();
    Sound.SetVolume(50);
    EXPECT_EQ(Error(), NothingLoaded);
    LeaveAnError();
    EXPECT_EQ(Sound.GetVolume(), -1);
    EXPECT_EQ(Error(), NothingLoaded);
}

TEST_F(DirectSound, VolumesBecomeHundredthsOfADecibel) {
    const struct {
        int Value, Hundredths;
    } Table[] = {{100, 0},    {99, -25},   {75, -625},  {50, -1250}, {35, -1625},
                 {33, -1676}, {20, -2111}, {10, -2713}, {1, -4713},  {0, -10000}};
    Load();
    for (const auto& Row : Table) {
        Sound.SetVolume(Row.Value);
        EXPECT_EQ(Error(), "");
        EXPECT_EQ(Sound.GetVolume(), Row.Hundredths) << Row.Value;
    }
}

// What fades out by steps of one has no step that is heard: each level lies within a hundredth of
// its neighbours, and the last is silence.
TEST_F(DirectSound, VolumesFallToSilenceWithoutAStep) {
    Load();
    double Above = 1;
    for (int Value = 99; Value >= 0; --Value) {
        Sound.SetVolume(Value);
        const int Hundredths = Sound.GetVolume();
        const double Level = Value == 0 ? 0 : std::pow(10.0, Hundredths / 2000.0);
        EXPECT_LT(Level, Above) << Value;
        EXPECT_LT(Above - Level, 0.029) << Value;
        if (Value < 34) {
            EXPECT_NEAR(0.0044, Above - Level, 0.0001) << Value;
        }
        Above = Level;
    }
    EXPECT_EQ(-10000, Sound.GetVolume());
}

TEST_F(DirectSound, VolumesOutsideTheRangeChangeNothing) {
    Load();
    for (const int Value : {-1, 101, 2000}) {
        Sound.SetVolume(50);
        Devices.Calls.clear();
        Sound.SetVolume(Value);
        EXPECT_EQ(Error(), BadVolume);
        EXPECT_EQ(Devices.Taken(), "");
    }
    Sound.SetVolume(0);
    EXPECT_EQ(Error(), "");
}

TEST_F(DirectSound, PlayRunsFromWhereItStandsAndClearsTheError) {
    Load();
    LeaveAnError();
    Devices.Position = 7;
    EXPECT_TRUE(Sound.Play(true));
    EXPECT_EQ(Error(), "");
    EXPECT_EQ(Devices.Taken(), "Run");
    EXPECT_EQ(Sound.CurrentPosition(), 7);
    EXPECT_TRUE(Sound.IsPlaying());
    EXPECT_TRUE(Sound.RepeatFlag());
    EXPECT_TRUE(Devices.Repeats) << "the player does so by itself";
    Sound.Play(false);
    EXPECT_FALSE(Sound.RepeatFlag());
    EXPECT_FALSE(Devices.Repeats);
}

TEST_F(DirectSound, StopGoesBackToTheStartFirst) {
    Load();
    Sound.Play(true);
    Devices.Position = 7;
    Devices.Calls.clear();
    EXPECT_TRUE(Sound.StopSound());
    EXPECT_EQ(Devices.Taken(), "Position 0|Stop");
    EXPECT_FALSE(Sound.IsPlaying());
    EXPECT_TRUE(Sound.RepeatFlag());
}

TEST_F(DirectSound, StopStopsEvenWhenThePositionCannotBeSet) {
    Load();
    Sound.Play(false);
    Devices.Failing << QStringLiteral("Position");
    EXPECT_TRUE(Sound.StopSound());
    EXPECT_FALSE(Sound.IsPlaying());
}

TEST_F(DirectSound, APauseIsNotPlayingAndKeepsThePosition) {
    Load();
    Sound.Play(false);
    Devices.Position = 7;
    Devices.Calls.clear();
    EXPECT_TRUE(Sound.PauseSound());
    EXPECT_EQ(Devices.Taken(), "Pause");
    EXPECT_FALSE(Sound.IsPlaying());
    EXPECT_EQ(Sound.CurrentPosition(), 7);
}

TEST_F(DirectSound, ErrorsOfTheMachineAreSwallowedButThatOfAPosition) {
    Load();
    for (const char* Call : {"Run", "Stop", "Pause", "Volume", "Position"})
        Devices.Failing << QString::fromLatin1(Call);
    EXPECT_TRUE(Sound.Play(true));
    EXPECT_TRUE(Sound.RepeatFlag());
    EXPECT_TRUE(Sound.PauseSound());
    EXPECT_TRUE(Sound.StopSound());
    Sound.SetVolume(50);
    EXPECT_EQ(Error(), "");
    EXPECT_THROW(Sound.SetCurrentPosition(3), Fault);
}

TEST_F(DirectSound, ARepeatingSoundStartsAgainAtExactlyItsEnd) {
    Load();
    Sound.Play(true);
    Devices.Position = 20;
    Devices.Calls.clear();
    Sound.CheckRepeat();
    EXPECT_EQ(Devices.Taken(), "Position 0|Stop|Run");
    EXPECT_TRUE(Sound.RepeatFlag());
    EXPECT_TRUE(Sound.IsPlaying());
}

TEST_F(DirectSound, ARepeatingSoundThatIsPausedAtItsEndStaysThere) {
    Load();
    Sound.Play(true);
    Devices.Position = 20;
    Sound.PauseSound();
    Devices.Calls.clear();
    Sound.CheckRepeat();
    EXPECT_EQ(Devices.Taken(), "");
}

TEST_F(DirectSound, AFileThatWasOpenedAsideIsTakenInPlaceOfAnother) {
    Load();
    Sound.Play(true);
    const auto File = Sound.Open(QStringLiteral("b.mp3"));
    OpenedSound Opened = File->Take();
    EXPECT_FALSE(Opened.Exists) << "there is none";
    Devices.Calls.clear();
    EXPECT_TRUE(Sound.TakeFile(QStringLiteral("b.mp3"), std::move(Opened.Graph)));
    EXPECT_EQ(Devices.Taken(), "Release");
    EXPECT_EQ(Sound.SoundFile(), QStringLiteral("b.mp3"));
    EXPECT_FALSE(Sound.RepeatFlag());
    EXPECT_FALSE(Sound.TakeFile(QStringLiteral("c.mp3"), nullptr));
    EXPECT_EQ(Sound.Duration(), 0);
}

TEST_F(DirectSound, ASoundThatStopsShortOfItsEndDoesNotRepeat) {
    Load();
    Sound.Play(true);
    Devices.Position = std::nextafter(20.0, 0.0);
    Devices.Calls.clear();
    Sound.CheckRepeat();
    EXPECT_EQ(Devices.Taken(), "");
}

TEST_F(DirectSound, NeitherAnUnrepeatedNorAnUnstartedSoundRepeats) {
    Load();
    Devices.Position = 20;
    Sound.CheckRepeat();
    EXPECT_EQ(Devices.Taken(), "");
    Sound.Play(false);
    Devices.Calls.clear();
    Sound.CheckRepeat();
    EXPECT_EQ(Devices.Taken(), "");
}

TEST_F(DirectSound, ANewFileHasToBePlayedBeforeItRepeats) {
    Load();
    Sound.Play(true);
    Load();
    Devices.Position = 20;
    Sound.CheckRepeat();
    EXPECT_EQ(Devices.Taken(), "");
}

TEST_F(DirectSound, UnloadReleasesAndForgets) {
    Load();
    Sound.Play(true);
    Devices.Calls.clear();
    Sound.UnloadFile();
    EXPECT_EQ(Devices.Taken(), "Release");
    EXPECT_EQ(Sound.SoundFile(), QString());
    EXPECT_FALSE(Sound.RepeatFlag());
    EXPECT_EQ(Sound.Duration(), 0);
}

TEST_F(DirectSound, TheEndOfTheObjectReleasesTheFile) {
    {
        clsDirectSound Short(&Devices);
        Short.LoadFile(QStringLiteral("a.mp3"));
        Devices.Calls.clear();
    }
    EXPECT_EQ(Devices.Taken(), "Release");
}

TEST_F(DirectSound, TheDevicesAreHeldFromTheFirstFileToTheEnd) {
    {
        clsDirectSound Show(&Devices);
        EXPECT_EQ(1, Devices.Held.use_count());
        Show.LoadAhead(QStringLiteral("a.mp3"));
        EXPECT_EQ(2, Devices.Held.use_count());
        Show.LoadFile(QStringLiteral("a.mp3"));
        Show.UnloadFile();
        EXPECT_EQ(2, Devices.Held.use_count());
    }
    EXPECT_EQ(1, Devices.Held.use_count());
}

TEST_F(DirectSound, AFileIsOpenedAheadWhereThereIsAMachine) {
    Sound.LoadAhead(QStringLiteral("next.mp3"));
    EXPECT_EQ(Devices.Taken(), "Ahead next.mp3");
    clsDirectSound(nullptr).LoadAhead(QStringLiteral("next.mp3"));
    EXPECT_EQ(Devices.Taken(), "");
}

TEST_F(DirectSound, AVolumeIsToldAsItWasPut) {
    for (int Value = 0; Value <= 100; ++Value)
        EXPECT_EQ(Value, VolumeOfHundredths(HundredthsOfVolume(Value)));
    EXPECT_EQ(99, VolumeOfHundredths(HundredthsOfVolume(99) + 3));
}

}  // namespace
}  // namespace neb
