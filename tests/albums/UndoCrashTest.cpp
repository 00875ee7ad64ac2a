// The program ends at every single step of a change, of taking it back and of doing it again: the
// next start finds the database as it was before or behind one of them, with every file that a
// record names, and what was kept goes. Then many changes and undos by chance.
#include <gtest/gtest.h>

#include <filesystem>

#include "UndoRig.h"
#include "db/AlbumSums.h"
#include "harness/DiskKiller.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

using namespace harness;
namespace fs = std::filesystem;

void CopyTree(const QString& From, const QString& To) {
    fs::copy(From.toStdString(), To.toStdString(),
             fs::copy_options::recursive | fs::copy_options::overwrite_existing);
}

// A database at rest, and what a user does in it.
class UndoCrash : public UndoRig {
  protected:
    using Action = std::function<void(const UndoUser& User)>;

    UndoCrash() {
        Engine.FinalizeDB();
        Engine.Listeners.Keeper.reset();
    }
    // The change, taken back, done again, and taken back once more. What is refused for a write
    // that was cut ends the work as a fault does.
    static void Work(const UndoUser& User, const Action& Do) {
        Do(User);
        History& Steps = User.Steps();
        if (!Steps.Undo() || !Steps.Redo() || !Steps.Undo()) throw Fault(u"refused"_s);
    }
    void KillEverywhere(const Action& Do) {
        const auto [Before, After] = StatesOf(Do);
        for (const Kill How : {Kill::BeforeStep, Kill::InsideWrite, Kill::PowerLoss}) {
            bool Through = false;
            for (int Number = 1; !Through && !HasFailure(); ++Number) {
                MemoryFolder Here;
                CopyTree(Dir.Path(), Here.Path());
                Through = RunsThrough(Number, How, Here.Path(), [&] {
                    clsDBEngine There;
                    UndoUser::Begin(There, Here.Path());
                    Work(UndoUser(There, Sounds.Path()), Do);
                });
                const std::string Where = "ended at " + std::to_string(Number) + ", way " +
                                          std::to_string(static_cast<int>(How));
                LookAt(Here.Path(), Before, After, Where);
                ASSERT_LT(Number, 2000);
            }
        }
    }

  private:
    // Undisturbed, in a place of its own.
    std::pair<Content, Content> StatesOf(const Action& Do) {
        MemoryFolder Here;
        CopyTree(Dir.Path(), Here.Path());
        clsDBEngine There;
        UndoUser::Begin(There, Here.Path());
        NoteFiles(Here.Path());
        const Content Before = ContentOf(There);
        const UndoUser Somebody(There, Sounds.Path());
        Do(Somebody);
        NoteFiles(Here.Path());
        const Content After = ContentOf(There);
        Somebody.Undo();
        EXPECT_EQ(Before, ContentOf(There));
        NoteFiles(Here.Path());
        return {Before, After};
    }
    // Each file may be as it ever was.
    void NoteFiles(const QString& Here) {
        for (const auto& [Path, Bytes] : ReadDatabase(Here).Files) mMayBe[Path].insert(Bytes);
    }
    void LookAt(const QString& Here, const Content& Before, const Content& After,
                const std::string& Where) {
        clsDBEngine Next;
        UndoUser::Begin(Next, Here);
        const Content Found = ContentOf(Next);
        EXPECT_TRUE(Found == Before || Found == After) << Where;
        EXPECT_FALSE(FolderExists(Here + u"Temp/Undo"_s)) << Where;
        for (const auto& Album : Next.Albums) {
            for (const auto& Slide : Album->Slides) {
                ExpectFile(Here, *Album, u"Slides/"_s + Slide->SlideLoc, Where);
                if (!Slide->SoundTrackLoc.isEmpty())
                    ExpectFile(Here, *Album, u"Slides/"_s + Slide->SoundTrackLoc, Where);
            }
            for (const auto& Show : Album->SlideShows)
                for (const auto& Track : Show->SoundTracks)
                    ExpectFile(Here, *Album, u"SoundTracks/"_s + Track->SoundTrackLoc, Where);
        }
    }
    // It is there as it once was, and known to the album's check sums.
    void ExpectFile(const QString& Here, const clsNEBAlbum& Album, const QString& Name,
                    const std::string& Where) {
        const QString Folder = AlbumFolder(Here, Album.AlbumID);
        const QString Path = ResolvePath(Folder + Name);
        ASSERT_TRUE(FileExists(Path)) << Where << ": " << Path.toStdString();
        const QByteArray Bytes = ReadFile(Path);
        EXPECT_TRUE(mMayBe[Path.mid(Here.size())].contains(Bytes)) << Where;
        const auto Listed = SumsIn(ReadAlbumSums(Folder).value_or(QByteArray()));
        EXPECT_TRUE(std::ranges::any_of(
            Listed,
            [&](const ListedSum& Each) {
                return (Folder + Each.Path).compare(Path, Qt::CaseInsensitive) == 0 &&
                       Each.Sum == SumOfBytes(Bytes);
            }))
            << Where << ": no check sum of " << Path.toStdString();
    }

    std::map<QString, std::set<QByteArray>> mMayBe;
};

