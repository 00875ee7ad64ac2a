// Where a system gives less: what is missing is told, all else holds, the work is done.
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <functional>

#include "harness/TempFolder.h"
#include "support/Fault.h"
#include "support/locked/HostileProcess.h"

namespace neb {
namespace {

LockReport ReportHere() {
    return LockedProcess(HostileProgram()).Report();
}

// In a copy of this process, which becomes what it likes: a word of what is not as it should be.
std::string InACopy(const std::function<std::string()>& Work) {
    int Line[2];
    if (::pipe(Line) != 0) return "no pipe";
    const pid_t Copy = ::fork();
    if (Copy == 0) {
        std::string Said = "a fault";
        try {
            Said = Work();
        } catch (const Fault& Reason) {
            Said = Reason.What().toStdString();
        }
        (void)!::write(Line[1], Said.data(), Said.size());
        ::_exit(0);
    }
    ::close(Line[1]);
    std::string Said(1000, '\0');
    const ssize_t Length = ::read(Line[0], Said.data(), Said.size());
    ::close(Line[0]);
    int Status = 0;
    ::waitpid(Copy, &Status, 0);
    if (Status != 0) return "it crashed";
    return Said.substr(0, static_cast<size_t>(std::max<ssize_t>(0, Length)));
}

bool BecomeNobody() {
    constexpr unsigned Nobody = 65534;
    return ::geteuid() != 0 || (::setgid(Nobody) == 0 && ::setresuid(Nobody, Nobody, Nobody) == 0);
}

std::string Said(const LockReport& Report) {
    std::ostringstream Text;
    PrintTo(Report, &Text);
    return Text.str();
}

// Nothing to say where it is locked as expected and works, within its limits.
std::string HowItGoes(const LockReport& Expected, const LockedProgram& Program) {
    LockedProcess Process(Program);
    if (Process.Report() != Expected) return Said(Process.Report());
    if (OutcomeOf(Process, {}).Result != 1) return "it does not work";
    constexpr qint64 Most = 32 << 20;
    const Outcome Memory = OutcomeOf(Process, {Deed::TakeMemory, {}, {}, {Most, 20, 60}});
    if (!Memory.Answered || Memory.Result > Most) return "it has endless memory";
    LockedProcess Foul(Program);
    const Task Open = {Deed::OpenToSpoil, {}, "/"};
    const LockedEnd End = Expected.SystemCalls > 0 ? LockedEnd::Forbidden : LockedEnd::None;
    return OutcomeOf(Foul, Open).End == End ? "" : "it opens files";
}

// The shortest time that can be measured out is a second, so that not every test does.
std::string HowItGoesWithTime(const LockReport& Expected, const LockedProgram& Program) {
    LockedProcess Slow(Program);
    const LockedEnd End = OutcomeOf(Slow, {Deed::Spin, {}, {}, {32 << 20, 0.5, 60}}).End;
    return End == LockedEnd::TooLong ? HowItGoes(Expected, Program) : "it has endless time";
}

class LockMissing : public ::testing::Test {
  protected:
    void SetUp() override {
        SKIP_WHERE_WATCHED();
        mFull = ReportHere();
    }
    LockReport mFull;
};

TEST_F(LockMissing, NothingForAnOrdinaryUserWithoutCapabilities) {
    const std::string Found = InACopy([this]() -> std::string {
        if (!BecomeNobody()) return "it stays who it was";
        const QByteArray Path = HostileProgram().Path.toUtf8();
        if (::access(Path.constData(), X_OK) != 0) return "out of reach";
        return HowItGoesWithTime(mFull, HostileProgram());
    });
    if (Found == "out of reach") GTEST_SKIP() << "the build lies where nobody else may read";
    EXPECT_EQ("", Found);
}

TEST_F(LockMissing, NamespacesAreTold) {
    const Told Poorer(RefuseThis, "namespaces");
    LockReport Expected = mFull;
    Expected.EmptyRoot = Expected.OwnNetwork = false;
    EXPECT_EQ("", HowItGoes(Expected, HostileProgram()));
}

TEST_F(LockMissing, LandlockIsTold) {
    const Told Poorer(RefuseThis, "landlock");
    LockReport Expected = mFull;
    Expected.Landlock = 0;
    EXPECT_EQ("", HowItGoes(Expected, HostileProgram()));
}

TEST_F(LockMissing, AFilterIsTold) {
    const Told Poorer(RefuseThis, "filter");
    LockReport Expected = mFull;
    Expected.SystemCalls = 0;
    EXPECT_EQ("", HowItGoes(Expected, HostileProgram()));
    EXPECT_FALSE(Expected.IsLocked());
}

TEST_F(LockMissing, AllAtOnceIsTold) {
    const Told Poorer(RefuseThis, "namespaces landlock filter");
    LockReport Expected = mFull;
    Expected.EmptyRoot = Expected.OwnNetwork = false;
    Expected.Landlock = Expected.SystemCalls = 0;
    EXPECT_EQ("", HowItGoes(Expected, HostileProgram()));
}

// A folder with the program and its libraries, and not a thing else.
LockedProgram PutAlone(const harness::TempFolder& Dir) {
    LockedProgram Program = HostileProgram();
    QProcess List;
    List.start(QStringLiteral("ldd"), {Program.Path});
    List.waitForFinished();
    for (const QByteArray& Line : List.readAllStandardOutput().split('\n')) {
        const qsizetype Begin = Line.indexOf('/'), End = Line.lastIndexOf(" (");
        if (Begin < 0 || End < Begin) continue;
        const QString Name = QString::fromUtf8(Line.mid(Begin, End - Begin));
        QDir().mkpath(Dir.Path() + QFileInfo(Name).path());
        QFile::copy(QFileInfo(Name).canonicalFilePath(), Dir.Path() + Name);
    }
    QFile::copy(Program.Path, Dir / QStringLiteral("hostile"));
    ::chmod(Dir.Path().toUtf8().constData(), 0755);
    Program.Path = QStringLiteral("/hostile");
    return Program;
}

class InABareRoot : public LockMissing {
  protected:
    void SetUp() override {
        if (::geteuid() != 0) GTEST_SKIP() << "for the administrator alone";
        LockMissing::SetUp();
    }
    std::string HowItGoesThere(bool AsNobody, const LockReport& Expected) {
        const LockedProgram Program = PutAlone(mDir);
        return InACopy([&]() -> std::string {
            if (::chroot(mDir.Path().toUtf8().constData()) != 0 || ::chdir("/") != 0 ||
                (AsNobody && !BecomeNobody()))
                return "it does not get there";
            return HowItGoesWithTime(Expected, Program);
        });
    }
    harness::TempFolder mDir;
};

TEST_F(InABareRoot, AnOrdinaryUserHasNoNamespaces) {
    LockReport Expected = mFull;
    Expected.EmptyRoot = Expected.OwnNetwork = false;
    EXPECT_EQ("", HowItGoesThere(true, Expected));
}

TEST_F(InABareRoot, TheAdministratorHasAllThatThereIs) {
    EXPECT_EQ("", HowItGoesThere(false, mFull));
}

TEST(LockOfAWatchedBuild, SaysWhatIsLeftOut) {
    if (!harness::RunsUnderSanitizer) GTEST_SKIP() << "for a build with sanitizers";
    const LockReport Report = ReportHere();
    EXPECT_EQ(0, Report.SystemCalls);
    EXPECT_FALSE(Report.Limits);
    EXPECT_FALSE(Report.IsLocked());
    EXPECT_EQ(1, OutcomeOf({}).Result);
}

}  // namespace
}  // namespace neb
