// Photographs as cameras and people leave them: with words and the time in their EXIF block.
#pragma once

#include <QBuffer>

#include "windows/WindowSteps.h"

namespace neb::harness {

// An EXIF block with a description and the time taken ("2004:05:06 07:08:09"), either may be empty.
inline QByteArray WordsBlock(const QByteArray& Words, const QByteArray& Taken) {
    const auto Number = [](quint32 Value, int Bytes) {
        QByteArray Put;
        for (int I = Bytes; I-- > 0;) Put += static_cast<char>(Value >> 8 * I & 255);
        return Put;
    };
    constexpr int HeadAndTwo = 8 + 2 + 2 * 12 + 4, SubList = 2 + 12 + 4;
    const QByteArray Text = Words + '\0' + QByteArray(4, '\0');  // never so short that it is inline
    const QByteArray Time = Taken + '\0';
    QByteArray Block = QByteArray("MM\0*", 4) + Number(8, 4) + Number(2, 2);
    Block += Number(0x010E, 2) + Number(2, 2) + Number(quint32(Text.size()), 4) +
             Number(HeadAndTwo + SubList, 4);
    Block += Number(0x8769, 2) + Number(4, 2) + Number(1, 4) + Number(HeadAndTwo, 4) + Number(0, 4);
    Block += Number(Taken.isEmpty() ? 0 : 1, 2) + Number(0x9003, 2) + Number(2, 2) +
             Number(quint32(Time.size()), 4) +
             Number(quint32(HeadAndTwo + SubList + Text.size()), 4) + Number(0, 4);
    return Block + Text + Time;
}

inline QString MakePhoto(const QString& Path, const QByteArray& Words, const QByteArray& Taken,
                         QColor Colour = Qt::blue) {
    MakePicture(Path, 64, 48, Colour);
    const QByteArray Jpeg = ReadFile(Path);
    const QByteArray Body = QByteArray("Exif\0\0", 6) + WordsBlock(Words, Taken);
    const int Length = static_cast<int>(Body.size()) + 2;
    QByteArray Segment = QByteArray::fromHex("ffe1");
    Segment += static_cast<char>(Length >> 8);
    Segment += static_cast<char>(Length & 255);
    WriteFile(Path, Jpeg.left(2) + Segment + Body + Jpeg.mid(2));
    return Path;
}

}  // namespace neb::harness
