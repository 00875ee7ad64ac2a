#include "show/ShowSettings.h"

#include <gtest/gtest.h>

#include "harness/TempFolder.h"
#include "settings/clsSettings.h"
#include "settings/modNEBSlideShow.h"
#include "support/FlagText.h"

namespace neb {
namespace {

clsSettings With(std::initializer_list<std::pair<const char*, const char*>> Values) {
    clsSettings Settings;
    for (const auto& [Key, Value] : Values)
        Settings.PutValue({}, QString::fromLatin1(Key), QString::fromLatin1(Value));
    return Settings;
}

TEST(FlagValue, IsTrueForItsFewWordsInAnyCaseAndForNothing) {
    for (const char* Yes : {"TRUE", "true", "T", "t", "1", "-1", "Yes", "on", ""})
        EXPECT_TRUE(FlagValue(QString::fromLatin1(Yes))) << Yes;
    for (const char* No : {"FALSE", "F", "0", "2", "NO", "OFF", " TRUE", "wahr", "-"})
        EXPECT_FALSE(FlagValue(QString::fromLatin1(No))) << No;
    EXPECT_TRUE(FlagValue(QString()));
}

TEST(ReadShowSettings, TakesTenSecondsFromAnEmptyFile) {
    const ShowSettings Read = ReadShowSettings(With({}), 1, 1);
    EXPECT_EQ(10, Read.SlideTimeout);
    EXPECT_EQ(0, Read.ResumeSeq);
    EXPECT_FALSE(Read.ResumeValid);
}

TEST(ReadShowSettings, CorrectsATimeoutThatIsNotAboveZero) {
    for (const char* Bad : {"0", "-3", "soon", ""})
        EXPECT_EQ(10, ReadShowSettings(With({{"Timeout", Bad}}), 1, 1).SlideTimeout) << Bad;
    EXPECT_EQ(0.25, ReadShowSettings(With({{"Timeout", "0.25"}}), 1, 1).SlideTimeout);
}

TEST(ReadShowSettings, ResumesOnlyTheActiveShow) {
    const clsSettings Settings =
        With({{"ActiveAlbum", "3"}, {"ActiveSlideShow", "7"}, {"NextSlideSeq", "12"}});
    EXPECT_TRUE(ReadShowSettings(Settings, 3, 7).ResumeValid);
    EXPECT_EQ(12, ReadShowSettings(Settings, 3, 7).ResumeSeq);
    for (const auto& [Album, Show] : {std::pair(3, 8), std::pair(4, 7), std::pair(0, 0)}) {
        EXPECT_FALSE(ReadShowSettings(Settings, Album, Show).ResumeValid);
        EXPECT_EQ(0, ReadShowSettings(Settings, Album, Show).ResumeSeq);
    }
}

TEST(ReadShowSettings, CountsAbsentActiveKeysAsZero) {
    EXPECT_TRUE(ReadShowSettings(With({}), 0, 0).ResumeValid);
}

TEST(KeepPlace, WritesThePlaceOfTheActiveShowUnlessItWasNamedAnewMeanwhile) {
    const harness::TempFolder Folder;
    SetDocumentsPath(Folder.Path());
    const auto Kept = [] {
        return OpenSettings().GetValue({}, "NextSlideSeq", "none").toStdString();
    };
    clsSettings Settings = OpenSettings();
    Settings.PutValue({}, "ActiveAlbum", "3");
    Settings.PutValue({}, "ActiveSlideShow", "7");
    Settings.PutValue({}, "NextSlideSeq", "12");
    Settings.Save();
    KeepPlace(3, 7, 12, 15);
    EXPECT_EQ("15", Kept());
    KeepPlace(3, 7, 12, 16);
    EXPECT_EQ("15", Kept()) << "somebody has written 15 since the show began at 12";
    KeepPlace(3, 8, 0, 2);
    EXPECT_EQ("15", Kept()) << "another show";
}

TEST(ReadEffectSettings, HasDefaultsOfItsOwn) {
    const EffectSettings Read = ReadEffectSettings(With({}), SettingReader::Show);
    EXPECT_TRUE(Read.UseEffectLevel);
    EXPECT_EQ(1, Read.MaxEffectLevel);
    EXPECT_EQ(1000, Read.LevelDelay);
    EXPECT_EQ(25, Read.LevelStep);
    EXPECT_EQ((std::array{1000, 1000, 1000}), (std::array{Read.DelayH, Read.DelayM, Read.DelayL}));
    EXPECT_EQ((std::array{25, 25, 25}), (std::array{Read.StepH, Read.StepM, Read.StepL}));
}

TEST(ReadEffectSettings, TakesTheReadersOwnLevelForOneOutOfRange) {
    for (const char* Bad : {"-1", "4", "99"}) {
        EXPECT_EQ(
            0,
            ReadEffectSettings(With({{"MaxEffectLevel", Bad}}), SettingReader::Show).MaxEffectLevel)
            << Bad;
        EXPECT_EQ(1, ReadEffectSettings(With({{"MaxEffectLevel", Bad}}), SettingReader::Preferences)
                         .MaxEffectLevel)
            << Bad;
    }
    for (const char* Good : {"0", "1", "2", "3"})
        EXPECT_EQ(QString::fromLatin1(Good).toInt(),
                  ReadEffectSettings(With({{"MaxEffectLevel", Good}}), SettingReader::Preferences)
                      .MaxEffectLevel);
}

TEST(ReadEffectSettings, CorrectsDelaysToAThousandAndStepsToTwenty) {
    const EffectSettings Read = ReadEffectSettings(With({{"DelayH", "0"},
                                                         {"DelayM", "-5"},
                                                         {"DelayL", "1"},
                                                         {"StepH", "0"},
                                                         {"StepM", "x"},
                                                         {"StepL", "1"}}),
                                                   SettingReader::Preferences);
    EXPECT_EQ((std::array{1000, 1000, 1}), (std::array{Read.DelayH, Read.DelayM, Read.DelayL}));
    EXPECT_EQ((std::array{20, 20, 1}), (std::array{Read.StepH, Read.StepM, Read.StepL}));
}

TEST(ReadEffectSettings, KeepsTheSpeedOfTheLevelInForce) {
    const std::pair<const char*, std::pair<int, int>> Expected[] = {
        {"0", {30, 3}}, {"1", {30, 3}}, {"2", {20, 2}}, {"3", {10, 1}}};
    for (const auto& [Level, Speed] : Expected) {
        const EffectSettings Read = ReadEffectSettings(With({{"MaxEffectLevel", Level},
                                                             {"DelayH", "10"},
                                                             {"DelayM", "20"},
                                                             {"DelayL", "30"},
                                                             {"StepH", "1"},
                                                             {"StepM", "2"},
                                                             {"StepL", "3"}}),
                                                       SettingReader::Preferences);
        EXPECT_EQ(Speed, std::pair(Read.LevelDelay, Read.LevelStep)) << Level;
    }
}

TEST(ReadEffectSelections, CountsAnEffectWithoutAKeyAsSelected) {
    clsSettings Settings;
    const QString Section = QStringLiteral("Effect Selections");
    Settings.PutValue(Section, QStringLiteral("Effect.007"), QStringLiteral("False"));
    Settings.PutValue(Section, QStringLiteral("Effect.120"), QStringLiteral("no"));
    Settings.PutValue(Section, QStringLiteral("Effect.121"), QStringLiteral("Yes"));
    EffectTables Tables;
    Tables.EffectSelected.fill(false);
    ReadEffectSelections(Settings, Tables);
    for (size_t Place = 1; Place <= 127; ++Place)
        EXPECT_EQ(Place != 7 && Place != 120, Tables.EffectSelected[Place]) << Place;
}

}  // namespace
}  // namespace neb
