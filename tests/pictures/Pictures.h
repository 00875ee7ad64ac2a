// Small pictures for the tests of the picture object: the motif of tests/data/pictures, and files
// built piece by piece.
#pragma once

#include <gtest/gtest.h>
#include <QImage>

#include "harness/TempFolder.h"
#include "pictures/ImgX.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb::tests {

inline const QColor Red(255, 0, 0), Green(0, 160, 0), Blue(0, 0, 255), Grey(128, 128, 128);

inline QString PictureFile(const QString& Name) {
    return harness::DataFile("pictures/") + Name;
}

// Four fields of colour, 48 by 32: top left, top right, bottom left, bottom right.
inline QImage Fields(QColor TL, QColor TR, QColor BL, QColor BR, QSize Size = {48, 32}) {
    QImage Picture(Size, QImage::Format_RGB32);
    const int W = Size.width(), H = Size.height();
    for (int Y = 0; Y < H; ++Y)
        for (int X = 0; X < W; ++X)
            Picture.setPixelColor(X, Y, Y < H / 2 ? (X < W / 2 ? TL : TR) : (X < W / 2 ? BL : BR));
    return Picture;
}

inline QImage Motif(QSize Size = {48, 32}) {
    return Fields(Red, Green, Blue, Grey, Size);
}

inline int Distance(QRgb A, QRgb B) {
    return std::max({std::abs(qRed(A) - qRed(B)), std::abs(qGreen(A) - qGreen(B)),
                     std::abs(qBlue(A) - qBlue(B))});
}

inline void ExpectNear(const QImage& Picture, double X, double Y, QColor Colour, int Tolerance) {
    const int PX = int(X * Picture.width()), PY = int(Y * Picture.height());
    EXPECT_LE(Distance(Picture.pixel(PX, PY), Colour.rgb()), Tolerance)
        << "at " << PX << "," << PY << ": " << std::hex << Picture.pixel(PX, PY);
}

// The middles of the four fields.
inline void ExpectFields(const QImage& Picture, QColor TL, QColor TR, QColor BL, QColor BR,
                         int Tolerance) {
    ExpectNear(Picture, 0.25, 0.25, TL, Tolerance);
    ExpectNear(Picture, 0.75, 0.25, TR, Tolerance);
    ExpectNear(Picture, 0.25, 0.75, BL, Tolerance);
    ExpectNear(Picture, 0.75, 0.75, BR, Tolerance);
}

inline ImgX Loaded(const QString& File) {
    ImgX Picture;
    Picture.Load(File);
    return Picture;
}

// The number of the fault that a load ends in; 0 when it is a picture.
inline quint32 FaultOf(const QString& File) {
    try {
        Loaded(File);
    } catch (const Fault& Reason) {
        EXPECT_FALSE(Reason.What().isEmpty());
        EXPECT_EQ(File.toStdString(), Reason.File().toStdString());
        return Reason.Number();
    }
    return 0;
}

}  // namespace neb::tests
