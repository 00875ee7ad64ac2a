// What the tests of composing stand on: an engine on a folder of its own with one album, shows
// stored in it, and the content of an editor to be saved.
#pragma once

#include <gtest/gtest.h>

#include "albums/modSaveShow.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "harness/ScriptedBoxes.h"
#include "harness/TempFolder.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"
#include "support/modDEValidation.h"
#include "support/modFUFL.h"

namespace neb::harness {

using namespace Qt::StringLiterals;

class ShowRig : public ::testing::Test {
  protected:
    ShowRig() {
        Engine.SetDBPath(Db.Path());
        Engine.InitializeDB();
        Engine.SaveAlbum(AlbumID, u"Garden"_s);
        MakeDirs(SoundTracksFolder(Engine.DBPath(), AlbumID));
    }
    ~ShowRig() override { SetHostWatcher({}); }

    clsNEBAlbum& Album() { return *Engine.GetAlbum(AlbumID); }
    std::int32_t SaveStored(const QString& Name) {
        std::int32_t ShowID = 0;
        EXPECT_TRUE(Album().SaveSlideShow(ShowID, Name, 0, Engine));
        return ShowID;
    }
    // A new show of Count slides, each with its own caption.
    ShowContent NewShow(int Count) {
        ShowContent Content{.AlbumID = AlbumID, .Name = u"Walk"_s};
        for (int I = 0; I < Count; ++I) {
            std::int32_t SlideID = 0;
            const QString Text = u"slide %1"_s.arg(I + 1);
            Album().SaveSlide(SlideID, Text, {}, {}, false, false, Engine);
            Content.Slides.push_back({SlideID, Text, Text});
        }
        return Content;
    }
    // A file to be chosen as a sound track, with its own name as content.
    QString MakeSound(const QString& Name) {
        WriteFile(Sounds / Name, Name.toUtf8());
        return Sounds / Name;
    }
    ShowTrack NewTrack(int Start, int End, const QString& File) {
        return {.SlideSeqStart = Start, .SlideSeqEnd = End, .SoundTrackLoc = File};
    }
    // "name=content" of every file in the album's folder of tracks, in the order of the names.
    std::string TrackFiles() {
        QStringList All;
        const QString Folder = SoundTracksFolder(Engine.DBPath(), AlbumID);
        for (const DirEntry& Each : ListDir(Folder))
            All << Each.Name + u'=' + QString::fromUtf8(ReadFile(Folder + Each.Name));
        return All.join(u' ').toStdString();
    }
    // The stored tracks: number, range, flags that are set, file.
    std::string StoredTracks(std::int32_t ShowID) {
        QStringList All;
        for (const auto& Each : Album().GetSlideShow(ShowID)->SoundTracks)
            All << u"%1:%2-%3%4%5%6 %7"_s.arg(Each->SoundTrackSeq)
                       .arg(Each->SlideSeqStart)
                       .arg(Each->SlideSeqEnd)
                       .arg(Each->Repeat ? u"R"_s : u""_s, Each->FitToSong ? u"T"_s : u""_s,
                            Each->Fade ? u"F"_s : u""_s, Each->SoundTrackLoc);
        return All.join(u'|').toStdString();
    }
    // The stored places: number, slide, caption of the show's own.
    std::string StoredDetails(std::int32_t ShowID) {
        QStringList All;
        for (const auto& Each : Album().GetSlideShow(ShowID)->Details)
            All << u"%1:%2[%3]"_s.arg(Each->SlideSeq).arg(Each->SlideID).arg(Each->SlideText);
        return All.join(u'|').toStdString();
    }
    void Save(ShowContent& Content) {
        const Answer<> IsRight = CheckShow(Content, Engine);
        EXPECT_TRUE(IsRight) << IsRight.Refusal().Text.toStdString();
        EXPECT_TRUE(WriteShow(Content, Engine));
    }

    TempFolder Db, Sounds;
    clsDBEngine Engine;
    std::int32_t AlbumID = 0;
    ScriptedBoxes Boxes;
};

}  // namespace neb::harness
