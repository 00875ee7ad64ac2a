// The rules of preferences without their window: what is read, refused, taken over and written.
#include "show/PreferencesState.h"

#include <gtest/gtest.h>

#include <QLocale>
#include <QScopeGuard>

#include "harness/TempFolder.h"
#include "settings/clsSettings.h"
#include "show/ShowSettings.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

using Pairs = std::initializer_list<std::pair<const char*, const char*>>;

clsSettings With(Pairs Values) {
    clsSettings Settings;
    for (const auto& [Key, Value] : Values)
        Settings.PutValue({}, QString::fromLatin1(Key), QString::fromLatin1(Value));
    return Settings;
}

// As a window reads its fields.
std::optional<double> Seconds(const char* Text) {
    return DecimalIn(QString::fromLatin1(Text));
}
SpeedEntry Speed(const char* Step, const char* Delay) {
    return {WholeNumberIn(QString::fromLatin1(Step)), WholeNumberIn(QString::fromLatin1(Delay))};
}

// Entries that pass, to be spoilt one by one.
PreferencesEntries Good() {
    PreferencesEntries Entries;
    Entries.NextSlide = 3;
    Entries.SlideTimeout = 12.5;
    for (SpeedEntry& Each : Entries.Speeds) Each = {25, 1000};
    return Entries;
}

std::string Refusal(const std::optional<EntryProblem>& Problem) {
    return Problem ? Problem->Message.toStdString() : "";
}

constexpr auto BadDelay = "You must enter an integer from 0 to 1000 for the delay.";
constexpr auto BadStep = "You must enter an integer from 1 to 100 for the step.";

TEST(ReadPreferences, HasDefaultsOfItsOwnForAnEmptyFile) {
    const PreferencesState Read = ReadPreferences(With({}));
    EXPECT_EQ(20, Read.SlideTimeout);
    EXPECT_EQ(10, ReadShowSettings(With({}), 1, 1).SlideTimeout) << "the projector's own";
    EXPECT_EQ((std::array{0, 0, 0}),
              (std::array{Read.AlbumID, Read.SlideShowID, Read.NextSlideSeq}));
    EXPECT_TRUE(Read.Effects.UseEffectLevel);
    EXPECT_EQ(1, Read.Effects.MaxEffectLevel);
    for (const EffectLevelRow& Row : EffectLevelRows) {
        EXPECT_EQ(25, Read.Effects.*Row.Step) << Row.Name;
        EXPECT_EQ(1000, Read.Effects.*Row.Delay) << Row.Name;
    }
    for (size_t Effect = 0; Effect <= 127; ++Effect) {
        EXPECT_TRUE(Read.EffectSelected[Effect]) << Effect;
        EXPECT_EQ(1, Read.EffectLevels[Effect]) << Effect;
    }
}

TEST(ReadPreferences, CorrectsWhatIsOutOfRange) {
    const PreferencesState Read = ReadPreferences(With({{"ActiveAlbum", "-1"},
                                                        {"ActiveSlideShow", "-7"},
                                                        {"NextSlideSeq", "-2"},
                                                        {"Timeout", "0"},
                                                        {"MaxEffectLevel", "4"},
                                                        {"DelayL", "0"},
                                                        {"StepH", "0"}}));
    EXPECT_EQ((std::array{0, 0, 0}),
              (std::array{Read.AlbumID, Read.SlideShowID, Read.NextSlideSeq}));
    EXPECT_EQ(20, Read.SlideTimeout);
    EXPECT_EQ(1, Read.Effects.MaxEffectLevel);
    EXPECT_EQ(1000, Read.Effects.DelayL);
    EXPECT_EQ(20, Read.Effects.StepH) << "not the default of a missing key";
}