TEST_F(UndoCrash, ASlideThatIsDeletedAndComesBackHasItsPictureWhateverStepIsTheLast) {
    KillEverywhere([&](const UndoUser& Who) { Who.Delete(Garden, {Slides[1]}); });
}

TEST_F(UndoCrash, ACaptionIsTheOldOrTheNewOne) {
    KillEverywhere([&](const UndoUser& Who) { Who.Recaption(Garden, {{Slides[1], u"Reed"_s}}); });
}

TEST_F(UndoCrash, ATurnedPictureIsTurnedOrNot) {
    KillEverywhere([&](const UndoUser& Who) { Who.Turn(Garden, Slides[0], "turned"); });
}

TEST_F(UndoCrash, ASoundThatIsClearedIsThereOrNot) {
    KillEverywhere([&](const UndoUser& Who) {
        Who.SaveSlide(Garden, Slides[1], [](SlideInHand& InHand) { InHand.ClearSound(); });
    });
}

TEST_F(UndoCrash, AShowHasItsTracks) {
    KillEverywhere([&](const UndoUser& Who) {
        Who.SaveShow(Garden, Walk, u"Stroll"_s, {Slides[3], Slides[0]}, {u"polka"_s});
    });
    KillEverywhere(
        [&](const UndoUser& Who) { EXPECT_TRUE(Changes(Who.Engine).DeleteShow(Garden, Walk)); });
}

TEST_F(UndoCrash, AnAlbumIsThereWithItsFolderOrIsGone) {
    KillEverywhere([&](const UndoUser& Who) { Who.DeleteAlbum(Garden); });
}

// By chance, always the same one.
class UndoWalk : public UndoRig {
  protected:
    void Walk100(unsigned Seed) {
        std::mt19937 Chance(Seed);
        mChance = &Chance;
        std::vector<WholeState> Undone{StateOf(Engine)}, Ahead;
        for (int Step = 0; Step < 100 && !HasFailure(); ++Step) {
            const auto Before = Undone.size();
            switch (Pick(5)) {
                case 0:
                case 1:
                    if (Before == 1) break;
                    Ahead.push_back(std::move(Undone.back()));
                    Undone.pop_back();
                    User.Undo();
                    break;
                case 2:
                    if (Ahead.empty()) break;
                    Undone.push_back(std::move(Ahead.back()));
                    Ahead.pop_back();
                    User.Redo();
                    break;
                default:
                    if (!DoSomething(Step)) break;
                    Undone.push_back(StateOf(Engine));
                    Ahead.clear();
            }
            ASSERT_TRUE(Undone.back() == StateOf(Engine)) << "seed " << Seed << ", step " << Step;
            ASSERT_EQ(Undone.size() == 1, NextUndo().empty()) << Seed << ' ' << Step;
        }
        while (Undone.size() > 1) {
            Undone.pop_back();
            User.Undo();
            ASSERT_TRUE(Undone.back() == StateOf(Engine)) << "seed " << Seed;
        }
        User.Steps().DropAll();
    }

  private:
    size_t Pick(size_t Count) { return (*mChance)() % Count; }
    // False where there is nothing to do it to.
    bool DoSomething(int Step) {
        if (Engine.Albums.empty()) return false;
        const clsNEBAlbum& Album = *Engine.Albums[Pick(Engine.Albums.size())];
        const QString Text = u"text %1"_s.arg(Step);
        if (Pick(12) == 0) {
            User.DeleteAlbum(Album.AlbumID);
            return true;
        }
        if (Pick(8) == 0) return bool(Changes(Engine).RenameAlbum(Album.AlbumID, Text));
        if (Album.Slides.empty()) return false;
        const auto Some = [&] { return Album.Slides[Pick(Album.Slides.size())]->SlideID; };
        const std::int32_t One = Some(), Other = Some();
        if (!Album.SlideShows.empty() && Pick(3) == 0) {
            const std::int32_t Show = Album.SlideShows[0]->SlideShowID;
            if (Pick(4) == 0) return bool(Changes(Engine).DeleteShow(Album.AlbumID, Show));
            User.SaveShow(Album.AlbumID, Show, Text, {One, Other}, {Text});
            return true;
        }
        switch (Pick(4)) {
            case 0:
                User.Delete(Album.AlbumID, {One, Other});
                return true;
            case 1:
                User.Turn(Album.AlbumID, One, Text.toUtf8());
                return true;
            case 2:
                User.SaveSlide(Album.AlbumID, One,
                               [&](SlideInHand& InHand) { InHand.Record(Text.toUtf8()); });
                return true;
            default:
                User.Recaption(Album.AlbumID, {{One, Text}, {Other, Text + u" too"_s}});
                return true;
        }
    }

    std::mt19937* mChance = nullptr;
};

TEST_F(UndoWalk, ByChanceEveryStateComesBackToTheByte) {
    const std::int32_t Park = User.MakeAlbum(u"Park"_s);
    for (const char* Each : {"Oak", "Elm", "Ash"}) User.AddPicture(Park, QLatin1String(Each));
    User.Steps().DropAll();
    for (unsigned Seed = 1; Seed <= 12 && !HasFailure(); ++Seed) Walk100(Seed);
}

}  // namespace
}  // namespace neb
