// A reader of pictures that does what the picture says: behind the word NEB-HOSTILE: in its bytes
// stand a command and its numbers. It brings itself down, hangs, lies. All other pictures it reads
// as usual. It is not locked: what the program in front of the door must bear does not depend on
// what the system stops.
#include <fcntl.h>
#include <signal.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QByteArrayList>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <thread>

#include "pictures/formats/DecodeHost.h"
#include "pictures/formats/PictureFaults.h"
#include "pictures/workers/ReadingHere.h"
#include "pictures/workers/ServePictures.h"
#include "pictures/workers/WorkerTalk.h"
#include "support/locked/LockReport.h"

namespace neb {
namespace {

std::int64_t OwnSpace() {
    long long Pages = 0;
    std::FILE* const File = std::fopen("/proc/self/statm", "r");
    if (!File || std::fscanf(File, "%lld", &Pages) != 1) std::_Exit(3);
    std::fclose(File);
    return Pages * ::sysconf(_SC_PAGESIZE);
}

// A line for each process that has been started, where the environment names a file for it.
void WriteLog() {
    const char* const Path = std::getenv("NEB_HOSTILE_LOG");
    if (!Path) return;
    const int File = ::open(Path, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
    const QByteArray Line = QByteArray::number(::getpid()) + '\n';
    if (::write(File, Line.constData(), static_cast<size_t>(Line.size())) < 0) std::_Exit(3);
    ::close(File);
}

[[noreturn]] void SleepForEver() {
    for (;;) ::pause();
}

[[noreturn]] void Spin() {
    for (volatile unsigned I = 0;;) I = I + 1;
}

[[noreturn]] void Crash() {
    ::signal(SIGSEGV, SIG_DFL);
    ::raise(SIGSEGV);
    std::_Exit(3);
}

class Hostile : public ReadingHere {
  public:
    explicit Hostile(LockedRoom& Room) : mRoom(Room) {}

    void LookAhead() {
        LockedMessage Next;
        if (::recv(LockedTalk, static_cast<void*>(&Next), sizeof(Next), MSG_PEEK) ==
            ssize_t(sizeof(Next)))
            mTicket = Next.Numbers[TicketAt];
    }

    DecodedPicture Decode(const QByteArray& Bytes, const NeededSize& Needed) override {
        Obey(Bytes);
        return ReadingHere::Decode(Bytes, Needed);
    }
    std::optional<QByteArray> Turned(const QByteArray& Jpeg, PictureTurn Turn) override {
        Obey(Jpeg);
        return ReadingHere::Turned(Jpeg, Turn);
    }
    QByteArray NotesFor(QSize Pixels, const QByteArray& Source, bool KeepsPlace) override {
        Obey(Source);
        return ReadingHere::NotesFor(Pixels, Source, KeepsPlace);
    }
    QByteArray WithoutPlace(const QByteArray& Jpeg) override {
        Obey(Jpeg);
        return ReadingHere::WithoutPlace(Jpeg);
    }

  private:
    using Words = QByteArrayList;

    void Obey(const QByteArray& Bytes) {
        if (mIsSpoilt) Crash();
        constexpr QByteArrayView Magic("NEB-HOSTILE:");
        const auto At = Bytes.lastIndexOf(Magic);
        if (At < 0) return;
        const Words All = Bytes.mid(At + Magic.size()).split(' ');
        const auto Found = Deeds().find(All[0]);
        if (Found == Deeds().end()) std::_Exit(4);
        (this->*Found->second)(All);
    }
    using Deed = void (Hostile::*)(const Words&);
    static const std::map<QByteArray, Deed>& Deeds() {
        static const std::map<QByteArray, Deed> All = {
            {"segv", &Hostile::Segv},          {"abort", &Hostile::Abort},
            {"exit", &Hostile::Exit},          {"kill", &Hostile::Kill},
            {"kill-once", &Hostile::KillOnce}, {"sleep", &Hostile::Sleep},
            {"spin", &Hostile::SpinHere},      {"memory", &Hostile::TakeMemory},
            {"say", &Hostile::SayOnly},        {"also", &Hostile::SayBefore},
            {"late", &Hostile::SayLater},      {"write", &Hostile::WriteBytes},
            {"close", &Hostile::CloseLine},    {"needed", &Hostile::AskNeededForEver},
            {"flood", &Hostile::Flood},        {"shares", &Hostile::AskSharesForEver},
            {"hold", &Hostile::Hold},          {"scribble", &Hostile::Scribble},
            {"fault", &Hostile::ThrowFault},   {"spoil", &Hostile::Spoil}};
        return All;
    }

    LockedMessage MessageOf(const Words& All) const {
        std::array<std::int64_t, 6> Numbers = {};
        for (qsizetype I = 2; I < All.size(); ++I)
            Numbers[static_cast<size_t>(I - 2)] = All[I].toLongLong();
        return WithTicket(LockedMessage(static_cast<Talk>(All[1].toUInt()), Numbers), mTicket);
    }
    void Say(Talk What, std::array<std::int64_t, 6> Numbers = {}) {
        mRoom.Send(WithTicket(LockedMessage(What, Numbers), mTicket));
    }

    void Segv(const Words&) { Crash(); }
    void Abort(const Words&) { std::abort(); }
    void Exit(const Words& All) { std::_Exit(All[1].toInt()); }
    void Kill(const Words&) { ::raise(SIGKILL); }
    // The first process that comes by; the file that is named remembers it.
    void KillOnce(const Words& All) {
        const int File = ::open(All[1].trimmed().constData(), O_WRONLY | O_CREAT | O_EXCL, 0600);
        if (File >= 0) ::raise(SIGKILL);
    }
    void Sleep(const Words&) { SleepForEver(); }
    void SpinHere(const Words&) { Spin(); }
    void TakeMemory(const Words&) {
        for (;;) {
            constexpr size_t Piece = 64 << 20;
            std::memset(new char[Piece], 1, Piece);
        }
    }
    void SayOnly(const Words& All) {
        mRoom.Send(MessageOf(All));
        SleepForEver();
    }
    // And then what is usual.
    void SayBefore(const Words& All) { mRoom.Send(MessageOf(All)); }
    // When the picture has long been answered.
    void SayLater(const Words& All) {
        std::thread([this, Message = MessageOf(All)] {
            ::usleep(20000);
            mRoom.Send(Message);
        }).detach();
    }
    void WriteBytes(const Words& All) {
        const std::vector<char> Bytes(All[1].toUInt(), 'x');
        if (::write(LockedTalk, Bytes.data(), Bytes.size()) < 0) std::_Exit(3);
        SleepForEver();
    }
    void CloseLine(const Words&) {
        ::close(LockedTalk);
        SleepForEver();
    }
    void AskNeededForEver(const Words&) {
        for (;;) {
            Say(Talk::AskNeeded, {10, 10});
            mRoom.Receive();
        }
    }
    void Flood(const Words&) {
        for (;;) Say(Talk::AskNeeded, {10, 10});
    }
    // Each with a little wait, as one would who wants to live on.
    void AskSharesForEver(const Words& All) {
        for (;;) {
            Say(Talk::AskMemory, {10, 10, 400});
            mRoom.Receive();
            ::usleep(All[1].toUInt() * 1000);
            Say(Talk::Release);
        }
    }
    // As much memory as there is, and then the second command.
    void Hold(const Words& All) {
        Say(Talk::AskMemory, {10, 10, 800LL << 20});
        mRoom.Receive();
        (this->*Deeds().at(All[1]))(All.mid(1));
    }
    void Scribble(const Words&) {
        std::thread([this] {
            for (unsigned char Value = 0;; ++Value)
                std::memset(mRoom.Out().data(), Value, size_t{1} << 16);
        }).detach();
    }
    void ThrowFault(const Words& All) {
        throw Fault(QString::fromUtf8(All.mid(2).join(' ')), {}, All[1].toUInt());
    }
    void Spoil(const Words&) { mIsSpoilt = true; }

    LockedRoom& mRoom;
    std::int64_t mTicket = 0;
    bool mIsSpoilt = false;
};

}  // namespace
}  // namespace neb

int main() {
    neb::LockedRoom Room;
    neb::WriteLog();
    Room.Send(neb::LockedMessage(neb::LockedReady, {0, neb::OwnSpace()}));
    neb::Hostile Reader(Room);
    neb::ServePictures(Room, Reader, [&Reader] { Reader.LookAhead(); });
}
