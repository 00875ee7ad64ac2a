// What lies on the disk while a film is made, and what is left where that ends before its time.
#include <future>
#include <thread>

#include "harness/DiskKiller.h"
#include "harness/FolderState.h"
#include "harness/MountedMemory.h"
#include "harness/WithoutPrivileges.h"
#include "show/film/FilmFile.h"
#include "show/film/FilmRig.h"
#include "support/files/FileInTheMaking.h"
#include "support/files/modHostFilesCopy.h"

namespace neb {
namespace {

using namespace test;
using namespace harness;

constexpr QRgb OneColour = 0xff000001, TwoColour = 0xff000002;

class FilmFileTest : public FilmRig {
  protected:
    // A film of a few frames and its captions.
    void Make() const {
        FilmWriter Writer(Path, SquareFilm(4));
        Writer.PutBeside("1\n");
        Writer.AddFrame(Frame(4, OneColour), 3);
        Writer.AddFrame(Frame(4, TwoColour));
        Writer.Finish();
    }
    void PutOld() const {
        WriteFile(Path, "old");
        WriteFile(Subtitles, "old 1\n");
        for (const QString& Each : {Path, Subtitles}) SyncFile(Each);
        SyncDir(Dir.Path());
    }
    const QString Subtitles = Dir / u"Holiday.srt"_s;
    const QByteArray New = "frame-----\nframe 1 x3\nframe 2 x1\n";
};

TEST_F(FilmFileTest, TakesItsNameWithItsSubtitles) {
    PutOld();
    Make();
    EXPECT_EQ(New, ReadFile(Path));
    EXPECT_EQ("1\n", ReadFile(Subtitles));
    EXPECT_EQ(2, Names().size());
}

TEST_F(FilmFileTest, BringsAllOfItToTheDiskBeforeTheName) {
    QStringList Steps;
    std::mutex OneByOne;
    SetHostWatcher([&](HostStep Step, const QString& File, qint64&) {
        const std::lock_guard Lock(OneByOne);
        const char* Words[] = {"write", "sync", "syncdir", "delete", "rename"};
        const QString Line =
            QLatin1String(Words[static_cast<int>(Step)]) + u' ' + File.mid(Dir.Path().size());
        if (Steps.isEmpty() || Steps.last() != Line) Steps << Line;
    });
    Make();
    SetHostWatcher({});
    const QStringList Expected{u"write Holiday.mp4.new"_s,
                               u"write Holiday.srt.new"_s,
                               u"write Holiday.mp4.new"_s,
                               u"sync Holiday.mp4.new"_s,
                               u"sync Holiday.srt.new"_s,
                               u"rename Holiday.mp4"_s,
                               u"syncdir "_s,
                               u"rename Holiday.srt"_s,
                               u"syncdir "_s};
    EXPECT_EQ(Expected, Steps);
}

class FilmKilled : public FilmFileTest, public ::testing::WithParamInterface<Kill> {};

TEST_P(FilmKilled, IsTheOldFilmOrTheNewOneNeverAHalf) {
    int Olds = 0, News = 0, Step = 1;
    for (bool Through = false; !Through && Step < 100; ++Step) {
        DeleteFilesIn(Dir.Path());
        PutOld();
        Through = RunsThrough(Step, GetParam(), Dir.Path(), [&] { Make(); });
        const QByteArray Film = ReadFile(Path), Text = ReadFile(Subtitles);
        EXPECT_TRUE(Film == "old" || Film == New) << "step " << Step << ": " << Film.constData();
        EXPECT_TRUE(Text == "old 1\n" || Text == "1\n") << Step << ": " << Text.constData();
        (Film == New ? News : Olds) += 1;
        EXPECT_TRUE(!Through || Film == New);
        Make();  // and takes away what was left
        EXPECT_EQ(New, ReadFile(Path));
        EXPECT_EQ(2, Names().size()) << "step " << Step;
    }
    EXPECT_GT(Step, 4);
    EXPECT_LT(Step, 100);
    EXPECT_GT(Olds, 2);
    EXPECT_GT(News, 0);
}

INSTANTIATE_TEST_SUITE_P(AtEveryStep, FilmKilled,
                         ::testing::Values(Kill::BeforeStep, Kill::InsideWrite, Kill::PowerLoss));

// A disk that takes so many bytes.
void LimitDisk(qint64 Bytes) {
    SetHostWatcher([Left = std::make_shared<std::atomic<qint64>>(Bytes)](
                       HostStep Step, const QString&, qint64& Length) {
        if (Step != HostStep::Write) return;
        Length = std::clamp<qint64>(*Left, 0, Length);
        *Left -= Length;
    });
}

TEST_F(FilmFileTest, NamesTheFilmWhenTheDiskIsFullAndLeavesTheOldOne) {
    PutOld();
    const QStringList Before = Everything(Dir.Path());
    int Filled = 0;
    for (qint64 Bytes = 0; Bytes < 38; Bytes += 3, ++Filled) {
        LimitDisk(Bytes);
        const Fault Told = FaultOf([&] { Make(); });
        SetHostWatcher({});
        EXPECT_EQ(u"The file cannot be written. (no space left on device)"_s, Told.What()) << Bytes;
        EXPECT_TRUE(Told.File() == Path || Told.File() == Subtitles) << Told.File().toStdString();
        EXPECT_EQ("", Differences(Before, Everything(Dir.Path()))) << Bytes;
    }
    EXPECT_EQ(13, Filled);
    LimitDisk(200);
    EXPECT_NO_THROW(Make());
}

TEST_F(FilmFileTest, TellsOfEveryStepThatTheDiskRefuses) {
    for (const HostStep Refused : {HostStep::Write, HostStep::Sync, HostStep::Rename}) {
        PutOld();
        const QStringList Before = Everything(Dir.Path());
        SetHostWatcher([&](HostStep Step, const QString& File, qint64&) {
            if (Step == Refused) throw Fault(u"The disk has had enough."_s, File);
        });
        const Fault Told = FaultOf([&] { Make(); });
        SetHostWatcher({});
        EXPECT_EQ(u"The disk has had enough."_s, Told.What());
        EXPECT_EQ(Path, Told.File());
        EXPECT_EQ("", Differences(Before, Everything(Dir.Path())));
    }
}

TEST_F(FilmFileTest, LeavesRoomOnTheDiskForOthers) {
    const qint64 Free = FreeSpace(Dir.Path());
    const Fault AtOnce = FaultOf([&] { FilmFile(Path, Free * 2); });
    EXPECT_TRUE(AtOnce.What().startsWith(u"The disk is full: "_s)) << AtOnce.What().toStdString();
    EXPECT_EQ(Path, AtOnce.File());
    EXPECT_TRUE(Names().isEmpty());
}

TEST_F(FilmFileTest, BeginsWhereTheRoomIsJustEnough) {
    const MountedMemory Disk(Dir.Path(), "size=8m");
    if (!Disk.IsThere()) GTEST_SKIP() << "nothing can be mounted here";
    const qint64 Free = FreeSpace(Dir.Path());
    EXPECT_EQ(Free, RoomForFile(Path, Free));
    EXPECT_NO_THROW(FilmFile(Path, Free));
    EXPECT_THROW(RoomForFile(Path, Free + 1), Fault);
}

TEST_F(FilmFileTest, EndsWhenTheRoomIsUsedUpWhileItIsMade) {
    constexpr qint64 Room = 24 << 20;  // others need the rest
    FilmFile File(Path, FreeSpace(Dir.Path()) - Room);
    const std::vector<std::uint8_t> Much(1 << 20, 7);
    const FilmSink Sink = File.Sink();
    int Written = 0;
    while (Written < 600 && Sink.Write(Much.data(), Much.size())) ++Written;
    EXPECT_LT(Written, 600);
    ASSERT_TRUE(File.Problem());
    EXPECT_TRUE(File.Problem()->What().startsWith(u"The disk is full: "_s));
    EXPECT_THROW(File.Finish(), Fault);
    File.GiveUp();
    EXPECT_TRUE(Names().isEmpty());
}

TEST_F(FilmFileTest, SaysSoAtOnceWhereItMayNotBeWritten) {
    ASSERT_TRUE(QFile::setPermissions(
        Dir.Path(), QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther));
    {
        const WithoutPrivileges AsUser;
        const Fault Told = FaultOf([&] { FilmWriter(Path, SquareFilm(4)); });
        EXPECT_EQ(u"The file cannot be written. (Permission denied)"_s, Told.What());
        EXPECT_EQ(Path, Told.File());
    }
    EXPECT_TRUE(Names().isEmpty());
}

TEST_F(FilmFileTest, SaysSoAtOnceWhereItsFolderIsNotThereOrAFolderBearsItsName) {
    const QString Nowhere = Dir / u"nowhere/Holiday.mp4"_s;
    EXPECT_EQ(Nowhere, FaultOf([&] { FilmWriter(Nowhere, SquareFilm(4)); }).File());
    MakeDirs(Path);
    const Fault Told = FaultOf([&] { FilmWriter(Path, SquareFilm(4)); });
    EXPECT_EQ(u"There is a folder in the place of a file."_s, Told.What());
    EXPECT_EQ(QStringList{u"Holiday.mp4"_s}, Names());
}

TEST_F(FilmFileTest, NoticesThatItsFolderHasGone) {
    const QString Folder = Dir / u"stick/"_s;
    MakeDirs(Folder);
    FilmFile File(Folder + u"Holiday.mp4"_s);
    DeleteTree(Folder);
    const std::vector<std::uint8_t> Much(1 << 20, 7);
    const FilmSink Sink = File.Sink();
    int Written = 0;
    while (Written < 50 && Sink.Write(Much.data(), Much.size())) ++Written;
    EXPECT_LT(Written, 50);
    EXPECT_EQ(u"The folder of the file is not there any more."_s, File.Problem()->What());
}

TEST_F(FilmFileTest, TellsAtTheEndOfAFolderThatHasGone) {
    const QString Folder = Dir / u"stick/"_s;
    MakeDirs(Folder);
    FilmWriter Writer(Folder + u"Holiday.mp4"_s, SquareFilm(4));
    Writer.AddFrame(Frame(4, OneColour));
    while (!Seen->Noted().contains(u"frame 1 x1"_s)) std::this_thread::yield();
    DeleteTree(Folder);
    EXPECT_EQ(Folder + u"Holiday.mp4"_s, FaultOf([&] { Writer.Finish(); }).File());
    EXPECT_TRUE(Names().isEmpty());
}

TEST_F(FilmFileTest, IsMadeOnceAtATime) {
    {
        FilmWriter First(Path, SquareFilm(4));
        First.AddFrame(Frame(4, OneColour), 3);
        const Fault Told = FaultOf([&] { FilmWriter(Path, SquareFilm(4)); });
        EXPECT_EQ(u"The file is being made by another window or program."_s, Told.What());
        EXPECT_EQ(Path, Told.File());
        First.AddFrame(Frame(4, TwoColour));
        First.Finish();
        EXPECT_EQ(New, ReadFile(Path));
        // its name is free as soon as it has its own
        FilmWriter Second(Path, SquareFilm(4));
        Second.AddFrame(Frame(4, OneColour));
        Second.Finish();
    }
    EXPECT_EQ("frame-----\nframe 1 x1\n", ReadFile(Path));
    EXPECT_EQ(1, Names().size());
}

TEST_F(FilmFileTest, TakesTheRoomOfWhatAnEndedProgramHasLeft) {
    WriteFile(Path + u".new"_s, QByteArray(5000, 'x'));
    WriteFile(Subtitles + u".new"_s, QByteArray(5000, 'x'));
    Make();
    EXPECT_EQ(New, ReadFile(Path));
    EXPECT_EQ("1\n", ReadFile(Subtitles));
    EXPECT_EQ(2, Names().size());
}

TEST_F(FilmFileTest, WritesThroughNoLink) {
    WriteFile(Dir / u"mine"_s, "mine");
    ASSERT_TRUE(QFile::link(Dir / u"mine"_s, Path + u".new"_s));
    Make();
    EXPECT_EQ("mine", ReadFile(Dir / u"mine"_s));
    EXPECT_EQ(New, ReadFile(Path));
    EXPECT_FALSE(IsLink(Path));
}

TEST_F(FilmFileTest, CanBeGivenUpWhileItIsBroughtToTheDisk) {
    FilmFile File(Path);
    const FilmSink Sink = File.Sink();
    Sink.Write(reinterpret_cast<const std::uint8_t*>("half"), 4);
    std::future<void> GivingUp;
    SetHostWatcher([&](HostStep Step, const QString&, qint64&) {
        if (Step != HostStep::Sync) return;
        GivingUp = std::async(std::launch::async, [&] { File.GiveUp(); });
        while (!File.IsGivenUp()) std::this_thread::yield();
    });
    EXPECT_FALSE(File.Finish());
    GivingUp.get();
    EXPECT_TRUE(Names().isEmpty());
}

TEST_F(FilmFileTest, IsReadAndWrittenAtAnyPlace) {
    {
        FileInTheMaking File(Path);
        File.Write("0123456789", 10);
        File.Seek(2);
        File.Write("ab", 2);
        char Bytes[20] = {};
        EXPECT_EQ(3, File.Read(1, Bytes, 3));
        EXPECT_EQ("1ab", QByteArray(Bytes, 3));
        File.Write("c", 1);  // where the last write has ended
        EXPECT_EQ(6, File.Read(4, Bytes, 20));
        EXPECT_EQ("c56789", QByteArray(Bytes, 6));
        EXPECT_EQ(0, File.Read(10, Bytes, 20));
        EXPECT_EQ(10, File.Length());
        File.Seek(12);
        File.Write("d", 1);
        EXPECT_EQ(3, File.Read(10, Bytes, 20));
        EXPECT_EQ(QByteArray("\0\0d", 3), QByteArray(Bytes, 3));
        EXPECT_EQ(13, File.Length());
        File.Seek(10);
        File.Write("ef", 2);
        EXPECT_EQ(13, File.Length());
        EXPECT_THROW(File.Seek(-1), Fault);
        File.Sync();
        File.TakeName();
    }
    EXPECT_EQ("01abc56789efd", ReadFile(Path));
}

}  // namespace
}  // namespace neb
