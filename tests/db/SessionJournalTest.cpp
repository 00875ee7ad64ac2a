// The journal of a session: what was added is there again, whatever became of the end of the file;
// and entries carry a database of before to what it was.
#include "db/records/SessionJournal.h"

#include <gtest/gtest.h>

#include <QDir>
#include <atomic>
#include <thread>

#include "Fixtures.h"
#include "db/Changes.h"
#include "db/SessionChanges.h"
#include "db/modLoadRecords.h"
#include "support/Fault.h"

namespace neb {
namespace {

using namespace harness;

class SessionJournalTest : public ::testing::Test {
  protected:
    ~SessionJournalTest() override { SetHostWatcher({}); }
    QString File() const { return SessionJournalPath(Dir.Path()); }
    // The bodies, one behind the other with a blank; "-" for none.
    std::string Left() const {
        const auto Found = ReadSessionJournal(Dir.Path());
        if (!Found) return "-";
        QByteArrayList Bodies;
        for (const SessionEntry& Each : Found->Entries) Bodies << Each.Body;
        return Bodies.join(' ').toStdString() + (Found->IsTorn ? " torn" : "");
    }

    TempFolder Dir;
};

TEST_F(SessionJournalTest, WhatIsFlushedIsThereAgain) {
    SessionJournal Journal(Dir.Path());
    EXPECT_EQ("-", Left()) << "without a change there is no file";
    Journal.Add("one");
    Journal.Flush();
    EXPECT_EQ("one", Left());
    Journal.Add("two");
    Journal.Add("three");
    Journal.Flush();
    EXPECT_EQ("one two three", Left());
}

TEST_F(SessionJournalTest, FilesAreOnTheDiskBeforeTheEntryThatNamesThem) {
    for (const bool WithFiles : {true, false}) {
        std::atomic<bool> HasVolume = false, Before = false;
        SetHostWatcher([&](HostStep Step, const QString& Path, qint64& Length) {
            if (Step == HostStep::SyncVolume) HasVolume = true;
            // the head of the file is written before
            if (Step == HostStep::Write && Path.contains(u"Session"_s) && Length < 40)
                Before = HasVolume.load();
        });
        {
            SessionJournal Journal(Dir.Path());
            Journal.Add("one", WithFiles);
            Journal.Flush();
        }
        SetHostWatcher({});
        EXPECT_EQ(WithFiles, Before);
    }
}

TEST_F(SessionJournalTest, NothingIsLostAtAnOrderlyEnd) {
    {
        SessionJournal Journal(Dir.Path());
        for (int I = 0; I < 500; ++I) Journal.Add(QByteArray::number(I));
    }
    EXPECT_EQ(500, ReadSessionJournal(Dir.Path())->Entries.size());
    EXPECT_EQ("499", ReadSessionJournal(Dir.Path())->Entries.back().Body);
}

TEST_F(SessionJournalTest, IsBoundToTheRecordsThatAreThere) {
    const QByteArray Fresh = SumOfRecords(Dir.Path());
    {
        SessionJournal Journal(Dir.Path());
        Journal.Add("one");
    }
    EXPECT_EQ(Fresh, ReadSessionJournal(Dir.Path())->Base);
    WriteFile(Dir / u"Albums.dat"_s, "changed");
    EXPECT_NE(Fresh, SumOfRecords(Dir.Path()));
    WriteFile(Dir / u"Albums.dat"_s, {});
    EXPECT_NE(Fresh, SumOfRecords(Dir.Path())) << "an empty file is not a missing one";
}

TEST_F(SessionJournalTest, AJournalThatIsCutOffHasTheEntriesBeforeTheCut) {
    {
        SessionJournal Journal(Dir.Path());
        for (const char* Each : {"one", "two", "three"}) Journal.Add(Each);
    }
    const QByteArray Whole = ReadFile(File());
    const std::set<std::string> Expected = {"-",        "",        " torn",        "one",
                                            "one torn", "one two", "one two torn", "one two three"};
    std::string Longest;
    for (qsizetype Length = 0; Length <= Whole.size(); ++Length) {
        WriteFile(File(), Whole.first(Length));
        Longest = Left();
        EXPECT_TRUE(Expected.contains(Longest)) << Longest;
    }
    EXPECT_EQ("one two three", Longest);
}

TEST_F(SessionJournalTest, NoDamageMakesAnEntryThatWasNotThere) {
    {
        SessionJournal Journal(Dir.Path());
        for (const char* Each : {"one", "two", "three"}) Journal.Add(Each);
    }
    const QByteArray Whole = ReadFile(File());
    const std::set<std::string> Expected = {"-", " torn", "one torn", "one two torn"};
    for (qsizetype At = 0; At < Whole.size(); ++At)
        for (const char Bit : {1, 64}) {
            QByteArray Damaged = Whole;
            Damaged[At] = static_cast<char>(Damaged[At] ^ Bit);
            WriteFile(File(), Damaged);
            EXPECT_TRUE(Expected.contains(Left())) << At << ": " << Left();
        }
}

TEST_F(SessionJournalTest, AFullDiskIsToldOfAndLosesNothingOfBefore) {
    SessionJournal Journal(Dir.Path());
    Journal.Add("one");
    Journal.Flush();
    SetHostWatcher([](HostStep Step, const QString&, qint64&) {
        if (Step == HostStep::Write) throw Fault(u"No space left."_s);
    });
    Journal.Add("two");
    EXPECT_THROW(Journal.Flush(), Fault);
    EXPECT_EQ("one", Left());
    SetHostWatcher({});
    Journal.Add("three");
    Journal.Flush();
    EXPECT_EQ("one two three", Left());
}

TEST_F(SessionJournalTest, AfterAWriteThatGotHalfThroughItGoesOnBehindTheLastWholeEntry) {
    SessionJournal Journal(Dir.Path());
    Journal.Add("one");
    Journal.Flush();
    int Times = 0;
    SetHostWatcher([&](HostStep Step, const QString&, qint64& Length) {
        if (Step != HostStep::Write) return;
        if (++Times == 1)
            Length /= 2;
        else if (Times == 2)
            throw Fault(u"No space left."_s);
    });
    Journal.Add("two");
    EXPECT_THROW(Journal.Flush(), Fault);
    SetHostWatcher({});
    Journal.Flush();
    EXPECT_EQ("one two", Left());
}

// Tries until it is so; for ever it is not.
template <class Condition>
bool Comes(const Condition& Is) {
    for (int Tries = 0; Tries < 20'000 && !Is(); ++Tries)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return Is();
}

TEST_F(SessionJournalTest, WhatCannotBeWrittenIsToldAndTriedAgainByItself) {
    std::atomic<bool> IsFull = true;
    SetHostWatcher([&](HostStep Step, const QString&, qint64&) {
        if (Step == HostStep::Write && IsFull) throw Fault(u"No space left."_s);
    });
    SessionJournal Journal(Dir.Path(), {}, std::chrono::milliseconds(1));
    EXPECT_FALSE(Journal.Problem());
    Journal.Add("one");
    EXPECT_TRUE(Comes([&] { return Journal.Problem().has_value(); }));
    EXPECT_EQ(u"No space left.", Journal.Problem()->What());
    IsFull = false;
    EXPECT_TRUE(Comes([&] { return !Journal.Problem(); }));
    EXPECT_EQ("one", Left());
}

TEST_F(SessionJournalTest, NothingIsWrittenWhileItIsPaused) {
    SessionJournal Journal(Dir.Path(), {}, std::chrono::milliseconds(1));
    Journal.Add("one");
    {
        const SessionPause Pause(&Journal);
        EXPECT_EQ("one", Left());
        SetHostWatcher(
            [](HostStep, const QString& Path, qint64&) { ADD_FAILURE() << qPrintable(Path); });
        Journal.Add("two");
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        EXPECT_EQ("one", Left());
        SetHostWatcher({});
    }
    Journal.Flush();
    EXPECT_EQ("one two", Left());
}

// A disk that was pulled, and an empty directory where it was.
TEST_F(SessionJournalTest, NothingIsWrittenWhereTheDatabaseIsNotThereAnyMore) {
    MakeDirs(Dir / u"db"_s);
    WriteFile(Dir / u"db/NextIDs.dat"_s, QByteArray(12, '\1'));
    SessionJournal Journal(Dir / u"db/"_s);
    Journal.Add("one");
    Journal.Flush();
    ASSERT_TRUE(QDir().rename(Dir / u"db"_s, Dir / u"away"_s) && QDir().mkdir(Dir / u"db"_s));
    Journal.Add("two");
    EXPECT_THROW(Journal.Flush(), Fault);
    EXPECT_TRUE(ListDir(Dir / u"db"_s).empty());
    ASSERT_TRUE(QDir().rmdir(Dir / u"db"_s) && QDir().rename(Dir / u"away"_s, Dir / u"db"_s));
    Journal.Flush();
    EXPECT_EQ(2u, ReadSessionJournal(Dir / u"db/"_s)->Entries.size());
}

TEST_F(SessionJournalTest, BeginsAnewWhereItIsToldTo) {
    SessionJournal Journal(Dir.Path());
    Journal.Add("one");
    Journal.Restart();
    EXPECT_EQ("-", Left());
    WriteFile(Dir / u"NextIDs.dat"_s, QByteArray(12, '\1'));
    Journal.Add("two");
    Journal.Flush();
    EXPECT_EQ("two", Left());
    EXPECT_EQ(SumOfRecords(Dir.Path()), ReadSessionJournal(Dir.Path())->Base);
}

TEST_F(SessionJournalTest, TakenBackItIsAsAnEarlierSessionHasLeftIt) {
    {
        SessionJournal First(Dir.Path());
        First.Add("one");
    }
    const QByteArray Before = ReadFile(File());
    SessionJournal Journal(Dir.Path(), ReadSessionJournal(Dir.Path())->End);
    Journal.Add("two");
    Journal.Flush();
    Journal.Add("three");
    Journal.TakeBack();
    EXPECT_EQ(Before, ReadFile(File()));
    Journal.Add("four");
    Journal.Flush();
    EXPECT_EQ("one four", Left());
}

TEST_F(SessionJournalTest, TakenBackThereIsNoneWhereNoneWas) {
    SessionJournal Journal(Dir.Path());
    Journal.Add("one");
    Journal.Flush();
    Journal.TakeBack();
    EXPECT_EQ("-", Left());
    EXPECT_FALSE(FileExists(File()));
}

// What an engine holds, as the record files that it would write.
std::map<std::string, QByteArray> JournalledContent(const clsDBEngine& Engine) {
    const RecordImage Image = BuildImage(Engine);
    std::map<std::string, QByteArray> Files;
    for (const RecordFile File : AllRecordFiles) Files[RecordFileName(File)] = Image[File].Unpack();
    return Files;
}

class SessionChangesTest : public ::testing::Test {
  protected:
    SessionChangesTest() {
        FillDatabase(Now, u"old"_s);
        FillDatabase(Before, u"old"_s);
        Now.Listeners.Noted = [this](const Change& What) { Entries << EntryOf(Now, What); };
    }
    // Each change is carried out on the database of before as soon as it is noted, and twice.
    void ExpectFollowed() {
        EXPECT_FALSE(Entries.isEmpty());
        for (const QByteArray& Each : Entries)
            EXPECT_TRUE(CarryOutEntry(Before, Each) && CarryOutEntry(Before, Each));
        EXPECT_EQ(JournalledContent(Now), JournalledContent(Before));
        Entries.clear();
    }
    static clsNEBSlideShow ShowOf(std::int32_t ID, const QString& Name) {
        clsNEBSlideShow Show;
        Show.SlideShowID = ID;
        Show.SlideShowName = Name;
        Show.ProgressionMethod = 2;
        Show.SaveDetail(1, 1, u"first"_s);
        Show.SaveDetail(2, 2, {});
        Show.SaveSoundTrack(1, u"00000001_1.mp3"_s, 1, 2, true, false, true);
        return Show;
    }

    clsDBEngine Now, Before;
    QList<QByteArray> Entries;
};

TEST_F(SessionChangesTest, AlbumsAreMadeRenamedAndDeleted) {
    Changes(Now).MakeAlbum(u"Garden"_s);
    ExpectFollowed();
    Changes(Now).RenameAlbum(1, u"Park"_s);
    ExpectFollowed();
    Changes(Now).DeleteAlbum(2);
    ExpectFollowed();
}

TEST_F(SessionChangesTest, SlidesAreMadeChangedAndDeleted) {
    clsNEBSlide Slide{0, u"Łódź"_s, u"00000003.JPG"_s, u"00000003.wav"_s, true, true};
    Slide.SlideID = Changes(Now).SaveSlide(1, Slide)->What().SlideID;
    ExpectFollowed();
    Slide.SlideText = u"Lodz"_s;
    Slide.SoundTrackLoc.clear();
    Changes(Now).SaveSlide(1, Slide);
    ExpectFollowed();
    Changes(Now).SaveCaption(1, 1, u"a caption"_s);
    ExpectFollowed();
    Changes(Now).DeleteSlide(1, 1);
    ExpectFollowed();
}

TEST_F(SessionChangesTest, ShowsAreMadeReplacedAndDeleted) {
    Changes(Now).SaveShow(1, ShowOf(0, u"Summer"_s));
    ExpectFollowed();
    Changes(Now).SaveShow(1, ShowOf(1, u"Winter"_s));
    ExpectFollowed();
    Changes(Now).DeleteShow(1, 1);
    ExpectFollowed();
}

TEST_F(SessionChangesTest, AnAlbumIsReplacedAsAWhole) {
    AlbumToPut Put{.Next = {9, 99, 999}};
    Put.Album.AlbumID = 2;
    Put.Album.AlbumName = u"Sea"_s;
    Changes(Now).PutAlbum(std::move(Put), 0);
    ExpectFollowed();
    EXPECT_EQ(99, Before.NextSlideID);
}

TEST_F(SessionChangesTest, ManyAtOnceAreFollowedOneByOne) {
    Changes Together(Now);
    const Announcement All = Together.AsOne(Change::Kind::CaptionsSaved, 1);
    Together.SaveCaption(1, 1, u"one"_s);
    Together.SaveSlide(1, {0, u"two"_s});
    EXPECT_EQ(2, Entries.size());
    ExpectFollowed();
}

TEST_F(SessionChangesTest, ACaptionOfALargeDatabaseIsASmallEntry) {
    for (int I = 0; I < 5000; ++I) Changes(Now).SaveSlide(1, {0, u"slide"_s});
    Entries.clear();
    Changes(Now).SaveCaption(1, 1, QString(80, u'x'));
    EXPECT_LT(Entries.last().size(), 1000);
}

TEST_F(SessionChangesTest, BytesThatAreNoEntryChangeNothing) {
    Changes(Now).SaveShow(1, ShowOf(0, u"Summer"_s));
    const QByteArray Entry = Entries.last();
    const auto Untouched = JournalledContent(Before);
    for (qsizetype Length = 0; Length < Entry.size(); ++Length)
        EXPECT_FALSE(CarryOutEntry(Before, Entry.first(Length)));
    EXPECT_FALSE(CarryOutEntry(Before, Entry + "x"));
    EXPECT_FALSE(CarryOutEntry(Before, QByteArray(200, '\xFF')));
    EXPECT_EQ(Untouched, JournalledContent(Before));
}

}  // namespace
}  // namespace neb
