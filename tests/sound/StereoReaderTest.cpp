#include "sound/decoding/StereoReader.h"

#include <gtest/gtest.h>

#include <limits>

#include "TestDecoders.h"
#include "sound/decoding/StereoDownmix.h"

using namespace neb;
using namespace neb::sounds;

namespace {

Samples ReadAll(StereoReader& Reader, int Piece = 777) {
    Samples All, Part(2 * static_cast<size_t>(Piece));
    while (const int Read = Reader.Read(Part.data(), Piece))
        All.insert(All.end(), Part.begin(), Part.begin() + 2 * static_cast<std::ptrdiff_t>(Read));
    return All;
}

Samples ReadAll(TestSound Sound, int Piece = 777) {
    StereoReader Reader(Decoder(std::move(Sound)));
    return ReadAll(Reader, Piece);
}

// Without the ends, where the sound begins and stops at once.
Samples Middle(const Samples& Of) {
    return {Of.begin() + 8000, Of.end() - 8000};
}

double LargestDifference(const Samples& Of, const Wave& Wanted, qint64 From = 500) {
    double Most = 0;
    const auto Frames = static_cast<qint64>(Of.size() / 2);
    for (qint64 I = From; I < Frames - 500; ++I)
        Most = std::max(
            Most, static_cast<double>(std::abs(Of[2 * static_cast<size_t>(I)] - Wanted(I, 0))));
    return Most;
}

std::pair<float, float> Mixed(std::vector<float> Frame) {
    float Out[2];
    MixToStereo(Frame.data(), static_cast<int>(Frame.size()), Out, 1);
    return {Out[0], Out[1]};
}

}  // namespace

TEST(StereoReader, TheLengthIsExactAtEveryRate) {
    for (const int Rate :
         {200, 8000, 11025, 22050, 32000, 44056, 44100, 48000, 88200, 96000, 192000, 1000000})
        for (const qint64 Frames : {1, 1000, 2347})
            EXPECT_EQ(2 * ((Frames * 44100 + Rate - 1) / Rate),
                      static_cast<qint64>(ReadAll({Tone(40), Frames, Rate}).size()))
                << Rate;
}

TEST(StereoReader, AToneStaysInTuneAndInPlaceAtEveryRate) {
    for (const int Rate :
         {8000, 11025, 22050, 32000, 44056, 48000, 88200, 96000, 192000, 1000000}) {
        const Samples Read = ReadAll({Tone(1000, 0.5, Rate), Rate / 2, Rate});
        EXPECT_LT(LargestDifference(Read, Tone(1000)), 3e-4) << Rate;
    }
}

TEST(StereoReader, HighTonesKeepTheirLevel) {
    for (const double Hertz : {5000.0, 10000.0, 15000.0, 18000.0}) {
        const Samples Read = Middle(ReadAll({Tone(Hertz, 0.5, 48000), 48000, 48000}));
        EXPECT_NEAR(0.5, ToneLevel(Read, Hertz), 0.005) << Hertz;
    }
}

TEST(StereoReader, WhatTheMixersRateCannotHoldIsNotHeardAsSomethingElse) {
    EXPECT_LT(Peak(Middle(ReadAll({Tone(30000, 0.5, 96000), 96000, 96000}))), 1e-4);
    EXPECT_LT(Peak(Middle(ReadAll({Tone(70000, 0.5, 192000), 192000, 192000}))), 1e-4);
}

TEST(StereoReader, NoMirrorOfALowRateIsHeard) {
    const Samples Read = Middle(ReadAll({Tone(3000, 0.5, 11025), 22050, 11025}));
    EXPECT_NEAR(0.5, ToneLevel(Read, 3000), 0.001);
    EXPECT_LT(ToneLevel(Read, 11025 - 3000), 1e-4);
}

TEST(StereoReader, AConstantStaysTheSame) {
    const Samples Read = Middle(ReadAll({Constant(0.5F), 48000, 48000}));
    for (const float Sample : Read) ASSERT_NEAR(0.5, Sample, 1e-5);
}

TEST(StereoReader, ThePiecesItIsReadInMakeNoDifference) {
    const TestSound Sound{Tone(1234, 0.5, 48000), 20000, 48000};
    const Samples Whole = ReadAll(Sound, 30000);
    EXPECT_EQ(Whole, ReadAll(Sound, 1));
    EXPECT_EQ(Whole, ReadAll(Sound, 1024));
}

TEST(StereoReader, FromAPlaceOnItSoundsAsIfPlayedUpToThere) {
    const std::pair<int, qint64> Places[] = {
        {48000, 48000}, {48000, 0}, {48000, 160}, {8000, 80},      {8000, 8000},     {200, 200},
        {44056, 44056}, {88200, 2}, {441000, 10}, {192000, 19200}, {1000000, 100000}};
    for (const auto& [Rate, Place] : Places) {
        StereoReader Reader(Decoder({Tone(77, 0.5, Rate, 0.2), Place + Rate / 2, Rate}));
        const Samples Whole = ReadAll(Reader);
        Reader.Seek(static_cast<double>(Place) / Rate);
        const Samples Rest = ReadAll(Reader);
        const auto Start = 2 * static_cast<size_t>(Place * 44100 / Rate);
        ASSERT_EQ(Whole.size() - Start, Rest.size()) << Rate;
        for (size_t I = 0; I < Rest.size(); ++I)
            ASSERT_NEAR(Whole[I + Start], Rest[I], 1e-6) << Rate << " " << Place << " " << I;
    }
}

