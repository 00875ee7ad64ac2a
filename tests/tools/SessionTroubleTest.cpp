// The disk has room for so much more and then for nothing, at every 4 KB of a whole session; or it
// goes at any step, as a stick that is pulled, and comes back: what was stored is there at the next
// start; a program that runs on tells what it cannot store, stores it as soon as it can, and comes
// to an orderly end.
#include <QDir>
#include <atomic>

#include "CutSession.h"
#include "db/records/SessionJournal.h"
#include "support/Fault.h"

namespace neb::harness {
namespace {

// What is deleted makes no room.
class FullDisk {
  public:
    explicit FullDisk(qint64 Room) : mRoom(Room) {
        SetHostWatcher([this](HostStep Step, const QString&, qint64& Length) {
            if (Step != HostStep::Write || !mIsOn) return;
            const std::lock_guard<std::mutex> OneByOne(mLock);
            Length = std::min(Length, mRoom);
            mRoom -= Length;
        });
    }
    ~FullDisk() { SetHostWatcher({}); }
    void MakeRoom() { mIsOn = false; }

  private:
    std::mutex mLock;
    qint64 mRoom;
    std::atomic<bool> mIsOn = true;
};

// Another name of the directory is another medium: every call fails that looks for it here.
class PulledDisk {
  public:
    PulledDisk(const QString& Dir, int Number) : mDir(Dir.chopped(1)), mLeft(Number) {
        SetHostWatcher([this](HostStep, const QString&, qint64&) {
            if (--mLeft == 0) mIsAway = QDir().rename(mDir, Away());
        });
    }
    ~PulledDisk() {
        PutBack();
        SetHostWatcher({});
    }
    bool IsAway() const { return mIsAway; }
    // What was made meanwhile where it had been is not seen any more.
    void PutBack() {
        mLeft = 0;
        if (!mIsAway) return;
        QDir(mDir).removeRecursively();
        EXPECT_TRUE(QDir().rename(Away(), mDir));
        mIsAway = false;
    }

  private:
    QString Away() const { return mDir + u".away"_s; }

    const QString mDir;
    std::atomic<int> mLeft;
    std::atomic<bool> mIsAway = false;
};

// A session up to the first thing that fails.
struct CutShort {
    clsDBEngine Engine;
    std::vector<Content> Since;  // from what was stored last, to what is held in the end
    bool Through = false;
    QString Said;

    void Run(const QString& Dir) {
        // a step that fails half way has changed something, and takes it back
        Engine.Listeners.Noted = [this](const Change&) { Since.push_back(ContentOf(Engine)); };
        try {
            CutSession::Begin(Engine, Dir);
            Note();
            for (int Number = 0; Number < CutSession::Count(); ++Number) {
                CutSession::Do(Number, Engine);
                Note();
            }
            Through = Engine.IsSessionStored();
        } catch (const Fault& Problem) {
            Said = Problem.Text();
            Note();
        }
    }
    void Note() {
        if (Engine.IsSessionStored()) Since.clear();
        Since.push_back(ContentOf(Engine));
    }
};

// None of the records that are held is lost, and all of those that were stored are there.
void ExpectSince(const CutShort& Session, const QString& Dir, const std::string& Where) {
    clsDBEngine Next;
    Next.SetDBPath(Dir);
    Next.InitializeDB(Recovery::InMemory);
    EXPECT_TRUE(std::ranges::find(Session.Since, ContentOf(Next)) != Session.Since.end()) << Where;
}

// A change that may not be stored is told of.
void ChangeMore(clsDBEngine& Engine, const std::string& Where) {
    Changes(Engine).MakeAlbum(u"Meanwhile"_s);
    const bool IsStored = Engine.IsSessionStored();
    EXPECT_EQ(IsStored, !Engine.SessionProblem()) << Where;
}

void ExpectGoesOn(clsDBEngine& Engine, const std::string& Where) {
    EXPECT_TRUE(Engine.IsSessionStored()) << Where;
    EXPECT_FALSE(Engine.SessionProblem()) << Where;
    const QString Dir = Engine.DBPath();
    clsDBEngine Next;
    Next.SetDBPath(Dir);
    Next.InitializeDB(Recovery::InMemory);
    EXPECT_EQ(ContentOf(Engine), ContentOf(Next)) << Where;
    Engine.FinalizeDB();
    Next.InitializeDB();
    EXPECT_EQ(ContentOf(Engine), ContentOf(Next)) << Where;
    EXPECT_TRUE(IsAtRest(Dir)) << Where;
}

TEST(SessionFullDisk, AtEvery4KBLosesNothingThatWasStoredAndLetsTheProgramGoOn) {
    int Failed = 0;
    bool Through = false;
    for (qint64 Room = 0; !Through; Room += 4096) {
        const std::string Where = "room " + std::to_string(Room);
        MemoryFolder Dir;
        {
            FullDisk Disk(Room);
            CutShort Session;
            Session.Run(Dir.Path());
            Through = Session.Through;
            Failed += !Through;
            EXPECT_TRUE(Session.Said.isEmpty() || Session.Said.contains(u"no space"_s))
                << Where << qPrintable(Session.Said);
            ExpectSince(Session, Dir.Path(), Where);
            ChangeMore(Session.Engine, Where);
            Disk.MakeRoom();
            ExpectGoesOn(Session.Engine, Where);
        }
        ASSERT_FALSE(HasFailure());
        ASSERT_LT(Room, 10'000'000);
    }
    // an undo and its opposite write next to nothing
    EXPECT_GT(Failed, CutSession::Count() - 8);
}

TEST(SessionPulledDisk, AtAnyStepLosesNothingThatWasStoredAndLetsTheProgramGoOn) {
    bool WasAway = true;
    for (int Number = 1; WasAway; ++Number) {
        const std::string Where = "pulled at step " + std::to_string(Number);
        MemoryFolder Dir;
        {
            CutSession::StartAndEnd(Dir.Path());  // an empty directory is like any other
            PulledDisk Disk(Dir.Path(), Number);
            CutShort Session;
            Session.Run(Dir.Path());
            WasAway = Disk.IsAway();
            EXPECT_TRUE(WasAway || Session.Through) << qPrintable(Session.Said);
            ChangeMore(Session.Engine, Where);
            if (WasAway) {
                EXPECT_THROW(Session.Engine.FinalizeDB(), Fault) << Where;
            }
            Session.Note();
            Disk.PutBack();
            ExpectSince(Session, Dir.Path(), Where);
            ExpectGoesOn(Session.Engine, Where);
        }
        ASSERT_FALSE(HasFailure());
        ASSERT_LT(Number, 2000);
    }
}

}  // namespace
}  // namespace neb::harness
