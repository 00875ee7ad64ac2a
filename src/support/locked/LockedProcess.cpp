#include "support/locked/LockedProcess.h"

#include <poll.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <cerrno>
#include <chrono>
#include <cmath>
#include <ctime>
#include <vector>

#include "support/Fault.h"
#include "support/Texts.h"
#include "support/files/HostNames.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesSpelling.h"
#include "support/locked/LivingProcesses.h"
#include "support/locked/LockedSpawn.h"
#include "support/locked/SharedMemory.h"

namespace neb {
namespace {

using Clock = std::chrono::steady_clock;

// Until it is ready, with all its libraries, on a slow disk.
constexpr double SecondsToBeginIn = 60;

std::pair<int, int> MakeLine() {
    int Ends[2];
    if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, Ends) != 0) throw std::bad_alloc();
    return {Ends[0], Ends[1]};
}

double ProcessorSecondsOf(pid_t Pid) {
    clockid_t Its;
    timespec Time = {};
    if (::clock_getcpuclockid(Pid, &Its) != 0 || ::clock_gettime(Its, &Time) != 0) return 0;
    return double(Time.tv_sec) + double(Time.tv_nsec) / 1e9;
}

bool SetSoftLimit(pid_t Pid, __rlimit_resource What, rlim_t Most) {
    rlimit Limit = {};
    if (::prlimit(Pid, What, nullptr, &Limit) != 0) return false;
    Limit.rlim_cur = std::min(Most, Limit.rlim_max);
    return ::prlimit(Pid, What, &Limit, nullptr) == 0;
}

}  // namespace

QString LockedProgramPath(const QString& Name) {
    return CleanPath(QCoreApplication::applicationDirPath() +
                     QStringLiteral("/../lib/neb-slide-show/") + Name);
}

struct LockedProcess::State {
    explicit State(const LockedProgram& Program)
        : In("neb-in", Program.InBytes, false),
          Out("neb-out", Program.OutBytes, true),
          Path(Program.Path) {
        const auto [Ours, Its] = MakeLine();
        const Descriptor ItsEnd(Its);
        Line = std::make_unique<Descriptor>(Ours);
        const GivenFile Files[] = {
            {*ItsEnd, LockedTalk}, {In.File(), LockedIn}, {Out.File(), LockedOut}};
        Pid = StartLocked(HostBytes(Program.Path), Program.Role, Files);
        NoteLiving(Pid);
    }
    ~State() {
        // once it has been waited for, its number may be another's
        if (AtWork && !IsReaped) ::kill(Pid, SIGKILL);
        Line->Close();
        Reap();
    }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    // It leaves when its line is closed; one that does not is not asked.
    void Reap() {
        if (IsReaped) return;
        IsReaped = true;
        ForgetLiving(Pid);
        constexpr int Looks = 100;
        for (int I = 0; I < Looks; ++I) {
            if (::waitpid(Pid, &Status, WNOHANG) != 0) return;
            ::usleep(1000);
        }
        ::kill(Pid, SIGKILL);
        IsKilledByUs = true;
        while (::waitpid(Pid, &Status, 0) < 0 && errno == EINTR) continue;
    }
    void Kill(LockedEnd Because) {
        ::kill(Pid, SIGKILL);
        Line->Close();
        Reap();
        Why = Because;
    }
    // Its line has been closed from the other side.
    void Gone() {
        Line->Close();
        Reap();
        const int Signal = WIFSIGNALED(Status) ? WTERMSIG(Status) : 0;
        Why = Signal == SIGSYS                     ? LockedEnd::Forbidden
              : Signal == SIGXCPU                  ? LockedEnd::TooLong
              : Signal == SIGKILL && !IsKilledByUs ? LockedEnd::Killed
                                                   : LockedEnd::Crashed;
    }
    // Whether there is something to read before the time is up. One that has not worked at all for
    // a while, and has nothing to wait for but us, never will.
    bool Wait() {
        constexpr std::chrono::seconds Asleep(10);
        double Worked = ProcessorSecondsOf(Pid);
        auto Since = Clock::now();
        for (;;) {
            using std::chrono::milliseconds;
            const auto Left =
                std::chrono::duration_cast<milliseconds>(Until - Clock::now()).count();
            constexpr qint64 BetweenLooksMs = 500;
            pollfd Poll = {**Line, POLLIN, 0};
            const auto Most = static_cast<int>(std::clamp<qint64>(Left, 0, BetweenLooksMs));
            if (::poll(&Poll, 1, Most) > 0) return true;
            if (const double Now = ProcessorSecondsOf(Pid); Now > Worked) {
                Worked = Now;
                Since = Clock::now();
            }
            if (Left <= 0 || (IsReady && Clock::now() - Since > Asleep)) return false;
        }
    }
    std::optional<LockedMessage> Receive() {
        if (Why != LockedEnd::None) return std::nullopt;
        if (!Wait()) return Kill(LockedEnd::TooLong), std::nullopt;
        LockedMessage Message;
        // one byte more than a message has, to see one that is too long
        std::array<std::byte, sizeof(Message) + 1> Bytes;
        const ssize_t Length = ::recv(**Line, Bytes.data(), Bytes.size(), 0);
        if (Length <= 0) return Gone(), std::nullopt;
        std::memcpy(static_cast<void*>(&Message), Bytes.data(), sizeof(Message));
        if (Length != sizeof(Message) || !Message.IsWhole())
            return Kill(LockedEnd::Nonsense), std::nullopt;
        return Message;
    }

