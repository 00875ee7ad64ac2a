// A small database with one album and one show, beside settings of its own, for rehearsals: its
// pictures are small files, its sounds are lengths.
#pragma once

#include <gtest/gtest.h>

#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "harness/TempFolder.h"
#include "settings/modNEBSlideShow.h"
#include "show/rehearsal/Rehearsal.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"

namespace neb::test {

using namespace Qt::StringLiterals;

class RehearsalRig : public ::testing::Test {
  protected:
    RehearsalRig() {
        SetDocumentsPath(Folder / u"documents/"_s);
        AppPathCache = Folder / u"program/"_s;
        MakeDirs(AppPathCache);
        WriteFile(AppPathCache + u"NoSlide.bmp"_s, Picture);
        Engine.SetDBPath(Folder / u"db/"_s);
        Engine.InitializeDB();
        Engine.SaveAlbum(Album, u"Holiday"_s);
        InAlbum = Engine.GetAlbum(Album);
        InAlbum->SaveSlideShow(Show, u"Lake"_s, 0, Engine);
        SlideShow = InAlbum->GetSlideShow(Show);
        MakeDirs(SlidesFolder(Engine.DBPath(), Album));
        MakeDirs(SoundTracksFolder(Engine.DBPath(), Album));
        Put("UseEffectLevel", u"False"_s);
        Put("Timeout", u"5"_s);
    }
    ~RehearsalRig() override {
        AppPathCache.clear();
        DBPathCache.clear();
        DocumentsPath.clear();
    }

    void Put(const char* Key, const QString& Value, const QString& Section = {}) {
        clsSettings Settings = OpenSettings();
        Settings.PutValue(Section, QLatin1String(Key), Value);
        Settings.Save();
    }
    // At the end of the show; captions "Slide N".
    void AddSlides(int Count) {
        for (int I = 0; I < Count; ++I) {
            const auto Seq = static_cast<std::int32_t>(SlideShow->Details.size()) + 1;
            std::int32_t SlideID = 0;
            clsNEBSlide& Slide =
                *InAlbum->SaveSlide2(SlideID, u"Slide %1"_s.arg(Seq), {}, {}, false, false, Engine);
            Slide.SlideLoc = FileStem(SlideID) + u".jpg"_s;
            WriteFile(PicturePath(SlideID), Picture);
            SlideShow->SaveDetail(SlideID, Seq, {});
        }
    }
    clsNEBSlide& Slide(int Place) {
        return *InAlbum->GetSlide(SlideShow->Details.at(static_cast<size_t>(Place) - 1)->SlideID);
    }
    QString PicturePath(std::int32_t SlideID) const {
        return SlidesFolder(Engine.DBPath(), Album) + FileStem(SlideID) + u".jpg"_s;
    }

    // A track whose file is there and has a length in seconds.
    clsNEBSlideShowSoundTrack& AddTrack(const QString& Name, std::int32_t From, std::int32_t To,
                                        double Length) {
        AddSound(SoundTracksFolder(Engine.DBPath(), Album) + Name, Length);
        SlideShow->SaveSoundTrack(static_cast<std::int32_t>(SlideShow->SoundTracks.size()) + 1,
                                  Name, From, To, false, false, false);
        return *SlideShow->SoundTracks.back();
    }
    clsNEBSlide& AddClip(int Place, const QString& Name, double Length) {
        AddSound(SlidesFolder(Engine.DBPath(), Album) + Name, Length);
        Slide(Place).SoundTrackLoc = Name;
        return Slide(Place);
    }
    void AddSound(const QString& Path, double Length) {
        WriteFile(Path, "sound");
        Lengths[GetFileName(Path)] = Length;
    }
    RehearsalOptions Options() const {
        RehearsalOptions Fake;
        Fake.LengthOfSound = [this](const QString& Path) {
            if (!Lengths.contains(GetFileName(Path))) throw Fault(u"No sound."_s, Path);
            return Lengths[GetFileName(Path)];
        };
        return Fake;
    }

    // The first bytes of a picture of one pixel.
    static inline const QByteArray Picture = QByteArray::fromHex("ffd8ffe000104a464946000101");

    harness::TempFolder Folder;
    clsDBEngine Engine;
    QHash<QString, double> Lengths;  // of the sounds that can be played, by file name
    std::int32_t Album = 0, Show = 0;
    clsNEBAlbum* InAlbum = nullptr;
    clsNEBSlideShow* SlideShow = nullptr;
};

}  // namespace neb::test
