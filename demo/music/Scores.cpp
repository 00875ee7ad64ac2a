#include "Scores.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "demo/Noise.h"

namespace neb::demo {
namespace {

constexpr double Begin = 0.12;  // seconds of silence before the first note

constexpr Partial HarpPartials[] = {{1, 1, 0.85},        {2.0006, 0.42, 0.55}, {3.002, 0.22, 0.36},
                                    {4.004, 0.12, 0.24}, {5.008, 0.07, 0.16},  {6.012, 0.04, 0.11},
                                    {7.02, 0.025, 0.08}};
constexpr Partial CelestaPartials[] = {
    {1, 1, 0.9}, {2.001, 0.16, 0.5}, {3.98, 0.18, 0.28}, {6.3, 0.05, 0.1}, {9.1, 0.025, 0.05}};
constexpr Partial StringPartials[] = {{0.9986, 1, 0},    {1.0015, 0.9, 0},  {1.998, 0.36, 0},
                                      {2.0023, 0.34, 0}, {3.001, 0.18, 0},  {2.9965, 0.16, 0},
                                      {4.003, 0.07, 0},  {3.9965, 0.06, 0}, {5.001, 0.03, 0}};
constexpr Partial BassPartials[] = {{1, 1, 1.6}, {2, 0.5, 0.9}, {3, 0.16, 0.5}, {4, 0.05, 0.3}};
constexpr Partial FlutePartials[] = {
    {1, 1, 0}, {1.0025, 0.35, 0}, {2.001, 0.24, 0}, {3.002, 0.1, 0}, {4, 0.03, 0}};
constexpr Partial BellPartials[] = {{1, 1, 1.1},        {2.003, 0.35, 0.7}, {2.76, 0.14, 0.4},
                                    {4.07, 0.16, 0.28}, {5.4, 0.08, 0.16},  {8.2, 0.03, 0.06}};

constexpr Voice Harp{HarpPartials, 0.004, 0.35, 0.2};
constexpr Voice Celesta{CelestaPartials, 0.005, 0.5, 0.24};
constexpr Voice Strings{StringPartials, 0.9, 1.5, 0.026};
constexpr Voice Bass{BassPartials, 0.014, 0.4, 0.26};
constexpr Voice Flute{FlutePartials, 0.09, 0.3, 0.15};
constexpr Voice Bell{BellPartials, 0.004, 0.8, 0.3};

struct Chord {
    int Root;                  // of the bass
    std::array<int, 4> Tones;  // the accompaniment, upwards
    int Aim;                   // where the melody is by now
};

// A bar's melody as lengths in beats, and what each note may be.
using Rhythm = std::vector<double>;

int Class(int Pitch) {
    return (Pitch % 12 + 12) % 12;
}

bool IsChordTone(const Chord& Now, int Pitch) {
    if (Class(Pitch) == Class(Now.Root)) return true;
    return std::any_of(Now.Tones.begin(), Now.Tones.end(),
                       [&](int Tone) { return Class(Tone) == Class(Pitch); });
}

int NearestChordTone(const Chord& Now, int Aim) {
    for (int Far = 0; Far < 12; ++Far)
        for (const int Pitch : {Aim + Far, Aim - Far})
            if (IsChordTone(Now, Pitch)) return Pitch;
    return Aim;
}

// The next note of a scale, up or down.
int Step(int Pitch, int Way, std::span<const int> Scale) {
    do Pitch += Way;
    while (std::find(Scale.begin(), Scale.end(), Class(Pitch)) == Scale.end());
    return Pitch;
}

// A melody walks by steps of the scale towards the next bar's chord, now and then by a leap to a
// tone of this one; it does not go back and forth between two notes.
class Melody {
  public:
    Melody(std::span<const int> Scale, std::uint32_t Seed) : mScale(Scale), mChances(Seed) {}

