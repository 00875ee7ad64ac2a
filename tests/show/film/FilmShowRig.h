// Shows with real pictures and real sounds, and films of them whose frames and samples a test gets
// into its hands.
#pragma once

#include "CaughtFilm.h"
#include "effects/Pictures.h"
#include "harness/SoundFiles.h"
#include "pictures/PictureOfFile.h"
#include "show/RehearsalRig.h"
#include "show/film/FilmMaker.h"
#include "show/film/FilmStage.h"

namespace neb::test {

class FilmShowRig : public RehearsalRig {
  protected:
    FilmShowRig() {
        effectstest::Plain({64, 36}, 0xFF808080).save(AppPathCache + u"NoSlide.bmp"_s, "BMP");
        Put("Timeout", u"1"_s);
        Order.Path = Folder / u"film.mkv"_s;
        Order.Format = FilmFormat::Lossless;
        Order.Size = {64, 36};
        Order.Rate = 30;
    }
    ~FilmShowRig() override { SetFilmEncoderMaker({}); }

    // With pictures that differ.
    void AddPictures(int Count) {
        AddSlides(Count);
        for (int Place = 1; Place <= Count; ++Place)
            effectstest::Scene({96, Place % 3 == 0 ? 96 : 54}, static_cast<std::uint32_t>(Place))
                .save(PicturePath(Slide(Place).SlideID), "PNG");
    }
    QString TrackPath(const QString& Name) const {
        return SoundTracksFolder(Engine.DBPath(), Album) + Name;
    }
    clsNEBSlideShowSoundTrack& AddTrack(const QString& Name, std::int32_t From, std::int32_t To,
                                        const std::vector<float>& Samples, int Rate = 44100) {
        WriteFile(TrackPath(Name), harness::WaveBytes(Samples, Rate));
        SlideShow->SaveSoundTrack(static_cast<std::int32_t>(SlideShow->SoundTracks.size()) + 1,
                                  Name, From, To, false, false, false);
        return *SlideShow->SoundTracks.back();
    }
    clsNEBSlide& AddClip(int Place, const QString& Name, const std::vector<float>& Samples) {
        WriteFile(SlidesFolder(Engine.DBPath(), Album) + Name,
                  harness::WaveBytes(Samples, FilmSoundRate));
        Slide(Place).SoundTrackLoc = Name;
        return Slide(Place);
    }
    void AddTenSlidesWithAllKindsOfSounds();

    FilmPlan Plan() {
        Copy = CopyForRehearsal(Engine, Album, Show);
        return PlanFilm(*Copy, Order);
    }
    // Makes the film, with the frames and samples for the test in place of an encoded one.
    FilmReport Make(const FilmWatch& Watch = {}) { return Make(Plan(), Watch); }
    FilmReport Make(const FilmPlan& Planned, const FilmWatch& Watch = {}) {
        Film = CatchFilms();
        return MakeFilm(*Copy, Order, Planned, Watch);
    }

    // The first sample of a moment.
    static size_t At(double Seconds) {
        return static_cast<size_t>((std::llround(Seconds * 1000) * 441 + 5) / 10);
    }
    float Left(size_t Pair) const { return Film->Sound.at(2 * Pair); }
    float Right(size_t Pair) const { return Film->Sound.at(2 * Pair + 1); }

    FilmOrder Order;
    std::shared_ptr<clsDBEngine> Copy;
    std::shared_ptr<CaughtFilm> Film;
};

// Slides of a second each, but for those of the fitted track. The samples of all sounds tell their
// own time, each in a height of its own.
inline void FilmShowRig::AddTenSlidesWithAllKindsOfSounds() {
    constexpr int Rate = FilmSoundRate;
    AddPictures(10);
    AddTrack(u"fades.wav"_s, 1, 2, harness::Ramp(10, Rate)).Fade = true;         // 0 to 2
    AddTrack(u"fitted.wav"_s, 3, 4, harness::Ramp(2.4, Rate)).FitToSong = true;  // to 4.4
    AddTrack(u"rounds.wav"_s, 5, 5, harness::Ramp(0.3, Rate)).Repeat = true;     // to 5.4
    AddTrack(u"long.wav"_s, 6, 8, harness::Ramp(10, Rate));                      // to 8.4
    AddClip(7, u"over.wav"_s, std::vector<float>(Rate / 2, -0.5F)).Override = true;
    AddClip(9, u"clip.wav"_s, harness::Ramp(0.2, Rate));
    SlideShow->SaveSoundTrack(9, u"none.wav"_s, 10, 10, false, false, false);
    DeleteFile(PicturePath(Slide(9).SlideID));
    QByteArray Damaged = ReadFile(PicturePath(Slide(10).SlideID));
    Damaged.truncate(Damaged.size() / 2);
    WriteFile(PicturePath(Slide(10).SlideID), Damaged);
    Slide(4).SlideText.clear();
}

}  // namespace neb::test
