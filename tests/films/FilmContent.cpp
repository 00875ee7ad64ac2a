#include "films/FilmContent.h"

#include <QBuffer>
#include <cmath>
#include <numbers>

namespace neb::filmtest {

namespace {

std::vector<std::uint8_t> CoverBytes() {
    QImage Cover(64, 48, QImage::Format_RGB32);
    Cover.fill(Qt::darkGreen);
    QByteArray Bytes;
    QBuffer Into(&Bytes);
    Into.open(QIODevice::WriteOnly);
    Cover.save(&Into, "jpg");
    return {Bytes.begin(), Bytes.end()};
}

// What is due of the sound when so many frames have been sent.
std::size_t SoundDue(const FilmSetup& Setup, const Feeding& How, int Frames) {
    const double Seconds = double(Frames) / Setup.Rate + How.SoundAhead;
    return static_cast<std::size_t>(std::clamp(Seconds, 0.0, How.Seconds) * FilmSoundRate);
}

}  // namespace

QImage MovingFrame(QSize Size, int Number) {
    QImage Frame(Size, QImage::Format_RGB32);
    for (int Y = 0; Y < Size.height(); ++Y) {
        auto* Line = reinterpret_cast<QRgb*>(Frame.scanLine(Y));
        for (int X = 0; X < Size.width(); ++X) {
            const auto Wave = static_cast<int>(60 * std::sin((X + 2 * Number) / 9.0) + 128);
            Line[X] = qRgba(Wave, (X + Y + Number) & 255, (Y * 3) & 255, X & 255);
        }
    }
    return Frame;
}

std::vector<float> Tones(std::int64_t First, std::size_t Frames) {
    std::vector<float> Made;
    for (std::size_t Index = 0; Index < Frames; ++Index) {
        const double At =
            double(First + std::int64_t(Index)) / FilmSoundRate * 2 * std::numbers::pi;
        Made.push_back(static_cast<float>(0.5 * std::sin(At * 441)));
        Made.push_back(static_cast<float>(0.3 * std::sin(At * 660)));
    }
    return Made;
}

FilmSetup SmallFilm(FilmFormat Format) {
    FilmSetup Setup;
    Setup.Format = Format;
    Setup.Width = 64;
    Setup.Height = 36;
    Setup.Rate = 25;
    Setup.Threads = 1;
    return Setup;
}

FilmSetup FullFilm(FilmFormat Format) {
    FilmSetup Setup = SmallFilm(Format);
    Setup.Title = "Käthes Garten";
    Setup.Date = "2026-11-22";
    Setup.Cover = CoverBytes();
    Setup.Chapters = {{0, 0.8, "Die Rosen"}, {0.8, 1.5, "Der Teich"}, {1.5, 2, ""}};
    Setup.Subtitles = {{0.2, 0.8, "Rosen & <Lilien>"}, {0.8, 1.6, "zwei\nZeilen, schön"}};
    return Setup;
}

void Feed(FilmEncoder& Encoder, const FilmSetup& Setup, const Feeding& How) {
    const int Total = static_cast<int>(std::lround(How.Seconds * Setup.Rate));
    std::size_t Sent = 0;
    const auto SendSound = [&](std::size_t Due) {
        if (Due <= Sent) return;
        Encoder.AddSound(Tones(std::int64_t(Sent), Due - Sent).data(), Due - Sent);
        Sent = Due;
    };
    for (int Frame = 0; Frame < Total; Frame += How.Count) {
        SendSound(SoundDue(Setup, How, Frame));
        const QImage Picture = MovingFrame({Setup.Width, Setup.Height}, Frame);
        Encoder.AddFrame(Picture.constBits(), Picture.bytesPerLine(),
                         std::min(How.Count, Total - Frame));
    }
    SendSound(static_cast<std::size_t>(How.Seconds * FilmSoundRate));
}

std::vector<std::uint8_t> MakeFilm(const FilmSetup& Setup, const Feeding& How) {
    MemorySink Sink;
    const auto Encoder = MakeEncoder(Setup, Sink);
    Feed(*Encoder, Setup, How);
    Encoder->Finish();
    return Sink.Bytes;
}

}  // namespace neb::filmtest
