// What the tests of undoing stand on: an album with slides, pictures, sounds and a show with
// tracks, what a user does to it through the routines of the windows, and all that is there as one
// value.
#pragma once

#include <gtest/gtest.h>

#include <QImage>
#include <random>

#include "albums/AlbumRemoval.h"
#include "albums/BulkSlides.h"
#include "albums/SlideSave.h"
#include "albums/modImport.h"
#include "albums/modLoadShow.h"
#include "albums/modSaveShow.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "db/undo/History.h"
#include "harness/DatabaseReader.h"
#include "harness/EngineContent.h"
#include "harness/MemoryFolder.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb::harness {

using namespace Qt::StringLiterals;

// The records as they would be written, and every file of the albums.
struct WholeState {
    Content Records;
    std::map<QString, QByteArray> Files;
    std::set<QString> Folders;
    bool operator==(const WholeState&) const = default;
};

inline WholeState StateOf(const clsDBEngine& Engine) {
    const DatabaseState OnDisk = ReadDatabase(Engine.DBPath());
    for (const QString& Each : OnDisk.Irregular) ADD_FAILURE() << Each.toStdString();
    WholeState Now{ContentOf(Engine), OnDisk.Files, OnDisk.Folders};
    // by these counters nothing that was made gives its number away again
    Now.Records.erase("NextIDs.dat");
    return Now;
}

class UndoUser {
  public:
    UndoUser(clsDBEngine& theDB, const QString& Sounds) : Engine(theDB), mSounds(Sounds) {}

    static void Begin(clsDBEngine& Engine, const QString& Dir) {
        Engine.SetDBPath(Dir);
        Engine.InitializeDB();
        Engine.KeepSession();
        Engine.Listeners.Keeper = std::make_shared<History>(Engine, 0);
    }
    History& Steps() const { return *HistoryOf(Engine); }

    std::int32_t MakeAlbum(const QString& Name) const {
        Changes Door(Engine);
        return NewAlbum(Door, Engine, Name)->What().AlbumID;
    }
    std::int32_t AddPicture(std::int32_t AlbumID, const QString& Caption) const {
        Changes Door(Engine);
        const QByteArray Bytes = "picture of " + Caption.toUtf8();
        QImage Small(72, 72, QImage::Format_RGB32);
        Small.fill(Qt::red);
        return *EnterPicture(Door, Engine, AlbumID, {Caption, [&] { return Bytes; }, Small});
    }
    clsNEBSlide& Slide(std::int32_t AlbumID, std::int32_t SlideID) const {
        return *Engine.GetAlbum(AlbumID)->GetSlide(SlideID);
    }
    void SaveSlide(std::int32_t AlbumID, std::int32_t SlideID,
                   const std::function<void(SlideInHand&)>& Make,
                   const SlideInHand::JpegMaker& Jpeg = {}) const {
        SlideInHand InHand;
        InHand.Take(AlbumID, Slide(AlbumID, SlideID));
        Make(InHand);
        EXPECT_TRUE(neb::SaveSlide(Engine, nullptr, InHand, Jpeg));
    }
    void Turn(std::int32_t AlbumID, std::int32_t SlideID, const QByteArray& Turned) const {
        SaveSlide(
            AlbumID, SlideID,
            [](SlideInHand& InHand) {
                ImgX Picture;
                Picture.SetPicture(QImage(4, 4, QImage::Format_RGB32));
                InHand.Turn(Picture);
            },
            [Turned] { return Turned; });
    }
    void Recaption(std::int32_t AlbumID, const std::map<std::int32_t, QString>& Captions) const {
        CaptionSave Saved(Engine, nullptr, AlbumID);
        for (const auto& [SlideID, Caption] : Captions) Saved.Save(SlideID, Caption);
    }
    SlideTally Delete(std::int32_t AlbumID, const std::vector<std::int32_t>& SlideIDs) const {
        return DeleteSlides(Engine, nullptr, AlbumID, SlideIDs, [] { return true; });
    }
    void DeleteAlbum(std::int32_t AlbumID) const {
        Changes Door(Engine);
        EXPECT_TRUE(Door.DeleteAlbum(AlbumID));
        if (Engine.IsSessionStored()) DeleteAlbumFiles(Door, Engine.DBPath(), AlbumID, [] {});
    }
    QString Sound(const QString& Tune) const {
        const QString Path = mSounds + Tune + u".mp3"_s;
        WriteFile(Path, Tune.toUtf8());
        return Path;
    }
    // SlideShowID 0: a new one. Sounds: contents of new files, one a slide.
    std::int32_t SaveShow(std::int32_t AlbumID, std::int32_t SlideShowID, const QString& Name,
                          const std::vector<std::int32_t>& SlideIDs,
                          const QStringList& Sounds) const {
        ShowContent Show{.AlbumID = AlbumID, .SlideShowID = SlideShowID, .Name = Name};
        for (std::int32_t Each : SlideIDs) Show.Slides.push_back({Each, {}, {}});
        double Place = 0;
        for (const QString& Each : Sounds)
            ++Place,
                Show.Tracks.push_back(
                    {.SlideSeqStart = Place, .SlideSeqEnd = Place, .SoundTrackLoc = Sound(Each)});
        EXPECT_TRUE(WriteShow(Show, Engine));
        return Show.SlideShowID;
    }
    void Undo() const {
        const Answer<Undone> Done = Steps().Undo();
        EXPECT_TRUE(Done) << Done.Refusal().Text.toStdString();
    }
    void Redo() const {
        const Answer<Undone> Done = Steps().Redo();
        EXPECT_TRUE(Done) << Done.Refusal().Text.toStdString();
    }

