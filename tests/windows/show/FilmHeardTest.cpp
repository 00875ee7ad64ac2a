// A film of a show sounds as the show itself does: what is in the film against what came out of the
// sound device while the projector showed it.
#include "HeardShowRig.h"
#include "show/film/CaughtFilm.h"
#include "show/film/FilmMaker.h"

namespace neb::test {
namespace {

constexpr int Rate = HeardRate;
constexpr size_t Ramp8Ms = 352;  // what was broken off before fades out beside a beginning

std::vector<float> Turned(std::vector<float> Samples, float By, float Shift) {
    for (float& Each : Samples) Each = Each * By + Shift;
    return Samples;
}

// Where a file began whose samples lie between two levels and tell their own time there; whole
// samples from it on are its own.
template <class Sound>
size_t StartOf(const Sound& Out, float Least, float Most, double (*TimeOf)(float)) {
    for (size_t I = 0; I + Ramp8Ms < Out.size(); ++I) {
        const float Later = Out[I + Ramp8Ms];
        if (Out[I] < Least || Out[I] > Most || Later < Least || Later > Most) continue;
        return I + Ramp8Ms - static_cast<size_t>(std::lround(TimeOf(Later) * Rate));
    }
    return Out.size();
}

class FilmHeard : public HeardShow {
  protected:
    FilmHeard() {
        SlideShow->Details.clear();
        AddSlides(4);
        // 1: 0.3 s again and again; 2 and 3: 1.2 s fitted; 4: a clip of 0.5 s
        AddTrack(harness::Ramp(0.3, Rate), 1, 1, true, false);
        AddTrack(Turned(harness::Ramp(1.2, Rate), -1, 0), 2, 3, false, false);
        SlideShow->SoundTracks.back()->FitToSong = true;
        Slide(4).SoundTrackLoc = QStringLiteral("clip.wav");
        WriteFile(Folder / QStringLiteral("db/Albums/%1/Slides/clip.wav").arg(Album),
                  harness::WaveBytes(Turned(harness::Ramp(0.5, Rate), 1, 0.4F), Rate));
    }
    ~FilmHeard() override { SetFilmEncoderMaker({}); }

    // The left side of the film's sound.
    std::vector<float> MakeFilmOfShow() {
        FilmOrder Order;
        Order.Path = Folder / QStringLiteral("film.mkv");
        Order.Format = FilmFormat::Lossless;
        Order.Size = {64, 36};
        const auto Copy = CopyForRehearsal(Engine, Album, Show);
        const auto Film = CatchFilms();
        for (const auto& Each : MakeFilm(*Copy, Order, PlanFilm(*Copy, Order)).Faults)
            ADD_FAILURE() << Each.Text.toStdString();
        std::vector<float> Left;
        for (size_t I = 0; I < Film->Sound.size(); I += 2) Left.push_back(Film->Sound[I]);
        return Left;
    }
    static void ExpectSame(const std::vector<float>& Film, size_t InFilm, const Heard& Out,
                           size_t InShow, double Seconds) {
        const auto Count = static_cast<size_t>(Seconds * Rate);
        ASSERT_LE(InFilm + Count, Film.size());
        ASSERT_LE(InShow + Count, Out.size());
        for (size_t I = Ramp8Ms; I < Count; ++I)
            ASSERT_NEAR(Film[InFilm + I], Out[InShow + I], 1e-6) << "sample " << I;
    }
};

TEST_F(FilmHeard, AFilmHoldsTheSamplesThatTheShowPlays) {
    const std::vector<float> Film = MakeFilmOfShow();
    ASSERT_EQ(static_cast<size_t>(3.2 * Rate), Film.size());
    const Heard Out = Listen(3400);
    ExpectSame(Film, 0, Out, Out.FirstSound(), 0.9);
    const auto TimeOfSecond = [](float Sample) { return harness::RampTime(-Sample); };
    const auto TimeOfThird = [](float Sample) { return harness::RampTime(Sample - 0.4F); };
    const size_t Second = StartOf(Film, -0.14F, -0.099F, TimeOfSecond);
    const size_t Third = StartOf(Film, 0.499F, 0.52F, TimeOfThird);
    EXPECT_NEAR(1.0 * Rate, static_cast<double>(Second), 1);
    EXPECT_NEAR(2.2 * Rate, static_cast<double>(Third), 1);
    ExpectSame(Film, Second, Out, StartOf(Out, -0.14F, -0.099F, TimeOfSecond), 1.1);
    ExpectSame(Film, Third, Out, StartOf(Out, 0.499F, 0.52F, TimeOfThird), 0.49);
}

}  // namespace
}  // namespace neb::test
