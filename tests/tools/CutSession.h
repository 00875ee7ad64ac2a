// A session that is cut short, for tests: what a user does from the first album to the end, through
// the routines of the windows; what must be there whenever it ends; and the look at what is.
#pragma once

#include <gtest/gtest.h>
#include <sys/mman.h>

#include <map>

#include "ToolRun.h"
#include "albums/AlbumRemoval.h"
#include "albums/SlideSave.h"
#include "albums/modImport.h"
#include "albums/modSaveShow.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "db/modLoadRecords.h"
#include "db/undo/History.h"
#include "harness/EngineContent.h"
#include "harness/MemoryFolder.h"
#include "support/files/modHostFiles.h"

namespace neb::harness {

using namespace Qt::StringLiterals;

// How far a session has come, seen from the process that outlives it.
class Progress {
  public:
    struct Steps {
        int Begun, Stored;  // the last of them; -1 for none
    };
    Progress()
        : mSteps(static_cast<Steps*>(::mmap(nullptr, sizeof(Steps), PROT_READ | PROT_WRITE,
                                            MAP_SHARED | MAP_ANONYMOUS, -1, 0))) {
        *mSteps = {-1, -1};
    }
    ~Progress() { ::munmap(mSteps, sizeof(Steps)); }
    Q_DISABLE_COPY_MOVE(Progress)
    volatile Steps& Now() const { return *mSteps; }

  private:
    Steps* mSteps;
};

// No journal waits for the next start.
inline bool IsAtRest(const QString& Dir) {
    const auto Left = ListDir(Dir + u"Temp/Journal"_s);
    return std::all_of(Left.begin(), Left.end(),
                       [](const DirEntry& Each) { return Each.Name == u"Records.sums"; });
}

class CutSession {
  public:
    // Makes: files that no record names yet lie there in the midst of it, or that none names any
    // more.
    struct Step {
        const char* What;
        bool Makes;
        std::function<void(clsDBEngine&)> Do;
    };

    CutSession() {
        MemoryFolder Dir;
        clsDBEngine Engine;
        Begin(Engine, Dir.Path());
        mStates.push_back(ContentOf(Engine));
        for (const Step& Each : Steps()) {
            Each.Do(Engine);
            mStates.push_back(ContentOf(Engine));
        }
    }
    static int Count() { return static_cast<int>(Steps().size()); }
    static const char* NameOf(int Number) {
        return Number < 0 ? "nothing" : Steps()[static_cast<size_t>(Number)].What;
    }
    static void Begin(clsDBEngine& Engine, const QString& Dir) {
        Engine.SetDBPath(Dir);
        Engine.InitializeDB();
        Engine.KeepSession();
        Engine.Listeners.Keeper = std::make_shared<History>(Engine, 0);
    }
    // All of it. What has been stored counts; a step that cannot be stored is gone on behind.
    void Run(const QString& Dir, const Progress& Told) const {
        clsDBEngine Engine;
        Begin(Engine, Dir);
        for (int Number = 0; Number < Count(); ++Number) {
            Told.Now().Begun = Number;
            Steps()[static_cast<size_t>(Number)].Do(Engine);
            if (Engine.IsSessionStored()) Told.Now().Stored = Number;
        }
    }
    static void Do(int Number, clsDBEngine& Engine) {
        Steps()[static_cast<size_t>(Number)].Do(Engine);
    }
    // What a start makes of it, which goes on to an orderly end.
    static void StartAndEnd(const QString& Dir) {
        clsDBEngine Engine;
        Begin(Engine, Dir);
        Engine.FinalizeDB();
    }
    // Starts, looks, ends, checks. A loss of power may take thumbnails, which are made anew, and
    // may bring back a sound that had made way for another, or for none.
    void ExpectAll(const QString& Dir, const Progress& Told, bool PowerFails,
                   const std::string& Where) const {
        const auto Looked = Look(Dir);
        {
            clsDBEngine Engine;
            Begin(Engine, Dir);
            const auto Found = ContentOf(Engine);
            EXPECT_EQ(Looked, Found) << Where;
            EXPECT_TRUE(Engine.Found().PutAside.isEmpty()) << Where;
            ExpectState(Found, Told, Where);
            ExpectFiles(Engine, Where);
            Engine.FinalizeDB();
            EXPECT_EQ(Found, ContentOf(Engine));
        }
        EXPECT_EQ(Looked, Look(Dir)) << Where;
        EXPECT_TRUE(IsAtRest(Dir)) << Where;
        ExpectClean(Dir, Told, PowerFails, Where);
    }

