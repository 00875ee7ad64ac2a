// Pictures made smaller and larger: plain areas, edges, fine lines, and what must not appear.
#include <gtest/gtest.h>
#include <QCryptographicHash>
#include <cmath>
#include <random>

#include "pictures/LinearLight.h"
#include "pictures/PictureResize.h"
#include "pictures/ResizeLanes.h"

using namespace neb;

namespace {

QImage Plain(QSize Size, QRgb Colour) {
    QImage Picture(Size, QImage::Format_RGB32);
    Picture.fill(Colour);
    return Picture;
}

QRgb Grey(int Value) {
    return qRgb(Value, Value, Value);
}

QImage Noise(QSize Size, unsigned Seed) {
    std::mt19937 Random(Seed);
    QImage Picture(Size, QImage::Format_RGB32);
    for (int Y = 0; Y < Size.height(); ++Y)
        for (int X = 0; X < Size.width(); ++X)
            Picture.setPixel(X, Y, static_cast<QRgb>(Random()) | 0xFF000000);
    return Picture;
}

QImage Sharp(const QImage& Picture, QSize Size) {
    return ResizePicture(Picture, Size, ResizeFilter::Sharp);
}

double LightAt(const QImage& Picture, int X, int Y) {
    return Light().ToLight[qGreen(Picture.pixel(X, Y))];
}

// Left dark, right bright.
QImage Step(QSize Size, int Edge, int Dark, int Bright) {
    QImage Picture = Plain(Size, Grey(Dark));
    for (int Y = 0; Y < Size.height(); ++Y)
        for (int X = Edge; X < Size.width(); ++X) Picture.setPixel(X, Y, Grey(Bright));
    return Picture;
}

std::pair<int, int> Range(const QImage& Picture) {
    int Least = 255, Most = 0;
    for (int Y = 0; Y < Picture.height(); ++Y)
        for (int X = 0; X < Picture.width(); ++X) {
            Least = std::min(Least, qGreen(Picture.pixel(X, Y)));
            Most = std::max(Most, qGreen(Picture.pixel(X, Y)));
        }
    return {Least, Most};
}

// Waves along X, so many to a pixel, around half of the light.
QImage Waves(QSize Size, double ToThePixel) {
    QImage Picture(Size, QImage::Format_RGB32);
    for (int X = 0; X < Size.width(); ++X) {
        const double Of = 0.5 + 0.4 * std::sin(2 * M_PI * ToThePixel * X + 0.3);
        const int Value = Light().FromLight[static_cast<size_t>(Of * FullLight)];
        for (int Y = 0; Y < Size.height(); ++Y) Picture.setPixel(X, Y, Grey(Value));
    }
    return Picture;
}

// How much of the waves' height is left, away from the edges.
double WavesLeft(const QImage& Picture) {
    double Sum = 0, Squares = 0;
    int Count = 0;
    for (int X = 20; X < Picture.width() - 20; ++X, ++Count) {
        const double At = LightAt(Picture, X, Picture.height() / 2) / FullLight;
        Sum += At;
        Squares += At * At;
    }
    const double Mean = Sum / Count;
    return std::sqrt(2 * std::max(0.0, Squares / Count - Mean * Mean)) / 0.4;
}

constexpr QSize From(400, 60);
const QSize Sizes[] = {{399, 59}, {287, 43}, {200, 30},  {131, 20},  {52, 8},
                       {401, 61}, {560, 84}, {800, 120}, {1500, 225}};

}  // namespace

TEST(PictureResize, ThereAndBackLightChangesNoValue) {
    for (int Value = 0; Value < 256; ++Value)
        EXPECT_EQ(Value, Light().FromLight[Light().ToLight[Value]]);
}

TEST(PictureResize, PlainAreasStayExactlyAsTheyAre) {
    for (const auto Filter : {ResizeFilter::Sharp, ResizeFilter::Area})
        for (int Value = 0; Value < 256; Value += 5)
            for (const QSize Size : {QSize(7, 5), QSize(33, 21), QSize(95, 70)}) {
                const QRgb Colour = qRgb(Value, 255 - Value, Value / 2);
                ASSERT_EQ(Plain(Size, Colour),
                          ResizePicture(Plain({50, 40}, Colour), Size, Filter));
            }
}

TEST(PictureResize, AnEdgeGetsNoHalo) {
    for (const QSize Size : Sizes)
        for (const auto& [Dark, Bright] : {std::pair(60, 200), {5, 40}, {0, 255}, {200, 255}}) {
            const auto [Least, Most] = Range(Sharp(Step(From, 201, Dark, Bright), Size));
            EXPECT_GE(Least, Dark) << Size.width();
            EXPECT_LE(Most, Bright) << Size.width();
        }
}

TEST(PictureResize, AnEdgeStaysSharp) {
    for (const QSize Size : {QSize(287, 43), QSize(200, 30), QSize(131, 20)}) {
        const QImage Made = Sharp(Step(From, 200, 60, 200), Size);
        int Between = 0;
        for (int X = 0; X < Made.width(); ++X)
            Between += std::abs(qGreen(Made.pixel(X, 5)) - 130) < 60;
        EXPECT_LE(Between, 1) << Size.width();
    }
}

