// The one-time speed test and what it leaves in the settings file.
#include "program/modMachineSettings.h"

#include <gtest/gtest.h>

#include "controls/forms/Form.h"
#include "controls/forms/ScreenPointer.h"
#include "controls/picture/XShow.h"
#include "harness/HastyClock.h"
#include "harness/ScriptedBoxes.h"
#include "harness/TempFolder.h"
#include "settings/SettingKeys.h"
#include "settings/modNEBSlideShow.h"
#include "support/files/modHostFiles.h"
#include "windows/frame/Openers.h"
#include "windows/show/frmSpeedTest.h"

namespace neb {
namespace {

class MachineSettings : public ::testing::Test {
  protected:
    MachineSettings() {
        SetDocumentsPath(mDocuments.Path());
        TheOpeners().Notice = [this](const QString& Text) { mNotice = Text; };
    }
    ~MachineSettings() override { TheOpeners() = {}; }

    static QString Value(const char* Key) {
        return OpenSettings().GetValue({}, QString::fromLatin1(Key), QStringLiteral("none"));
    }

    static SpeedTestResult Whole(SpeedTestResult Result) {
        Result.IsWhole = true;
        return Result;
    }
    // Of the levels H, M and L: "step/delay" each.
    static std::string Speeds() {
        QStringList All;
        for (const char* Level : {"H", "M", "L"})
            All << Value((std::string("Step") + Level).c_str()) + u'/' +
                       Value((std::string("Delay") + Level).c_str());
        return All.join(u' ').toStdString();
    }

