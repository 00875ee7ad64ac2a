// A database for tests of transfers: albums with slides, shows, pictures and sounds, in which the
// content of every file tells where it came from.
#pragma once

#include <gtest/gtest.h>

#include "db/AlbumSums.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "support/files/modHostFiles.h"

namespace neb::harness {

using namespace Qt::StringLiterals;

// One database with what is to be copied from it or replaced in it.
class FilledDatabase {
  public:
    FilledDatabase(const QString& Path, const QString& Marker) : mMarker(Marker) {
        Engine.SetDBPath(Path);
        Engine.InitializeDB();
    }
    QString Dir() const { return Engine.DBPath(); }

    // With a list of check sums, but for "Sea", which is as earlier versions have made it.
    std::int32_t AddAlbum(const QString& Name) {
        std::int32_t AlbumID = 0;
        EXPECT_TRUE(Engine.SaveAlbum(AlbumID, Name));
        MakeDirs(AlbumFolder(Dir(), AlbumID));
        if (Name != u"Sea") BeginAlbumSums(AlbumFolder(Dir(), AlbumID));
        MakeDirs(SlidesFolder(Dir(), AlbumID));
        MakeDirs(SoundTracksFolder(Dir(), AlbumID));
        return AlbumID;
    }
    // With a picture of its own content, named after the slide's number.
    clsNEBSlide& AddSlide(std::int32_t AlbumID, const QString& Caption) {
        std::int32_t SlideID = 0;
        clsNEBSlide* Slide =
            Engine.GetAlbum(AlbumID)->SaveSlide2(SlideID, Caption, {}, {}, false, false, Engine);
        Slide->SlideLoc = FileStem(SlideID) + u".JPG"_s;
        PutFile(AlbumID, u"Slides/"_s + FileStem(SlideID) + u".jpg"_s);
        return *Slide;
    }
    void AddThumbnail(std::int32_t AlbumID, std::int32_t SlideID) {
        PutFile(AlbumID, u"Slides/"_s + ThumbnailName(SlideID));
    }
    void AddSound(std::int32_t AlbumID, clsNEBSlide& Slide) {
        Slide.SoundTrackLoc = FileStem(Slide.SlideID) + u".wav"_s;
        PutFile(AlbumID, u"Slides/"_s + Slide.SoundTrackLoc);
    }
    // The slides one after the other; every other one with a caption of the show's own.
    clsNEBSlideShow& AddShow(std::int32_t AlbumID, const QString& Name, std::int32_t Method,
                             const std::vector<std::int32_t>& SlideIDs) {
        std::int32_t ShowID = 0;
        Engine.GetAlbum(AlbumID)->SaveSlideShow(ShowID, Name, Method, Engine);
        clsNEBSlideShow* Show = Engine.GetAlbum(AlbumID)->GetSlideShow(ShowID);
        std::int32_t Place = 0;
        for (const std::int32_t Each : SlideIDs) {
            ++Place;
            Show->SaveDetail(Each, Place, Place % 2 ? mMarker + u" show's own"_s : QString());
        }
        return *Show;
    }
    void AddTrack(std::int32_t AlbumID, clsNEBSlideShow& Show, std::int32_t Number,
                  const QString& Ending, bool Flags = false) {
        const QString Name = FileStem(Show.SlideShowID) + u"_%1"_s.arg(Number) + Ending;
        Show.SaveSoundTrack(Number, Name, Number, Number + 1, Flags, !Flags, Flags);
        PutFile(AlbumID, u"SoundTracks/"_s + Name);
    }
    // Every file tells where it came from.
    void PutFile(std::int32_t AlbumID, const QString& InAlbum) {
        StoreAnew(AlbumFolder(Dir(), AlbumID) + InAlbum,
                  (mMarker + u' ' + QString::number(AlbumID) + u' ' + InAlbum).toUtf8());
    }

    // Four slides, of which three have a thumbnail and one a sound; a show with one slide twice and
    // two tracks, and one without tracks that shares a slide with it.
    std::int32_t AddFilledAlbum(const QString& Name) {
        const std::int32_t ID = AddAlbum(Name);
        std::vector<std::int32_t> Slides;
        for (const char* Each : {" first", " second", " third", " fourth"}) {
            clsNEBSlide& Slide = AddSlide(ID, mMarker + QLatin1String(Each));
            Slides.push_back(Slide.SlideID);
            if (Slides.size() != 3) AddThumbnail(ID, Slide.SlideID);
            if (Slides.size() == 2) AddSound(ID, Slide);
            Slide.Override = true;  // means nothing without a sound
            Slide.Repeat = Slides.size() != 2;
        }
        Engine.GetAlbum(ID)->GetSlide(Slides[2])->SoundTrackLoc = u"   "_s;
        clsNEBSlideShow& Walk =
            AddShow(ID, Name + u" walk"_s, 1, {Slides[1], Slides[0], Slides[1]});
        AddTrack(ID, Walk, 1, u".mp3"_s);
        AddTrack(ID, Walk, 3, u".wav"_s, true);
        AddShow(ID, Name + u" run"_s, 2, {Slides[2], Slides[0]});
        return ID;
    }

    clsDBEngine Engine;

  private:
    QString mMarker;
};

}  // namespace neb::harness
