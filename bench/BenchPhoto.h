// A picture that costs a reader what a photograph costs it. For the benchmarks of the import.
#pragma once

#include <QImage>
#include <algorithm>
#include <random>
#include <vector>

namespace neb {

// Smooth hills of several sizes with the grain of a camera's sensor.
inline QImage BenchPhoto(unsigned Seed, QSize Size) {
    std::mt19937 Random(Seed);
    std::vector<QImage> Layers;
    for (int Side : {5, 17, 60, 200, 700}) {
        QImage Layer(Side, Side * 3 / 4 + 1, QImage::Format_RGB32);
        for (int Y = 0; Y < Layer.height(); ++Y)
            for (int X = 0; X < Side; ++X) Layer.setPixel(X, Y, Random());
        Layers.push_back(Layer.scaled(Size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
    QImage Result(Size, QImage::Format_RGB32);
    const int Parts[] = {40, 28, 18, 9, 5};
    for (int Y = 0; Y < Size.height(); ++Y) {
        uchar* To = Result.scanLine(Y);
        for (int I = 0; I < Size.width() * 4; ++I) {
            int Sum = 0;
            for (size_t L = 0; L < Layers.size(); ++L)
                Sum += Layers[L].constScanLine(Y)[I] * Parts[L];
            To[I] = static_cast<uchar>(std::clamp(Sum / 100 + int(Random() % 9) - 4, 0, 255));
        }
    }
    return Result;
}

}  // namespace neb
