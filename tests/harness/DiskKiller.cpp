#include "harness/DiskKiller.h"

#include <dirent.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QFile>
#include <csignal>
#include <filesystem>
#include <map>
#include <mutex>
#include <random>
#include <set>
#include <utility>

#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb::harness {
namespace {

namespace fs = std::filesystem;

fs::path PathOf(const QString& Path) {
    QString Plain = Path;
    while (Plain.size() > 1 && Plain.endsWith(u'/')) Plain.chop(1);
    return fs::path(QFile::encodeName(Plain).toStdString()).lexically_normal();
}

// What a name leads to.
struct Thing {
    ino_t Number = 0;
    bool IsFolder = false;
    bool operator==(const Thing&) const = default;
};
using Names = std::map<fs::path, Thing>;

// By the host's own listing alone: it is asked for at each step.
void Collect(const fs::path& Dir, Names& Into) {
    DIR* const Open = ::opendir(Dir.c_str());
    if (!Open) return;
    for (const dirent* Entry; (Entry = ::readdir(Open));) {
        const std::string Name = Entry->d_name;
        if (Name == "." || Name == "..") continue;
        const fs::path Path = Dir / Name;
        const bool IsFolder = Entry->d_type == DT_DIR;
        Into[Path] = {Entry->d_ino, IsFolder};
        if (IsFolder) Collect(Path, Into);
    }
    ::closedir(Open);
}

// The disk below a directory as it would be found behind a loss of power: names and contents that
// were flushed, and of the others what chance leaves.
class Disk {
  public:
    explicit Disk(const QString& Dir) : mDir(PathOf(Dir)) {
        Collect(mDir, mFlushed);
        mNow = mFlushed;
        NoteFlushOfAll();
    }
    // What was done since the last look.
    void Look() {
        Names Now;
        Collect(mDir, Now);
        for (const auto& [Path, Is] : Now) mLast[Path] = Is.Number;
        NoteRenames(Now);
        mNow = std::move(Now);
    }
    // It may go with the next step.
    void KeepHold(const fs::path& Path) {
        const auto Found = mNow.find(Path);
        if (Found == mNow.end() || Found->second.IsFolder || mHeld.contains(Found->second.Number))
            return;
        const int Open = ::open(Path.c_str(), O_RDWR | O_CLOEXEC);
        if (Open >= 0) mHeld[Found->second.Number] = Open;
    }
    void NoteWrite(const fs::path& Path) {
        const auto Number = NumberAt(Path);
        if (!Number) return;
        mUnflushed.insert(*Number);
        auto& Kept = mFlushedLength[*Number];
        Kept = std::min(Kept, LengthOf(*Number));  // it was emptied
    }
    void NoteFlush(const fs::path& Path) {
        const auto Number = NumberAt(Path);
        if (!Number) return;
        mUnflushed.erase(*Number);
        mFlushedLength[*Number] = LengthOf(*Number);
    }
    void NoteFlushOfNames(const fs::path& Folder) {
        std::erase_if(mFlushed, [&](const auto& Each) {
            return Each.first.parent_path() == Folder && !mNow.contains(Each.first);
        });
        for (const auto& [Path, Is] : mNow)
            if (Path.parent_path() == Folder) mFlushed[Path] = Is;
    }
    void NoteFlushOfAll() {
        mFlushed = mNow;
        mUnflushed.clear();
        for (const auto& [Path, Is] : mNow) mFlushedLength[Is.Number] = LengthOf(Is.Number);
    }
    void Fail(unsigned Seed) {
        mChance.seed(Seed);
        mLoseAll = Seed % 3 == 0;
        Look();
        HoldWhatWasRenamed();
        LoseContents();
        for (const fs::path& Path : ChosenToGoBack()) GoBack(Path);
    }

