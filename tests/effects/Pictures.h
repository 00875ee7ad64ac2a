// Pictures that the tests of the effects draw with: the same on every machine.
#pragma once

#include <QImage>
#include <cstdint>

namespace neb::effectstest {

inline QImage Plain(QSize Size, QRgb Colour) {
    QImage P(Size, QImage::Format_RGB32);
    P.fill(Colour);
    return P;
}

// Soft areas, hard edges and fine grain, so that a pixel out of place is seen.
inline QImage Scene(QSize Size, std::uint32_t Seed) {
    QImage P(Size, QImage::Format_RGB32);
    std::uint32_t Grain = Seed * 2654435761u + 1;
    for (int Y = 0; Y < Size.height(); ++Y) {
        auto* Row = reinterpret_cast<QRgb*>(P.scanLine(Y));
        for (int X = 0; X < Size.width(); ++X) {
            Grain = Grain * 1664525u + 1013904223u;
            const int Noise = static_cast<int>(Grain >> 28);
            const bool Cell = ((X / 7 + Y / 5 + static_cast<int>(Seed)) & 1) != 0;
            const int R = (X * 200 / Size.width()) + Noise;
            const int G = (Y * 200 / Size.height()) + (Cell ? 40 : 0);
            const int B = (Seed & 1u ? 60 : 180) + Noise + (Cell ? 20 : 0);
            Row[X] = qRgb(R, G, B);
        }
    }
    return P;
}

inline std::uint64_t HashOf(const QImage& P, std::uint64_t Hash = 14695981039346656037u) {
    for (int Y = 0; Y < P.height(); ++Y) {
        const auto* Row = reinterpret_cast<const QRgb*>(P.constScanLine(Y));
        for (int X = 0; X < P.width(); ++X) Hash = (Hash ^ Row[X]) * 1099511628211u;
    }
    return Hash;
}

// The mean over all parts of all pixels of how far two pictures are apart, 0 to 255.
inline double Difference(const QImage& A, const QImage& B) {
    double Sum = 0;
    for (int Y = 0; Y < A.height(); ++Y)
        for (int X = 0; X < A.width(); ++X) {
            const QRgb P = A.pixel(X, Y), Q = B.pixel(X, Y);
            Sum += std::abs(qRed(P) - qRed(Q)) + std::abs(qGreen(P) - qGreen(Q)) +
                   std::abs(qBlue(P) - qBlue(Q));
        }
    return Sum / 3 / A.width() / A.height();
}

inline double Brightness(const QImage& P) {
    return Difference(P, Plain(P.size(), 0xFF000000u));
}

}  // namespace neb::effectstest
