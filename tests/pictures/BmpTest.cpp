// Bitmaps of every kind, built byte by byte: what their pixels are is worked out here by the rule
// of the format.
#include <QBuffer>

#include "DamagedBytes.h"
#include "Pictures.h"
#include "pictures/PictureShape.h"
#include "pictures/formats/PictureFaults.h"
#include "pictures/workers/PictureReading.h"

using namespace neb;
using namespace neb::tests;

namespace {

QByteArray Little(quint32 Number, int Width) {
    QByteArray Bytes;
    for (int I = 0; I < Width; ++I) Bytes += static_cast<char>(Number >> 8 * I);
    return Bytes;
}

struct Kind {
    int Header;  // bytes
    int Depth;
    int Packing = 0;
    QByteArray Behind = {};  // what follows the first 40 bytes of the header: masks, palette
    int Told = 0;            // colours of the palette, as the header tells
};

QByteArray Header(const Kind& What, int Width, int Height) {
    if (What.Header == 12)
        return Little(12, 4) + Little(Width, 2) + Little(Height, 2) + Little(1, 2) +
               Little(What.Depth, 2);
    return Little(What.Header, 4) + Little(Width, 4) + Little(Height, 4) + Little(1, 2) +
           Little(What.Depth, 2) + Little(What.Packing, 4) + QByteArray(12, 0) +
           Little(What.Told, 4) + Little(0, 4);
}

QByteArray Bmp(const Kind& What, int Width, int Height, const QByteArray& Pixels) {
    const QByteArray Head = Header(What, Width, Height) + What.Behind;
    return "BM" + Little(14 + Head.size() + Pixels.size(), 4) + Little(0, 4) +
           Little(14 + Head.size(), 4) + Head + Pixels;
}

// The pixels by rows from the top, as #rrggbb.
std::string PixelsOf(const QByteArray& Bytes) {
    const QImage Picture = DecodePicture(Bytes).Picture;
    EXPECT_EQ(QImage::Format_RGB32, Picture.format());
    QStringList Out;
    for (int Y = 0; Y < Picture.height(); ++Y)
        for (int X = 0; X < Picture.width(); ++X) Out << QColor(Picture.pixel(X, Y)).name().mid(1);
    return Out.join(u' ').toStdString();
}

QByteArray Entry(QRgb Colour, int Width) {
    return Little(Colour & 0xFFFFFF, Width);
}

// Red, green, blue, white, then greys, as many as there can be.
QByteArray Palette(int Count, int Width) {
    QByteArray Bytes;
    for (int I = 0; I < Count; ++I)
        Bytes += Entry(I < 4 ? std::array<QRgb, 4>{0xFF0000, 0x00FF00, 0x0000FF, 0xFFFFFF}[I]
                             : static_cast<QRgb>(I) * 0x010101,
                       Width);
    return Bytes;
}

QByteArray Hex(const char* Text) {
    return QByteArray::fromHex(Text);
}

// Three by two pixels, the lower row first: 0 1 2 over 2 1 0, or with two colours 0 1 0 over 0 1 1.
QByteArray Rows(int Depth) {
    if (Depth == 1) return Hex("60000000 40000000");
    if (Depth == 2) return Hex("90000000 18000000");
    if (Depth == 4) return Hex("21000000 01200000");
    return Hex("02010000 00010200");
}

constexpr const char* InThree = "ff0000 00ff00 0000ff 0000ff 00ff00 ff0000";
constexpr const char* InTwo = "ff0000 00ff00 ff0000 ff0000 00ff00 00ff00";

// Masks of red, green and blue, and of alpha unless the header has no room for it.
QByteArray Masks(std::initializer_list<quint32> All) {
    QByteArray Bytes;
    for (const quint32 Mask : All) Bytes += Little(Mask, 4);
    return Bytes;
}

}  // namespace

TEST(Bmp, EveryDepthOfPaletteGivesItsColours) {
    for (const int Depth : {1, 2, 4, 8}) {
        const QByteArray Colours = Palette(1 << Depth, 4);
        const std::string Pixels = Depth == 1 ? InTwo : InThree;
        EXPECT_EQ(Pixels, PixelsOf(Bmp({40, Depth, 0, Colours}, 3, 2, Rows(Depth)))) << Depth;
    }
}

TEST(Bmp, PalettesOfTheOlderHeaderHaveThreeBytesAnEntry) {
    for (const int Depth : {1, 4, 8}) {
        const QByteArray Colours = Palette(1 << Depth, 3);
        const std::string Pixels = Depth == 1 ? InTwo : InThree;
        EXPECT_EQ(Pixels, PixelsOf(Bmp({12, Depth, 0, Colours}, 3, 2, Rows(Depth)))) << Depth;
        EXPECT_EQ(Pixels, PixelsOf(Bmp({40, Depth, 0, Colours}, 3, 2, Rows(Depth)))) << Depth;
    }
}

