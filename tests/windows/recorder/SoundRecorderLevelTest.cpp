// The volume of the sound recorder: the level to record at.
#include <QAccessible>

#include "RecorderWindowRig.h"

namespace neb::test {
namespace {

using SoundRecorderLevel = SoundRecorderWindow;

TEST_F(SoundRecorderLevel, TheVolumeIsTheLevelToRecordAt) {
    Open([&] {
        In<QSlider>("sdrVolume").setValue(74);
        Press("cmdRecord");
        mSound.Buffer->Feed(QByteArray(300, '\x90'));
        In<QSlider>("sdrVolume").setValue(26);
        mSound.Buffer->Feed(QByteArray(300, '\x90'));
        Press("cmdStop");
        In<QSlider>("sdrVolume").setValue(1);
        Press("cmdSave");
    });
    EXPECT_EQ(ReadFile(SavePath()).mid(44),
              QByteArray(300, '\xA0') + QByteArray(300, '\x88') + '\x80' + '\0');
}

TEST_F(SoundRecorderLevel, TheMeterShowsTheLevelThatIsRecorded) {
    Open([&] {
        const LevelMeter& Meter = In<LevelMeter>("lvlSound");
        Press("cmdRecord");
        mSound.Buffer->Feed(QByteArray(22050, '\x90'));
        EXPECT_TRUE(QTest::qWaitFor([&] { return Meter.Shown() > 0.5; }));
        const double AsItComes = Meter.Shown();
        In<QSlider>("sdrVolume").setValue(100);
        mSound.Buffer->Feed(QByteArray(22050, '\x90'));
        EXPECT_TRUE(QTest::qWaitFor([&] { return Meter.Shown() > AsItComes + 0.2; }));
    });
}

TEST(LevelMeter, TellsItsLevelToThoseWhoAskForIt) {
    LevelMeter Meter;
    Meter.SetLevel(1);
    auto& Told = *QAccessible::queryAccessibleInterface(&Meter);
    EXPECT_EQ(QAccessible::ProgressBar, Told.role());
    EXPECT_EQ("100 percent", Told.text(QAccessible::Value).toStdString());
    ASSERT_TRUE(Told.valueInterface());
    EXPECT_EQ(100, Told.valueInterface()->currentValue().toInt());
    Meter.Clear();
    EXPECT_EQ(0, Told.valueInterface()->currentValue().toInt());
}

TEST_F(SoundRecorderLevel, AVolumeThatIsNoneIsTold) {
    Open([&] {
        auto& Volume = In<QSlider>("sdrVolume");
        QTest::keyClick(&Volume, Qt::Key_End);
        EXPECT_EQ(0, mBoxes.ShownCount());
        Volume.setMaximum(150);
        mBoxes.Expect("Volume must be >0 and <=100", {}, BoxIcon::Plain, BoxAnswer::Ok);
        QTest::keyClick(&Volume, Qt::Key_End);
    });
    EXPECT_EQ(1, mBoxes.ShownCount());
}

}  // namespace
}  // namespace neb::test
