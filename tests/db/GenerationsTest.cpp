// The earlier states that a database keeps of itself: which, when, in which form, and what becomes
// of those that are damaged or too many.
#include "db/records/Generations.h"

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

#include "Fixtures.h"
#include "db/modLoadRecords.h"
#include "fuzz/GenerationFuzzEntry.h"
#include "harness/WithoutPrivileges.h"
#include "support/Fault.h"

namespace neb {
namespace {

using namespace harness;

constexpr qint64 Day = 86'400'000;

qint64 At(int Year, int Month, int DayOfMonth, int Hour = 12) {
    return QDateTime(QDate(Year, Month, DayOfMonth), QTime(Hour, 0)).toMSecsSinceEpoch();
}

QStringList NamesIn(const QString& Dir) {
    QStringList Names;
    for (const Generation& Each : ListGenerations(Dir)) {
        clsDBEngine Then;
        Then.LoadFrom(RecordsInImage(*ReadGeneration(Each.Path)));
        Names << (Then.Albums.empty() ? u"-"_s : Then.Albums[0]->AlbumName);
    }
    return Names;
}

// An end of the program after which the first album bears this name, written at that time.
void EndWith(const QString& Dir, const QString& AlbumName, qint64 When = 0) {
    const auto Engine = OpenEngine(Dir);
    std::int32_t AlbumID = Engine->Albums.empty() ? 0 : Engine->Albums[0]->AlbumID;
    ASSERT_TRUE(Engine->SaveAlbum(AlbumID, AlbumName));
    const auto NotKept = Engine->FinalizeDB();
    EXPECT_FALSE(NotKept) << NotKept->Text().toStdString();
    for (const RecordFile Each : AllRecordFiles) {
        if (When == 0) continue;
        QFile File(RecordPath(Dir, Each));
        ASSERT_TRUE(File.open(QIODevice::ReadWrite));
        ASSERT_TRUE(File.setFileTime(QDateTime::fromMSecsSinceEpoch(When),
                                     QFileDevice::FileModificationTime));
    }
}

TEST(Generations, AnEndKeepsTheStateThatItReplaces) {
    TempFolder Dir;
    EndWith(Dir.Path(), u"first"_s, At(2026, 3, 1));
    EXPECT_TRUE(ListGenerations(Dir.Path()).empty());
    EXPECT_FALSE(FolderExists(Dir / "Backups"));
    const auto First = AllRecords(Dir.Path());
    EndWith(Dir.Path(), u"second"_s);
    const auto Kept = ListGenerations(Dir.Path());
    ASSERT_EQ(Kept.size(), 1u);
    EXPECT_EQ(Kept[0].Saved, At(2026, 3, 1));
    EXPECT_EQ(Kept[0].Albums, 1);
    const auto Image = ReadGeneration(Kept[0].Path);
    ASSERT_TRUE(Image);
    for (const RecordFile File : AllRecordFiles)
        EXPECT_EQ((*Image)[File].Unpack(), First.at(RecordFileName(File)));
}

TEST(Generations, AnEndWithoutChangesKeepsNone) {
    TempFolder Dir;
    EndWith(Dir.Path(), u"first"_s);
    const auto Before = AllRecords(Dir.Path());
    for (int I = 0; I < 3; ++I) EndWith(Dir.Path(), u"first"_s);
    EXPECT_FALSE(FolderExists(Dir / "Backups"));
    EXPECT_EQ(AllRecords(Dir.Path()), Before);
}

TEST(Generations, AStateLikeTheLastOneIsNotKeptTwice) {
    TempFolder Dir;
    EndWith(Dir.Path(), u"first"_s);
    for (const int Hour : {11, 12})
        KeepGeneration(Dir.Path(), RecordsInDirectory(Dir.Path()), At(2026, 3, 1, Hour));
    EXPECT_EQ(ListGenerations(Dir.Path()).size(), 1u);
}

TEST(Generations, TheyComeWithTheNewestFirst) {
    TempFolder Dir;
    for (const char* Name : {"one", "two", "three", "four"})
        EndWith(Dir.Path(), QLatin1String(Name));
    EXPECT_EQ(NamesIn(Dir.Path()), (QStringList{u"three"_s, u"two"_s, u"one"_s}));
}

TEST(Generations, TheyCountWhatIsInThem) {
    TempFolder Dir;
    const auto Engine = OpenEngine(Dir.Path());
    FillDatabase(*Engine, u"old"_s);
    Engine->FinalizeDB();
    // one that is marked as deleted does not count, and one that is cut short does
    QByteArray Slides = ReadFile(Dir / "Slides.dat");
    Slides[RecordLength(RecordFile::Slides) - 2] = 1;
    WriteFile(Dir / "Slides.dat", Slides + Slides.first(Slides.size() / 2 - 10));
    EndWith(Dir.Path(), u"new"_s);
    const auto Kept = ListGenerations(Dir.Path());
    ASSERT_EQ(Kept.size(), 1u);
    EXPECT_EQ(Kept[0].Albums, 2);
    EXPECT_EQ(Kept[0].Slides, 2);
    EXPECT_EQ(Kept[0].SlideShows, 2);
}

TEST(Generations, TheFileIsMadeLikeThis) {
    std::map<RecordFile, QByteArray> Files;
    Files[RecordFile::NextIDs] = Hex("020000000300000004000000");
    Files[RecordFile::Albums] = Hex("01000000") + "Sea" + '\0' + Blanks(76) + Hex("0000");
    const QByteArray Bytes = BytesOfGeneration(InMemory(Files), 0x0123456789, 0x01234567ff);
    const QByteArray NextIDs = Hex("0c000000020000000300000004000000");
    const QByteArray Albums = Hex("08004c0001000000") + "Sea" + '\0' + Hex("020000000000");
    QByteArray Expected = "NEBGENS1" + Hex("8967452301000000ff67452301000000") +
                          Hex("010000000000000000000000000000000000000000000000");
    for (const auto& [Packed, Length] :
         {std::pair{0, 0}, {0, 0}, {16, 12}, {18, 86}, {0, 0}, {0, 0}, {0, 0}, {0, 0}})
        Expected += char(Packed) + QByteArray(7, '\0') + char(Length) + QByteArray(7, '\0');
    Expected += NextIDs + Albums;
    Expected += QCryptographicHash::hash(Expected, QCryptographicHash::Blake2b_256);
    EXPECT_EQ(Bytes.toHex(), Expected.toHex());
    Generation About;
    const auto Image = GenerationIn(Bytes, &About);
    ASSERT_TRUE(Image);
    EXPECT_EQ((*Image)[RecordFile::Albums].Unpack(), Files[RecordFile::Albums]);
    EXPECT_EQ(About.Saved, 0x0123456789);
    EXPECT_EQ(About.Kept, 0x01234567ff);
}

TEST(Generations, WhateverBytesTheFilesHoldComeBack) {
    std::map<RecordFile, QByteArray> Files;
    Files[RecordFile::Albums] = QByteArray(3'000'000, ' ') + "x" + Blanks(7) + "y" + Blanks(8);
    Files[RecordFile::Slides] = QByteArray(300'000, '\0') + Blanks(300'001) + "end";
    Files[RecordFile::SlideShows] = Blanks(1);
    Files[RecordFile::Properties] = QByteArray("ab c ").repeated(40'000);
    const auto Image = GenerationIn(BytesOfGeneration(InMemory(Files), 1, 2));
    ASSERT_TRUE(Image);
    for (const RecordFile File : AllRecordFiles)
        EXPECT_TRUE((*Image)[File].Unpack() == Files[File]) << RecordFileName(File);
}

TEST(Generations, AreSmallBesideTheRecords) {
    TempFolder Dir;
    const auto Engine = OpenEngine(Dir.Path());
    for (int I = 0; I < 50; ++I) FillDatabase(*Engine, u"marker %1"_s.arg(I));
    Engine->FinalizeDB();
    EndWith(Dir.Path(), u"other"_s);
    qint64 Records = 0;
    for (const auto& [Name, Bytes] : AllRecords(Dir.Path())) Records += Bytes.size();
    EXPECT_LT(FileSize(ListGenerations(Dir.Path())[0].Path), Records / 5);
}

TEST(Generations, AnyDamageIsRefused) {
    TempFolder Dir;
    EndWith(Dir.Path(), u"first"_s);
    EndWith(Dir.Path(), u"second"_s);
    const QString Path = ListGenerations(Dir.Path())[0].Path;
    const QByteArray Whole = ReadFile(Path);
    const auto ExpectRefused = [&](const QByteArray& Bytes, qsizetype Where) {
        EXPECT_FALSE(GenerationIn(Bytes)) << Where;
        WriteFile(Path, Bytes);
        EXPECT_TRUE(ListGenerations(Dir.Path()).empty()) << Where;
        EXPECT_FALSE(ReadGeneration(Path)) << Where;
    };
    for (qsizetype I = 0; I < Whole.size(); ++I) {
        QByteArray Damaged = Whole;
        Damaged[I] = static_cast<char>(Damaged[I] ^ 0x10);
        ExpectRefused(Damaged, I);
        ExpectRefused(Whole.left(I), I);
        ASSERT_FALSE(HasFailure());
    }
    ExpectRefused(Whole + '\0', Whole.size());
    EXPECT_TRUE(FileExists(Path));  // it may be of use to somebody who knows how to mend it
    WriteFile(Path, Whole);
    EXPECT_EQ(ListGenerations(Dir.Path()).size(), 1u);
}

// With a right check sum, as only somebody else's program makes them.
TEST(Generations, LengthsThatCannotBeAreRefusedWithoutTakingMemory) {
    const QByteArray Whole = BytesOfGeneration(InMemory({{RecordFile::Albums, Blanks(172)}}), 1, 2);
    ASSERT_TRUE(GenerationIn(fuzz::SealedGeneration(Whole)));
    for (qsizetype Place = 48; Place < 176; Place += 8)
        for (const char* Value : {"ffffffffffffffff", "ffffffffffffff7f", "0000000000010000",
                                  "0000000000000080", "0100000000000040"}) {
            QByteArray Hostile = Whole;
            Hostile.replace(Place, 8, Hex(Value));
            EXPECT_FALSE(GenerationIn(fuzz::SealedGeneration(Hostile))) << Place << Value;
        }
    for (qsizetype Place = 8; Place < 48; Place += 8) {
        QByteArray Hostile = Whole;
        Hostile.replace(Place, 8, Hex("ffffffffffffffff"));
        EXPECT_FALSE(GenerationIn(fuzz::SealedGeneration(Hostile))) << Place;
    }
}

TEST(Generations, RandomInputsAreRefusedOrReadWell) {
    std::srand(4711);
    const QByteArray Whole = BytesOfGeneration(
        InMemory({{RecordFile::Albums, Blanks(172)}, {RecordFile::NextIDs, Blanks(12)}}), 1, 2);
    for (int Round = 0; Round < 3000; ++Round) {
        QByteArray Bytes = Whole;
        for (int I = 0; I < 1 + Round % 4; ++I)
            Bytes[std::rand() % Bytes.size()] = static_cast<char>(std::rand());
        ASSERT_TRUE(fuzz::RunGeneration(Bytes)) << Round;
    }
}

TEST(Generations, WhatIsNoneAmongThemIsPassedOver) {
    TempFolder Dir;
    EndWith(Dir.Path(), u"first"_s);
    EndWith(Dir.Path(), u"second"_s);
    WriteFile(Dir / "Backups/notes.txt", "mine");
    WriteFile(Dir / "Backups/empty.nebgen", "");
    WriteFile(Dir / "Backups/cut.nebgen.new", "NEBGENS1");
    MakeDirs(Dir / "Backups/folder.nebgen");
    EXPECT_EQ(ListGenerations(Dir.Path()).size(), 1u);
    EndWith(Dir.Path(), u"third"_s);
    EXPECT_EQ(ListGenerations(Dir.Path()).size(), 2u);
    EXPECT_TRUE(FileExists(Dir / "Backups/notes.txt"));
    EXPECT_TRUE(FileExists(Dir / "Backups/empty.nebgen"));
    EXPECT_FALSE(FileExists(Dir / "Backups/cut.nebgen.new"));  // a kill left it behind
}

// Of a list with the last kept first: which places stay.
std::vector<size_t> Staying(const std::vector<qint64>& Saved) {
    std::vector<Generation> All;
    for (const qint64 Each : Saved)
        All.push_back({QString::number(All.size()), Each, Each, 0, 0, 0});
    std::vector<size_t> Places;
    for (size_t I = 0; I < All.size(); ++I) Places.push_back(I);
    for (const Generation& Each : TooManyOf(All)) std::erase(Places, Each.Path.toUInt());
    return Places;
}

TEST(Generations, TheLastTenStayWhateverTheirTimes) {
    EXPECT_EQ(Staying({}).size(), 0u);
    EXPECT_EQ(Staying(std::vector<qint64>(10, At(2026, 11, 22))).size(), 10u);
    EXPECT_EQ(Staying(std::vector<qint64>(25, At(2026, 11, 22))).size(), 10u);
    EXPECT_EQ(Staying({At(2026, 11, 22), At(2001, 1, 1), At(1999, 1, 1)}).size(), 3u);
}

TEST(Generations, TheLastOfEachMonthStaysForTwoYears) {
    std::vector<qint64> Saved;
    for (int I = 0; I < 4 * 365; ++I) Saved.push_back(At(2026, 11, 22) - I * Day);
    std::vector<size_t> Expected;
    for (size_t I = 0; I < 10; ++I) Expected.push_back(I);
    for (QDate Last(2026, 10, 31); Last >= QDate(2024, 11, 22);
         Last = QDate(Last.year(), Last.month(), 1).addDays(-1))
        Expected.push_back(static_cast<size_t>(Last.daysTo(QDate(2026, 11, 22))));
    EXPECT_EQ(Expected.size(), 10u + 24);
    EXPECT_EQ(Staying(Saved), Expected);
}

TEST(Generations, OlderOnesGoFromTheDisk) {
    TempFolder Dir;
    for (int I = 0; I <= 12; ++I)
        EndWith(Dir.Path(), u"of %1"_s.arg(I), At(2026, I < 2 ? 9 : 10, 1 + I));
    // twelve were kept: of the two before the last ten, the second is the last of its month
    QStringList Expected;
    for (int I = 11; I >= 1; --I) Expected << u"of %1"_s.arg(I);
    EXPECT_EQ(NamesIn(Dir.Path()), Expected);
}

TEST(Generations, AClockThatWasSetBackDoesNotMakeTheNewestTheOldest) {
    TempFolder Dir;
    const RecordSource State = InMemory({{RecordFile::NextIDs, Blanks(12)}});
    MakeDirs(Dir / "Backups");
    const qint64 Later = At(2099, 1, 1);
    WriteFile(Dir / "Backups/later.nebgen", BytesOfGeneration(State, At(2098, 1, 1), Later));
    for (int I = 0; I < 12; ++I) EndWith(Dir.Path(), u"of %1"_s.arg(I), At(2026, 10, 1 + I));
    EXPECT_EQ(NamesIn(Dir.Path()).value(1), u"of 10"_s);  // behind that of 2098
    for (const Generation& Each : ListGenerations(Dir.Path())) EXPECT_GE(Each.Kept, Later);
}

// A write whose journal is whole, and which then finds no room for Albums.dat.
std::optional<Fault> BreakAt(const QString& Dir, const char* Name, const QString& AlbumName) {
    const auto Engine = OpenEngine(Dir, Recovery::InMemory);
    std::int32_t AlbumID = 1;
    EXPECT_TRUE(Engine->SaveAlbum(AlbumID, AlbumName));
    SetHostWatcher([&](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.contains(QLatin1String(Name)))
            throw Fault(u"full"_s, Path);
    });
    std::optional<Fault> NotKept;
    try {
        NotKept = Engine->FinalizeDB();
        SetHostWatcher({});
    } catch (const Fault&) {
        SetHostWatcher({});
        EXPECT_EQ(ReadJournal(Dir), JournalState::Whole);
    }
    return NotKept;
}

TEST(Generations, NoRoomForOneDoesNotCostTheSave) {
    TempFolder Dir;
    EndWith(Dir.Path(), u"first"_s);
    const auto NotKept = BreakAt(Dir.Path(), "Backups", u"second"_s);
    ASSERT_TRUE(NotKept);
    EXPECT_TRUE(NotKept->File().contains(u"Backups"));
    EXPECT_EQ(OpenEngine(Dir.Path())->Albums[0]->AlbumName, u"second"_s);
    EXPECT_EQ(ReadJournal(Dir.Path()), JournalState::None);
    EXPECT_TRUE(ListDir(Dir / "Backups").empty());
}

TEST(Generations, AFolderThatCannotBeWrittenDoesNotCostTheSave) {
    TempFolder Dir;
    EndWith(Dir.Path(), u"first"_s);
    WriteFile(Dir / "Backups", "a file under this name");
    const auto Engine = OpenEngine(Dir.Path());
    std::int32_t AlbumID = 1;
    ASSERT_TRUE(Engine->SaveAlbum(AlbumID, u"second"_s));
    EXPECT_TRUE(Engine->FinalizeDB());
    EXPECT_EQ(OpenEngine(Dir.Path())->Albums[0]->AlbumName, u"second"_s);
}

TEST(Generations, AStartThatFinishesAWriteSaysWhatCouldNotBeKept) {
    TempFolder Dir;
    EndWith(Dir.Path(), u"first"_s);
    // killed between the journal and all else
    const auto Changed = OpenEngine(Dir.Path());
    std::int32_t AlbumID = 1;
    ASSERT_TRUE(Changed->SaveAlbum(AlbumID, u"second"_s));
    CommitDatabase(Dir.Path(), BuildImage(*Changed), {});
    WriteFile(Dir / "Backups", "a file under this name");
    const auto Engine = OpenEngine(Dir.Path());
    EXPECT_EQ(Engine->Albums[0]->AlbumName, u"second"_s);
    EXPECT_TRUE(Engine->Found().NotKept.contains(u"Backups"));
    EXPECT_EQ(OpenEngine(Dir.Path())->Found().NotKept, QString());
}

TEST(Generations, AStartThatFinishesAWriteKeepsTheStateOfBefore) {
    TempFolder Dir;
    EndWith(Dir.Path(), u"first"_s);
    const auto Changed = OpenEngine(Dir.Path());
    std::int32_t AlbumID = 1;
    ASSERT_TRUE(Changed->SaveAlbum(AlbumID, u"second"_s));
    CommitDatabase(Dir.Path(), BuildImage(*Changed), {});
    EXPECT_TRUE(ListGenerations(Dir.Path()).empty());
    EXPECT_EQ(OpenEngine(Dir.Path())->Found().NotKept, QString());
    EXPECT_EQ(NamesIn(Dir.Path()), (QStringList{u"first"_s}));
}

TEST(Generations, WhatABrokenWriteLeavesIsNone) {
    TempFolder Dir;
    EndWith(Dir.Path(), u"first"_s);
    BreakAt(Dir.Path(), "Albums.dat", u"second"_s);
    ASSERT_EQ(ReadJournal(Dir.Path()), JournalState::Whole);
    EXPECT_EQ(NamesIn(Dir.Path()), (QStringList{u"first"_s}));
    // the user goes on and ends again: by then the record files are neither the one nor the other
    BreakAt(Dir.Path(), "NextIDs.dat", u"third"_s);
    ASSERT_EQ(ReadJournal(Dir.Path()), JournalState::Whole);
    EXPECT_EQ(NamesIn(Dir.Path()), (QStringList{u"first"_s}));
    EXPECT_EQ(OpenEngine(Dir.Path())->Albums[0]->AlbumName, u"third"_s);
    EXPECT_EQ(NamesIn(Dir.Path()), (QStringList{u"first"_s}));
    EndWith(Dir.Path(), u"fourth"_s);
    EXPECT_EQ(NamesIn(Dir.Path()), (QStringList{u"third"_s, u"first"_s}));
}

TEST(Generations, AWriteOverABrokenOneThatIsKilledAtOnceKeepsNoneEither) {
    TempFolder Dir;
    EndWith(Dir.Path(), u"first"_s);
    BreakAt(Dir.Path(), "Albums.dat", u"second"_s);
    ASSERT_EQ(ReadJournal(Dir.Path()), JournalState::Whole);
    // the journal of the next write is whole, and no record file has been touched for it yet
    const auto Changed = OpenEngine(Dir.Path(), Recovery::InMemory);
    std::int32_t AlbumID = 1;
    ASSERT_TRUE(Changed->SaveAlbum(AlbumID, u"third"_s));
    CommitDatabase(Dir.Path(), BuildImage(*Changed), {});
    EXPECT_EQ(OpenEngine(Dir.Path())->Albums[0]->AlbumName, u"third"_s);
    EXPECT_EQ(NamesIn(Dir.Path()), (QStringList{u"first"_s}));
}

TEST(Generations, ADatabaseWithoutSomeOfItsFilesIsKeptAsItWas) {
    TempFolder Dir;
    EndWith(Dir.Path(), u"first"_s);
    DeleteFile(Dir / "SlideShows.dat");
    EndWith(Dir.Path(), u"second"_s);
    EXPECT_EQ(NamesIn(Dir.Path()), (QStringList{u"first"_s}));
}

}  // namespace
}  // namespace neb