    harness::TempFolder mDocuments;
    QString mNotice;
};

TEST_F(MachineSettings, AMachineThatWasNotMeasuredShowsTransitionsAtSensibleSpeed) {
    EnsureMachineSettings([] { return SpeedTestResult(); });
    for (const char* Key : {"Timeout", "TimeoutH", "TimeoutM", "TimeoutL"})
        EXPECT_EQ(Value(Key), "10") << Key;
    EXPECT_EQ(Speeds(), "4/400 2/200 2/200");
    for (const char* Key : {"AvgTimeH", "AvgTimeM", "AvgTimeL"})
        EXPECT_EQ(Value(Key), "N/A") << Key;
    EXPECT_EQ(Value("MaxEffectLevel"), "2");
    EXPECT_TRUE(mNotice.startsWith("Graphics speed not measured")) << qPrintable(mNotice);
}

TEST_F(MachineSettings, ATestWithoutAnyTimeHasTheDefaultsOfOld) {
    EnsureMachineSettings([] { return Whole({}); });
    EXPECT_EQ(Speeds(), "33/1000 33/1000 33/1000");
    EXPECT_EQ(Value("MaxEffectLevel"), "0");
    EXPECT_EQ(mNotice, "");
}

TEST_F(MachineSettings, AResultIsStoredInItsShortestForm) {
    EnsureMachineSettings([] {
        SpeedTestResult Result;
        Result.Timeout = 12.5;
        Result.TimeoutH = 10;
        Result.StepH = 1;
        Result.DelayH = 100;
        Result.AvgTimeH = 3.25F;
        return Whole(Result);
    });
    EXPECT_EQ(Value("Timeout"), "12.5");
    EXPECT_EQ(Value("TimeoutH"), "10");
    EXPECT_EQ(Value("StepH"), "1");
    EXPECT_EQ(Value("DelayH"), "100");
    EXPECT_EQ(Value("AvgTimeH"), "3.25");
    EXPECT_EQ(Value("AvgTimeM"), "N/A");
    EXPECT_EQ(Value("MaxEffectLevel"), "3");
}

TEST_F(MachineSettings, ATestThatWasCutOffKeepsItsLevelsAndIsNotRunAgain) {
    int Runs = 0;
    const auto CutOff = [&Runs] {
        SpeedTestResult Result;
        Result.StepH = 20;
        Result.DelayH = 100;
        Result.AvgTimeH = 4.5F;
        return ++Runs, Result;
    };
    EnsureMachineSettings(CutOff);
    EnsureMachineSettings(CutOff);
    EXPECT_EQ(Runs, 1);
    for (const char* Key : {"TimeoutH", "TimeoutM", "TimeoutL", "Timeout"})
        EXPECT_EQ(Value(Key), "10") << Key;
    EXPECT_EQ(Speeds(), "20/100 2/200 2/200");
    EXPECT_EQ(Value("MaxEffectLevel"), "2") << "the measured one was too heavy";
}

TEST_F(MachineSettings, TestedAnewAMachineGetsWhatWasMeasuredAndKeepsTheTimeOfItsSlides) {
    clsSettings Settings = OpenSettings();
    StoreMachineSettings(Settings, {});
    Settings.PutValue({}, "Timeout", "6");
    Settings.PutValue({}, "UseEffectLevel", "False");
    Settings.Save();
    SpeedTestResult Quick;
    Quick.StepH = Quick.StepM = Quick.StepL = 1;
    Quick.DelayH = Quick.DelayM = Quick.DelayL = 100;
    Quick.AvgTimeH = Quick.AvgTimeM = Quick.AvgTimeL = 0.5F;
    TestGraphicsSpeed([&] { return Whole(Quick); });
    EXPECT_EQ(Speeds(), "1/100 1/100 1/100");
    EXPECT_EQ(Value("AvgTimeM"), "0.5");
    EXPECT_EQ(Value("MaxEffectLevel"), "3");
    EXPECT_EQ(Value("Timeout"), "6");
    EXPECT_EQ(Value("UseEffectLevel"), "False");
    EXPECT_TRUE(mNotice.endsWith("up to the level Intense.")) << qPrintable(mNotice);
    Quick.Timeout = 12.5;
    TestGraphicsSpeed([&] { return Whole(Quick); });
    EXPECT_EQ(Value("Timeout"), "12.5") << "so long it needs for its transitions";
}

TEST_F(MachineSettings, ATestAnewThatIsLeftChangesNothing) {
    clsSettings Settings = OpenSettings();
    StoreMachineSettings(Settings, {});
    const QByteArray Before = ReadFile(SettingsDir() + INIFileName());
    TestGraphicsSpeed([] {
        SpeedTestResult Half;
        Half.StepH = 100;
        Half.AvgTimeH = 9;
        return Half;
    });
    EXPECT_EQ(Before, ReadFile(SettingsDir() + INIFileName()));
    EXPECT_TRUE(mNotice.contains("all settings stay as they were")) << qPrintable(mNotice);
}

TEST_F(MachineSettings, ATimeoutBelowTenIsNotTaken) {
    clsSettings Settings = OpenSettings();
    SpeedTestResult Result;
    Result.Timeout = 9.9;
    StoreMachineSettings(Settings, Result);
    EXPECT_EQ(Value("Timeout"), "10");
}

TEST_F(MachineSettings, TheKeysStandInTheirOrder) {
    clsSettings Settings = OpenSettings();
    StoreMachineSettings(Settings, {});
    const QString Text = ReadFile(SettingsDir() + INIFileName());
    qsizetype Last = -1;
    for (const char* Key :
         {"TimeoutH", "StepH", "DelayH", "AvgTimeH", "TimeoutM", "StepM", "DelayM", "AvgTimeM",
          "TimeoutL", "StepL", "DelayL", "AvgTimeL", "Timeout="}) {
        const qsizetype At = Text.indexOf(QString::fromLatin1(Key));
        EXPECT_GT(At, Last) << Key;
        Last = At;
    }
}

TEST_F(MachineSettings, ANewInstallationKeepsPicturesAsLargeAsTheLargestScreen) {
    EnsureMachineSettings([] { return SpeedTestResult(); });
    EXPECT_EQ(ReadText(OpenSettings(), Setting::KeepPictures), "Screen");
}

TEST_F(MachineSettings, AnInstallationOfBeforeKeepsPicturesAsItDid) {
    clsSettings Settings = OpenSettings();
    PutText(Settings, Setting::Timeout, "7");
    Settings.Save();
    EnsureMachineSettings([] { return SpeedTestResult(); });
    EXPECT_EQ(ReadText(OpenSettings(), Setting::KeepPictures), "1024x768");
}

TEST_F(MachineSettings, TheTestRunsOnceInTheLifeOfASettingsFile) {
    int Runs = 0;
    const auto Measure = [&Runs] { return ++Runs, SpeedTestResult(); };
    EnsureMachineSettings(Measure);
    EnsureMachineSettings(Measure);
    EXPECT_EQ(Runs, 1);
}

// A window that a fault has torn down did not come to setting it back.
TEST_F(MachineSettings, ThePointerIsSetBackAfterTheTestHoweverItEnded) {
    bool Measured = false;
    EnsureMachineSettings([&] {
        SetScreenPointer(Pointer::Hourglass);
        Measured = true;
        return SpeedTestResult();
    });
    EXPECT_TRUE(Measured);
    EXPECT_EQ(ScreenPointer(), Pointer::Default);
    SetScreenPointer(Pointer::Default);
}

TEST_F(MachineSettings, WithoutThePicturesTheTestIsAbortedAsIfTheUserHadLeftIt) {
    harness::ScriptedBoxes Boxes;
    harness::TempFolder Program;
    AppPathCache = Program.Path();
    Boxes.Expect("Missing Component, Speed Test aborted.", {}, BoxIcon::Plain, BoxAnswer::Ok);
    EnsureMachineSettings();
    AppPathCache.clear();
    EXPECT_EQ(Value("Timeout"), "10");
    EXPECT_EQ(Value("AvgTimeH"), "N/A");
    EXPECT_EQ(Value("MaxEffectLevel"), "2") << "without them, too, a show has its transitions";
    EXPECT_EQ(ScreenPointer(), Pointer::Default);
}

TEST_F(MachineSettings, TheWindowMeasuresAndItsResultsAreStored) {
    harness::ScriptedBoxes Boxes;
    harness::TempFolder Program;
    const harness::HastyClock Clock;  // its time of day stands: everything takes no time at all
    AppPathCache = Program.Path();
    for (const char* Name : {"SpeedTest1.bmp", "SpeedTest2.bmp"}) WriteFile(Program / Name, "x");
    XShow::SetReader([](const QString&) { return QImage(8, 6, QImage::Format_RGB32); });
    Boxes.WhileNextIsOpen([] { LoadedForms().front()->resize(60, 40); });
    Boxes.Expect(SpeedTestQuestion(), "Speed Test Notification", BoxIcon::Information,
                 BoxAnswer::Yes);
    EnsureMachineSettings();
    XShow::SetReader({});
    AppPathCache.clear();
    for (const char* Key : {"StepH", "StepM", "StepL"}) EXPECT_EQ(Value(Key), "1") << Key;
    for (const char* Key : {"DelayH", "DelayM", "DelayL"}) EXPECT_EQ(Value(Key), "100") << Key;
    EXPECT_EQ(Value("TimeoutH"), "10");
    EXPECT_EQ(Value("AvgTimeH"), "N/A") << "no time at all is no result";
    EXPECT_EQ(Value("MaxEffectLevel"), "0");
    EnsureMachineSettings();
    EXPECT_EQ(Boxes.ShownCount(), 1);
    EXPECT_EQ(mNotice, "");
}

TEST(MaxEffectLevel, ALevelIsEarnedBelowFourSecondsAndOnlyWhenMeasured) {
    const struct {
        float H, M, L;
        int Level;
    } Rows[] = {
        {3.99F, 1, 1, 3}, {4.0F, 3.9F, 1, 2}, {0, 3.9F, 1, 2}, {5, 4.0F, 3.9F, 1},
        {0, 0, 3.9F, 1},  {5, 5, 4.0F, 0},    {0, 0, 0, 0},    {-1, -1, -1, 0},
    };
    for (const auto& Row : Rows) {
        SpeedTestResult Result;
        Result.IsWhole = true;
        Result.AvgTimeH = Row.H;
        Result.AvgTimeM = Row.M;
        Result.AvgTimeL = Row.L;
        EXPECT_EQ(MaxEffectLevelFor(Result), Row.Level) << Row.H << ' ' << Row.M << ' ' << Row.L;
    }
}

}  // namespace
}  // namespace neb
