// What stands in a film: tracks and their kinds, times, and what it says of itself.
#include <gtest/gtest.h>

#include <QJsonArray>
#include <string_view>

#include "films/FilmContent.h"
#include "films/FilmPlayed.h"

namespace neb::filmtest {
namespace {

struct FormatCase {
    FilmFormat Format;
    const char* Name;
    const char* Picture;
    const char* Sound;
    const char* Subtitles;
    const char* Pixels;
    int SoundRate;
};
constexpr FormatCase Cases[] = {
    {FilmFormat::Mp4, "Mp4", "h264", "aac", "mov_text", "yuv420p", 44100},
    {FilmFormat::WebM, "WebM", "vp9", "opus", "webvtt", "yuv420p", 48000},
    {FilmFormat::Lossless, "Lossless", "ffv1", "flac", "subrip", "bgr0", 44100}};

QString Text(const QJsonObject& Of, const char* Name) {
    return Of[QLatin1String(Name)].toString();
}

double Number(const QJsonObject& Of, const char* Name) {
    return Text(Of, Name).toDouble();
}

class EveryFilm : public testing::TestWithParam<FormatCase> {};
INSTANTIATE_TEST_SUITE_P(Films, EveryFilm, testing::ValuesIn(Cases),
                         [](const auto& Case) { return Case.param.Name; });

TEST_P(EveryFilm, HasTheTracksOfItsFormat) {
    const ProbedFilm Film = Probe(MakeFilm(FullFilm(GetParam().Format)));
    EXPECT_EQ(Text(Film.Stream("video"), "codec_name"), GetParam().Picture);
    EXPECT_EQ(Text(Film.Stream("video"), "pix_fmt"), GetParam().Pixels);
    EXPECT_EQ(Film.Stream("video")[QStringLiteral("width")], 64);
    EXPECT_EQ(Film.Stream("video")[QStringLiteral("height")], 36);
    EXPECT_EQ(Text(Film.Stream("audio"), "codec_name"), GetParam().Sound);
    EXPECT_EQ(Film.Stream("audio")[QStringLiteral("channels")], 2);
    EXPECT_EQ(Text(Film.Stream("subtitle"), "codec_name"), GetParam().Subtitles);
}

TEST_P(EveryFilm, LastsAsLongAsItsFramesWithItsSoundFromTheStart) {
    for (const int Rate : {24, 25, 30, 50, 60}) {
        FilmSetup Setup = SmallFilm(GetParam().Format);
        Setup.Rate = Rate;
        const auto Bytes = MakeFilm(Setup, {.Seconds = 1});
        const ProbedFilm Film = Probe(Bytes);
        const QJsonObject Video = Film.Stream("video"),
                          Format = Film.All[QStringLiteral("format")].toObject();
        EXPECT_EQ(Text(Video, "nb_read_packets").toInt(), Rate);
        EXPECT_EQ(Text(Video, "avg_frame_rate"), QString::number(Rate) + QStringLiteral("/1"));
        EXPECT_NEAR(Number(Format, "duration"), 1, 0.0071) << Rate;
        EXPECT_NEAR(Number(Video, "start_time"), 0, 0.0001) << Rate;
        // what an encoder puts before the first sample has a time before 0 in some
        EXPECT_NEAR(Number(Film.Stream("audio"), "start_time"), 0, 0.0071) << Rate;
    }
}

TEST_P(EveryFilm, PlaysEachFrameAtItsTimeAndTheSoundAtItsSample) {
    const auto Film = Play(MakeFilm(SmallFilm(GetParam().Format), {.Seconds = 2, .Count = 5}));
    ASSERT_EQ(Film.Frames.size(), 50U);
    for (std::size_t Frame = 0; Frame < 50; ++Frame)
        EXPECT_NEAR(Film.FrameTimes[Frame], double(Frame) / 25, 0.0006);
    EXPECT_EQ(Film.SoundRate, GetParam().SoundRate);
    // no more at the end than the encoder's own frame
    EXPECT_NEAR(double(Film.Sound.size()) / 2 / Film.SoundRate, 2, 1024.0 / 44100);
    // where the tone rises through zero: the left one has 441 periods a second
    const auto Sample = [&](double At) {
        return Film.Sound[2 * std::size_t(std::lround(At * Film.SoundRate))];
    };
    for (const double At : {0.5, 1.0, 1.5}) {
        EXPECT_NEAR(Sample(At + 0.25 / 441), 0.5 * std::sin((At * 441 + .25) * 6.283185307), 0.03);
        EXPECT_NEAR(Sample(At + 0.5 / 441), 0.5 * std::sin((At * 441 + .5) * 6.283185307), 0.03);
    }
}

TEST_P(EveryFilm, HasItsTitleDateAndChapters) {
    const ProbedFilm Film = Probe(MakeFilm(FullFilm(GetParam().Format)));
    const QJsonObject Tags =
        Film.All[QStringLiteral("format")].toObject()[QStringLiteral("tags")].toObject();
    EXPECT_EQ(Text(Tags, "title"), QStringLiteral("Käthes Garten"));
    EXPECT_EQ(Text(Tags, "date") + Text(Tags, "DATE"), QStringLiteral("2026-11-22"));
    const QJsonArray Chapters = Film.All[QStringLiteral("chapters")].toArray();
    ASSERT_EQ(Chapters.size(), 3);
    const QJsonObject Second = Chapters[1].toObject();
    EXPECT_NEAR(Number(Second, "start_time"), 0.8, 0.0006);
    EXPECT_NEAR(Number(Second, "end_time"), 1.5, 0.0006);
    EXPECT_EQ(Text(Second[QStringLiteral("tags")].toObject(), "title"),
              QStringLiteral("Der Teich"));
}

TEST_P(EveryFilm, HasItsSubtitlesAtTheirTimesAndDoesNotShowThemUnasked) {
    const ProbedFilm Film = Probe(MakeFilm(FullFilm(GetParam().Format)));
    const QStringList Times = Film.SubtitleTimes();
    EXPECT_TRUE(Times.contains(QStringLiteral("0.200+0.600"))) << Times.join(u' ').toStdString();
    EXPECT_TRUE(Times.contains(QStringLiteral("0.800+0.800"))) << Times.join(u' ').toStdString();
    const QJsonObject Shown = Film.Stream("subtitle")[QStringLiteral("disposition")].toObject();
    EXPECT_EQ(Shown[QStringLiteral("default")], 0);
    EXPECT_EQ(
        Film.Stream("video")[QStringLiteral("disposition")].toObject()[QStringLiteral("default")],
        1);
}

TEST_P(EveryFilm, WithoutSubtitlesHasNoTrackForThem) {
    EXPECT_TRUE(Probe(MakeFilm(SmallFilm(GetParam().Format))).Stream("subtitle").isEmpty());
}

TEST_P(EveryFilm, HasItsCoverWhereTheFormatHasAPlaceForOne) {
    const QJsonObject Cover = Probe(MakeFilm(FullFilm(GetParam().Format))).Cover();
    EXPECT_EQ(Cover.isEmpty(), GetParam().Format == FilmFormat::WebM);
    if (Cover.isEmpty()) return;
    EXPECT_EQ(Text(Cover, "codec_name"), QStringLiteral("mjpeg"));
    EXPECT_EQ(Cover[QStringLiteral("width")], 64);
    EXPECT_EQ(Cover[QStringLiteral("height")], 48);
}

TEST_P(EveryFilm, SaysNothingOfTheLibrariesThatMadeIt) {
    FilmSetup Setup = FullFilm(GetParam().Format);
    const auto Film = MakeFilm(Setup, {.Seconds = 1});
    const std::string_view Bytes(reinterpret_cast<const char*>(Film.data()), Film.size());
    for (const char* Maker : {"x264", "Lavc", "Lavf5", "libvpx", "libopus"})
        EXPECT_EQ(Bytes.find(Maker), std::string_view::npos) << Maker;
}

TEST_P(EveryFilm, TakesSoundThatComesASecondBeforeThePicturesOrBehindThem) {
    for (const double Ahead : {1.1, -1.1}) {
        const auto Bytes =
            MakeFilm(SmallFilm(GetParam().Format), {.Seconds = 4, .SoundAhead = Ahead});
        const ProbedFilm Film = Probe(Bytes);
        double Latest = 0, Worst = 0;
        for (const auto& Each : Film.All[QStringLiteral("packets")].toArray()) {
            const double At = Number(Each.toObject(), "dts_time");
            Worst = std::max(Worst, Latest - At);
            Latest = std::max(Latest, At);
        }
        EXPECT_LT(Worst, 0.1) << "packets do not lie in the order of time; sound ahead " << Ahead;
        EXPECT_EQ(Play(Bytes).Frames.size(), 100U);
    }
}

TEST_P(EveryFilm, CanBeWithoutSound) {
    const FilmSetup Setup = SmallFilm(GetParam().Format);
    MemorySink Sink;
    const auto Encoder = MakeEncoder(Setup, Sink);
    const QImage Frame = MovingFrame({64, 36}, 0);
    Encoder->AddFrame(Frame.constBits(), Frame.bytesPerLine(), 50);
    Encoder->Finish();
    EXPECT_EQ(Play(Sink.Bytes).Frames.size(), 50U);
}

class TelevisionFilm : public testing::TestWithParam<FormatCase> {};
INSTANTIATE_TEST_SUITE_P(Films, TelevisionFilm, testing::Values(Cases[0], Cases[1]),
                         [](const auto& Case) { return Case.param.Name; });

TEST_P(TelevisionFilm, TellsItsColours) {
    const QJsonObject Video = Probe(MakeFilm(SmallFilm(GetParam().Format))).Stream("video");
    for (const char* Name : {"color_space", "color_transfer", "color_primaries"})
        EXPECT_EQ(Text(Video, Name), QStringLiteral("bt709")) << Name;
    EXPECT_EQ(Text(Video, "color_range"), QStringLiteral("tv"));
    EXPECT_EQ(Text(Video, "chroma_location"), QStringLiteral("left"));
}

TEST_P(TelevisionFilm, CanBeEnteredEveryThreeSeconds) {
    const ProbedFilm Film =
        Probe(MakeFilm(SmallFilm(GetParam().Format), {.Seconds = 9, .Count = 5}));
    std::vector<double> Keys;
    for (const auto& Each : Film.All[QStringLiteral("packets")].toArray())
        if (Text(Each.toObject(), "codec_type") == QStringLiteral("video") &&
            Text(Each.toObject(), "flags").startsWith(u'K'))
            Keys.push_back(Number(Each.toObject(), "pts_time"));
    ASSERT_GE(Keys.size(), 3U);
    Keys.push_back(9);
    for (std::size_t Key = 1; Key < Keys.size(); ++Key) EXPECT_LE(Keys[Key] - Keys[Key - 1], 3.001);
}

TEST(Mp4Film, BeginsWithItsIndexSoThatItPlaysWhileItComes) {
    const auto Film = MakeFilm(FullFilm(FilmFormat::Mp4));
    const std::string_view Bytes(reinterpret_cast<const char*>(Film.data()), Film.size());
    ASSERT_NE(Bytes.find("moov"), std::string_view::npos);
    EXPECT_LT(Bytes.find("moov"), Bytes.find("mdat"));
    EXPECT_EQ(Text(Probe(Film).Stream("video"), "profile"), QStringLiteral("High"));
}

// The list that players without chapter tracks read: a byte of length before each title.
TEST(Mp4Film, CutsNoCharacterOfALongChapterInHalves) {
    FilmSetup Setup = SmallFilm(FilmFormat::Mp4);
    std::string Long;
    for (int Index = 0; Index < 400; ++Index) Long += "ä";
    Setup.Chapters = {{0, 1, Long}, {1, 2, "Der Teich"}};
    const auto Film = MakeFilm(Setup);
    const std::string_view Bytes(reinterpret_cast<const char*>(Film.data()), Film.size());
    const std::size_t List = Bytes.find("chpl"), Length = List + 4 + 9 + 8;
    ASSERT_NE(List, std::string_view::npos);
    const auto Size = static_cast<std::uint8_t>(Bytes[Length]);
    const std::string_view Title = Bytes.substr(Length + 1, Size);
    EXPECT_EQ(Title, Long.substr(0, 254)) << "127 characters of two bytes";
    EXPECT_EQ(Bytes.substr(Length + 1 + Size + 9, 9), "Der Teich");
}

struct LevelCase {
    int Width, Height, Rate, Most;
};

TEST(Mp4Film, HasALevelThatTelevisionsKnow) {
    for (const LevelCase& Case : {LevelCase{1280, 720, 60, 42}, LevelCase{1920, 1080, 30, 41},
                                  LevelCase{1920, 1080, 50, 42}, LevelCase{1920, 1080, 60, 42},
                                  LevelCase{1080, 1920, 60, 42}, LevelCase{3840, 2160, 30, 51},
                                  LevelCase{3840, 2160, 60, 52}}) {
        FilmSetup Setup = SmallFilm(FilmFormat::Mp4);
        Setup.Width = Case.Width;
        Setup.Height = Case.Height;
        Setup.Rate = Case.Rate;
        const auto Film = MakeFilm(Setup, {.Seconds = 0.1, .Count = 6});
        EXPECT_LE(Probe(Film).Stream("video")[QStringLiteral("level")].toInt(), Case.Most)
            << Case.Width << 'x' << Case.Height << ' ' << Case.Rate;
    }
}

}  // namespace
}  // namespace neb::filmtest
