// Captions and names of any script and length come back from the disk as they were, and the record
// files beside them are those that they have always been.
#include "db/records/WholeWords.h"

#include <gtest/gtest.h>

#include <QFile>

#include "Fixtures.h"
#include "db/Changes.h"
#include "db/modAlbumFiles.h"
#include "db/modLoadRecords.h"
#include "support/modText.h"

namespace neb {
namespace {

using namespace harness;

bool HasWords(const QString& Dir) {
    return FileExists(Dir + u"Words.dat"_s);
}

// As an earlier version of the program reads and writes: the eight files, and Words.dat left alone.
void AsEarlierVersion(const QString& Dir, const std::function<void(clsDBEngine&)>& Do) {
    const auto There = RecordsInDirectory(Dir);
    clsDBEngine Engine;
    Engine.SetDBPath(Dir);
    Engine.LoadFrom([&](RecordFile File) -> std::optional<RecordBytes> {
        return File == RecordFile::Words ? std::nullopt : There(File);
    });
    Do(Engine);
    RecordImage Image = BuildImage(Engine);
    Image.Words.reset();
    EXPECT_FALSE(WriteDatabase(Dir, Image));
}

class WholeWordsTest : public ::testing::Test {
  protected:
    // An album with a slide and a show of it, whose texts are these.
    void Write(const QString& Album, const QString& Caption, const QString& Show,
               const QString& Place) const {
        const auto Engine = OpenEngine(Dir.Path());
        Changes Door(*Engine);
        ASSERT_TRUE(Door.MakeAlbum(Album));
        ASSERT_TRUE(Door.SaveSlide(1, {0, Caption, u"00000001.JPG"_s}));
        clsNEBSlideShow Made;
        Made.SlideShowName = Show;
        Made.SaveDetail(1, 1, Place);
        ASSERT_TRUE(Door.SaveShow(1, std::move(Made)));
        EXPECT_FALSE(Engine->FinalizeDB());
    }
    // A caption through a write and a start.
    QString Back(const QString& Caption) const {
        {
            const auto Engine = OpenEngine(Dir.Path());
            if (Engine->Albums.empty()) static_cast<void>(Changes(*Engine).MakeAlbum(u"a"_s));
            static_cast<void>(
                Changes(*Engine).SaveSlide(1, {Engine->NextSlideID > 1 ? 1 : 0, Caption}));
            EXPECT_FALSE(Engine->FinalizeDB());
        }
        return OpenEngine(Dir.Path())->Albums[0]->Slides[0]->SlideText;
    }
    QByteArray Field() const { return FileBytes(Dir.Path(), "Slides.dat").mid(8, 80); }