TEST(ReadPreferences, TakesWhatStandsInTheFile) {
    clsSettings Settings = With({{"ActiveAlbum", "3"},
                                 {"ActiveSlideShow", "8"},
                                 {"NextSlideSeq", "5"},
                                 {"Timeout", "2.5"},
                                 {"UseEffectLevel", "no"},
                                 {"MaxEffectLevel", "3"},
                                 {"StepM", "7"}});
    for (const char* Key : {"Effect.000", "Effect.127"})
        Settings.PutValue(QStringLiteral("Effect Selections"), QString::fromLatin1(Key),
                          QStringLiteral("False"));
    const PreferencesState Read = ReadPreferences(Settings);
    EXPECT_EQ((std::array{3, 8, 5}),
              (std::array{Read.AlbumID, Read.SlideShowID, Read.NextSlideSeq}));
    EXPECT_EQ(2.5, Read.SlideTimeout);
    EXPECT_FALSE(Read.Effects.UseEffectLevel);
    EXPECT_EQ(3, Read.Effects.MaxEffectLevel);
    EXPECT_EQ(7, Read.Effects.StepM);
    for (size_t Effect = 0; Effect <= 127; ++Effect)
        EXPECT_EQ(Effect != 0 && Effect != 127, Read.EffectSelected[Effect]) << Effect;
}

TEST(CheckEntries, WantsANumberForTheTimeout) {
    PreferencesEntries Entries = Good();
    for (const char* Text :
         {"", " ", "soon", "5 s", "5,5", "1,000", "nan", "inf", "1e999", "--5"}) {
        Entries.SlideTimeout = Seconds(Text);
        EXPECT_EQ("The Slide Timeout must be numeric.", Refusal(CheckEntries(Entries))) << Text;
    }
}

TEST(CheckEntries, WantsFourSecondsForTheTimeout) {
    PreferencesEntries Entries = Good();
    for (const char* Text : {"3.9", "3.999999", "0", "-10"}) {
        Entries.SlideTimeout = Seconds(Text);
        EXPECT_EQ("The Slide Timeout must be >= 4 seconds.", Refusal(CheckEntries(Entries)))
            << Text;
    }
    for (const char* Text : {"4", "4.", " 4.0 ", "1e1", "100000"}) {
        Entries.SlideTimeout = Seconds(Text);
        EXPECT_EQ("", Refusal(CheckEntries(Entries))) << Text;
    }
}

TEST(CheckSpeed, TakesIntegersFromZeroToAThousandForTheDelay) {
    for (const char* Good : {"0", "1", " 1000 ", "0007"})
        EXPECT_EQ("", Refusal(CheckSpeed(Speed("25", Good), 1))) << Good;
    for (const char* Bad : {"", "  ", "-1", "-", "1001", "5.0", "1e2", "x", "99999999999"})
        EXPECT_EQ(BadDelay, Refusal(CheckSpeed(Speed("25", Bad), 1))) << Bad;
}

TEST(CheckSpeed, TakesIntegersFromOneToAHundredForTheStep) {
    for (const char* Good : {"1", "100", " 50 "})
        EXPECT_EQ("", Refusal(CheckSpeed(Speed(Good, "0"), 1))) << Good;
    for (const char* Bad : {"0", "101", "", " ", "-5", "2.5", "ten"})
        EXPECT_EQ(BadStep, Refusal(CheckSpeed(Speed(Bad, "0"), 1))) << Bad;
}

TEST(CheckEntries, LooksAtTheTimeoutThenAtEachLevelThenAtDelayBeforeStep) {
    PreferencesEntries Entries = Good();
    Entries.SlideTimeout = Seconds("x");
    for (SpeedEntry& Each : Entries.Speeds) Each = Speed("0", "-1");
    EXPECT_EQ("The Slide Timeout must be numeric.", Refusal(CheckEntries(Entries)));
    Entries.SlideTimeout = 5;
    for (int Level = 1; Level <= 3; ++Level) {
        SpeedEntry& Each = Entries.Speeds[Level - 1];
        EXPECT_EQ(BadDelay, Refusal(CheckEntries(Entries)));
        EXPECT_EQ(Level, CheckEntries(Entries)->Level);
        Each.Delay = 0;
        EXPECT_EQ(BadStep, Refusal(CheckEntries(Entries)));
        EXPECT_EQ(Level, CheckEntries(Entries)->Level);
        Each.Step = 1;
    }
    EXPECT_FALSE(CheckEntries(Entries));
}