TEST(Bmp, AMirroredOneHasNoShape) {
    const harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("a.bmp");
    WriteFile(File, Bmp({40, 8, 0, Palette(256, 4)}, 3, 2, Rows(8)));
    EXPECT_EQ(QSize(3, 2), PictureShape(File));
    WriteFile(File, Bmp({40, 8, 0, Palette(256, 4)}, -3, 2, Rows(8)));
    EXPECT_EQ(QSize(), PictureShape(File));
}

TEST(Bmp, PackedPixelsOfAnOddCountArePadded) {
    const QByteArray Colours = Palette(256, 4);
    const QByteArray Rows8 = Hex("0003 02010007 0000 0003 00010207 0001");
    EXPECT_EQ(InThree, PixelsOf(Bmp({40, 8, 1, Colours}, 3, 2, Rows8)));
    const QByteArray Rows4 = Hex("0003 2100 0000 0003 0120 0001");
    EXPECT_EQ(InThree, PixelsOf(Bmp({40, 4, 2, Palette(16, 4)}, 3, 2, Rows4)));
}

TEST(Bmp, APaletteMayBeShorterThanItsDepthAllows) {
    EXPECT_EQ(InThree, PixelsOf(Bmp({40, 8, 0, Palette(3, 4), 3}, 3, 2, Rows(8))));
    EXPECT_EQ(InThree, PixelsOf(Bmp({12, 8, 0, Palette(3, 3)}, 3, 2, Rows(8))));
    EXPECT_EQ(InThree, PixelsOf(Bmp({40, 8, 0, Palette(300, 4), 300}, 3, 2, Rows(8))));
}

TEST(Bmp, PixelsThatAreSaidToBeginInThePaletteBeginBehindIt) {
    QByteArray Bytes = Bmp({40, 8, 0, Palette(3, 4), 3}, 3, 2, Rows(8));
    Bytes.replace(10, 4, Little(54, 4));
    EXPECT_EQ(InThree, PixelsOf(Bytes));
}

TEST(Bmp, AHeightBelowZeroMeansRowsFromTheTop) {
    EXPECT_EQ("0000ff 00ff00 ff0000 ff0000 00ff00 0000ff",
              PixelsOf(Bmp({40, 8, 0, Palette(4, 4), 4}, 3, -2, Rows(8))));
}

TEST(Bmp, ColoursOf24And32BitsAreTakenAsTheyAre) {
    EXPECT_EQ("102030 405060", PixelsOf(Bmp({40, 24}, 2, 1, Hex("302010 605040 0000"))));
    EXPECT_EQ("102030 405060", PixelsOf(Bmp({12, 24}, 2, 1, Hex("302010 605040 0000"))));
    EXPECT_EQ("102030 405060", PixelsOf(Bmp({40, 32}, 2, 1, Hex("302010 77 605040 00"))));
}

TEST(Bmp, AnyMasksTellWhereTheColoursAre) {
    const struct {
        int Depth;
        QByteArray Colours;
        const char* Pixels;
        const char* Seen;
    } Kinds[] = {
        {16, Masks({0xF800, 0x07E0, 0x001F}), "00f8 e007", "ff0000 00ff00"},
        {16, Masks({0x0F00, 0x00F0, 0x000F}), "0f00 8706", "0000ff 668877"},
        {16, Masks({0x0030, 0x000E, 0x0001}), "3f00 1800", "ffffff 559200"},
        {32, Masks({0xFF, 0xFF00, 0xFF0000}), "10203000 ff000000", "102030 ff0000"},
        {32, Masks({0xFF000000, 0xFF0000, 0xFF00}), "00302010 000000ff", "102030 ff0000"},
        {32, Masks({0xFFE00000, 0x1FFC00, 0x3FF}), "ffffffff 0000e0ff", "ffffff ff0000"},
        {32, Masks({0xFF0000, 0, 0xFF}), "11223344 ffffff00", "330011 ff00ff"},
    };
    for (const auto& What : Kinds) {
        const QByteArray Pixels = Hex(What.Pixels);
        EXPECT_EQ(What.Seen, PixelsOf(Bmp({40, What.Depth, 3, What.Colours}, 2, 1, Pixels)));
        const QByteArray Whole = What.Colours + Little(0, 4);
        EXPECT_EQ(What.Seen, PixelsOf(Bmp({56, What.Depth, 3, Whole}, 2, 1, Pixels)));
        const QByteArray V5 = Whole + QByteArray(124 - 56, 0);
        EXPECT_EQ(What.Seen, PixelsOf(Bmp({124, What.Depth, 3, V5}, 2, 1, Pixels)));
    }
}

