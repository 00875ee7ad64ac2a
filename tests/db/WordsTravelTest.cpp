// Whole texts go wherever their records go: through the journals, into earlier states and back; and
// what befalls their file by itself is told, and costs no more than it must.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QCryptographicHash>
#include <QFile>
#include <QtEndian>

#include "Fixtures.h"
#include "db/Changes.h"
#include "db/SessionChanges.h"
#include "db/modLoadRecords.h"
#include "db/records/RecordSums.h"
#include "db/records/WordsFile.h"
#include "db/recovery/StateDifferences.h"
#include "db/recovery/modRestore.h"
#include "harness/EngineContent.h"
#include "harness/WithoutPrivileges.h"
#include "support/Fault.h"
#include "support/modText.h"

namespace neb {
namespace {

using namespace harness;

class WordsTravel : public ::testing::Test {
  protected:
    WordsTravel() { WriteAlbum(u"Весна"_s); }
    ~WordsTravel() override { SetHostWatcher({}); }

    // The name of the first album, written and ended.
    void WriteAlbum(const QString& Name) const {
        const auto Engine = OpenEngine(Dir.Path());
        if (Engine->Albums.empty())
            static_cast<void>(Changes(*Engine).MakeAlbum(Name));
        else
            static_cast<void>(Changes(*Engine).RenameAlbum(1, Name));
        EXPECT_FALSE(Engine->FinalizeDB());
    }
    QString Album(Recovery How = Recovery::CarryOut) const {
        return OpenEngine(Dir.Path(), How)->Albums.at(0)->AlbumName;
    }
    QString WordsPath() const { return Dir / "Words.dat"; }
    QString Wrong() const { return LookAtHealth(Dir.Path()).Wrong.join(u'|'); }
    // Files besides those of records, by the first letters of their names.
    QStringList Beside(const QString& Beginning) const {
        return ListMask(Dir.Path() + Beginning + u"*"_s);
    }

