#include "pictures/PictureWords.h"

#include <QDateTime>
#include <QLocale>
#include <QStringDecoder>

#include "pictures/formats/PictureFormats.h"
#include "pictures/formats/TiffTags.h"
#include "support/modText.h"

namespace neb {
namespace {

constexpr quint16 DescriptionTag = 0x010E, TitleTag = 0x9C9B, ChangedTag = 0x0132;
constexpr quint16 ExifTag = 0x8769, TakenTag = 0x9003;

// The segments of a JPEG up to its picture; empty when none is an EXIF block.
QByteArrayView ExifOfJpeg(const ByteView& Bytes) {
    constexpr quint8 Application1 = 0xE1, StartOfScan = 0xDA;
    for (qint64 At = 2; Bytes.U8(At) == 0xFF && Bytes.U8(At + 1) != StartOfScan;) {
        const qint64 Length = Bytes.U16(At + 2, true);
        if (Bytes.U8(At + 1) == Application1 && Bytes.Is(At + 4, QByteArrayView("Exif\0\0", 6)))
            return Bytes.Part(At + 10, Length - 8);
        if (Length < 2) break;
        At += 2 + Length;
    }
    return {};
}

QByteArrayView ExifOf(const QByteArray& Bytes) {
    const ByteView View(Bytes);
    if (View.Is(0, "\xFF\xD8")) return ExifOfJpeg(View);
    if (View.Is(0, "\x89PNG")) return PngChunk(View, "eXIf").value_or(QByteArrayView());
    return Bytes;
}

// Up to its end mark. Not every program keeps to the letters that the format knows.
QString TextOf(QByteArrayView Field) {
    const qsizetype End = Field.indexOf('\0');
    const QByteArray Bytes = (End < 0 ? Field : Field.first(End)).toByteArray();
    QStringDecoder Decoder(QStringDecoder::Utf8);
    const QString Text = Decoder.decode(Bytes);
    return (Decoder.hasError() ? FromAnsi(Bytes) : Text).simplified();
}

QString WideTextOf(QByteArrayView Field) {
    const QString Text = QStringDecoder(QStringDecoder::Utf16LE).decode(Field);
    const qsizetype End = Text.indexOf(QChar(0));
    return (End < 0 ? Text : Text.left(End)).simplified();
}

QString DateOf(QByteArrayView Field) {
    const QDateTime Taken =
        QDateTime::fromString(TextOf(Field), QStringLiteral("yyyy:MM:dd HH:mm:ss"));
    if (!Taken.isValid()) return {};
    return QLocale(QLocale::English).toString(Taken, QStringLiteral("d MMMM yyyy, HH:mm"));
}

}  // namespace

QString WordsOfPicture(const QByteArray& Bytes) {
    const TiffTags Tags(ExifOf(Bytes));
    for (const QString& Words :
         {WideTextOf(Tags.Bytes(TitleTag)), TextOf(Tags.Bytes(DescriptionTag)),
          DateOf(Tags.BytesBehind(ExifTag, TakenTag)), DateOf(Tags.Bytes(ChangedTag))})
        if (!Words.isEmpty()) return Words;
    return {};
}

}  // namespace neb