TEST(Bmp, AlphaIsLaidOnWhiteUnlessAllIsClear) {
    const QByteArray Colours = Masks({0xFF0000, 0xFF00, 0xFF, 0xFF000000});
    EXPECT_EQ("ff0000 ff7f7f", PixelsOf(Bmp({56, 32, 3, Colours}, 2, 1, Hex("0000ffff 0000ff80"))));
    EXPECT_EQ("ff0000 00ff00", PixelsOf(Bmp({56, 32, 3, Colours}, 2, 1, Hex("0000ff00 00ff0000"))));
    EXPECT_EQ("ffffff 00ff00", PixelsOf(Bmp({40, 32, 6, Colours}, 2, 1, Hex("0000ff00 00ff00ff"))));
}

TEST(Bmp, PackedRowsAreUnpacked) {
    const QByteArray Eight = Hex("0302 0000 0003 010203 00 0001");
    EXPECT_EQ("00ff00 0000ff ffffff 0000ff 0000ff 0000ff",
              PixelsOf(Bmp({40, 8, 1, Palette(4, 4), 4}, 3, 2, Eight)));
    const QByteArray Four = Hex("0312 0000 0003 1230 0001");
    EXPECT_EQ("00ff00 0000ff ffffff 00ff00 0000ff 00ff00",
              PixelsOf(Bmp({40, 4, 2, Palette(16, 4)}, 3, 2, Four)));
    const QByteArray Full = Hex("03 302010 0000 0003 010203 040506 070809 00 0001");
    EXPECT_EQ("030201 060504 090807 102030 102030 102030",
              PixelsOf(Bmp({64, 24, 4, QByteArray(24, 0)}, 3, 2, Full)));
}

TEST(Bmp, PixelsThatArePassedOverHaveTheFirstColour) {
    // One blue pixel; two to the right and one row up a white one; there it ends.
    const QByteArray Pixels = Hex("0102 0002 0201 0103 0001");
    const std::string Rest = "ff0000 ff0000 ff0000 ff0000 ";
    for (int Round = 0; Round < 20; ++Round)
        EXPECT_EQ(Rest + "ff0000 ff0000 ff0000 ffffff 0000ff ff0000 ff0000 ff0000",
                  PixelsOf(Bmp({40, 8, 1, Palette(4, 4), 4}, 4, 3, Pixels)));
}

TEST(Bmp, PackedRowsEndAtTheEdge) {
    const QByteArray Pixels = Hex("ff01 ff01 0000 0005 020202020202 00ff 00 0001");
    EXPECT_EQ(0U, FaultOfBytes(Bmp({40, 8, 1, Palette(4, 4), 4}, 3, 2, Pixels)));
    EXPECT_EQ("0000ff 0000ff 00ff00 00ff00",
              PixelsOf(Bmp({40, 8, 1, Palette(4, 4), 4}, 2, 2,
                           Hex("ff01 ff01 0000 0004 02020202 0001"))));
}

TEST(Bmp, AFileOfAnotherFormatInPlaceOfThePixelsIsRead) {
    QByteArray Png;
    QBuffer Buffer(&Png);
    Motif().save(&Buffer, "PNG");
    const QImage Picture = DecodePicture(Bmp({40, 24, 5}, 48, 32, Png)).Picture;
    ExpectFields(Picture, Red, Green, Blue, Grey, 0);
}

TEST(Bmp, WhatNoBitmapHasIsDamaged) {
    EXPECT_EQ(FaultDamagedPicture, FaultOfBytes(Bmp({40, 5}, 3, 2, Rows(8))));
    EXPECT_EQ(FaultDamagedPicture, FaultOfBytes(Bmp({40, 24, 1}, 3, 2, QByteArray(99, 0))));
    EXPECT_EQ(FaultDamagedPicture, FaultOfBytes(Bmp({40, 24}, -3, 2, QByteArray(99, 0))));
    EXPECT_EQ(FaultDamagedPicture, FaultOfBytes(Bmp({40, 24}, 3, 0, QByteArray(99, 0))));
}

TEST(Bmp, NoDamageDoesHarm) {
    const QByteArray Good[] = {
        Bmp({40, 8, 0, Palette(4, 4), 4}, 3, 2, Rows(8)),
        Bmp({12, 4, 0, Palette(16, 3)}, 3, 2, Rows(4)),
        Bmp({56, 32, 3, Masks({0xFF0000, 0xFF00, 0xFF, 0xFF000000})}, 2, 1,
            Hex("0000ffff 0000ff80")),
    };
    for (const QByteArray& Bytes : Good) {
        ExpectCutsAreTold(Bytes);
        ExpectFlipsDoNoHarm(Bytes);
    }
    const QByteArray Packed = Hex("0302 0000 0003 010203 00 0002 0101 0001");
    ExpectFlipsDoNoHarm(Bmp({40, 8, 1, Palette(4, 4), 4}, 3, 3, Packed), 2000);
    ExpectFlipsDoNoHarm(Bmp({40, 4, 2, Palette(16, 4)}, 3, 3, Packed), 2000);
    ExpectFlipsDoNoHarm(Bmp({64, 24, 4, QByteArray(24, 0)}, 3, 3, Packed + Packed), 2000);
}