TEST(TakeEntries, TakesTheSpeedsOfEachLevel) {
    PreferencesState State;
    PreferencesEntries Entries = Good();
    Entries.Speeds[0] = Speed("1", "0");
    Entries.Speeds[1] = Speed("2 ", " 20");
    Entries.Speeds[2] = Speed("3", "30");
    TakeEntries(State, Entries);
    EXPECT_EQ((std::array{1, 2, 3}),
              (std::array{State.Effects.StepL, State.Effects.StepM, State.Effects.StepH}));
    EXPECT_EQ((std::array{0, 20, 30}),
              (std::array{State.Effects.DelayL, State.Effects.DelayM, State.Effects.DelayH}));
    EXPECT_EQ(12.5, State.SlideTimeout);
    EXPECT_EQ(3, State.NextSlideSeq);
}

TEST(TakeEntries, WithoutAnAlbumKeepsTheShowsNumber) {
    PreferencesState State;
    State.AlbumID = 3;
    State.AlbumName = QStringLiteral("Gone");
    State.SlideShowID = 8;
    TakeEntries(State, Good());
    EXPECT_EQ(0, State.AlbumID);
    EXPECT_EQ("", State.AlbumName);
    EXPECT_EQ(8, State.SlideShowID);
}

TEST(TakeEntries, WithAnAlbumTakesTheShowOrNone) {
    PreferencesState State;
    State.SlideShowID = 8;
    PreferencesEntries Entries = Good();
    Entries.Album = {4, QStringLiteral("Holiday")};
    TakeEntries(State, Entries);
    EXPECT_EQ(4, State.AlbumID);
    EXPECT_EQ("Holiday", State.AlbumName);
    EXPECT_EQ(0, State.SlideShowID);
    Entries.SlideShow = {9, QStringLiteral("Lake")};
    TakeEntries(State, Entries);
    EXPECT_EQ(9, State.SlideShowID);
}

TEST(TakeEntries, CountsANextSlideBelowOneAsZero) {
    PreferencesState State;
    PreferencesEntries Entries = Good();
    for (const auto& [Entered, Expected] : {std::pair(0, 0), {-3, 0}, {1, 1}, {12, 12}}) {
        Entries.NextSlide = Entered;
        TakeEntries(State, Entries);
        EXPECT_EQ(Expected, State.NextSlideSeq) << Entered;
    }
}

TEST(TakeEntries, LeavesTheFlagsOfEffectsAloneThatTheListDoesNotHold) {
    PreferencesState State;
    State.EffectSelected.fill(true);
    State.EffectSelected[0] = false;
    PreferencesEntries Entries = Good();
    Entries.Effects = {{5, false}, {6, true}};
    TakeEntries(State, Entries);
    for (size_t Effect = 0; Effect <= 127; ++Effect)
        EXPECT_EQ(Effect != 0 && Effect != 5, State.EffectSelected[Effect]) << Effect;
}

TEST(PutPreferences, WritesTheKeysInTheirOrder) {
    const harness::TempFolder Folder;
    clsSettings Settings;
    Settings.SetFileName(Folder / QStringLiteral("QLM.ini"));
    PreferencesState State;
    State.AlbumID = 2;
    State.SlideTimeout = 4.25;
    State.EffectSelected.fill(true);
    State.EffectSelected[127] = false;
    State.Effects.UseEffectLevel = false;
    State.Effects.DelayL = 0;
    PutPreferences(Settings, State);
    Settings.Save();
    QStringList Lines;
    for (const QByteArray& Line : ReadFile(Settings.FileName()).split('\n'))
        if (!Line.trimmed().isEmpty()) Lines << QString::fromUtf8(Line.trimmed());
    QStringList Expected = {"ActiveAlbum=2",
                            "ActiveSlideShow=0",
                            "NextSlideSeq=0",
                            "Timeout=4.25",
                            "UseEffectLevel=False",
                            "MaxEffectLevel=1",
                            "DelayH=1000",
                            "DelayM=1000",
                            "DelayL=0",
                            "StepH=25",
                            "StepM=25",
                            "StepL=25",
                            "[Effect Selections]"};
    for (int Effect = 0; Effect <= 127; ++Effect)
        Expected << QStringLiteral("Effect.%1").arg(Effect, 3, 10, QChar(u'0')) +
                        (Effect == 127 ? "=False" : "=True");
    EXPECT_EQ(Expected.join(u'\n').toStdString(), Lines.join(u'\n').toStdString());
    EXPECT_EQ(1000, ReadPreferences(Settings).Effects.DelayL) << "a delay of 0 is not read back";
}