  private:
    static Content Look(const QString& Dir) {
        clsDBEngine Engine;
        Engine.SetDBPath(Dir);
        Engine.InitializeDB(Recovery::InMemory);
        return ContentOf(Engine);
    }
    // All that was stored, and of the step that was begun all or nothing.
    void ExpectState(const Content& Found, const Progress& Told, const std::string& Where) const {
        const auto At = [this](int Each) { return mStates[static_cast<size_t>(Each + 1)]; };
        bool IsOne = false;
        for (int Each = Told.Now().Stored; Each <= Told.Now().Begun; ++Each)
            IsOne = IsOne || Found == At(Each);
        std::string Like = "none";
        for (int Each = -1; Each < Count(); ++Each)
            if (Found == At(Each)) Like = NameOf(Each);
        EXPECT_TRUE(IsOne) << Where << ": stored was " << NameOf(Told.Now().Stored) << ", begun "
                           << NameOf(Told.Now().Begun) << "; it is as behind " << Like;
    }
    static void ExpectFiles(clsDBEngine& Engine, const std::string& Where) {
        for (const auto& Album : Engine.Albums) {
            const QString Slides = SlidesFolder(Engine.DBPath(), Album->AlbumID);
            const QString Tracks = SoundTracksFolder(Engine.DBPath(), Album->AlbumID);
            for (const auto& Slide : Album->Slides) {
                EXPECT_EQ("picture " + QByteArray::number(Slide->SlideID),
                          Bytes(Slides + Slide->SlideLoc))
                    << Where;
                if (!Slide->SoundTrackLoc.isEmpty()) {
                    EXPECT_EQ("recorded", Bytes(Slides + Slide->SoundTrackLoc)) << Where;
                }
            }
            for (const auto& Show : Album->SlideShows)
                for (const auto& Track : Show->SoundTracks)
                    EXPECT_TRUE(Bytes(Tracks + Track->SoundTrackLoc).startsWith("sound "))
                        << Where << ": " << qPrintable(Track->SoundTrackLoc);
        }
    }
    static QByteArray Bytes(const QString& Path) {
        return FileExists(Path) ? ReadFile(Path) : QByteArray("nothing");
    }
    // By nebctl check. A thumbnail follows its picture, and what a step makes lies there first.
    static void ExpectClean(const QString& Dir, const Progress& Told, bool PowerFails,
                            const std::string& Where) {
        const ToolRun Checked = Tool({u"check"_s, u"--files"_s, Dir});
        const int Begun = Told.Now().Begun;
        const bool Makes = Begun >= 0 && Steps()[static_cast<size_t>(Begun)].Makes;
        for (const QString& Line :
             QString::fromStdString(Checked.Out).split(u'\n', Qt::SkipEmptyParts)) {
            const bool IsStray = Line.startsWith(u"no record names the f"_s);
            const bool IsThumbnail = Line.startsWith(u"the thumbnail of slide"_s);
            const bool IsSound = Line.endsWith(u".wav"_s) || Line.endsWith(u".mp3"_s);
            EXPECT_TRUE((IsStray && (Makes || (IsSound && PowerFails))) ||
                        (IsThumbnail && (Makes || PowerFails)))
                << Where << ", in " << NameOf(Begun) << ": " << qPrintable(Line);
        }
        EXPECT_EQ("", Checked.Err) << Where;
    }

    static void Enter(clsDBEngine& Engine, std::int32_t AlbumID, const QString& Caption) {
        Changes Door(Engine);
        QImage Thumbnail(72, 72, QImage::Format_RGB32);
        Thumbnail.fill(Qt::red);
        const QByteArray Jpeg = "picture " + QByteArray::number(Engine.NextSlideID);
        EXPECT_TRUE(
            EnterPicture(Door, Engine, AlbumID, {Caption, [&] { return Jpeg; }, Thumbnail}));
    }
    static void Save(clsDBEngine& Engine, std::int32_t SlideID,
                     const std::function<void(SlideInHand&)>& Make) {
        SlideInHand InHand;
        InHand.Take(1, *Engine.GetAlbum(1)->GetSlide(SlideID));
        Make(InHand);
        EXPECT_TRUE(SaveSlide(Engine, nullptr, InHand, {}));
    }
    static void SaveShow(clsDBEngine& Engine, std::int32_t ShowID, const QStringList& Sounds) {
        ShowContent Show{.AlbumID = 1, .SlideShowID = ShowID, .Name = u"Walk"_s};
        Show.Slides = {{1, u"first"_s, u"first"_s}, {3, u"third"_s, u"ёлка"_s}};
        double Place = 0;
        for (const QString& Each : Sounds)
            ++Place, Show.Tracks.push_back(
                         {.SlideSeqStart = Place, .SlideSeqEnd = Place, .SoundTrackLoc = Each});
        EXPECT_TRUE(WriteShow(Show, Engine));
    }
    static void TakeBack(clsDBEngine& Engine, Answer<Undone> (History::*Way)(const Yield&)) {
        const Answer<Undone> Done = (HistoryOf(Engine)->*Way)({});
        if (!Done) throw Fault(Done.Refusal().Text);
    }
    static void DeleteAlbum(clsDBEngine& Engine, std::int32_t AlbumID) {
        Changes Door(Engine);
        Door.DeleteAlbum(AlbumID);
        if (Engine.IsSessionStored()) DeleteAlbumFiles(Door, Engine.DBPath(), AlbumID, [] {});
    }

