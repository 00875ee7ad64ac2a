// The sample music: always the same bytes, at its level, without clicks, out of silence and back.
#include "demo/music/Music.h"

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <algorithm>
#include <cmath>
#include <map>

#include "demo/music/Room.h"
#include "demo/music/Scores.h"
#include "harness/TempFolder.h"
#include "sound/workers/SoundReading.h"
#include "support/files/modHostFiles.h"

namespace neb::demo {
namespace {

constexpr double Peak = 0.70794578438413791;  // 3 dB below full

// Made once: it takes a while where nothing is optimised.
const Stereo& Sound(const Tune& Music) {
    static std::map<QString, Stereo> Made;
    const QString Name = QString::fromUtf8(Music.FileName);
    if (const auto Found = Made.find(Name); Found != Made.end()) return Found->second;
    return Made.emplace(Name, Render(Music)).first->second;
}

double Loudest(std::span<const double> Samples) {
    double Most = 0;
    for (const double Sample : Samples) Most = std::max(Most, std::fabs(Sample));
    return Most;
}

// A corner in the curve is a click: the largest bend between three samples, as a share of full.
double SharpestBend(const std::vector<double>& Side) {
    double Most = 0;
    for (size_t I = 1; I + 1 < Side.size(); ++I)
        Most = std::max(Most, std::fabs(Side[I + 1] - 2 * Side[I] + Side[I - 1]));
    return Most;
}

quint32 NumberAt(const QByteArray& Bytes, int At, int Length) {
    quint32 Number = 0;
    for (int I = Length; I-- > 0;) Number = Number << 8 | static_cast<unsigned char>(Bytes[At + I]);
    return Number;
}

TEST(Music, IsTheSameBytesEachTimeItIsMade) {
    static constexpr const char* Sums[] = {"295c60a8110adec16d92220847c2c498e62ede89",
                                           "f8a1838aaedda4c0fe56ec146421bbc3317146f2",
                                           "383e34eb40147b4616260454bc6c8f9db52c13c2"};
    harness::TempFolder Dir;
    WriteMusic(Dir / QStringLiteral("music"));
    ASSERT_EQ(AllTunes().size(), std::size(Sums));
    for (size_t I = 0; I < std::size(Sums); ++I) {
        const QByteArray Bytes =
            ReadFile(Dir / QStringLiteral("music/") + QString::fromUtf8(AllTunes()[I].FileName));
        EXPECT_EQ(QCryptographicHash::hash(Bytes, QCryptographicHash::Sha1).toHex(), Sums[I])
            << AllTunes()[I].FileName;
    }
}

TEST(Music, ItsFilesTellTheirOwnFormatAndLength) {
    for (const Tune& Music : AllTunes()) {
        const QByteArray Wave = AsWave(Sound(Music), Music.Mono);
        const quint32 FrameBytes = Music.Mono ? 2 : 4;
        EXPECT_EQ(Wave.left(4) + Wave.mid(8, 8), "RIFFWAVEfmt ");
        EXPECT_EQ(NumberAt(Wave, 4, 4), Wave.size() - 8);
        EXPECT_EQ(NumberAt(Wave, 20, 2), 1U);
        EXPECT_EQ(NumberAt(Wave, 22, 2), FrameBytes / 2);
        EXPECT_EQ(NumberAt(Wave, 24, 4), static_cast<quint32>(Music.Rate));
        EXPECT_EQ(NumberAt(Wave, 28, 4), static_cast<quint32>(Music.Rate) * FrameBytes);
        EXPECT_EQ(NumberAt(Wave, 32, 2), FrameBytes);
        EXPECT_EQ(NumberAt(Wave, 34, 2), 16U);
        EXPECT_EQ(Wave.mid(36, 4), "data");
        EXPECT_EQ(NumberAt(Wave, 40, 4), Wave.size() - 44);
        EXPECT_EQ(Wave.size() - 44, static_cast<int>(Music.Seconds * Music.Rate * FrameBytes));
    }
}

TEST(Music, TheProgramItselfReadsIt) {
    harness::TempFolder Dir;
    for (const Tune& Music : AllTunes()) {
        const QString Path = Dir / QString::fromUtf8(Music.FileName);
        WriteFile(Path, AsWave(Sound(Music), Music.Mono));
        const auto Read = OpenSound(Path);
        EXPECT_EQ(Read->Rate(), Music.Rate);
        EXPECT_EQ(Read->Channels(), Music.Mono ? 1 : 2);
        EXPECT_EQ(Read->Frames(), static_cast<qint64>(Music.Seconds * Music.Rate));
    }
}

TEST(Music, ComesOutOfSilenceGoesBackToItAndIsNeverTooLoud) {
    for (const Tune& Music : AllTunes()) {
        const Stereo& Whole = Sound(Music);
        const auto Tenth = static_cast<size_t>(Music.Rate / 10);
        for (const auto* Side : {&Whole.Left, &Whole.Right}) {
            const std::span<const double> Samples = *Side;
            EXPECT_EQ(Loudest(Samples.first(Tenth / 5)), 0) << Music.FileName;
            EXPECT_EQ(Loudest(Samples.last(Tenth * 2)), 0) << Music.FileName;
            EXPECT_LT(Loudest(Samples.last(Tenth * 4)), 0.01) << Music.FileName;
        }
        EXPECT_NEAR(std::max(Loudest(Whole.Left), Loudest(Whole.Right)), Peak, 1e-9);
    }
}

TEST(Music, HasNoClicks) {
    for (const Tune& Music : AllTunes().first(2)) {
        const Stereo& Whole = Sound(Music);
        EXPECT_LT(SharpestBend(Whole.Left), 0.03) << Music.FileName;
        EXPECT_LT(SharpestBend(Whole.Right), 0.03) << Music.FileName;
    }
}

TEST(Music, IsCalmAndDoesNotPauseBeforeItsEnd) {
    for (const Tune& Music : AllTunes().first(2)) {
        const Stereo& Whole = Sound(Music);
        const std::span<const double> Samples = Whole.Left;
        const auto Second = static_cast<size_t>(Music.Rate);
        for (size_t I = 0; I + 4 < static_cast<size_t>(Music.Seconds); ++I)
            EXPECT_GT(Loudest(Samples.subspan(I * Second, Second)), 0.1) << Music.FileName << I;
        EXPECT_LT(Music.Compose().size() / Music.Seconds, 18) << Music.FileName;
    }
}

TEST(Tone, TheSineAgreesWithTheLibrarysAndPitchesWithTheOctave) {
    for (double Turn = -2; Turn < 2; Turn += 0.0037)
        EXPECT_NEAR(SineOfTurn(Turn), std::sin(Turn * 2 * 3.14159265358979), 1e-12) << Turn;
    EXPECT_EQ(Frequency(69), 440);
    EXPECT_NEAR(Frequency(81), 880, 1e-9);
    EXPECT_NEAR(Frequency(57), 220, 1e-9);
}

TEST(Tone, ANoteThatBeginsAfterTheEndOrOutlastsItDoesNoHarm) {
    static constexpr Partial Pure[] = {{1, 1, 0}};
    static constexpr Voice Plain{Pure, 0.01, 0.01, 1};
    Stereo Into(8000, 0.5);
    Play({&Plain, 0.5, 1, 69, 1, 0}, Into);
    EXPECT_EQ(Loudest(Into.Left), 0);
    Play({&Plain, 0.4, 1, 69, 1, 1}, Into);
    EXPECT_EQ(Loudest(Into.Left), 0);
    EXPECT_GT(Loudest(Into.Right), 0.9);
}

}  // namespace
}  // namespace neb::demo
