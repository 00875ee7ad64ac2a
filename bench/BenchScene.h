// A picture that the benchmarks of the transitions draw with: soft slopes and fine grain.
#pragma once

#include <QImage>
#include <cstdint>

namespace neb {

inline QImage BenchScene(QSize Size, std::uint32_t Seed) {
    QImage P(Size, QImage::Format_RGB32);
    for (int Y = 0; Y < P.height(); ++Y) {
        auto* Row = reinterpret_cast<QRgb*>(P.scanLine(Y));
        for (int X = 0; X < P.width(); ++X) {
            Seed = Seed * 1664525u + 1013904223u;
            const int Grain = static_cast<int>(Seed >> 28);
            Row[X] = qRgb(X * 200 / P.width() + Grain, Y * 200 / P.height() + Grain, 100 + Grain);
        }
    }
    return P;
}

}  // namespace neb