    // Whether it is silent and lives. One that speaks unasked would have that taken for the answer
    // to what comes next.
    bool StaysQuiet() {
        if (Why != LockedEnd::None) return false;
        std::byte One;
        const ssize_t Length = ::recv(**Line, &One, sizeof(One), MSG_PEEK | MSG_DONTWAIT);
        if (Length < 0 && errno == EAGAIN) return true;
        Length > 0 ? Kill(LockedEnd::Nonsense) : Gone();
        return false;
    }

    SharedMemory In, Out;
    QString Path;
    std::unique_ptr<Descriptor> Line;
    pid_t Pid = 0;
    int Status = 0;
    bool IsReaped = false, IsKilledByUs = false;
    bool IsReady = false;  // until then it may wait for a slow disk
    bool AtWork = true;
    LockedEnd Why = LockedEnd::None;
    LockReport Report;
    qint64 OwnSpace = 0;  // bytes of address space
    Clock::time_point Until = Clock::now() + std::chrono::seconds(int(SecondsToBeginIn));
};

LockedProcess::LockedProcess(const LockedProgram& Program) {
    if (!FileExists(Program.Path))
        throw Fault(tr("No picture or sound can be read: a part of the program is "
                       "missing."),
                    Program.Path);
    mState = std::make_unique<State>(Program);
    const auto Ready = mState->Receive();
    if (!Ready || Ready->Kind != LockedReady)
        throw Fault(tr("No picture or sound can be read: a part of the program does "
                       "not get ready."),
                    Program.Path);
    mState->Report = LockReport::Of(Ready->Numbers[0]);
    // From here come those of memory and time.
    mState->Report.Limits =
        mState->Report.Limits && SetSoftLimit(mState->Pid, RLIMIT_CPU, RLIM_INFINITY);
    mState->OwnSpace = Ready->Numbers[1];
    mState->AtWork = false;
    mState->IsReady = true;
}

LockedProcess::~LockedProcess() = default;

uchar* LockedProcess::In() {
    return mState->In.At();
}

qint64 LockedProcess::InBytes() const {
    return mState->In.Bytes();
}

const uchar* LockedProcess::Out() const {
    return mState->Out.At();
}

qint64 LockedProcess::OutBytes() const {
    return mState->Out.Bytes();
}

void LockedProcess::Put(qint64 At, QByteArrayView Bytes) {
    mState->In.Put(At, Bytes);
}

void LockedProcess::Take(qint64 At, void* To, qint64 Bytes) const {
    mState->Out.Take(At, To, Bytes);
}

const uchar* LockedProcess::Written(qint64 At, qint64 Bytes) const {
    return mState->Out.Written(At, Bytes);
}

void LockedProcess::MakeRoom() {
    mState->Out.MakeRoom();
}

void LockedProcess::LetGoOfMemory() {
    mState->Out.Trim();
}

void LockedProcess::Allow(const LockedAllowance& Allowance) {
    State& Its = *mState;
    if (Its.Why != LockedEnd::None) return;
    if (Its.OwnSpace > 0)
        SetSoftLimit(Its.Pid, RLIMIT_AS, static_cast<rlim_t>(Its.OwnSpace + Allowance.Memory));
    const double Processor = ProcessorSecondsOf(Its.Pid) + Allowance.ProcessorSeconds;
    SetSoftLimit(Its.Pid, RLIMIT_CPU, static_cast<rlim_t>(std::ceil(Processor)));
    Its.Until = Clock::now() + std::chrono::milliseconds(qint64(Allowance.Seconds * 1000));
}

void LockedProcess::Send(const LockedMessage& Message) {
    State& Its = *mState;
    if (Its.Why != LockedEnd::None) return;
    Its.AtWork = true;
    // What goes to one that has ended is told by the answer that does not come. One that reads
    // nothing of what it asks for must not hold us up.
    const ssize_t Gone = ::send(**Its.Line, &Message, sizeof(Message), MSG_NOSIGNAL | MSG_DONTWAIT);
    if (Gone < 0 && (errno == EAGAIN || errno == EWOULDBLOCK)) Its.Kill(LockedEnd::Nonsense);
}

std::optional<LockedMessage> LockedProcess::Receive() {
    const auto Message = mState->Receive();
    mState->AtWork = mState->AtWork && !Message;
    return Message;
}

bool LockedProcess::StaysQuiet() {
    return mState->StaysQuiet();
}

void LockedProcess::EndBecause(LockedEnd Why) {
    if (mState->Why == LockedEnd::None) mState->Kill(Why);
}

LockedEnd LockedProcess::End() const {
    return mState->Why;
}

const LockReport& LockedProcess::Report() const {
    return mState->Report;
}

qint64 LockedProcess::Pid() const {
    return mState->Pid;
}

}  // namespace neb
