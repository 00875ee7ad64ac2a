// The disk has room for so much more and then for nothing, at every 4 KB of a whole session: what
// was stored is there at the next start; a program that runs on tells what it cannot store, stores
// it as soon as there is room, and comes to an orderly end.
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

// A session up to the first thing that finds no room.
struct FilledUp {
    clsDBEngine Engine;
    std::vector<Content> Since;  // from what was stored last, to what is held in the end
    bool Through = false;

    void Run(const QString& Dir) {
        try {
            CutSession::Begin(Engine, Dir);
            Note();
            for (int Number = 0; Number < CutSession::Count(); ++Number) {
                CutSession::Do(Number, Engine);
                Note();
            }
            Through = Engine.IsSessionStored();
        } catch (const Fault& Problem) {
            EXPECT_TRUE(Problem.Text().contains(u"no space"_s)) << Problem.what();
            Note();
        }
    }
    void Note() {
        if (Engine.IsSessionStored()) Since.clear();
        Since.push_back(ContentOf(Engine));
    }
};

// None of the records that are held is lost, and all of those that were stored are there.
void ExpectSince(const FilledUp& Session, const QString& Dir, const std::string& Where) {
    clsDBEngine Next;
    Next.SetDBPath(Dir);
    Next.InitializeDB(Recovery::InMemory);
    EXPECT_TRUE(std::ranges::find(Session.Since, ContentOf(Next)) != Session.Since.end()) << Where;
}

void ExpectGoesOn(FilledUp& Session, FullDisk& Disk, const std::string& Where) {
    clsDBEngine& Engine = Session.Engine;
    Changes(Engine).MakeAlbum(u"While it is full"_s);
    const bool WasStored = Engine.IsSessionStored();
    EXPECT_EQ(WasStored, !Engine.SessionProblem()) << Where;
    Disk.MakeRoom();
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
    EXPECT_TRUE(ListDir(Dir + u"Temp/Journal"_s).empty()) << Where;
}

TEST(SessionFullDisk, AtEvery4KBLosesNothingThatWasStoredAndLetsTheProgramGoOn) {
    int Failed = 0;
    bool Through = false;
    for (qint64 Room = 0; !Through; Room += 4096) {
        const std::string Where = "room " + std::to_string(Room);
        MemoryFolder Dir;
        {
            FullDisk Disk(Room);
            FilledUp Session;
            Session.Run(Dir.Path());
            Through = Session.Through;
            Failed += !Through;
            ExpectSince(Session, Dir.Path(), Where);
            ExpectGoesOn(Session, Disk, Where);
        }
        ASSERT_FALSE(HasFailure());
        ASSERT_LT(Room, 10'000'000);
    }
    EXPECT_GT(Failed, CutSession::Count());
}

}  // namespace
}  // namespace neb::harness
