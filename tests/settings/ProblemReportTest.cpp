// What is sent of a problem tells the machine and the settings, and nothing of the user.
#include "settings/ProblemReport.h"

#include <gtest/gtest.h>

#include "db/clsDBEngine.h"
#include "settings/SettingKeys.h"
#include "settings/clsSettings.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

std::string Without(const QString& Line, const QStringList& Names = {}) {
    return PrivateWords(Names).WithoutAll(Line).toStdString();
}

TEST(PrivateWords, NamesGoHoweverTheyAreWritten) {
    const QStringList Names{u"Garden in the Summer"_s, u"Garden"_s, u"Größe"_s, u"🌹 Rosen"_s,
                            u"***"_s};
    EXPECT_EQ("Opening (a name) now", Without(u"Opening Garden in the Summer now"_s, Names));
    EXPECT_EQ("Opening (a name) now", Without(u"Opening GARDEN-in the summer now"_s, Names));
    EXPECT_EQ("Gardener", Without(u"Gardener"_s, Names)) << "another word";
    EXPECT_EQ("x (a name) y", Without(u"x GRÖSSE y"_s, {u"grösse"_s}));
    EXPECT_EQ("x (a name) y", Without(u"x 🌹 rosen y"_s, Names));
    EXPECT_EQ("a *** b", Without(u"a *** b"_s, Names)) << "no name at all";
}

TEST(PrivateWords, PathsGoWithAllThatMayBelongToThem) {
    EXPECT_EQ("Cannot read (a path)", Without(u"Cannot read /home/anna/My Summer: 2003/a b.jpg"_s));
    EXPECT_EQ("Cannot read (a path): Permission denied",
              Without(u"Cannot read /home/anna/My Summer: 2003/a b.jpg: Permission denied"_s));
    EXPECT_EQ("In (a path)", Without(u"In ~/Pictures"_s));
    EXPECT_EQ("In (a path)", Without(u"In C:\\Users\\Anna\\x"_s));
    EXPECT_EQ("In (a path)", Without(u"In \\\\server\\share"_s));
    EXPECT_EQ("In (a path)", Without(u"In file:///home/anna"_s));
    EXPECT_EQ("In (a path)", Without(u"In https://anna.example/roses"_s));
    EXPECT_EQ("In (a path)", Without(u"In Albums/0001/x"_s));
    EXPECT_EQ("By (an address)", Without(u"By anna@example.org"_s));
}

TEST(PrivateWords, FilesAndQuotedWordsGo) {
    EXPECT_EQ("(a file)", Without(u"Cannot read Grandma at the sea.jpeg"_s));
    EXPECT_EQ("Failed: (a file)", Without(u"Failed: Grandma at the sea.mp3"_s));
    EXPECT_EQ("Album (a name) is new", Without(u"Album \"Aunt Emma\" is new"_s));
    EXPECT_EQ("Album (a name) is new", Without(u"Album “Aunt Emma” is new"_s));
    EXPECT_EQ("Album (a name) is new", Without(u"Album 'Aunt Emma' is new"_s));
}

TEST(PrivateWords, WhatTheProgramSaysStays) {
    for (const char* Text :
         {"Load Completed Successfully.", "12 transitions, 1.5 s, 3 late",
          "Qt 6.4.2, e.g. it's 3 / 4", "If not read-only, call Speed Tests routine."})
        EXPECT_EQ(Text, Without(QLatin1String(Text), {u"Garden"_s}));
}