  private:
    // Of the file, not of the name: a writer goes on in it when it is renamed.
    std::optional<ino_t> NumberAt(const fs::path& Path) const {
        const auto Found = mNow.find(Path);
        if (Found != mNow.end()) return Found->second.Number;
        const auto Before = mLast.find(Path);
        return Before == mLast.end() ? std::nullopt : std::optional(Before->second);
    }
    std::uintmax_t LengthOf(ino_t Number) const {
        for (const auto& [Path, Is] : mNow) {
            std::error_code Error;
            if (Is.Number == Number && !Is.IsFolder) return fs::file_size(Path, Error);
        }
        return 0;
    }
    void NoteRenames(const Names& Now) {
        std::map<ino_t, fs::path> Gone;
        for (const auto& [Path, Is] : mNow)
            if (!Now.contains(Path)) Gone[Is.Number] = Path;
        for (const auto& [Path, Is] : Now) {
            const auto Before = mNow.find(Path);
            const bool IsNew = Before == mNow.end() || Before->second != Is;
            if (IsNew && Gone.contains(Is.Number)) mRenamed[Path] = Gone[Is.Number];
        }
    }
    void HoldWhatWasRenamed() {
        std::set<ino_t> Wanted;
        for (const auto& [Path, Is] : mFlushed) Wanted.insert(Is.Number);
        for (const auto& [Path, Is] : mNow)
            if (Wanted.contains(Is.Number) && (!mFlushed.contains(Path) || mFlushed[Path] != Is))
                KeepHold(Path);
    }
    bool IsLost() { return mLoseAll || mChance() % 2 == 0; }

    void LoseContents() {
        for (const auto& [Path, Is] : mNow) {
            if (Is.IsFolder || !mUnflushed.contains(Is.Number) || !IsLost()) continue;
            std::error_code Error;
            const auto Length = fs::file_size(Path, Error);
            const auto Kept = std::max(mChance() % 3 == 0 ? Length / 2 : 0,
                                       std::min(mFlushedLength[Is.Number], Length));
            const bool AsZeros = mChance() % 3 == 0;
            fs::resize_file(Path, Kept, Error);
            if (AsZeros) fs::resize_file(Path, Length, Error);
        }
    }
    // A file goes with its folder, and a renaming as a whole.
    std::set<fs::path> ChosenToGoBack() {
        std::set<fs::path> All, Chosen;
        for (const auto& [Path, Is] : mNow)
            if (!mFlushed.contains(Path) || mFlushed[Path] != Is) All.insert(Path);
        for (const auto& [Path, Is] : mFlushed)
            if (!mNow.contains(Path)) All.insert(Path);
        for (const fs::path& Path : All)
            if (IsLost()) Chosen.insert(Path);
        for (const fs::path& Path : All)
            if (HoldsAFolderOf(Chosen, Path)) Chosen.insert(Path);
        for (const auto& [To, From] : mRenamed) {
            if (Chosen.contains(To) && All.contains(From)) Chosen.insert(From);
            if (All.contains(To) && !Chosen.contains(To)) Chosen.erase(From);
        }
        return Chosen;
    }
    static bool HoldsAFolderOf(const std::set<fs::path>& Paths, const fs::path& Path) {
        for (fs::path Above = Path.parent_path(); Above.has_relative_path();
             Above = Above.parent_path())
            if (Paths.contains(Above)) return true;
        return false;
    }
    void GoBack(const fs::path& Path) {
        std::error_code Error;
        const auto Before = mFlushed.find(Path);
        if (Before == mFlushed.end()) {
            fs::remove_all(Path, Error);
            return;
        }
        if (Before->second.IsFolder) {
            fs::create_directories(Path, Error);
            return;
        }
        const auto Held = mHeld.find(Before->second.Number);
        if (Held != mHeld.end()) Restore(Path, Held->second);
    }
    // Its own bytes, as far as they were flushed.
    static void Restore(const fs::path& Path, int Open) {
        std::error_code Error;
        fs::create_directories(Path.parent_path(), Error);
        fs::remove(Path, Error);
        QFile From, To(QFile::decodeName(Path.c_str()));
        if (!From.open(Open, QIODevice::ReadOnly) || !From.seek(0)) return;
        if (To.open(QIODevice::WriteOnly)) To.write(From.readAll());
    }

    const fs::path mDir;
    Names mFlushed, mNow;                   // names on the disk; names that programs see
    std::map<fs::path, ino_t> mLast;        // what a name led to when it was last there
    std::map<fs::path, fs::path> mRenamed;  // to, from
    std::map<ino_t, int> mHeld;             // open, lest they go
    std::set<ino_t> mUnflushed;
    std::map<ino_t, std::uintmax_t> mFlushedLength;  // none: not at all
    std::minstd_rand mChance;
    bool mLoseAll = false;
};

}  // namespace

struct DiskKiller::State {
    State(int Number, Kill TheWay, const QString& Dir) : Left(Number), Seed(Number), How(TheWay) {
        if (How == Kill::PowerLoss) Lasting.emplace(Dir);
    }