    static const std::vector<Step>& Steps() {
        static const auto MakeAlbum = [](clsDBEngine& Engine, const QString& Name) {
            Changes Door(Engine);
            EXPECT_TRUE(NewAlbum(Door, Engine, Name));
        };
        static const SoundFolder Sounds;
        static const QString Folder = Sounds.Dir.Path();
        static const std::vector<Step> All = {
            {"an album is made", true, [](auto& E) { MakeAlbum(E, u"Garden"_s); }},
            {"picture 1 comes in", true, [](auto& E) { Enter(E, 1, u"one"_s); }},
            {"picture 2 comes in", true, [](auto& E) { Enter(E, 1, u"two"_s); }},
            {"picture 3 comes in", true, [](auto& E) { Enter(E, 1, u"Łódź"_s); }},
            {"a second album is made", true, [](auto& E) { MakeAlbum(E, u"Town"_s); }},
            {"picture 4 comes in", true, [](auto& E) { Enter(E, 2, u"four"_s); }},
            {"a caption is written", false,
             [](auto& E) { Changes(E).SaveCaption(1, 1, u"茶と猫 🐈\u200D⬛"_s); }},
            {"a sound is recorded", true,
             [](auto& E) { Save(E, 1, [](auto& Slide) { Slide.Record("recorded"); }); }},
            {"a show is saved", true,
             [](auto& E) {
                 SaveShow(E, 0, {Folder + u"one.mp3"_s, Folder + u"two.mp3"_s});
             }},
            {"a slide is deleted", false, [](auto& E) { DeleteSlide(E, nullptr, 1, 2); }},
            {"that is taken back", true, [](auto& E) { TakeBack(E, &History::Undo); }},
            {"it is done again", true, [](auto& E) { TakeBack(E, &History::Redo); }},
            {"the show is saved again", true,
             [](auto& E) { SaveShow(E, 1, {Folder + u"three.wav"_s}); }},
            {"the show is deleted", false, [](auto& E) { Changes(E).DeleteShow(1, 1); }},
            {"that is taken back", true, [](auto& E) { TakeBack(E, &History::Undo); }},
            {"it is done again", true, [](auto& E) { TakeBack(E, &History::Redo); }},
            {"another show is saved", true,
             [](auto& E) { SaveShow(E, 0, {Folder + u"two.mp3"_s}); }},
            {"the album is renamed", false, [](auto& E) { Changes(E).RenameAlbum(1, u"Парк"_s); }},
            {"the sound is cleared", true,
             [](auto& E) { Save(E, 1, [](auto& Slide) { Slide.ClearSound(); }); }},
            {"that is taken back", true, [](auto& E) { TakeBack(E, &History::Undo); }},
            {"it is done again", true, [](auto& E) { TakeBack(E, &History::Redo); }},
            {"an album is deleted", false, [](auto& E) { DeleteAlbum(E, 2); }},
            {"that is taken back", true, [](auto& E) { TakeBack(E, &History::Undo); }},
            {"it is done again", true, [](auto& E) { TakeBack(E, &History::Redo); }},
            {"all is written", false, [](auto& E) { E.FinalizeDB(); }},
            {"a caption is written behind it", false,
             [](auto& E) { Changes(E).SaveCaption(1, 3, u"behind"_s); }},
            {"picture 5 comes in", true, [](auto& E) { Enter(E, 1, u"five"_s); }},
            {"all is written again", false, [](auto& E) { E.FinalizeDB(); }},
        };
        return All;
    }
    struct SoundFolder {
        MemoryFolder Dir;
        SoundFolder() {
            for (const char* Name : {"one.mp3", "two.mp3", "three.wav"})
                WriteFile(Dir / QLatin1String(Name), QByteArray("sound ") + Name);
        }
    };

    std::vector<Content> mStates;  // before the first step, and behind each
};

}  // namespace neb::harness