TEST(PrivateWords, TheNamesOfAlbumsAreAllThatTheUserHasWritten) {
    clsDBEngine Engine;
    std::int32_t AlbumID = 0, ShowID = 0, SlideID = 0;
    Engine.SaveAlbum(AlbumID, u"Garden"_s);
    clsNEBAlbum& Album = *Engine.GetAlbum(AlbumID);
    Album.SaveSlide(SlideID, u"Roses"_s, u"/home/anna/rose 7.jpg"_s, u"Waltz.mp3"_s, false, false,
                    Engine);
    Album.SaveSlideShow(ShowID, u"A Walk"_s, 1, Engine);
    Album.GetSlideShow(ShowID)->SaveDetail(SlideID, 1, u"Said differently"_s);
    Album.GetSlideShow(ShowID)->SaveSoundTrack(1, u"C:\\Music\\Emma.mp3"_s, 1, 1, true, true, true);
    const QStringList Names = NamesIn(Engine);
    for (const char* Each :
         {"Garden", "Roses", "rose 7.jpg", "Waltz.mp3", "A Walk", "Said differently", "Emma.mp3"})
        EXPECT_TRUE(Names.contains(QLatin1String(Each))) << Each;
}

// Settings with a private word in the place of every value.
clsSettings FullOf(const QString& Word) {
    clsSettings Settings;
    for (const SettingRow& Row : SettingRows())
        for (const QString& Member : MembersOf(Row)) PutText(Settings, {Row.Which, Member}, Word);
    return Settings;
}

TEST(ProblemReport, TellsMachineSpeedTestSettingsAndLog) {
    clsSettings Settings;
    PutNumber(Settings, {Setting::Step, u"H"_s}, 33);
    PutDecimal(Settings, {Setting::AvgTime, u"H"_s}, 1.25);
    PutText(Settings, Setting::DBPath, u"/home/anna/albums"_s);
    PutText(Settings, Setting::ShowScreen, u"HDMI-1, Annas Beamer"_s);
    PutText(Settings, Setting::KeepPictures, u"1024x768"_s);
    PutFlag(Settings, Setting::KeepPlace, false);
    PutFlag(Settings, {Setting::EffectSelected, u"001"_s}, true);
    PutFlag(Settings, {Setting::EffectSelected, u"007"_s}, false);
    const QByteArray Log =
        "11-23-2026 03:10\tInformation\tShowing Main Form\n"
        "11-23-2026 03:11\tError\tNo album Garden in /home/anna\n";
    const PrivateWords Private({u"Garden"_s});
    EXPECT_EQ(
        "NEB Slide Show 1\nof (a name)\n"
        "\nSpeed test\nStepH=33 AvgTimeH=1.25\n"
        "\nSettings\n[General]DBPath=(a path)\n"
        "[Effect Selections]Effect.*=all but 007\n"
        "[]ShowScreen=(a name)\n"
        "[Pictures]KeepAtMost=1024x768\n[Pictures]KeepPlace=False\n"
        "\nLog\n11-23-2026 03:10\tInformation\tShowing Main Form\n"
        "11-23-2026 03:11\tError\tNo album (a name) in (a path)\n",
        ReportText({{u"NEB Slide Show 1"_s, u"of Garden"_s}, Settings, Log}, Private)
            .toStdString());
}

TEST(ProblemReport, NoSettingLetsAWordOfTheUserThrough) {
    for (const QString& Word : {u"Grandma Emma"_s, u"/home/anna/Emma"_s, u"emma@example.org"_s,
                                u"Emma.jpg"_s, u"Großmutter"_s}) {
        const QString Text = ReportText({{}, FullOf(Word), {}}, PrivateWords({}));
        EXPECT_FALSE(Text.contains(u"emma"_s, Qt::CaseInsensitive)) << qPrintable(Text);
        EXPECT_FALSE(Text.contains(u"Großmutter"_s)) << qPrintable(Text);
        EXPECT_GT(Text.count(u'='), 100) << "all are there";
    }
}

TEST(ProblemReport, HasTheLast200LinesOfTheLog) {
    QByteArray Log;
    for (int I = 1; I <= 300; ++I) Log += "line " + QByteArray::number(I) + "\n";
    const QString Text = ReportText({{}, clsSettings(), Log}, PrivateWords({}));
    EXPECT_TRUE(Text.contains(u"\nLog\nline 101\n"_s)) << qPrintable(Text.left(200));
    EXPECT_TRUE(Text.endsWith(u"line 300\n"_s));
    EXPECT_TRUE(Text.contains(u"\nSettings\n(none)\n"_s)) << "an empty part says so";
}

}  // namespace
}  // namespace neb
