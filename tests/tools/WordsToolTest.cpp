// nebctl on databases with texts that their records cannot hold: they are shown whole, checked,
// written again, transferred, and restored.
#include <gtest/gtest.h>

#include "ToolRun.h"
#include "albums/transfer/DiscFolder.h"
#include "db/Changes.h"
#include "db/Fixtures.h"
#include "db/modAlbumFiles.h"
#include "support/files/CheckSums.h"

namespace neb {
namespace {

using namespace harness;

// An album with a slide and a show of it. Of the files there are none.
void Make(const QString& Dir, const QString& Marker) {
    MakeDirs(Dir);
    const auto Engine = OpenEngine(Dir);
    Changes Door(*Engine);
    auto Made = Door.MakeAlbum(Marker + u" Лето"_s);
    ASSERT_TRUE(Made);
    const std::int32_t AlbumID = Made->What().AlbumID;
    auto Slide = Door.SaveSlide(AlbumID, {0, u"Весна "_s + Marker});
    ASSERT_TRUE(Slide);
    clsNEBSlideShow Show;
    Show.SlideShowName = u"路易 "_s + Marker;
    Show.SaveDetail(Slide->What().SlideID, 1, u"🐈 "_s + Marker);
    Show.SaveDetail(Slide->What().SlideID, 2, u"plain"_s);
    ASSERT_TRUE(Door.SaveShow(AlbumID, std::move(Show)));
    EXPECT_FALSE(Engine->FinalizeDB());
}

// All texts of all albums.
std::string Told(const QString& Dir) {
    const auto Engine = OpenEngine(Dir, Recovery::InMemory);
    QStringList All;
    for (const auto& Album : Engine->Albums) {
        All << Album->AlbumName;
        for (const auto& Slide : Album->Slides) All << Slide->SlideText;
        for (const auto& Show : Album->SlideShows) {
            All << Show->SlideShowName;
            for (const auto& Detail : Show->Details) All << Detail->SlideText;
        }
    }
    return All.join(u'|').toStdString();
}

class WordsTool : public ::testing::Test {
  protected:
    WordsTool() { Make(Dir, u"a"_s); }