    void AtStep(HostStep Step, const QString& Path, qint64& Length) {
        std::unique_lock<std::mutex> OneByOne(Lock);
        if (Left == 1 && Next) BeginNext(OneByOne);
        if (How == Kill::InsideWrite && Left > 1 && Step != HostStep::Write) return;
        if (--Left <= 0) Strike(Step, Length);
        if (Lasting) Note(Step, PathOf(ResolvePath(Path)));
    }
    // In another process, which knows what this one has not flushed.
    [[noreturn]] void BeginNext(std::unique_lock<std::mutex>& OneByOne) {
        const pid_t Child = ::fork();
        if (Child != 0) {
            ::waitpid(Child, nullptr, 0);
            ::kill(::getpid(), SIGKILL);
        }
        Left = NextNumber;
        Seed = Seed * 100 + NextNumber;
        const auto Work = std::exchange(Next, {});
        OneByOne.unlock();
        Work();
        ::_exit(0);
    }
    void Strike(HostStep Step, qint64& Length) {
        if (Left < 0 || How != Kill::InsideWrite || Step != HostStep::Write) End();
        Length /= 2;  // this part is written, and the step after it is the last
    }
    void Note(HostStep Step, const fs::path& Path) {
        Lasting->Look();
        if (Step == HostStep::Write) Lasting->NoteWrite(Path);
        if (Step == HostStep::Sync) Lasting->NoteFlush(Path);
        if (Step == HostStep::SyncDir) Lasting->NoteFlushOfNames(Path);
        if (Step == HostStep::SyncVolume) Lasting->NoteFlushOfAll();
        if (Step == HostStep::Delete || Step == HostStep::Rename) Lasting->KeepHold(Path);
    }
    [[noreturn]] void End() {
        if (Lasting) Lasting->Fail(static_cast<unsigned>(Seed));
        ::kill(::getpid(), SIGKILL);
        std::abort();
    }

    std::mutex Lock;
    int Left;
    int Seed;
    const Kill How;
    std::optional<Disk> Lasting;
    int NextNumber = 0;
    std::function<void()> Next;
};

DiskKiller::DiskKiller(int Number, Kill How, const QString& Dir)
    : mState(std::make_unique<State>(Number, How, Dir)) {
    SetHostWatcher([this](HostStep Step, const QString& Path, qint64& Length) {
        mState->AtStep(Step, Path, Length);
    });
}

DiskKiller::~DiskKiller() {
    SetHostWatcher({});
}

bool DiskKiller::HasStruck() const {
    const std::lock_guard<std::mutex> OneByOne(mState->Lock);
    return mState->Left <= 0;
}

void DiskKiller::End() {
    const std::lock_guard<std::mutex> OneByOne(mState->Lock);
    mState->End();
}

void DiskKiller::ThenFail(int Number, const std::function<void()>& Next) {
    mState->NextNumber = Number;
    mState->Next = Next;
}

namespace {

bool RunsIn(const std::function<void(DiskKiller&)>& Prepare, int Number, Kill How,
            const QString& Dir, const std::function<void()>& Work) {
    const pid_t Child = ::fork();
    if (Child == 0) {
        DiskKiller Killer(Number, How, Dir);
        Prepare(Killer);
        try {
            Work();
        } catch (const Fault&) {
            Killer.End();
        }
        if (Killer.HasStruck()) Killer.End();  // who was faulted has gone on without it
        ::_exit(::testing::Test::HasFailure() ? 1 : 0);
    }
    int Status = 0;
    ::waitpid(Child, &Status, 0);
    EXPECT_TRUE((WIFEXITED(Status) && WEXITSTATUS(Status) == 0) ||
                (WIFSIGNALED(Status) && WTERMSIG(Status) == SIGKILL))
        << "killed at step " << Number << ": status " << Status;
    return WIFEXITED(Status);
}

}  // namespace

bool RunsThrough(int Number, Kill How, const QString& Dir, const std::function<void()>& Work) {
    return RunsIn([](DiskKiller&) {}, Number, How, Dir, Work);
}

bool RunsThrough(int First, int Second, const QString& Dir, const std::function<void()>& Work,
                 const std::function<void()>& Next) {
    return RunsIn([&](DiskKiller& Killer) { Killer.ThenFail(Second, Next); }, First,
                  Kill::PowerLoss, Dir, Work);
}

}  // namespace neb::harness
