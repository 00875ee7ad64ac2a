// A show whose sounds lie in a folder that does not answer: neither the window nor Esc waits.

#include <QTest>

#include "ProjectorRig.h"
#include "db/modAlbumFiles.h"
#include "harness/Heartbeat.h"
#include "harness/SoundFiles.h"
#include "harness/StalledSound.h"
#include "sound/devices/SdlSoundDevices.h"
#include "support/files/modHostFiles.h"

namespace neb::test {
namespace {

class StalledSoundShow : public ProjectorRig {
  protected:
    StalledSoundShow() {
        qputenv("SDL_AUDIODRIVER", "dummy");
        TheServices().Sound = &mStalled;
        TheServices().Time = mBefore.Time;
        Maker = DesktopShowWorld().Sound;
        Put("Timeout", QStringLiteral("0.5"));
        AddSlides(4);
        MakeDirs(SoundTracksFolder(Engine.DBPath(), Album));
        for (int Place = 1; Place <= 4; ++Place) {
            const QString Name = QStringLiteral("song%1.wav").arg(Place);
            WriteFile(SoundTracksFolder(Engine.DBPath(), Album) + Name,
                      harness::WaveBytes(harness::Tone(3, 44100), 44100));
            SlideShow->SaveSoundTrack(Place, Name, Place, Place, false, false, false);
        }
    }
    ~StalledSoundShow() override {
        TheServices().Sound = nullptr;
        qunsetenv("SDL_AUDIODRIVER");
    }

    SdlSoundDevices mMachine;
    harness::StalledDevices mStalled{mMachine};
};

TEST_F(StalledSoundShow, GoesOnAndAnswersItsKeys) {
    Run([&](frmSlideShowProjector& Window) {
        harness::Heartbeat Pulse({}, 0);
        EXPECT_TRUE(QTest::qWaitFor([] { return CurrentSlideSeq == 4; }, 8000));
        EXPECT_GE(mStalled.Gate->Waiting, 3) << "of each slide the sound was wanted";
        QTest::keyClick(&Window, Qt::Key_Up);
        EXPECT_EQ(1, CurrentSlideSeq);
        Spin(20);
        QTest::keyClick(&Window, Qt::Key_Escape);
        EXPECT_FALSE(Window.IsLoaded());
        EXPECT_LT(Pulse.LongestStandstill(), 100);
    });
}

}  // namespace
}  // namespace neb::test