TEST(StereoReader, FromAPlaceBetweenTwoFramesItBeginsExactlyThere) {
    for (const auto& [Rate, Place] : {std::pair(44056, 10007), {48000, 9999}, {192000, 50001}}) {
        StereoReader Reader(Decoder({Tone(1000, 0.5, Rate), Rate, Rate}));
        Reader.Seek(static_cast<double>(Place) / Rate);
        const Wave Wanted = Tone(1000, 0.5, 44100, 1000.0 * Place / Rate);
        EXPECT_LT(LargestDifference(ReadAll(Reader), Wanted, 0), 3e-4) << Rate;
    }
}

TEST(StereoReader, FromAPlaceBeforeTheSecondFrameItBeginsExactlyThere) {
    const Wave Sound = Tone(1000, 0.5, 441000, 0.2);
    const Wave Later = [&](qint64 I, int Channel) { return I < 5 ? 0 : Sound(I - 5, Channel); };
    StereoReader Reader(Decoder({Sound, 20000, 441000}));
    Reader.Seek(5.0 / 441000);
    const Samples Rest = ReadAll(Reader);
    const Samples Whole = ReadAll({Later, 20005, 441000});
    ASSERT_EQ(Whole.size() - 2, Rest.size());
    for (size_t I = 0; I < Rest.size(); ++I) ASSERT_NEAR(Whole[I + 2], Rest[I], 1e-6) << I;
}

TEST(StereoReader, ARateThatCannotBeConvertedIsOverAtOnce) {
    StereoReader Reader(Decoder({Tone(40), 1000, 100}));
    EXPECT_TRUE(ReadAll(Reader).empty());
    EXPECT_TRUE(Reader.AtEnd());
    EXPECT_TRUE(Reader.EndedEarly());
}

TEST(StereoReader, AtItsEndNothingIsLeft) {
    StereoReader Reader(Decoder({Tone(400), 4800, 48000}));
    Reader.Seek(0.1);
    float Frame[2];
    EXPECT_EQ(0, Reader.Read(Frame, 1));
    EXPECT_TRUE(Reader.AtEnd());
    EXPECT_FALSE(Reader.EndedEarly());
}

TEST(StereoReader, ADamagedRestIsMissingAndToldOf) {
    for (const int Rate : {44100, 48000}) {
        TestSound Sound{Tone(400), 48000, Rate};
        Sound.BreaksOffAt = 10000;
        StereoReader Reader(Decoder(Sound));
        EXPECT_NEAR(2 * 10000.0 * 44100 / Rate, static_cast<double>(ReadAll(Reader).size()), 4);
        EXPECT_TRUE(Reader.AtEnd());
        EXPECT_TRUE(Reader.EndedEarly());
        Reader.Seek(0);
        EXPECT_FALSE(Reader.AtEnd());
        EXPECT_FALSE(Reader.EndedEarly());
    }
}

TEST(StereoReader, ADamagedRestIsToldOfAtItsEndAlone) {
    for (const int Rate : {44100, 48000}) {
        TestSound Sound{Tone(400), 48000, Rate};
        Sound.BreaksOffAt = 10000;
        StereoReader Reader(Decoder(Sound));
        float Frame[2];
        do EXPECT_EQ(Reader.AtEnd(), Reader.EndedEarly());
        while (Reader.Read(Frame, 1) == 1);
        EXPECT_TRUE(Reader.EndedEarly());
    }
}

TEST(StereoReader, APlaceBehindTheDamageIsTheEnd) {
    TestSound Sound{Tone(400), 48000, 48000};
    Sound.BreaksOffAt = 10000;
    StereoReader Reader(Decoder(Sound));
    Reader.Seek(0.5);
    EXPECT_TRUE(ReadAll(Reader).empty());
    EXPECT_TRUE(Reader.EndedEarly());
}

TEST(StereoDownmix, OneChannelIsHeardOnBothSides) {
    EXPECT_EQ(std::make_pair(0.3F, 0.3F), Mixed({0.3F}));
}

TEST(StereoDownmix, TwoChannelsStayAsTheyAre) {
    EXPECT_EQ(std::make_pair(0.3F, -0.7F), Mixed({0.3F, -0.7F}));
}

TEST(StereoDownmix, TheCentreOfSixIsOnBothSidesAndTheOthersOnTheirOwn) {
    const auto Full = [](size_t Channel) {
        std::vector<float> Frame(6);
        Frame[Channel] = 1;
        return Mixed(Frame);
    };
    constexpr double Unit = 1 / (1 + 2 * 0.70710678);
    const auto Expect = [&](size_t Channel, double OnLeft, double OnRight) {
        EXPECT_NEAR(OnLeft * Unit, Full(Channel).first, 1e-6) << Channel;
        EXPECT_NEAR(OnRight * Unit, Full(Channel).second, 1e-6) << Channel;
    };
    Expect(0, 1, 0);
    Expect(1, 0, 1);
    Expect(2, 0.70710678, 0.70710678);
    Expect(3, 0, 0);
    Expect(4, 0.70710678, 0);
    Expect(5, 0, 0.70710678);
}

TEST(StereoDownmix, AllChannelsAtFullLevelAreFullLevel) {
    for (size_t Channels = 1; Channels <= 8; ++Channels) {
        const auto [L, R] = Mixed(std::vector<float>(Channels, 1.F));
        EXPECT_NEAR(1, L, 1e-6) << Channels;
        EXPECT_NEAR(1, R, 1e-6) << Channels;
    }
}

TEST(StereoDownmix, WhatIsNoNumberIsSilence) {
    const float None = std::numeric_limits<float>::quiet_NaN();
    const float Endless = std::numeric_limits<float>::infinity();
    EXPECT_EQ(std::make_pair(0.F, 0.F), Mixed({None, Endless}));
    EXPECT_EQ(std::make_pair(0.F, 0.F), Mixed({-Endless}));
}
