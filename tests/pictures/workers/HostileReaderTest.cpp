// A reader that crashes, hangs or lies is one unreadable picture; the next one is read as if
// nothing had been.
#include "harness/HostileReading.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QProcess>
#include <QTest>
#include <thread>

#include "harness/ChildRole.h"
#include "harness/Sanitizer.h"
#include "pictures/formats/DecodeHost.h"
#include "pictures/formats/PictureFaults.h"
#include "pictures/workers/ReadingLocked.h"
#include "support/files/modHostFiles.h"
#include "support/work/ProcessEnd.h"

namespace neb {
namespace {

using harness::Hostile;
using harness::HostileReading;
using harness::PlainPicture;

constexpr const char* BringsDown = "The picture cannot be read: it brings its reader down.";
constexpr const char* Nonsense = "The picture cannot be read: its reader talks nonsense.";
constexpr const char* TooLong = "The picture cannot be read: it takes too long.";
constexpr const char* FromOutside =
    "The picture could not be read: its reader was ended from outside, as happens when there is "
    "not enough memory.";
constexpr const char* GivenUp =
    "The picture has brought its reader down three times and is not tried again before the "
    "program is started anew.";
constexpr qint64 AllOfIt = 819LL << 20;

QByteArray Say(Talk What, const QByteArray& Numbers = {}, const char* How = "say ") {
    return How + QByteArray::number(static_cast<uint>(What)) + ' ' + Numbers;
}

// One that has ended and not been waited for yet is not.
bool IsAtWork(int Pid) {
    QFile File(QStringLiteral("/proc/%1/stat").arg(Pid));
    return File.open(QIODevice::ReadOnly) && !File.readAll().contains(") Z ");
}

class HostileReader : public ::testing::Test {
  protected:
    void Begin(const ReadingCosts& Costs = {}) {
        mReading.reset();
        mReading = std::make_unique<HostileReading>(Costs);
    }
    ReadingLocked& Reader() { return **mReading; }
    int Started() const { return mReading->Started(); }

    // What reading it says; empty when it is read.
    std::string ProblemOf(const QByteArray& Bytes, quint32* Number = nullptr) {
        try {
            Reader().Decode(Bytes, {});
            return {};
        } catch (const Fault& Reason) {
            if (Number) *Number = Reason.Number();
            return Reason.What().toStdString();
        }
    }
    void ExpectReads(QRgb Colour) {
        const auto Made = Reader().Decode(PlainPicture(Colour, {40, 30}, "PNG"), {});
        EXPECT_EQ(QSize(40, 30), Made.Full);
        ASSERT_EQ(QSize(40, 30), Made.Picture.size());
        EXPECT_EQ(Colour, Made.Picture.pixel(20, 15));
    }
    void ExpectOneFault(const QByteArray& Command, const char* Says) {
        SCOPED_TRACE(Command.toStdString());
        QElapsedTimer Clock;
        Clock.start();
        EXPECT_EQ(Says, ProblemOf(Hostile(Command)));
        EXPECT_LT(Clock.elapsed(), 20000);
        ExpectReads(qRgb(mShade, 60, 90));
        mShade = (mShade + 7) % 256;
    }
    // Nobody holds any of the memory for all decoding: else this would wait for ever.
    static void ExpectMemoryIsFree() {
        AcquireMemory({10, 10}, AllOfIt);
        ReleaseMemory(AllOfIt);
    }

