#include "Encode.h"

#include <Magick++.h>

#include <QBuffer>
#include <QImageWriter>
#include <QTransform>

#include "support/Fault.h"

namespace neb::demo {
namespace {

// A camera's note "turn a quarter to the right to view", in the smallest form readers know.
QByteArray WithQuarterTurn(const QByteArray& Jpeg) {
    static constexpr char Note[] =
        "\xff\xe1\x00\x22"
        "Exif\0\0"
        "MM\0*\0\0\0\x08"
        "\0\x01"
        "\x01\x12\0\x03\0\0\0\x01\0\x06\0\0"
        "\0\0\0\0";
    return Jpeg.left(2) + QByteArray(Note, sizeof Note - 1) + Jpeg.mid(2);
}

QByteArray ByQt(const QImage& Image, const QString& Format) {
    QBuffer Buffer;
    Buffer.open(QIODevice::WriteOnly);
    QImageWriter Writer(&Buffer, Format.toLatin1());
    if (Format == u"jpg") Writer.setQuality(92);
    if (Format == u"tif") Writer.setCompression(1);
    if (Format == u"png") Writer.setCompression(33);
    if (!Writer.write(Image)) throw Fault(Writer.errorString());
    return Buffer.data();
}

// Seven bits a byte, the highest first; all but the last byte are marked.
void PutNumber(QByteArray& Bytes, int Number) {
    for (int Shift = 21; Shift > 0; Shift -= 7)
        if (Number >> Shift) Bytes.append(static_cast<char>(0x80 | (Number >> Shift & 0x7f)));
    Bytes.append(static_cast<char>(Number & 0x7f));
}

// By hand, since the writer at hand gets widths and heights of whole multiples of 128 wrong.
QByteArray AsWbmp(const QImage& Image) {
    const QImage Mono = Image.convertToFormat(QImage::Format_Mono);
    const bool WhiteFirst = Mono.colorCount() > 0 && qGray(Mono.color(0)) > 127;
    QByteArray Bytes(2, '\0');
    PutNumber(Bytes, Mono.width());
    PutNumber(Bytes, Mono.height());
    const auto Last = static_cast<char>(0xff << (-Mono.width() & 7));  // 0 beyond the edge
    for (int Row = 0; Row < Mono.height(); ++Row) {
        for (int Byte = 0; Byte < (Mono.width() + 7) / 8; ++Byte)
            Bytes.append(
                static_cast<char>(Mono.constScanLine(Row)[Byte] ^ (WhiteFirst ? 0xff : 0)));
        Bytes.back() &= Last;
    }
    return Bytes;
}

QByteArray ByMagick(const QImage& Image, const QString& Format) {
    const QImage Plain = Image.convertToFormat(QImage::Format_RGB888);
    QByteArray Pixels;
    for (int Row = 0; Row < Plain.height(); ++Row)
        Pixels.append(reinterpret_cast<const char*>(Plain.constScanLine(Row)), Plain.width() * 3);
    try {
        Magick::Image Picture(static_cast<size_t>(Plain.width()),
                              static_cast<size_t>(Plain.height()), "RGB", Magick::CharPixel,
                              Pixels.constData());
        // The TGA writer stores the first line first but says otherwise unless told.
        Picture.orientation(Magick::TopLeftOrientation);
        Picture.depth(8);
        Picture.compressType(Magick::RLECompression);
        Picture.magick(Format.toUpper().toStdString());
        Magick::Blob Blob;
        Picture.write(&Blob);
        return QByteArray(static_cast<const char*>(Blob.data()),
                          static_cast<qsizetype>(Blob.length()));
    } catch (const Magick::Exception& Error) {
        throw Fault(QString::fromUtf8(Error.what()));
    }
}

}  // namespace

void InitEncoders() {
    Magick::InitializeMagick(nullptr);
}

QByteArray Encode(const QImage& Image, const QString& Format, Turned Stored) {
    if (Format == u"tga" || Format == u"pcx" || Format == u"psd") return ByMagick(Image, Format);
    if (Format == u"wbmp") return AsWbmp(Image);
    if (Stored == Turned::No) return ByQt(Image, Format);
    return WithQuarterTurn(ByQt(Image.transformed(QTransform().rotate(-90)), Format));
}

}  // namespace neb::demo