TEST(PictureResize, FineLinesKeepTheirLight) {
    QImage Lines(From, QImage::Format_RGB32);
    for (int Y = 0; Y < Lines.height(); ++Y)
        for (int X = 0; X < Lines.width(); ++X) Lines.setPixel(X, Y, Grey(X % 2 ? 255 : 0));
    for (const auto Filter : {ResizeFilter::Sharp, ResizeFilter::Area}) {
        const QImage Made = ResizePicture(Lines, {100, 15}, Filter);
        for (int X = 4; X < 96; ++X) EXPECT_NEAR(188, qGreen(Made.pixel(X, 7)), 1) << X;
    }
}

TEST(PictureResize, WhatTheSizeCanHoldIsKeptAndWhatItCannotLeavesNoMoire) {
    for (const double Fewer : {1.4, 2.0, 3.1}) {
        const QSize Size(int(1200 / Fewer), 20);
        const auto Left = [&](double ToTheTarget) {
            return WavesLeft(Sharp(Waves({1200, 20}, ToTheTarget / Fewer), Size));
        };
        EXPECT_GT(Left(0.2), 0.95) << Fewer;
        EXPECT_GT(Left(0.3), 0.9) << Fewer;
        EXPECT_GT(Left(0.4), 0.7) << Fewer;
        EXPECT_LT(Left(0.7 < Fewer / 2 ? 0.68 : 0.6), Fewer < 1.41 ? 0.25 : 0.1) << Fewer;
        if (Fewer > 1.9) {
            EXPECT_LT(Left(0.8), 0.05) << Fewer;
            EXPECT_LT(Left(0.93), 0.05) << Fewer;
        }
    }
}

TEST(PictureResize, EnlargedARampHasNoSteps) {
    QImage Ramp(64, 8, QImage::Format_RGB32);
    for (int X = 0; X < 64; ++X)
        for (int Y = 0; Y < 8; ++Y) Ramp.setPixel(X, Y, Grey(X * 4));
    const QImage Made = Sharp(Ramp, {256, 32});
    for (int X = 9; X < 247; ++X) {
        const int Rise = qGreen(Made.pixel(X, 16)) - qGreen(Made.pixel(X - 1, 16));
        EXPECT_GE(Rise, 0) << X;
        EXPECT_LE(Rise, 3) << X;
    }
}

TEST(PictureResize, APictureInItsMirrorComesOutMirrored) {
    const QImage Picture = Noise({90, 70}, 3);
    for (const QSize Size : {QSize(45, 35), QSize(180, 140)}) {
        const QImage A = Sharp(Picture, Size).mirrored(true, true);
        const QImage B = Sharp(Picture.mirrored(true, true), Size);
        for (int Y = 0; Y < Size.height(); ++Y)
            for (int X = 0; X < Size.width(); ++X)
                ASSERT_NEAR(qRed(A.pixel(X, Y)), qRed(B.pixel(X, Y)), 1) << X << "," << Y;
    }
}

TEST(PictureResize, AnyNumberOfThreadsMakesTheSameBits) {
    const QImage Picture = Noise({301, 203}, 1);
    for (const QSize Size : {QSize(1, 1), QSize(97, 2), QSize(200, 151), QSize(640, 480)})
        for (const int Threads : {2, 3, 8})
            EXPECT_EQ(Sharp(Picture, Size),
                      ResizePicture(Picture, Size, ResizeFilter::Sharp, Threads));
    EXPECT_EQ(Sharp(Picture, {200, 151}), ResizeAtOnce(Picture, {200, 151}));
}

TEST(PictureResize, AMachineWithoutVectorsMakesTheSameBits) {
    std::mt19937 Random(5);
    std::vector<std::vector<qint16>> Lines(6, std::vector<qint16>(64));
    for (auto& Line : Lines)
        for (auto& Each : Line) Each = static_cast<qint16>(Random() % (FullLight + 1));
    const qint16* Pointers[6];
    std::transform(Lines.begin(), Lines.end(), Pointers, [](const auto& L) { return L.data(); });
    for (const int Near : {0, 2}) {
        const Taps Of{0, {-900, 2300, 8000, 7500, 1000, -1516}, 2, Near};
        std::vector<qint16> Plain(64), Vector(64);
        BlendLines<PlainLanes>(Pointers, Of, Plain.data(), 64);
        BlendLines<VectorLanes>(Pointers, Of, Vector.data(), 64);
        EXPECT_EQ(Plain, Vector);
        BlendPixels<PlainLanes>(Pointers[0], Of, Plain.data());
        BlendPixels<VectorLanes>(Pointers[0], Of, Vector.data());
        EXPECT_EQ(Plain, Vector);
    }
}

// Another machine, another compiler: the same.
TEST(PictureResize, TheBitsAreTheSameEverywhere) {
    QCryptographicHash Sum(QCryptographicHash::Sha256);
    for (const QSize Size : {QSize(31, 77), QSize(144, 72), QSize(300, 250)})
        for (const auto Filter : {ResizeFilter::Sharp, ResizeFilter::Area}) {
            const QImage Made = ResizePicture(Noise({101, 83}, 9), Size, Filter);
            for (int Y = 0; Y < Made.height(); ++Y)
                for (int X = 0; X < Made.width(); ++X) {
                    const QRgb Pixel = Made.pixel(X, Y);
                    const char Bytes[] = {char(qRed(Pixel)), char(qGreen(Pixel)),
                                          char(qBlue(Pixel))};
                    Sum.addData(QByteArray::fromRawData(Bytes, 3));
                }
        }
    EXPECT_EQ("3b428fabe300af17", Sum.result().toHex().left(16).toStdString());
}
