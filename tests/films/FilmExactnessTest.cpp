// What a film keeps of its pictures and sounds: all in a lossless one, enough in the others; and
// that the same film is the same bytes.
#include <gtest/gtest.h>

#include <random>

#include "demo/Scenes.h"
#include "films/FilmContent.h"
#include "films/FilmPlayed.h"

namespace neb::filmtest {
namespace {

QImage WithoutTheUnusedByte(const QImage& Frame) {
    QImage Cleared = Frame;
    for (int Y = 0; Y < Cleared.height(); ++Y)
        for (int X = 0; X < Cleared.width(); ++X)
            Cleared.setPixel(X, Y, Cleared.pixel(X, Y) | 0xFF000000);
    return Cleared;
}

TEST(LosslessFilm, KeepsEveryFrameToTheBit) {
    for (const QSize Size : {QSize(64, 36), QSize(2, 2), QSize(400, 300)}) {
        FilmSetup Setup = SmallFilm(FilmFormat::Lossless);
        Setup.Width = Size.width();
        Setup.Height = Size.height();
        const auto Film = Play(MakeFilm(Setup, {.Seconds = 1, .Count = 4}));
        ASSERT_EQ(Film.Frames.size(), 25U);
        for (int Frame = 0; Frame < 25; ++Frame) {
            const QImage Wanted = WithoutTheUnusedByte(MovingFrame(Size, Frame / 4 * 4));
            EXPECT_EQ(WithoutTheUnusedByte(Film.Frames[std::size_t(Frame)]), Wanted) << Frame;
        }
    }
}

TEST(LosslessFilm, KeepsEverySampleToTwentyFourBits) {
    const auto Film = Play(MakeFilm(SmallFilm(FilmFormat::Lossless)));
    const std::vector<float> Wanted = Tones(0, std::size_t(FilmSoundRate) * 2);
    ASSERT_EQ(Film.Sound.size(), Wanted.size());
    float Worst = 0;
    for (std::size_t Sample = 0; Sample < Wanted.size(); ++Sample)
        Worst = std::max(Worst, std::abs(Film.Sound[Sample] - Wanted[Sample]));
    EXPECT_LE(Worst, std::ldexp(1.0F, -23));
}

TEST(LosslessFilm, CutsSamplesBeyondFullLoudnessThere) {
    const FilmSetup Setup = SmallFilm(FilmFormat::Lossless);
    MemorySink Sink;
    const auto Encoder = MakeEncoder(Setup, Sink);
    const QImage Frame = MovingFrame({64, 36}, 0);
    const std::vector<float> Loud{1.5F, -1.5F, 1.0F, -1.0F, 0.25F, -0.25F};
    Encoder->AddFrame(Frame.constBits(), Frame.bytesPerLine(), 1);
    Encoder->AddSound(Loud.data(), 3);
    Encoder->Finish();
    const auto Sound = Play(Sink.Bytes).Sound;
    const float Wanted[] = {1, -1, 1, -1, 0.25F, -0.25F};
    ASSERT_EQ(Sound.size(), 6U);
    for (std::size_t Sample = 0; Sample < 6; ++Sample)
        EXPECT_NEAR(Sound[Sample], Wanted[Sample], 2e-7) << Sample;
}

TEST(LosslessFilm, IsTheSameBytesOnEveryNumberOfThreads) {
    FilmSetup Setup = FullFilm(FilmFormat::Lossless);
    Setup.Width = 640;
    Setup.Height = 360;
    const auto First = MakeFilm(Setup, {.Count = 5});
    for (const int Threads : {1, 2, 3, 4, 0}) {
        Setup.Threads = Threads;
        EXPECT_TRUE(MakeFilm(Setup, {.Count = 5}) == First) << Threads;
    }
}

TEST(EveryFilm, IsTheSameBytesOnEveryRun) {
    for (const FilmFormat Format : {FilmFormat::Mp4, FilmFormat::WebM})
        for (const QSize Size : {QSize(320, 180), QSize(256, 144), QSize(64, 36)})
            for (const int Threads : {1, 3}) {
                FilmSetup Setup = FullFilm(Format);
                Setup.Width = Size.width();
                Setup.Height = Size.height();
                Setup.Threads = Threads;
                const auto First = MakeFilm(Setup), Second = MakeFilm(Setup);
                EXPECT_TRUE(First == Second) << int(Format) << ' ' << Size.width();
            }
}

TEST(LosslessFilm, TakesRowsThatAreLongerThanThePicture) {
    const QImage Wide = MovingFrame({80, 36}, 3);
    const QImage Wanted = WithoutTheUnusedByte(Wide.copy(0, 0, 64, 36));
    MemorySink Sink;
    const auto Encoder = MakeEncoder(SmallFilm(FilmFormat::Lossless), Sink);
    Encoder->AddFrame(Wide.constBits(), Wide.bytesPerLine(), 2);
    Encoder->Finish();
    EXPECT_EQ(WithoutTheUnusedByte(Play(Sink.Bytes).Frames.at(1)), Wanted);
}

// As a camera adds it: to light and dark, not to the colours.
QImage WithGrain(QImage Picture) {
    std::mt19937 Chance(7);
    std::normal_distribution<float> Grain(0, 6);
    for (int Y = 0; Y < Picture.height(); ++Y)
        for (int X = 0; X < Picture.width(); ++X) {
            const QRgb Was = Picture.pixel(X, Y);
            const int By = static_cast<int>(std::lround(Grain(Chance)));
            const auto Moved = [By](int Part) { return std::clamp(Part + By, 0, 255); };
            Picture.setPixel(X, Y, qRgb(Moved(qRed(Was)), Moved(qGreen(Was)), Moved(qBlue(Was))));
        }
    return Picture;
}

// The worst frame of a film in which one picture moves over the other.
double WorstFrame(FilmFormat Format, const QImage& First, const QImage& Second) {
    FilmSetup Setup = SmallFilm(Format);
    Setup.Width = First.width();
    Setup.Height = First.height();
    MemorySink Sink;
    const auto Encoder = MakeEncoder(Setup, Sink);
    std::vector<QImage> Sent;
    for (int Frame = 0; Frame < 8; ++Frame) {
        QImage Seen = First;
        QPainter(&Seen).drawImage(First.width() - std::max(0, Frame - 3) * 40, 0, Second);
        Encoder->AddFrame(Seen.constBits(), Seen.bytesPerLine(), 1);
        Sent.push_back(Seen);
    }
    Encoder->Finish();
    const auto Played = Play(Sink.Bytes);
    double Worst = Played.Frames.size() == Sent.size() ? 99 : 0;
    for (std::size_t Frame = 0; Worst > 0 && Frame < Sent.size(); ++Frame)
        Worst = std::min(Worst, Psnr(Played.Frames[Frame], Sent[Frame]));
    return Worst;
}

TEST(TelevisionFilm, IsNearEnoughToItsPhotographs) {
    const QSize Size(1920, 1080);
    const QImage Field = demo::PaintLavender(Size), Garden = WithGrain(demo::PaintGarden(Size));
    for (const FilmFormat Format : {FilmFormat::Mp4, FilmFormat::WebM})
        EXPECT_GE(WorstFrame(Format, Field, Garden), 38) << int(Format);
}

TEST(TelevisionFilm, IsBetterAndLargerWithMoreQuality) {
    for (const FilmFormat Format : {FilmFormat::Mp4, FilmFormat::WebM}) {
        std::size_t Size = 0;
        for (const int Quality : {1, 50, 75, 100}) {
            FilmSetup Setup = SmallFilm(Format);
            Setup.Width = 320;
            Setup.Height = 180;
            Setup.Quality = Quality;
            const std::size_t Came = MakeFilm(Setup, {.Seconds = 1}).size();
            EXPECT_GT(Came, Size) << Quality;
            Size = Came;
        }
    }
}

TEST(TelevisionFilm, ShowsFullColoursAsTheyAre) {
    for (const FilmFormat Format : {FilmFormat::Mp4, FilmFormat::WebM})
        for (const QColor Colour : {QColor(255, 255, 255), QColor(0, 0, 0), QColor(255, 0, 0),
                                    QColor(0, 255, 0), QColor(0, 0, 255), QColor(90, 160, 40)}) {
            MemorySink Sink;
            const auto Encoder = MakeEncoder(SmallFilm(Format), Sink);
            QImage Frame(64, 36, QImage::Format_RGB32);
            Frame.fill(Colour);
            Encoder->AddFrame(Frame.constBits(), Frame.bytesPerLine(), 3);
            Encoder->Finish();
            const QColor Seen = Play(Sink.Bytes).Frames.at(1).pixelColor(30, 20);
            EXPECT_NEAR(Seen.red(), Colour.red(), 3);
            EXPECT_NEAR(Seen.green(), Colour.green(), 3);
            EXPECT_NEAR(Seen.blue(), Colour.blue(), 3);
        }
}

}  // namespace
}  // namespace neb::filmtest