    int First(const Chord& Now) { return Take(NearestChordTone(Now, Now.Aim)); }
    int Next(const Chord& Now, const Chord& Then) {
        const int Way = mLast < Then.Aim || (mLast == Then.Aim && mChances.Odds(0.5F)) ? 1 : -1;
        const int Leap = NearestChordTone(Now, mLast + Way * (3 + mChances.Below(3)));
        if (mChances.Odds(0.38F) && std::abs(Leap - Then.Aim) < 8 && Leap != mBefore)
            return Take(Leap);
        const int Near = Step(mLast, Way, mScale);
        return Take(Near == mBefore ? Step(mLast, -Way, mScale) : Near);
    }
    float Touch() { return mChances.Range(0.82F, 1); }  // no two strokes are quite as strong

  private:
    int Take(int Pitch) {
        mBefore = mLast;
        return mLast = Pitch;
    }

    std::span<const int> mScale;
    Dice mChances;
    int mLast = 0, mBefore = 0;
};

struct Line {
    const Voice* By;
    double Beat;
    double Level, Pan;
    double Overlap;  // seconds for which a note goes on into the next
};

void AddBar(std::vector<Note>& Score, Melody& Way, const Line& Part, double At, const Rhythm& Beats,
            const Chord& Now, const Chord& Then) {
    bool Starts = true;
    for (const double Beat : Beats) {
        const double Length = Beat * Part.Beat;
        const int Pitch = Starts ? Way.First(Now) : Way.Next(Now, Then);
        const double Level = Part.Level * static_cast<double>(Way.Touch()) * (Starts ? 1.08 : 0.94);
        Score.push_back({Part.By, At, Length + Part.Overlap, Pitch, Level, Part.Pan});
        At += Length;
        Starts = false;
    }
}

void AddPad(std::vector<Note>& Score, const Chord& Now, double At, double Length, double Level) {
    double Pan = -0.6;
    for (const int Tone : Now.Tones) {
        Score.push_back({&Strings, At, Length, Tone, Level, Pan});
        Pan += 0.4;
    }
}

constexpr int DMajor[] = {1, 2, 4, 6, 7, 9, 11};
constexpr int AMinor[] = {0, 2, 4, 5, 7, 9, 11};

constexpr Chord MorningChords[] = {
    {38, {57, 62, 66, 69}, 81}, {35, {57, 62, 66, 71}, 78}, {43, {59, 62, 67, 69}, 83},
    {45, {57, 61, 64, 69}, 76}, {42, {57, 61, 66, 69}, 81}, {43, {59, 62, 66, 71}, 78},
    {45, {57, 62, 64, 69}, 76}, {38, {57, 62, 66, 74}, 74},
};

void AddMorningBar(std::vector<Note>& Score, const Chord& Now, double At, Dice& Chances) {
    static constexpr int Pattern[] = {0, 1, 2, 3, 2, 3, 1, 2};
    const double Eighth = MorningBeat / 2;
    Score.push_back({&Bass, At, MorningBeat * 3.6, Now.Root, 1, 0});
    AddPad(Score, Now, At - 0.1 < 0 ? 0 : At - 0.1, MorningBeat * 4 - 0.2, 1);
    for (int I = 0; I < 8; ++I) {
        const double Level =
            (I % 4 == 0 ? 0.8 : 0.62) * static_cast<double>(Chances.Range(0.85F, 1));
        Score.push_back({&Harp, At + I * Eighth, 1.6, Now.Tones[static_cast<size_t>(Pattern[I])],
                         Level, -0.35 + 0.07 * I});
    }
}

constexpr Chord EveningChords[] = {
    {45, {57, 60, 64, 69}, 76}, {41, {57, 60, 64, 65}, 72}, {48, {55, 60, 64, 67}, 79},
    {43, {55, 59, 62, 67}, 74}, {45, {57, 60, 64, 69}, 72}, {38, {57, 60, 62, 65}, 77},
    {40, {57, 59, 62, 64}, 71}, {45, {57, 60, 64, 69}, 69}, {41, {57, 60, 65, 69}, 81},
    {48, {55, 60, 64, 67}, 79}, {38, {57, 62, 65, 69}, 77}, {45, {57, 60, 64, 69}, 76},
    {41, {57, 60, 65, 69}, 77}, {43, {55, 59, 62, 67}, 74}, {40, {56, 59, 62, 64}, 71},
    {33, {57, 60, 64, 69}, 69},
};

void AddEveningBar(std::vector<Note>& Score, const Chord& Now, double At, bool Late) {
    Score.push_back({&Bass, At, EveningBeat * 2.5, Now.Root, 0.85, 0});
    AddPad(Score, Now, At < 0.1 ? 0 : At - 0.1, EveningBeat * 3 - 0.2, Late ? 1.15 : 0.8);
    for (const int Beat : {1, 2})
        for (const int Tone : {0, 1, 2})
            Score.push_back({&Harp, At + Beat * EveningBeat + Tone * 0.022, 1.1,
                             Now.Tones[static_cast<size_t>(Tone + Beat - 1)], 0.32,
                             0.3 - 0.3 * Tone});
}

}  // namespace

std::vector<Note> ComposeMorning() {
    static const Rhythm Rhythms[] = {{1.5, 0.5, 2}, {1, 1, 1, 1}, {1.5, 0.5, 1, 1}, {3, 1}};
    static constexpr size_t Order[] = {0, 1, 0, 3, 0, 1, 2};
    std::vector<Note> Score;
    Melody Way(DMajor, 7);
    Dice Chances(11);
    double At = Begin;
    for (size_t Bar = 0; Bar + 1 < std::size(MorningChords); ++Bar) {
        AddMorningBar(Score, MorningChords[Bar], At, Chances);
        AddBar(Score, Way, {&Celesta, MorningBeat, 1, 0.2, 0.9}, At, Rhythms[Order[Bar]],
               MorningChords[Bar], MorningChords[Bar + 1]);
        At += MorningBeat * 4;
    }
    const Chord& Last = MorningChords[std::size(MorningChords) - 1];
    Score.push_back({&Bass, At, 4, Last.Root, 1, 0});
    AddPad(Score, Last, At - 0.1, 3, 1);
    for (size_t I = 0; I < 4; ++I)
        Score.push_back({&Harp, At + 0.17 * static_cast<double>(I), 4, Last.Tones[I], 0.7, 0});
    Score.push_back({&Celesta, At + 0.68, 4, 86, 0.8, 0.2});
    return Score;
}

std::vector<Note> ComposeEvening() {
    static const Rhythm Rhythms[] = {{2, 1}, {1, 1, 1}, {3}, {1.5, 0.5, 1}};
    static constexpr size_t Order[] = {0, 1, 3, 2, 0, 1, 3, 2, 0, 3, 1, 2, 0, 1, 0};
    std::vector<Note> Score;
    Melody Way(AMinor, 6);
    double At = Begin;
    for (size_t Bar = 0; Bar + 1 < std::size(EveningChords); ++Bar) {
        const bool Late = Bar > 7;
        const Line Part = Late ? Line{&Flute, EveningBeat, 1, -0.15, -0.08}
                               : Line{&Celesta, EveningBeat, 0.9, 0.2, 0.9};
        AddEveningBar(Score, EveningChords[Bar], At, Late);
        AddBar(Score, Way, Part, At, Rhythms[Order[Bar]], EveningChords[Bar],
               EveningChords[Bar + 1]);
        At += EveningBeat * 3;
    }
    const Chord& Last = EveningChords[std::size(EveningChords) - 1];
    Score.push_back({&Bass, At, 5, Last.Root + 12, 0.9, 0});
    AddPad(Score, Last, At - 0.1, 3, 1);
    Score.push_back({&Flute, At, 2, 69, 0.8, -0.15});
    for (const int Pitch : {69, 76, 81})
        Score.push_back({&Celesta, At + 0.11 * (Pitch - 69) / 3, 4, Pitch, 0.6, 0.2});
    return Score;
}

std::vector<Note> ComposeChime() {
    return {{&Bell, 0.08, 1.6, 76, 0.8, 0},
            {&Bell, 0.42, 1.6, 79, 0.8, 0},
            {&Bell, 0.76, 1.8, 84, 0.9, 0}};
}

}  // namespace neb::demo
