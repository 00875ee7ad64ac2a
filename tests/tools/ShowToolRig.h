// A database with an album and two shows, and settings beside it: what the commands are tried on
// that run a show.
#pragma once

#include <gtest/gtest.h>

#include "ToolRun.h"
#include "db/Fixtures.h"
#include "db/modAlbumFiles.h"
#include "harness/SoundFiles.h"
#include "settings/modNEBSlideShow.h"

namespace neb::harness {

class ShowToolRig : public ::testing::Test {
  protected:
    // Album "Holiday" with the shows "Lake" (three slides, a track) and "Hills" (nothing).
    explicit ShowToolRig(const QByteArray& OfSlides) : Picture(OfSlides) {
        AppPathCache = Folder / u"program/"_s;
        WriteAt(AppPathCache, u"NoSlide.bmp"_s, Picture);
        WriteAt(Folder / u"docs/NEB/NEB Slide Show/"_s, u"QLM.ini"_s,
                "Timeout=5\nUseEffectLevel=False\nDelayL=200\nStepL=5\n");
        Change([this](clsDBEngine& Engine) {
            std::int32_t AlbumID = 0, Lake = 0, Hills = 0;
            Engine.SaveAlbum(AlbumID, u"Holiday"_s);
            clsNEBAlbum& Album = *Engine.GetAlbum(AlbumID);
            Album.SaveSlideShow(Lake, u"Lake"_s, 0, Engine);
            Album.SaveSlideShow(Hills, u"Hills"_s, 0, Engine);
            for (const char16_t* Caption : {u"The boat", u"Tom & Anna", u"Evening"}) {
                std::int32_t SlideID = 0;
                clsNEBSlide& Slide = *Album.SaveSlide2(SlideID, QString::fromUtf16(Caption), {}, {},
                                                       false, false, Engine);
                Slide.SlideLoc = FileStem(SlideID) + u".jpg"_s;
                WriteAt(Slides(), Slide.SlideLoc, Picture);
                Engine.SaveSlideShowDetail(Lake, AlbumID, SlideID, SlideID, {});
            }
        });
    }
    ~ShowToolRig() override { AppPathCache.clear(); }

    void WriteAt(const QString& Dir, const QString& Name, const QByteArray& Bytes) {
        MakeDirs(Dir);
        WriteFile(Dir + Name, Bytes);
    }
    QString Slides() const { return SlidesFolder(Folder / u"db/"_s, 1); }
    QString Sounds() const { return SoundTracksFolder(Folder / u"db/"_s, 1); }
    void Change(const std::function<void(clsDBEngine& Engine)>& Do) {
        MakeDirs(Folder / u"db/"_s);
        const auto Engine = OpenEngine(Folder / u"db/"_s);
        Do(*Engine);
        Engine->FinalizeDB();
    }
    void AddTrack(const QString& Name, std::int32_t From, std::int32_t To, bool Fade) {
        Change([&](clsDBEngine& Engine) {
            Engine.SaveSlideShowSoundTrack(1, 1, 1, Name, From, To, false, false, Fade);
        });
    }

    const QByteArray Picture;  // of each slide
    TempFolder Folder;
};

}  // namespace neb::harness