    TempFolder Dir;
};

// A journal that an earlier version of the program has left, before any file was touched.
QByteArray EarlierJournal(const QString& Dir, const QString& AlbumName) {
    RecordImage Image;
    {
        const auto Engine = OpenEngine(Dir);
        std::int32_t AlbumID = 1;
        EXPECT_TRUE(Engine->SaveAlbum(AlbumID, AlbumName));
        Image = BuildImage(*Engine);
    }
    Image.Words.reset();
    CommitDatabase(Dir, Image, {});
    DropStagedFiles(Dir);
    return ReadFile(JournalPath(Dir));
}

TEST_F(WordsTravel, AJournalOfAnEarlierVersionIsReadAndLeavesThemAlone) {
    const QByteArray Words = ReadFile(WordsPath());
    EXPECT_TRUE(EarlierJournal(Dir.Path(), u"Vesna"_s).startsWith("NEBJRNL2"));
    EXPECT_EQ(Album(Recovery::InMemory), u"Весна") << "its record is the same";
    EXPECT_EQ(Album(), u"Весна");
    EXPECT_EQ(ReadFile(WordsPath()), Words);
    EarlierJournal(Dir.Path(), u"Spring"_s);
    EXPECT_EQ(Album(Recovery::InMemory), u"Spring");
    EXPECT_EQ(Album(), u"Spring");
    EXPECT_EQ(ReadFile(WordsPath()), Words);
    EXPECT_EQ(ReadJournal(Dir.Path()), JournalState::None);
}

TEST_F(WordsTravel, WithoutThemAJournalIsAsEarlierVersionsReadIt) {
    WriteAlbum(u"Spring"_s);
    ASSERT_FALSE(FileExists(WordsPath()));
    const auto Engine = OpenEngine(Dir.Path());
    CommitDatabase(Dir.Path(), BuildImage(*Engine), {});
    EXPECT_TRUE(ReadFile(JournalPath(Dir.Path())).startsWith("NEBJRNL2"));
}

TEST_F(WordsTravel, TheJournalIsMadeLikeThis) {
    const auto Engine = OpenEngine(Dir.Path());
    std::int32_t AlbumID = 1;
    ASSERT_TRUE(Engine->SaveAlbum(AlbumID, u"Лето"_s));
    const RecordImage Image = BuildImage(*Engine);
    const QByteArray Before = ReadFile(WordsPath());
    CommitDatabase(Dir.Path(), Image, {});
    QByteArray Journal = ReadFile(JournalPath(Dir.Path()));
    const QByteArray Whole = Journal;
    EXPECT_TRUE(Journal.startsWith("NEBJRNL4"));
    EXPECT_EQ(Journal.last(32),
              QCryptographicHash::hash(Journal.chopped(32), QCryptographicHash::Blake2b_256));
    Journal.chop(32);
    EXPECT_TRUE(Journal.endsWith(*Image.Words));
    const auto Number = [](qint64 Value) {
        QByteArray Bytes(8, '\0');
        qToLittleEndian(Value, Bytes.data());
        return Bytes;
    };
    constexpr qsizetype WordsRow = 8 + 8 * 16 + 8 * 40;
    EXPECT_EQ(Journal.mid(WordsRow, 48).toHex(),
              (Number(Image.Words->size()) + Number(Before.size()) +
               QCryptographicHash::hash(Before, QCryptographicHash::Blake2b_256))
                  .toHex());
    qsizetype Packed = 0;
    for (const PackedRecords& File : Image.Files) Packed += File.Bytes().size();
    EXPECT_EQ(Journal.size(), WordsRow + 48 + Packed + Image.Words->size());
    EXPECT_EQ(RecordsInJournal(Whole)->Words, Image.Words);
    EXPECT_EQ(Album(Recovery::InMemory), u"Лето");
}

// What lies there is a leaving of the write that broke off; the journal has all of it.
TEST_F(WordsTravel, AWriteThatWaitsMakesGoodWhatItHasLeft) {
    const auto Engine = OpenEngine(Dir.Path());
    std::int32_t AlbumID = 1;
    ASSERT_TRUE(Engine->SaveAlbum(AlbumID, u"Лето"_s));
    CommitDatabase(Dir.Path(), BuildImage(*Engine), {});
    WriteFile(WordsPath(), "NEBWO");
    EXPECT_EQ(Wrong(), u"");
    EXPECT_EQ(Album(Recovery::InMemory), u"Лето");
    const auto Opened = OpenEngine(Dir.Path());
    EXPECT_EQ(Opened->Albums[0]->AlbumName, u"Лето");
    EXPECT_TRUE(Opened->Found().PutAside.isEmpty());
}

TEST_F(WordsTravel, ASessionThatBreaksOffLosesNone) {
    {
        const auto Engine = OpenEngine(Dir.Path());
        Engine->KeepSession();
        Changes Door(*Engine);
        ASSERT_TRUE(Door.SaveSlide(1, {0, u"茶"_s}));
        ASSERT_TRUE(Door.SaveCaption(1, 1, u"酒 "_s.repeated(300)));
        ASSERT_TRUE(Door.MakeAlbum(u"Лето"_s));
        clsNEBSlideShow Show;
        Show.SlideShowName = u"Τοίχος"_s;
        Show.SaveDetail(1, 1, u"🐈"_s);
        ASSERT_TRUE(Door.SaveShow(1, std::move(Show)));
        ASSERT_TRUE(Door.RenameAlbum(2, u"Leto"_s));
        ASSERT_TRUE(Engine->IsSessionStored());
    }
    const auto Engine = OpenEngine(Dir.Path());
    EXPECT_EQ(Engine->Found().Changes, 5);
    EXPECT_EQ(Engine->Albums[0]->AlbumName, u"Весна");
    EXPECT_EQ(Engine->Albums[0]->Slides[0]->SlideText, u"酒 "_s.repeated(300));
    EXPECT_EQ(Engine->Albums[0]->SlideShows[0]->SlideShowName, u"Τοίχος");
    EXPECT_EQ(Engine->Albums[0]->SlideShows[0]->Details[0]->SlideText, u"🐈");
    EXPECT_EQ(Engine->Albums[1]->AlbumName, u"Leto") << "as it was typed in the end";
}

TEST_F(WordsTravel, AnEntryOfASessionIsAsEarlierVersionsReadItWhereItNeedsNone) {
    const auto Engine = OpenEngine(Dir.Path());
    static_cast<void>(Changes(*Engine).RenameAlbum(1, u"Spring"_s));
    const QByteArray Plain = EntryOf(*Engine, {Change::Kind::AlbumRenamed, 1});
    static_cast<void>(Changes(*Engine).RenameAlbum(1, u"Весна"_s));
    const QByteArray Entry = EntryOf(*Engine, {Change::Kind::AlbumRenamed, 1});
    const auto Words = WordsFileOf({{RecordFile::Albums, 0, {1}, "Vesna", u"Весна"_s}});
    EXPECT_EQ(Entry.size(), Plain.size() - 1 + Words.size());  // one letter fewer
    EXPECT_TRUE(Entry.endsWith(Words));
    EXPECT_TRUE(CarryOutEntry(*Engine, Entry.chopped(Words.size())));
    EXPECT_EQ(Engine->Albums[0]->AlbumName, u"Vesna") << "an earlier version knew no more";
    EXPECT_TRUE(CarryOutEntry(*Engine, Entry));
    EXPECT_EQ(Engine->Albums[0]->AlbumName, u"Весна");
    EXPECT_FALSE(CarryOutEntry(*Engine, Entry.chopped(1)));
    EXPECT_FALSE(CarryOutEntry(*Engine, Entry + 'x'));
}

TEST_F(WordsTravel, ASessionIsBroughtBackWhateverHasBecomeOfTheirFile) {
    {
        const auto Engine = OpenEngine(Dir.Path());
        Engine->KeepSession();
        static_cast<void>(Changes(*Engine).SaveSlide(1, {0, u"茶"_s}));
        ASSERT_TRUE(Engine->IsSessionStored());
    }
    WriteFile(WordsPath(), "no words");
    const auto Engine = OpenEngine(Dir.Path());
    EXPECT_EQ(Engine->Found().Changes, 1);
    EXPECT_EQ(Engine->Albums[0]->Slides[0]->SlideText, u"茶");
}

TEST_F(WordsTravel, EarlierStatesHaveTheirOwn) {
    WriteAlbum(u"Spring"_s);
    WriteAlbum(u"Лето"_s);
    const auto States = ListGenerations(Dir.Path());
    ASSERT_EQ(States.size(), 2u);
    QStringList Names;
    for (const Generation& Each : States)
        Names << OpenGeneration(Each, Dir.Path())->Albums[0]->AlbumName;
    Names.sort();
    EXPECT_EQ(Names, (QStringList{u"Spring"_s, u"Весна"_s}));
    EXPECT_TRUE(ReadFile(States[0].Path).startsWith("NEBGENS1") !=
                ReadFile(States[1].Path).startsWith("NEBGENS1"))
        << "the one without any is as earlier versions read it";
}

TEST_F(WordsTravel, RestoringAStateBringsItsOwnAndNoNewerOnes) {
    for (const QString& Name : {u"Vesna"_s, u"Весня́на"_s}) WriteAlbum(Name);
    for (const QString& Wanted : {u"Vesna"_s, u"Весна"_s, u"Vesna"_s, u"Весня́на"_s}) {
        const auto Engine = OpenEngine(Dir.Path());
        std::unique_ptr<clsDBEngine> Then;
        for (const Generation& Each : ListGenerations(Dir.Path()))
            if (auto State = OpenGeneration(Each, Dir.Path());
                State->Albums[0]->AlbumName == Wanted)
                Then = std::move(State);
        ASSERT_TRUE(Then) << qPrintable(Wanted);
        EXPECT_FALSE(Compare(*Then, *Engine).AreNone());
        RestoreState(*Engine, *Then);
        EXPECT_EQ(Engine->Albums[0]->AlbumName, Wanted);
        EXPECT_EQ(Album(), Wanted);
        EXPECT_EQ(FileExists(WordsPath()), Wanted != u"Vesna");
    }
}

// The eight files are the same to the byte.
TEST_F(WordsTravel, AStateThatDiffersInThemAloneIsKept) {
    const auto Records = ReadFile(Dir / "Albums.dat");
    WriteAlbum(u"Vesna"_s);
    EXPECT_EQ(ReadFile(Dir / "Albums.dat"), Records);
    ASSERT_EQ(ListGenerations(Dir.Path()).size(), 1u);
    WriteAlbum(u"Vesna"_s);
    EXPECT_EQ(ListGenerations(Dir.Path()).size(), 1u) << "nothing was replaced";
}

TEST_F(WordsTravel, AGenerationIsMadeLikeThis) {
    const std::vector<WholeText> Texts = {{RecordFile::Albums, 0, {1}, "?", u"茶"_s}};
    const QByteArray Words = WordsFileOf(Texts);
    const QByteArray Plain = BytesOfGeneration(InMemory({}), 1, 2),
                     Bytes = BytesOfGeneration(InMemory({{RecordFile::Words, Words}}), 1, 2);
    QByteArray Expected = "NEBGENS2" + Plain.sliced(8).chopped(32);
    Expected += static_cast<char>(Words.size()) + QByteArray(7, '\0') + Words;
    Expected += QCryptographicHash::hash(Expected, QCryptographicHash::Blake2b_256);
    EXPECT_EQ(Bytes.toHex(), Expected.toHex());
    EXPECT_EQ(GenerationIn(Bytes)->Words, Words);
    EXPECT_EQ(GenerationIn(Plain)->Words, QByteArray());
    for (qsizetype Length = 0; Length < Bytes.size(); ++Length)
        EXPECT_FALSE(GenerationIn(Bytes.first(Length))) << Length;
    for (qsizetype I = 0; I < Bytes.size(); ++I)
        EXPECT_FALSE(GenerationIn(QByteArray(Bytes).replace(I, 1, QByteArray(1, ~Bytes[I])))) << I;
}

constexpr const char* Lost =
    " Captions and names in other scripts, or longer than their records hold, are there as earlier "
    "albums in Backups have them, or else in the closest letters.";

TEST_F(WordsTravel, DamageOfTheirFileIsTold) {
    EXPECT_EQ(Wrong(), u"");
    const QByteArray Words = ReadFile(WordsPath());
    const auto Told = [](const char* What) { return QLatin1String(What) + QLatin1String(Lost); };
    WriteFile(WordsPath(), Words.chopped(1));
    EXPECT_EQ(Wrong(), Told("Words.dat is damaged."));
    EXPECT_TRUE(LookAtHealth(Dir.Path()).LacksRecords) << "albums would be taken over without";
    WriteFile(WordsPath(), {});
    EXPECT_EQ(Wrong(), Told("Words.dat is damaged."));
    WriteFile(WordsPath(), "NEBWORD2 of days to come");
    EXPECT_EQ(Wrong(), Told("Words.dat was written by a later version of the program."));
    DeleteFile(WordsPath());
    EXPECT_EQ(Wrong(), Told("Words.dat is missing."));
    MakeDirs(WordsPath());
    EXPECT_EQ(Wrong(), Told("Words.dat is no file: it is a folder."));
    DeleteFolder(WordsPath());
    WriteFile(WordsPath(), Words);
    EXPECT_EQ(Wrong(), u"");
}

// All files were put back as some backup had them, which knew of no such file.
TEST_F(WordsTravel, ABackupWithoutThemMissesNothing) {
    const auto Before = AllRecords(Dir.Path());
    for (const auto& [Name, Bytes] : Before) DeleteFile(Dir / QString::fromStdString(Name));
    for (const auto& [Name, Bytes] : Before)
        if (Name != "Words.dat") WriteFile(Dir / QString::fromStdString(Name), Bytes + Bytes);
    EXPECT_FALSE(Wrong().contains(u"Words"_s)) << qPrintable(Wrong());
    EXPECT_FALSE(HasLostWords(Dir.Path()));
}

TEST_F(WordsTravel, WhatCannotBeUsedIsKeptAsideAtAnOpening) {
    const QByteArray Later = "NEBWORD2 of days to come";
    for (const QByteArray& Bytes : {Later, QByteArray("NEBWORD1 damaged")}) {
        WriteFile(WordsPath(), Bytes);
        EXPECT_EQ(Album(Recovery::InMemory), u"Vesna");
        EXPECT_EQ(ReadFile(WordsPath()), Bytes) << "looking changes nothing";
        const auto Engine = OpenEngine(Dir.Path());
        EXPECT_EQ(Engine->Albums[0]->AlbumName, u"Vesna");
        ASSERT_EQ(Engine->Found().PutAside.size(), 1);
        EXPECT_EQ(ReadFile(Engine->Found().PutAside[0]), Bytes);
        EXPECT_TRUE(Engine->Found().PutAside[0].startsWith(Dir / "Words "));
        EXPECT_FALSE(FileExists(WordsPath()));
        EXPECT_FALSE(Engine->FinalizeDB());
    }
    EXPECT_EQ(Beside(u"Words "_s).size(), 2);
}

// An earlier state has the name in its own script, and its record is the same still.
TEST_F(WordsTravel, GoingOnWithoutThemTakesThoseOfAnEarlierState) {
    {
        const auto Engine = OpenEngine(Dir.Path());
        static_cast<void>(Changes(*Engine).SaveSlide(1, {0, u"茶"_s}));
        EXPECT_FALSE(Engine->FinalizeDB());
    }
    for (const bool IsThere : {true, false}) {
        const QByteArray Words = ReadFile(WordsPath());
        IsThere ? WriteFile(WordsPath(), "damaged") : DeleteFile(WordsPath());
        const DatabaseHealth Health = LookAtHealth(Dir.Path());
        ASSERT_FALSE(Health.IsSound());
        clsDBEngine Looked;
        Looked.SetDBPath(Dir.Path());
        LoadRest(Looked, Health);
        EXPECT_EQ(Looked.Albums[0]->AlbumName, u"Весна");
        const KeptFiles Kept = GoOnWithRest(Dir.Path(), {}, Health);
        EXPECT_EQ(FileExists(Kept.Folder + u"Words.dat"_s), IsThere);
        const auto Engine = OpenEngine(Dir.Path());
        EXPECT_EQ(Engine->Albums[0]->AlbumName, u"Весна");
        EXPECT_EQ(Engine->Albums[0]->Slides[0]->SlideText, u"cha") << "it came after that state";
        EXPECT_EQ(Wrong(), u"");
        WriteFile(WordsPath(), Words);
    }
}

// Sound as it is, it lacks what was written since, and the next write would leave that out for
// good.
TEST_F(WordsTravel, AnOlderFileOfThemInItsPlaceIsToldAndCompleted) {
    const QByteArray Older = ReadFile(WordsPath());
    {
        const auto Engine = OpenEngine(Dir.Path());
        static_cast<void>(Changes(*Engine).SaveSlide(1, {0, u"茶"_s}));
        EXPECT_FALSE(Engine->FinalizeDB());
        static_cast<void>(Changes(*Engine).SaveSlide(1, {0, u"酒"_s}));
        EXPECT_FALSE(Engine->FinalizeDB());
    }
    WriteFile(WordsPath(), Older);
    EXPECT_TRUE(
        Wrong().startsWith(u"Words.dat is not as it was written: something has changed it."))
        << qPrintable(Wrong());
    GoOnWithRest(Dir.Path(), {}, LookAtHealth(Dir.Path()));
    EXPECT_EQ(Wrong(), u"");
    const auto Engine = OpenEngine(Dir.Path());
    EXPECT_EQ(Engine->Albums[0]->AlbumName, u"Весна") << "which it has";
    EXPECT_EQ(Engine->Albums[0]->Slides[0]->SlideText, u"茶") << "as an earlier state has it";
    EXPECT_EQ(Engine->Albums[0]->Slides[1]->SlideText, ToAnsi(u"酒")) << "it came after that state";
}

TEST_F(WordsTravel, WhatAChangedFileOfThemHasIsKept) {
    {
        const auto Engine = OpenEngine(Dir.Path());
        static_cast<void>(Changes(*Engine).SaveSlide(1, {0, u"茶"_s}));
        EXPECT_FALSE(Engine->FinalizeDB());
    }
    std::vector<WholeText> Texts = WordsIn(ReadFile(WordsPath())).Texts;
    std::erase_if(Texts, [](const WholeText& Each) { return Each.File == RecordFile::Albums; });
    WriteFile(WordsPath(), WordsFileOf(Texts));
    GoOnWithRest(Dir.Path(), {}, LookAtHealth(Dir.Path()));
    const auto Engine = OpenEngine(Dir.Path());
    EXPECT_EQ(Engine->Albums[0]->AlbumName, u"Весна") << "as an earlier state has it";
    EXPECT_EQ(Engine->Albums[0]->Slides[0]->SlideText, u"茶") << "which no earlier state has";
}

// With all records of its time, however, it is a backup.
TEST_F(WordsTravel, AnOlderFileOfThemAmongTheRecordsOfItsTimeIsSound) {
    const auto Before = AllRecords(Dir.Path());
    WriteAlbum(u"вЕсна"_s);
    for (const auto& [Name, Bytes] : Before) {
        const QString Path = Dir / QString::fromStdString(Name);
        WriteFile(Path, Bytes);
        QFile File(Path);
        ASSERT_TRUE(File.open(QIODevice::ReadWrite));
        ASSERT_TRUE(File.setFileTime(QDateTime::currentDateTime().addDays(-9),
                                     QFileDevice::FileModificationTime));
    }
    EXPECT_EQ(Wrong(), u"");
    EXPECT_EQ(Album(), u"Весна");
}

TEST_F(WordsTravel, TheyAreKeptWithTheOtherFilesOfADamagedDatabase) {
    const QByteArray Words = ReadFile(WordsPath());
    WriteFile(Dir / "Slides.dat", "cut");
    const KeptFiles Kept = GoOnWithRest(Dir.Path(), {}, LookAtHealth(Dir.Path()));
    EXPECT_EQ(ReadFile(Kept.Folder + u"Words.dat"_s), Words);
    EXPECT_EQ(Album(), u"Весна");
}

TEST_F(WordsTravel, AFileThatCannotBeReadIsTold) {
    ASSERT_EQ(0, chmod(qPrintable(Dir.Path()), 0755));
    ASSERT_EQ(0, chmod(qPrintable(WordsPath()), 0000));
    DatabaseHealth Health;
    {
        const WithoutPrivileges Ordinary;
        Health = LookAtHealth(Dir.Path());
    }
    EXPECT_TRUE(Health.Wrong.value(0).startsWith(u"Words.dat: The file cannot be read: "_s))
        << qPrintable(Health.Wrong.join(u'|'));
    EXPECT_FALSE(Health.CanBeUsed(RecordFile::Words));
    const KeptFiles Kept = GoOnWithRest(Dir.Path(), {}, Health);
    EXPECT_TRUE(FileExists(Kept.Folder + u"Words.dat"_s));
    EXPECT_EQ(Album(), u"Vesna");
}

TEST_F(WordsTravel, AFileThatMayNotBeWrittenMakesTheDatabaseReadOnly) {
    ASSERT_EQ(0, chmod(qPrintable(Dir.Path()), 0777));
    ASSERT_EQ(0, chmod(qPrintable(WordsPath()), 0444));
    for (const RecordFile File : AllRecordFiles)
        ASSERT_EQ(0, chmod(qPrintable(RecordPath(Dir.Path(), File)), 0666));
    for (const QString& Folder : {u"Temp"_s, u"Temp/Journal"_s})
        ASSERT_EQ(0, chmod(qPrintable(Dir.Path() + Folder), 0777));
    WithoutPrivileges Ordinary;
    EXPECT_EQ(WhyNotWritable(Dir.Path()), WordsPath());
}

}  // namespace
}  // namespace neb