  private:
    std::unique_ptr<HostileReading> mReading;
    int mShade = 10;
};

TEST_F(HostileReader, ThatCrashesIsOneUnreadablePicture) {
    Begin();
    for (const char* Each : {"segv", "abort", "exit 0", "exit 1", "close", "write 0", "hold segv"})
        ExpectOneFault(Each, BringsDown);
    ExpectMemoryIsFree();
}

TEST_F(HostileReader, ThatSaysNoMessageIsOneUnreadablePicture) {
    Begin();
    for (const char* Each : {"write 10", "write 64", "write 65", "write 4000"})
        ExpectOneFault(Each, Nonsense);
}

TEST_F(HostileReader, ThatAnswersWithWrongNumbersIsOneUnreadablePicture) {
    Begin();
    const QByteArray Held = "hold say ";
    for (const QByteArray& Each :
         {Say(Talk::Picture, "8000 8000 8000 8000"),  // no memory has been asked for
          Say(Talk::Picture, "10 10 5 10", Held), Say(Talk::Picture, "0 10 10 10", Held),
          Say(Talk::Picture, "-10 -10 10 10", Held),
          Say(Talk::Picture, "50000 50000 50000 50000", Held),
          Say(Talk::Picture, "2147483647 2147483647 2147483647 2147483647", Held),
          Say(Talk::Picture, "4294967306 10 4294967306 10", Held), Say(Talk::Problem, "0 -1"),
          Say(Talk::Problem, "0 4001"), Say(Talk::Problem, "0 9223372036854775807")})
        ExpectOneFault(Each, Nonsense);
    ExpectMemoryIsFree();
}

TEST_F(HostileReader, ThatSaysWhatIsNotItsTurnIsOneUnreadablePicture) {
    Begin();
    for (const QByteArray& Each :
         {Say(Talk::Decode, "10"), Say(Talk::Granted), Say(Talk::Needed, "1 1"), Say(Talk::Svg),
          Say(Talk::Bytes, "10"), Say(Talk::Nothing), Say(Talk::Release),
          Say(Talk::AskMemory, "10 10 -1"), Say(Talk::AskMemory, "10 10 10", "hold say "),
          Say(Talk::AskNeeded, "10 10"), Say(Talk::AskSvg, "10"), Say(static_cast<Talk>(99)),
          Say(static_cast<Talk>(LockedReady))})
        ExpectOneFault(Each, Nonsense);
    ExpectMemoryIsFree();
}

TEST_F(HostileReader, ThatAsksForEverIsOneUnreadablePicture) {
    Begin();
    for (const char* Each : {"needed", "flood", "shares 0"}) {
        SCOPED_TRACE(Each);
        try {
            Reader().Decode(Hostile(Each), [](QSize Full) { return Full; });
            ADD_FAILURE() << "it was read";
        } catch (const Fault& Reason) {
            EXPECT_EQ(Nonsense, Reason.What().toStdString());
        }
        ExpectReads(qRgb(1, 2, 3));
    }
    ExpectMemoryIsFree();
}

TEST_F(HostileReader, ThatHangsIsOneUnreadablePicture) {
    Begin(harness::ShortCosts());
    // each question after less than the time that it has, but all of them together
    for (const char* Each : {"sleep", "spin", "hold sleep", "shares 200"})
        ExpectOneFault(Each, TooLong);
    ExpectMemoryIsFree();
}

TEST_F(HostileReader, ThatTakesAllMemoryFindsAnEndOfIt) {
    if (harness::RunsUnderSanitizer) GTEST_SKIP() << "limits of memory are not for sanitizers";
    Begin();
    ExpectOneFault("memory", "There is not enough memory for the picture.");
}

TEST_F(HostileReader, SaysNothingThatABoxWouldTakeForMore) {
    Begin();
    quint32 Number = 0;
    EXPECT_EQ("b>It is  lt;b  broken.",
              ProblemOf(Hostile("fault 77 <b>It is\n&lt;b\u202E broken."), &Number));
    EXPECT_EQ(FaultDamagedPicture, Number);
    EXPECT_EQ("The picture is damaged and cannot be read.", ProblemOf(Hostile("fault 0 \n\t")));
}

TEST_F(HostileReader, ThatAnswersTwiceDoesNotAnswerForTheNextPicture) {
    Begin();
    for (const char* How : {"also ", "late "}) {
        SCOPED_TRACE(How);
        EXPECT_EQ(4, Reader().WithoutPlace(Hostile(Say(Talk::Bytes, "4", "also "))).size());
        ExpectReads(qRgb(200, 10, 10));
        Reader().WithoutPlace(Hostile(Say(Talk::Bytes, "4", How)));
        std::this_thread::sleep_for(std::chrono::milliseconds(How[0] == 'l' ? 60 : 0));
        EXPECT_LT(100, Reader().WithoutPlace(PlainPicture()).size());
        ExpectReads(qRgb(10, 200, 10));
    }
}

TEST_F(HostileReader, MayWriteWhileItIsRead) {
    Begin();
    const QByteArray Large = PlainPicture(qRgb(1, 2, 3), {1200, 900});
    for (int I = 0; I < 20; ++I) {
        const auto Made = Reader().Decode(Hostile("scribble", Large + char(I)), {});
        ASSERT_EQ(QSize(1200, 900), Made.Picture.size());
        for (int X = 0; X < 1200; ++X) ASSERT_EQ(255, qAlpha(Made.Picture.pixel(X, 0)));
    }
}

TEST_F(HostileReader, ThatHasBeenSpoiltByOnePictureDoesNotCostTheNext) {
    Begin();
    EXPECT_EQ("", ProblemOf(Hostile("spoil")));
    ExpectReads(qRgb(9, 9, 9));
    EXPECT_LE(2, Started());
}

TEST_F(HostileReader, EndedFromOutsideIsReplacedOnceForAPicture) {
    Begin();
    const harness::TempFolder Dir;
    const QByteArray Mark = QFile::encodeName(Dir / QStringLiteral("been-here"));
    EXPECT_EQ("", ProblemOf(Hostile("kill-once " + Mark)));
    EXPECT_LE(2, Started());
}

TEST_F(HostileReader, EndedFromOutsideIsNoFaultOfThePicture) {
    Begin();
    quint32 Number = 0;
    for (int I = 0; I < 4; ++I) EXPECT_EQ(FromOutside, ProblemOf(Hostile("kill"), &Number));
    EXPECT_EQ(FaultTooLarge, Number);
    EXPECT_LE(8, Started());
}

TEST_F(HostileReader, IsNotStartedAFourthTimeForAFileThatBroughtItDown) {
    Begin();
    const QByteArray Bad = Hostile("segv"), Other = Hostile("segv ");
    for (int I = 0; I < 3; ++I) EXPECT_EQ(BringsDown, ProblemOf(Bad));
    ExpectReads(qRgb(9, 9, 9));
    ASSERT_EQ(BringsDown, ProblemOf(Hostile("segv", PlainPicture(qRgb(1, 1, 1)))));
    while (Reader().Waiting() < 2) std::this_thread::yield();
    const int Before = Started();
    EXPECT_EQ(GivenUp, ProblemOf(Bad));
    EXPECT_THROW(Reader().WithoutPlace(Bad), Fault);
    EXPECT_EQ(Before, Started());
    EXPECT_EQ(2, Reader().Waiting()) << "nobody had to end for it";
    // as long, and another
    EXPECT_EQ(BringsDown, ProblemOf(Other));
    QByteArray Mended = Bad;
    Mended.replace("HOSTILE", "HOSTING");
    EXPECT_EQ("", ProblemOf(Mended));
}

TEST_F(HostileReader, BringsDownWhatElseIsAskedOfPictures) {
    Begin();
    EXPECT_THROW(Reader().Turned(Hostile("segv"), {false, 1}), Fault);
    EXPECT_THROW(Reader().NotesFor({4, 3}, Hostile("segv 1"), true), Fault);
    EXPECT_THROW(Reader().WithoutPlace(Hostile("segv 2")), Fault);
    const QByteArray TooMuch = Say(Talk::Bytes, "100000000");
    EXPECT_THROW(Reader().Turned(Hostile(TooMuch), {false, 1}), Fault);
    EXPECT_TRUE(Reader().Turned(PlainPicture(0xFF102030, {64, 48}), {false, 1}));
}

TEST_F(HostileReader, IsNotKeptForTheMemoryOfALargeFile) {
    Begin();
    ExpectReads(qRgb(1, 1, 1));
    EXPECT_EQ(1, Started());
    EXPECT_EQ("", ProblemOf(PlainPicture() + QByteArray(65 << 20, ' ')));
    ExpectReads(qRgb(2, 2, 2));
    EXPECT_LE(2, Started());
}

TEST_F(HostileReader, ThatWaitsForMemoryDoesNotHang) {
    Begin(harness::ShortCosts());
    ExpectReads(qRgb(1, 1, 1));
    AcquireMemory({10, 10}, AllOfIt);
    std::thread Other([] {
        std::this_thread::sleep_for(std::chrono::milliseconds(1300));
        ReleaseMemory(AllOfIt);
    });
    const QByteArray Small = PlainPicture(qRgb(7, 7, 7));
    EXPECT_EQ("", ProblemOf(Small));
    Other.join();
}

TEST_F(HostileReader, IsWholeAfterACallerHasGivenUpInTheMiddle) {
    Begin();
    const QByteArray Large = PlainPicture(qRgb(7, 7, 7), {400, 300});
    const NeededSize NoMemory = [](QSize) -> QSize { throw std::bad_alloc(); };
    for (int I = 0; I < 4; ++I) {
        EXPECT_THROW(Reader().Decode(Large, NoMemory), std::bad_alloc);
        ExpectReads(qRgb(9, 9, 9));
    }
    EXPECT_EQ("", ProblemOf(Large)) << "that was no fault of the picture";
}

// Reads a picture that hangs, and ends meanwhile.
int EndMeanwhile() {
    HostileReading Reading;
    WorkOnThread* const Counts = new WorkOnThread;
    std::thread([&] {
        try {
            Reading->Decode(Hostile("sleep"), {});
        } catch (const Fault&) {
        }
        delete Counts;
    }).detach();
    while (Reading.Started() == 0) std::this_thread::yield();
    // one that has nothing to do leaves by itself when the program does
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    std::printf("%s", ReadFile(Reading.LogPath()).constData());
    return EndProcess(7);
}
const harness::ChildRole Ending("end-meanwhile", &EndMeanwhile);

TEST_F(HostileReader, ThatHangsDoesNotOutliveTheProgram) {
    QProcess Program;
    Program.start(QCoreApplication::applicationFilePath(), {"--role", "end-meanwhile"});
    ASSERT_TRUE(Program.waitForFinished(60000));
    EXPECT_EQ(7, Program.exitCode());
    const int Pid = Program.readAllStandardOutput().trimmed().toInt();
    ASSERT_LT(0, Pid);
    EXPECT_TRUE(QTest::qWaitFor([Pid] { return !IsAtWork(Pid); }, 10000));
}

TEST_F(HostileReader, LeavesManyThreadsAtOnceWithTheirOwnPictures) {
    Begin();
    const auto Work = [this](int Thread) {
        for (int I = 0; I < 12; ++I) {
            const QByteArray Own = QByteArray::number(Thread * 100 + I);
            if (I % 3 == 1) {
                EXPECT_EQ(BringsDown, ProblemOf(Hostile("segv " + Own)));
            } else {
                ExpectReads(qRgb(Thread * 20, I * 20, 5));
            }
        }
    };
    std::vector<std::thread> All;
    for (int Thread = 0; Thread < 6; ++Thread) All.emplace_back(Work, Thread);
    for (std::thread& Each : All) Each.join();
    ExpectMemoryIsFree();
}

}  // namespace
}  // namespace neb