    TempFolder Place;
    const QString Dir = Place / u"one/"_s, Other = Place / u"other/"_s;
    const std::string Whole = "a Лето|Весна a|路易 a|🐈 a|plain";
};

TEST_F(WordsTool, DumpShowsThemAndWhatTheirRecordsHold) {
    const std::string Out = Tool({u"dump"_s, Dir}).Out;
    for (const char* Line :
         {"\"AlbumName\": \"a Лето\"", "\"AlbumNameInRecord\": \"a Leto\"",
          "\"SlideText\": \"Весна a\"", "\"SlideTextInRecord\": \"Vesna a\"",
          "\"SlideShowName\": \"路易 a\"", "\"SlideShowNameInRecord\": \"lu yi a\"",
          "\"SlideText\": \"🐈 a\"", "\"SlideTextInRecord\": \"? a\"", "\"SlideText\": \"plain\""})
        EXPECT_NE(Out.find(Line), std::string::npos) << Line << " is not in\n" << Out;
    EXPECT_EQ(Out.find("\"plain\",\n          \"SlideTextInRecord\""), std::string::npos);
}

TEST_F(WordsTool, CheckNamesThoseThatGoWithNoRecordAnyMore) {
    const auto Findings = [this] {
        QStringList Lines =
            QString::fromStdString(Tool({u"check"_s, Dir}).Out).split(u'\n', Qt::SkipEmptyParts);
        Lines.removeIf([](const QString& Line) { return !Line.startsWith(u"Words.dat"); });
        return Lines.join(u'\n').toStdString();
    };
    EXPECT_EQ(Findings(), "");
    const QByteArray Slides = ReadFile(Dir + u"Slides.dat"_s),
                     Words = ReadFile(Dir + u"Words.dat"_s);
    WriteFile(Dir + u"Slides.dat"_s, QByteArray(Slides).replace(8, 1, "W"));
    EXPECT_EQ(Findings(),
              "Words.dat: \"Весна a\" does not go with the record of slide 1 any more, whose own "
              "text counts");
    WriteFile(Dir + u"SlideShowDetails.dat"_s, {});
    WriteFile(Dir + u"Slides.dat"_s, Slides);
    EXPECT_EQ(Findings(),
              "Words.dat: \"🐈 a\" does not go with the record of place 1 of show 1 any more, whose "
              "own text counts");
    WriteFile(Dir + u"Words.dat"_s, Words.chopped(1));
    EXPECT_EQ(Findings(),
              "Words.dat: the file is damaged; texts are shown as their records have them");
    WriteFile(Dir + u"Words.dat"_s, "NEBWORD2 of days to come");
    EXPECT_EQ(Findings(),
              "Words.dat: the file was written by a later version of the program; texts are shown "
              "as their records have them");
    DeleteFile(Dir + u"Words.dat"_s);
    EXPECT_EQ(Findings(), "Words.dat: the file is missing");
}

TEST_F(WordsTool, RewriteLeavesThemToTheByteAndRefusesDamage) {
    const QByteArray Words = ReadFile(Dir + u"Words.dat"_s);
    EXPECT_EQ(Tool({u"rewrite"_s, Dir}).Code, ExitDone);
    EXPECT_EQ(ReadFile(Dir + u"Words.dat"_s), Words);
    WriteFile(Dir + u"Words.dat"_s, "damaged");
    const ToolRun Refused = Tool({u"rewrite"_s, Dir});
    EXPECT_EQ(Refused.Code, ExitFailed);
    EXPECT_NE(Refused.Err.find("Words.dat is damaged."), std::string::npos) << Refused.Err;
    EXPECT_EQ(ReadFile(Dir + u"Words.dat"_s), "damaged");
    EXPECT_EQ(Tool({u"rewrite"_s, u"--go-on"_s, Dir}).Code, ExitDone);
    EXPECT_EQ(Told(Dir), "a Leto|Vesna a|lu yi a|? a|plain");
}

TEST_F(WordsTool, TransfersBringThemBothWays) {
    Make(Other, u"b"_s);
    const auto Transfer = [](const QStringList& Words) {
        const ToolRun Result = Tool(QStringList{u"transfer"_s} + Words);
        EXPECT_EQ(Result.Code, ExitDone) << Result.Err << Result.Out;
    };
    Transfer({Dir, Other, u"--album"_s, u"a Лето"_s});
    EXPECT_EQ(Told(Other), "b Лето|Весна b|路易 b|🐈 b|plain|" + Whole);
    Transfer({Other, Dir, u"--album"_s, u"b Лето"_s});
    EXPECT_EQ(Told(Dir), Whole + "|b Лето|Весна b|路易 b|🐈 b|plain");
    EXPECT_EQ(Told(Dir), Told(Dir));
    // a show alone, with its slide
    Transfer(
        {Dir, Other, u"--album"_s, u"a Лето"_s, u"--show"_s, u"路易 a"_s, u"--to"_s, u"Зима"_s});
    EXPECT_TRUE(Told(Other).ends_with("|Зима|Весна a|路易 a|🐈 a|plain")) << Told(Other);
}

// Album by album would come without them, perhaps in the place of one that has them.
TEST_F(WordsTool, NothingIsTakenFromADatabaseThatHasLostThem) {
    Make(Other, u"b"_s);
    const std::string Before = Told(Other);
    WriteFile(Dir + u"Words.dat"_s, "damaged");
    const ToolRun Result = Tool({u"transfer"_s, Dir, Other, u"--album"_s, u"a Leto"_s});
    EXPECT_EQ(Result.Code, ExitFailed);
    EXPECT_NE(Result.Err.find("Words.dat is damaged."), std::string::npos) << Result.Err;
    EXPECT_EQ(Told(Other), Before);
}

TEST_F(WordsTool, AFolderForADiscHasThem) {
    const auto Engine = OpenEngine(Dir);
    const QString Disc = Place / u"disc/"_s;
    ASSERT_TRUE(WriteDiscFolder(*Engine, {{1, {}}}, Disc));
    EXPECT_EQ(Told(Disc), Whole);
    EXPECT_TRUE(ReadFile(Disc + QLatin1String(SumsName)).contains("Words.dat"));
}

TEST_F(WordsTool, HistoryTellsThemAndRestoreBringsThemBack) {
    {
        const auto Engine = OpenEngine(Dir);
        static_cast<void>(Changes(*Engine).RenameAlbum(1, u"a Leto"_s));
        static_cast<void>(Changes(*Engine).SaveCaption(1, 1, u"Зима"_s));
        EXPECT_FALSE(Engine->FinalizeDB());
    }
    const std::string Out = Tool({u"history"_s, Dir}).Out;
    EXPECT_NE(Out.find("\"a Лето\" instead of \"a Leto\""), std::string::npos) << Out;
    Tool({u"restore"_s, Dir, u"1"_s});
    EXPECT_EQ(Told(Dir), Whole);
    Tool({u"restore"_s, Dir, u"1"_s});
    EXPECT_EQ(Told(Dir), "a Leto|Зима|路易 a|🐈 a|plain");
}

}  // namespace
}  // namespace neb