TEST(PutPreferences, IsReadBackTheSame) {
    clsSettings Settings;
    PreferencesState State = ReadPreferences(Settings);
    State.ShowScreen = "HDMI-1|Beamer";
    State.AlbumID = 2;
    State.SlideShowID = 3;
    State.NextSlideSeq = 4;
    State.SlideTimeout = 1.0 / 3;
    State.Effects = {false, 2, 11, 12, 13, 14, 15, 16, 17, 18};
    for (size_t Effect = 0; Effect <= 127; ++Effect) State.EffectSelected[Effect] = Effect % 3 == 0;
    PutPreferences(Settings, State);
    const PreferencesState Read = ReadPreferences(Settings);
    EXPECT_EQ((std::array{2, 3, 4}),
              (std::array{Read.AlbumID, Read.SlideShowID, Read.NextSlideSeq}));
    EXPECT_EQ(State.SlideTimeout, Read.SlideTimeout);
    EXPECT_FALSE(Read.Effects.UseEffectLevel);
    EXPECT_EQ(2, Read.Effects.MaxEffectLevel);
    for (const EffectLevelRow& Row : EffectLevelRows) {
        EXPECT_EQ(State.Effects.*Row.Step, Read.Effects.*Row.Step) << Row.Name;
        EXPECT_EQ(State.Effects.*Row.Delay, Read.Effects.*Row.Delay) << Row.Name;
    }
    EXPECT_EQ(State.EffectSelected, Read.EffectSelected);
}

TEST(FilterTimeoutKey, LetsDigitsOnePointAndBackspacePass) {
    const auto Passes = [](const char* Text, std::int16_t Key) {
        std::int16_t Filtered = Key;
        FilterTimeoutKey({QString::fromLatin1(Text), 0}, Filtered);
        EXPECT_TRUE(Filtered == Key || Filtered == 0);
        return Filtered == Key;
    };
    for (std::int16_t Key = 1; Key < 256; ++Key)
        EXPECT_EQ((Key >= '0' && Key <= '9') || Key == '.' || Key == 8, Passes("12", Key)) << Key;
    EXPECT_FALSE(Passes("1.2", '.'));
    EXPECT_TRUE(Passes("1.2", '3'));
    EXPECT_TRUE(Passes("1.2", 8));
}

TEST(SlideTimeout, IsTypedWithTheUsersOwnDecimalPointOrTheEnglishOne) {
    const QLocale Before;
    const auto Restored = qScopeGuard([&] { QLocale::setDefault(Before); });
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(5.5, Seconds("5,5"));
    EXPECT_EQ(5.5, Seconds("5.5"));
    EXPECT_EQ(std::nullopt, Seconds("5,5,5"));
    const auto Passes = [](const char* Text, std::int16_t Key) {
        FilterTimeoutKey({QString::fromLatin1(Text), 0}, Key);
        return Key != 0;
    };
    EXPECT_TRUE(Passes("5", ','));
    EXPECT_TRUE(Passes("5", '.'));
    EXPECT_FALSE(Passes("5,5", ','));
    EXPECT_FALSE(Passes("5,5", '.'));
}

TEST(PreviewPictureAfter, TakesTheTwoPicturesInTurn) {
    EXPECT_EQ("SpeedTest1.bmp", PreviewPictureAfter({}));
    EXPECT_EQ("SpeedTest2.bmp", PreviewPictureAfter(QStringLiteral("SpeedTest1.bmp")));
    EXPECT_EQ("SpeedTest1.bmp", PreviewPictureAfter(QStringLiteral("SpeedTest2.bmp")));
}

}  // namespace
}  // namespace neb
