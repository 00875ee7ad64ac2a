// The sound of a whole film against one that is reckoned up from the samples of its files.
#include "FilmShowRig.h"
#include "sound/VolumeScale.h"

namespace neb::test {
namespace {

constexpr int Rate = FilmSoundRate;
constexpr size_t Ramp8Ms = 352, Glide = 4410;

// Samples laid down at their places, one channel.
class Reckoned {
  public:
    explicit Reckoned(size_t Pairs) : mSamples(Pairs) {}

    using Source = std::function<double(size_t Sample)>;
    struct Stretch {
        size_t First, Last;                         // pairs of the film; Last no more
        size_t From = 0;                            // of the source's samples
        bool IsCutOff = true;                       // fades out behind Last
        Source Level = [](size_t) { return 1.0; };  // by pairs of the film
    };
    void Lay(const Stretch& Part, const Source& Of) {
        for (size_t I = Part.First; I < Part.Last; ++I) {
            const size_t Since = I - Part.First;
            const bool Begins = Part.From > 0 && Since < Ramp8Ms;
            const double In = Begins ? static_cast<double>(Since + 1) / Ramp8Ms : 1;
            Add(I, Of(Part.From + Since) * Part.Level(I) * In);
        }
        for (size_t I = 0; Part.IsCutOff && I < Ramp8Ms; ++I)
            Add(Part.Last + I, Of(Part.From + Part.Last - Part.First + I) * Part.Level(Part.Last) *
                                   (1 - static_cast<double>(I + 1) / (Ramp8Ms + 1)));
    }
    size_t size() const { return mSamples.size(); }
    double operator[](size_t Pair) const { return mSamples[Pair]; }

  private:
    void Add(size_t Pair, double Value) {
        if (Pair < mSamples.size()) mSamples[Pair] += Value;
    }
    std::vector<double> mSamples;
};

double RampSample(size_t Sample) {
    return static_cast<double>(static_cast<float>(
        harness::RampStart + harness::RampRise * static_cast<double>(Sample) / Rate));
}

// Over a slide of a second that began here: a glide from each tenth of a second to the next.
Reckoned::Source FadeFrom(size_t Began) {
    const auto GainOf = [](int Tenth) {
        const int Volume = Tenth < 1 ? 100 : Tenth == 9 ? 0 : 100 - 10 * Tenth;
        const int Hundredths = HundredthsOfVolume(Volume);
        return Hundredths <= -10000 ? 0.0 : std::pow(10.0, Hundredths / 2000.0);
    };
    return [=](size_t Pair) {
        if (Pair < Began) return 1.0;
        const auto Tenth = static_cast<int>((Pair - Began) / Glide);
        const double Part = static_cast<double>((Pair - Began) % Glide + 1) / Glide;
        if (Tenth > 9) return 0.0;
        return GainOf(Tenth - 1) + (GainOf(Tenth) - GainOf(Tenth - 1)) * Part;
    };
}

class FilmMakerSound : public FilmShowRig {
  protected:
    void Compare(const Reckoned& Wanted, double Most) {
        ASSERT_EQ(static_cast<qint64>(Wanted.size()), Film->Pairs());
        for (size_t I = 0; I < Wanted.size(); ++I) {
            ASSERT_NEAR(Wanted[I], static_cast<double>(Left(I)), Most)
                << "at " << static_cast<double>(I) / Rate;
            ASSERT_EQ(Left(I), Right(I));
        }
    }
};

TEST_F(FilmMakerSound, IsWhatThePlayerWouldHavePlayedToTheSample) {
    AddTenSlidesWithAllKindsOfSounds();
    Make();
    Reckoned Wanted(At(10.4));
    Wanted.Lay({.First = 0, .Last = At(2), .Level = FadeFrom(At(1))}, RampSample);
    Wanted.Lay({.First = At(2), .Last = At(4.4), .IsCutOff = false}, RampSample);
    Wanted.Lay({.First = At(4.4), .Last = At(5.4)},
               [](size_t I) { return RampSample(I % (3 * Rate / 10)); });
    Wanted.Lay({.First = At(5.4), .Last = At(6.4)}, RampSample);
    Wanted.Lay({.First = At(6.4), .Last = At(6.9), .IsCutOff = false}, [](size_t) { return -0.5; });
    Wanted.Lay({.First = At(7.4), .Last = At(8.4), .From = At(1)}, RampSample);
    Wanted.Lay({.First = At(8.4), .Last = At(8.6), .IsCutOff = false}, RampSample);
    Compare(Wanted, 3e-5);
}

// Times that fall between two samples.
TEST_F(FilmMakerSound, BeginsAtTheNearestSample) {
    Put("Timeout", u"0.333"_s);
    AddPictures(3);
    AddTrack(u"first.wav"_s, 2, 2, harness::Ramp(3, Rate));
    AddTrack(u"second.wav"_s, 3, 3, std::vector<float>(Rate, -0.5F));
    Make();
    EXPECT_EQ(14685u, At(0.333)) << "14685.3";
    EXPECT_EQ(29371u, At(0.666)) << "29370.6";
    Reckoned Wanted(At(0.999));
    Wanted.Lay({.First = 14685, .Last = 29371}, RampSample);
    Wanted.Lay({.First = 29371, .Last = At(0.999), .IsCutOff = false}, [](size_t) { return -0.5; });
    Compare(Wanted, 1e-6);
}

TEST_F(FilmMakerSound, IsSilentWhereAFileCannotBeOpened) {
    AddPictures(3);
    AddTrack(u"bad.wav"_s, 1, 1, {});
    WriteFile(TrackPath(u"bad.wav"_s), "no sound");
    AddTrack(u"gone.wav"_s, 2, 2, harness::Ramp(3, Rate));
    const FilmPlan Planned = Plan();
    DeleteFile(TrackPath(u"gone.wav"_s));
    Make(Planned);
    Compare(Reckoned(At(3)), 0);
}

TEST_F(FilmMakerSound, OfOtherRatesIsBroughtToTheFilms) {
    AddPictures(1);
    AddTrack(u"tone.wav"_s, 1, 1, harness::Tone(0.5, 22050), 22050);
    Make();
    Reckoned Wanted(At(1));
    const std::vector<float> Same = harness::Tone(0.5, Rate);
    for (size_t I = 100; I < Same.size() - 100; ++I) ASSERT_NEAR(Same[I], Left(I), 0.01) << I;
}

// Long enough for many rounds of what is decoded ahead.
TEST_F(FilmMakerSound, NeverStarves) {
    Put("Timeout", u"12"_s);
    AddPictures(1);
    AddTrack(u"long.wav"_s, 1, 1, harness::Ramp(20, Rate));
    Make();
    Reckoned Wanted(At(12));
    Wanted.Lay({.First = 0, .Last = At(12), .IsCutOff = false}, RampSample);
    Compare(Wanted, 0);
}

}  // namespace
}  // namespace neb::test