    clsDBEngine& Engine;

  private:
    QString mSounds;
};

// An album of six pictures, one of them with a sound, and a show of four with two tracks.
class UndoRig : public ::testing::Test {
  protected:
    UndoRig() {
        UndoUser::Begin(Engine, Dir.Path());
        Garden = User.MakeAlbum(u"Garden"_s);
        for (const char* Each : {"Rose", "Lily", "Aster", "Iris", "Daisy", "Peony"})
            Slides.push_back(User.AddPicture(Garden, QLatin1String(Each)));
        User.SaveSlide(Garden, Slides[1], [](SlideInHand& InHand) { InHand.Record("lily sings"); });
        Walk = User.SaveShow(Garden, 0, u"Walk"_s, {Slides[0], Slides[1], Slides[2], Slides[3]},
                             {u"march"_s, u"waltz"_s});
        User.Steps().DropAll();
    }
    ~UndoRig() override { SetHostWatcher({}); }
    bool HasKept() const { return FolderExists(Dir / u"Temp/Undo"_s); }
    std::string NextUndo() const { return User.Steps().UndoName().toStdString(); }
    // What Do does goes back and forth: to the byte.
    void ExpectBackAndForth(const std::string& Name, const std::function<void()>& Do) {
        const WholeState Before = StateOf(Engine);
        Do();
        const WholeState After = StateOf(Engine);
        EXPECT_NE(Before, After);
        EXPECT_EQ(Name, NextUndo());
        for (int Time = 0; Time < 2; ++Time) {
            User.Undo();
            EXPECT_TRUE(Before == StateOf(Engine)) << "undone";
            EXPECT_EQ(Name, User.Steps().RedoName().toStdString());
            User.Redo();
            EXPECT_TRUE(After == StateOf(Engine)) << "done again";
            EXPECT_EQ(Name, NextUndo());
        }
        User.Undo();
        EXPECT_TRUE(Before == StateOf(Engine));
        EXPECT_EQ("", NextUndo());
    }

    MemoryFolder Dir, Sounds;
    clsDBEngine Engine;
    UndoUser User{Engine, Sounds.Path()};
    std::int32_t Garden = 0, Walk = 0;
    std::vector<std::int32_t> Slides;
};

}  // namespace neb::harness
