// Films that come to nothing: a place that refuses, an encoder given up, a setup that cannot be;
// and the sizes that can.
#include <gtest/gtest.h>

#include "films/FilmContent.h"
#include "films/FilmPlayed.h"

namespace neb::filmtest {
namespace {

constexpr FilmFormat Formats[] = {FilmFormat::Mp4, FilmFormat::WebM, FilmFormat::Lossless};

// What it says when its place refuses from this call on; empty where the film is finished.
std::string FaultOf(const FilmSetup& Setup, int RefuseAt, bool ByThrowing) {
    MemorySink Sink;
    Sink.RefuseAt = RefuseAt;
    Sink.ByThrowing = ByThrowing;
    try {
        const auto Encoder = MakeEncoder(Setup, Sink);
        Feed(*Encoder, Setup, {});
        Encoder->Finish();
    } catch (const std::runtime_error& Fault) {
        return Fault.what();
    }
    return "";
}

int CallsOf(const FilmSetup& Setup) {
    MemorySink Sink;
    const auto Encoder = MakeEncoder(Setup, Sink);
    Feed(*Encoder, Setup, {});
    Encoder->Finish();
    return Sink.Calls;
}

TEST(FilmFault, IsThrownAtWhicheverCallThePlaceRefuses) {
    for (const FilmFormat Format : Formats) {
        const FilmSetup Setup = FullFilm(Format);
        const int Calls = CallsOf(Setup);
        ASSERT_GT(Calls, 3);
        for (int Call = 0; Call < Calls; Call += Call < 24 ? 1 : 7)
            EXPECT_NE(FaultOf(Setup, Call, false), "") << int(Format) << " call " << Call;
        EXPECT_NE(FaultOf(Setup, Calls - 1, false), "") << int(Format);
        EXPECT_EQ(FaultOf(Setup, Calls, false), "") << int(Format);
    }
}

TEST(FilmFault, IsWhatThePlaceItselfHasThrown) {
    for (const FilmFormat Format : Formats) {
        const int Calls = CallsOf(FullFilm(Format));
        for (const int Call : {0, 1, Calls / 2, Calls - 1})
            EXPECT_EQ(FaultOf(FullFilm(Format), Call, true), "No room on the device.");
    }
}

TEST(FilmFault, IsThrownForASetupThatNoFilmCanHave) {
    MemorySink Sink;
    const auto Made = [&](int Width, int Height, int Rate) {
        FilmSetup Setup = SmallFilm(FilmFormat::Mp4);
        Setup.Width = Width;
        Setup.Height = Height;
        Setup.Rate = Rate;
        return MakeEncoder(Setup, Sink) != nullptr;
    };
    EXPECT_TRUE(Made(64, 36, 25));
    EXPECT_THROW(Made(63, 36, 25), std::runtime_error);
    EXPECT_THROW(Made(64, 0, 25), std::runtime_error);
    EXPECT_THROW(Made(7682, 36, 25), std::runtime_error);
    EXPECT_THROW(Made(4322, 4322, 25), std::runtime_error);
    EXPECT_THROW(Made(64, 36, 0), std::runtime_error);
}

TEST(FilmEncoder, CanBeGivenUpAtAnyMoment) {
    for (const FilmFormat Format : Formats)
        for (const double Seconds : {0.0, 0.04, 0.5, 2.0}) {
            FilmSetup Setup = FullFilm(Format);
            Setup.Threads = 3;
            MemorySink Sink;
            const auto Encoder = MakeEncoder(Setup, Sink);
            Feed(*Encoder, Setup, {.Seconds = Seconds});
            const auto Written = Sink.Bytes.size();
            EXPECT_LE(Written, MakeFilm(Setup).size());
        }
}

TEST(FilmEncoder, TakesFilmsOfAllSizes) {
    for (const FilmFormat Format : Formats)
        for (const QSize Size : {QSize(2, 2), QSize(16, 16), QSize(854, 480), QSize(2, 1080),
                                 QSize(1920, 2), QSize(1080, 1920)}) {
            FilmSetup Setup = SmallFilm(Format);
            Setup.Width = Size.width();
            Setup.Height = Size.height();
            const auto Film = Play(MakeFilm(Setup, {.Seconds = 0.12}));
            ASSERT_EQ(Film.Frames.size(), 3U) << Size.width() << 'x' << Size.height();
            EXPECT_EQ(Film.Frames[0].size(), Size);
        }
}

TEST(FilmEncoder, TakesTheLargestFilm) {
    for (const FilmFormat Format : Formats) {
        FilmSetup Setup = SmallFilm(Format);
        Setup.Width = 7680;
        Setup.Height = 4320;
        Setup.Threads = 2;
        QImage Frame(7680, 4320, QImage::Format_RGB32);
        Frame.fill(QColor(20, 90, 160));
        MemorySink Sink;
        const auto Encoder = MakeEncoder(Setup, Sink);
        Encoder->AddFrame(Frame.constBits(), Frame.bytesPerLine(), 2);
        Encoder->Finish();
        const QJsonObject Video = Probe(Sink.Bytes).Stream("video");
        EXPECT_EQ(Video[QStringLiteral("width")], 7680);
        EXPECT_EQ(Video[QStringLiteral("nb_read_packets")], QStringLiteral("2"));
    }
}

}  // namespace
}  // namespace neb::filmtest