    TempFolder Dir;
};

TEST_F(WholeWordsTest, TextsOfEveryKindComeBackWhole) {
    const QString Long = u"Десять тысяч слов о лете. "_s.repeated(70);
    Write(u"Лето"_s, Long, u"路易"_s, u"חתול 🐈\u200D⬛"_s);
    const auto Engine = OpenEngine(Dir.Path());
    const clsNEBAlbum& Album = *Engine->Albums[0];
    EXPECT_EQ(Album.AlbumName, u"Лето");
    EXPECT_EQ(Album.Slides[0]->SlideText, Long);
    EXPECT_EQ(Album.SlideShows[0]->SlideShowName, u"路易");
    EXPECT_EQ(Album.SlideShows[0]->Details[0]->SlideText, u"חתול 🐈\u200D⬛");
    EXPECT_EQ(Engine->AlbumIndex[0].Name, u"Лето");
}

TEST_F(WholeWordsTest, TheRecordsHoldTheClosestLettersAsBefore) {
    Write(u"Лето"_s, u"Весна"_s, u"路易"_s, u"x"_s);
    EXPECT_EQ(FileBytes(Dir.Path(), "Albums.dat").mid(4, 5), QByteArray("Leto\0", 5));
    EXPECT_EQ(Field().first(6), QByteArray("Vesna\0", 6));
    EXPECT_EQ(FileBytes(Dir.Path(), "SlideShows.dat").mid(8, 6), QByteArray("lu yi\0", 6));
    EXPECT_EQ(FileSize(Dir / "Slides.dat"), 604);
}

TEST_F(WholeWordsTest, ThereIsNoFileWhereRecordsHoldAllTexts) {
    Write(u"Été à Saint-Malo, 5 €"_s, u"two\r\nlines"_s, u"e\u0301te\u0301"_s, QString(80, u'ÿ'));
    EXPECT_FALSE(HasWords(Dir.Path()));
    QStringList Names;
    for (const DirEntry& Each : ListDir(Dir.Path()))
        if (!Each.IsFolder) Names << Each.Name;
    EXPECT_EQ(Names.size(), 8);
    EXPECT_EQ(OpenEngine(Dir.Path())->Albums[0]->SlideShows[0]->SlideShowName, u"été");
}

TEST_F(WholeWordsTest, TheFileGoesWithTheLastTextThatNeedsIt) {
    EXPECT_EQ(Back(u"Весна"_s), u"Весна");
    EXPECT_TRUE(HasWords(Dir.Path()));
    EXPECT_EQ(Back(u"Vesna"_s), u"Vesna");
    EXPECT_FALSE(HasWords(Dir.Path()));
}

TEST_F(WholeWordsTest, EightyBytesAreHeldByTheRecordAndMoreAreNot) {
    const QString Eighty = QString(79, u'x') + u'é';
    EXPECT_EQ(Back(Eighty), Eighty);
    EXPECT_FALSE(HasWords(Dir.Path()));
    EXPECT_EQ(Field(), QByteArray(79, 'x') + '\xe9');
    EXPECT_EQ(Back(Eighty + u'y'), Eighty + u'y');
    EXPECT_TRUE(HasWords(Dir.Path()));
    EXPECT_EQ(Field(), QByteArray(79, 'x') + '\xe9') << "the first eighty";
    // its letters are fewer than its bytes, and the last of them would be cut in two
    const QString Tea = u"xy"_s + u"茶"_s.repeated(39);
    const QByteArray Latin = ToAnsi(Tea);
    ASSERT_GT(Latin.size(), 80);
    ASSERT_NE(Latin[79], ' ');
    EXPECT_EQ(Back(Tea), Tea);
    EXPECT_EQ(Field(), Latin.first(80));
}

TEST_F(WholeWordsTest, NeitherLineBreaksNorBlanksAreTouched) {
    for (const QString& Text :
         {u"зима\r\nлето\t"_s, u"  зима  "_s, u"Ж"_s, u"\u200Fעברית"_s,
          u"👨‍👩‍👧‍👦"_s, u"“кавычки”"_s, u"a\\b/c жук"_s, QString(2000, u'я')})
        EXPECT_EQ(Back(Text), Text);
}

TEST_F(WholeWordsTest, ANulEndsATextHereAsInTheRecord) {
    EXPECT_EQ(Back(u"зима"_s + QChar(0) + u"лето"_s), u"зима");
    EXPECT_EQ(Back(u"plain"_s + QChar(0) + u"лето"_s), u"plain");
    EXPECT_FALSE(HasWords(Dir.Path()));
}

TEST_F(WholeWordsTest, HalfALetterIsReplacedOnItsWayIn) {
    const QString Half = u"зима "_s + QChar(0xD83D);
    const auto Engine = OpenEngine(Dir.Path());
    Changes Door(*Engine);
    ASSERT_TRUE(Door.MakeAlbum(QChar(0xDE00) + u"я"_s));
    ASSERT_TRUE(Door.EnterSlide(1, {1, Half}));
    ASSERT_TRUE(Door.SaveSlide(1, {2, Half}));
    ASSERT_TRUE(Door.SaveCaption(1, 2, Half + Half));
    clsNEBSlideShow Show;
    Show.SlideShowName = Half;
    Show.SaveDetail(1, 1, Half);
    ASSERT_TRUE(Door.SaveShow(1, std::move(Show)));
    const clsNEBAlbum& Album = *Engine->Albums[0];
    EXPECT_EQ(Album.AlbumName, u"\uFFFDя");
    EXPECT_EQ(Album.Slides[0]->SlideText, u"зима \uFFFD");
    EXPECT_EQ(Album.Slides[1]->SlideText, u"зима \uFFFDзима \uFFFD");
    EXPECT_EQ(Album.SlideShows[0]->SlideShowName, u"зима \uFFFD");
    EXPECT_EQ(Album.SlideShows[0]->Details[0]->SlideText, u"зима \uFFFD");
    ASSERT_TRUE(Door.RenameAlbum(1, Half));
    EXPECT_EQ(Album.AlbumName, u"зима \uFFFD");
}

TEST_F(WholeWordsTest, PathsOutsideComeBackAsTheyAre) {
    const QString Picture = u"/home/Вася/e\u0301te\u0301/кот.jpg"_s;
    const QString Sound = u"/"_s + u"deep/"_s.repeated(60) + u"song.mp3"_s;
    {
        const auto Engine = OpenEngine(Dir.Path());
        Changes Door(*Engine);
        ASSERT_TRUE(Door.MakeAlbum(u"a"_s));
        ASSERT_TRUE(Door.SaveSlide(1, {0, u"c"_s, Picture, Sound}));
        clsNEBSlideShow Show;
        Show.SlideShowName = u"s"_s;
        Show.SaveSoundTrack(1, Picture, 1, 1, false, false, false);
        ASSERT_TRUE(Door.SaveShow(1, std::move(Show)));
        EXPECT_FALSE(Engine->FinalizeDB());
    }
    const auto Engine = OpenEngine(Dir.Path());
    const clsNEBSlide& Slide = *Engine->Albums[0]->Slides[0];
    EXPECT_EQ(Slide.SlideLoc, Picture);
    EXPECT_EQ(Slide.SoundTrackLoc, Sound);
    EXPECT_EQ(Engine->Albums[0]->SlideShows[0]->SoundTracks[0]->SoundTrackLoc, Picture);
}

TEST_F(WholeWordsTest, AReadOnlyDatabaseShowsThem) {
    Write(u"Лето"_s, u"Весна"_s, u"路易"_s, u"x"_s);
    QFile::setPermissions(Dir / "NextIDs.dat", QFileDevice::ReadOwner);
    EXPECT_EQ(OpenEngine(Dir.Path())->Albums[0]->AlbumName, u"Лето");
}

TEST_F(WholeWordsTest, ARecordThatAnEarlierVersionHasChangedWins) {
    Write(u"Лето"_s, u"Весна"_s, u"路易"_s, u"зима"_s);
    AsEarlierVersion(Dir.Path(), [](clsDBEngine& Engine) {
        clsNEBAlbum& Album = *Engine.Albums[0];
        EXPECT_EQ(Album.AlbumName, u"Leto");
        Album.Slides[0]->SlideText = u"Spring"_s;
        Album.Slides[0]->Repeat = true;
        Album.SlideShows[0]->Details[0]->SlideText = u"zim"_s;
    });
    const auto Engine = OpenEngine(Dir.Path());
    const clsNEBAlbum& Album = *Engine->Albums[0];
    EXPECT_EQ(Album.Slides[0]->SlideText, u"Spring");
    EXPECT_EQ(Album.SlideShows[0]->Details[0]->SlideText, u"zim");
    EXPECT_EQ(Album.AlbumName, u"Лето") << "its record is as it was";
    EXPECT_EQ(Album.SlideShows[0]->SlideShowName, u"路易");
}

TEST_F(WholeWordsTest, ARecordWhoseOtherFieldsAnEarlierVersionHasChangedKeepsItsText) {
    Write(u"Лето"_s, u"Весна"_s, u"路易"_s, u"зима"_s);
    AsEarlierVersion(Dir.Path(),
                     [](clsDBEngine& Engine) { Engine.Albums[0]->Slides[0]->Repeat = true; });
    EXPECT_EQ(OpenEngine(Dir.Path())->Albums[0]->Slides[0]->SlideText, u"Весна");
}

// One byte of the record, as any other program might change it.
TEST_F(WholeWordsTest, ATextCountsOnlyBesideTheVeryBytesForWhichItWasKept) {
    Write(u"a"_s, u"Весна"_s, u"b"_s, u"c"_s);
    QByteArray Slides = FileBytes(Dir.Path(), "Slides.dat");
    Slides[8] = 'W';
    WriteFile(Dir / "Slides.dat", Slides);
    EXPECT_EQ(OpenEngine(Dir.Path())->Albums[0]->Slides[0]->SlideText, u"Wesna");
    Slides[8] = 'V';
    WriteFile(Dir / "Slides.dat", Slides);
    EXPECT_EQ(OpenEngine(Dir.Path())->Albums[0]->Slides[0]->SlideText, u"Весна");
    QByteArray Moved = Slides;
    Moved[4] = 2;  // of another album
    WriteFile(Dir / "Slides.dat", Moved);
    WriteFile(Dir / "Albums.dat", FileBytes(Dir.Path(), "Albums.dat").replace(0, 1, "\2"));
    EXPECT_EQ(OpenEngine(Dir.Path())->Albums[0]->Slides[0]->SlideText, u"Vesna");
}

TEST_F(WholeWordsTest, ADeletedSlideLeavesNothingToTheNextOfItsNumber) {
    Write(u"a"_s, u"🐈"_s, u"b"_s, u"c"_s);
    {
        const auto Engine = OpenEngine(Dir.Path());
        static_cast<void>(Changes(*Engine).DeleteSlide(1, 1));
        EXPECT_FALSE(Engine->FinalizeDB());
    }
    EXPECT_FALSE(HasWords(Dir.Path()));
    AsEarlierVersion(Dir.Path(), [](clsDBEngine& Engine) {
        auto Slide = std::make_unique<clsNEBSlide>();
        Slide->SlideID = 1;
        Slide->SlideText = u"?"_s;
        Engine.Albums[0]->Slides.push_back(std::move(Slide));
    });
    EXPECT_EQ(OpenEngine(Dir.Path())->Albums[0]->Slides[0]->SlideText, u"?");
}

TEST_F(WholeWordsTest, PlacesOfAShowThatAnEarlierVersionHasReorderedAreNotMixedUp) {
    {
        const auto Engine = OpenEngine(Dir.Path());
        Changes Door(*Engine);
        ASSERT_TRUE(Door.MakeAlbum(u"a"_s));
        clsNEBSlideShow Show;
        Show.SlideShowName = u"s"_s;
        Show.SaveDetail(5, 1, u"🐈"_s);
        Show.SaveDetail(6, 2, u"🐕"_s);
        ASSERT_TRUE(Door.SaveShow(1, std::move(Show)));
        EXPECT_FALSE(Engine->FinalizeDB());
    }
    AsEarlierVersion(Dir.Path(), [](clsDBEngine& Engine) {
        auto& Details = Engine.Albums[0]->SlideShows[0]->Details;
        std::swap(Details[0]->SlideSeq, Details[1]->SlideSeq);
    });
    const auto Engine = OpenEngine(Dir.Path());
    for (const auto& Each : Engine->Albums[0]->SlideShows[0]->Details)
        EXPECT_EQ(Each->SlideText, u"?") << "rather than the words of another slide";
}

TEST_F(WholeWordsTest, RecordsOfOneKeyGetTheirTextsInOrder) {
    {
        const auto Engine = OpenEngine(Dir.Path());
        ASSERT_TRUE(Changes(*Engine).MakeAlbum(u"a"_s));
        for (const QString& Text : {u"茶"_s, u"🐈"_s, u"🐕"_s}) {
            auto Slide = std::make_unique<clsNEBSlide>();
            Slide->SlideID = 7;
            Slide->SlideText = Text;
            Engine->Albums[0]->Slides.push_back(std::move(Slide));
        }
        EXPECT_FALSE(Engine->FinalizeDB());
    }
    QStringList Texts;
    const auto Engine = OpenEngine(Dir.Path());
    for (const auto& Each : Engine->Albums[0]->Slides) Texts << Each->SlideText;
    EXPECT_EQ(Texts, (QStringList{u"茶"_s, u"🐈"_s, u"🐕"_s}));
}

TEST_F(WholeWordsTest, AlbumsThatDifferBeyondTheCodePageStayApart) {
    {
        const auto Engine = OpenEngine(Dir.Path());
        for (const QString& Name : {u"Лето"_s, u"Лёто"_s, u"Leto"_s})
            ASSERT_TRUE(Changes(*Engine).MakeAlbum(Name));
        EXPECT_FALSE(Changes(*Engine).MakeAlbum(u"Лето"_s));
        EXPECT_FALSE(Engine->FinalizeDB());
    }
    const auto Engine = OpenEngine(Dir.Path());
    ASSERT_EQ(Engine->Albums.size(), 3u);
    std::int32_t Found = 0;
    QString Name = u"ЛЁТО"_s;
    EXPECT_TRUE(Engine->LoadAlbum(Found, Name));
    EXPECT_EQ(Found, 2);
    EXPECT_FALSE(Engine->FindAlbum(0, u"Лета"_s));
    EXPECT_FALSE(Changes(*Engine).MakeAlbum(u"Лёто"_s));
}

TEST_F(WholeWordsTest, NamesThatAreEqualWithoutTheirFileAreLoadedBoth) {
    {
        const auto Engine = OpenEngine(Dir.Path());
        ASSERT_TRUE(Changes(*Engine).MakeAlbum(u"Лето"_s));
        ASSERT_TRUE(Changes(*Engine).MakeAlbum(u"Leto"_s));
        ASSERT_TRUE(Changes(*Engine).SaveSlide(2, {0, u"x"_s}));
        EXPECT_FALSE(Engine->FinalizeDB());
    }
    DeleteFile(Dir / "Words.dat");
    const auto Engine = OpenEngine(Dir.Path());
    ASSERT_EQ(Engine->Albums.size(), 2u);
    EXPECT_EQ(Engine->Albums[0]->AlbumName, Engine->Albums[1]->AlbumName);
    EXPECT_EQ(Engine->Albums[1]->Slides.size(), 1u);
    EXPECT_FALSE(Engine->FinalizeDB());
    EXPECT_EQ(OpenEngine(Dir.Path())->Albums.size(), 2u);
}

}  // namespace
}  // namespace neb
