// PCX pictures, built byte by byte. Of the smallest sizes: their header tells the first and the
// last column and row, so that a side of one pixel begins where it ends. And of every kind of
// plane and palette.
#include "DamagedBytes.h"
#include "Pictures.h"
#include "pictures/formats/PictureFaults.h"
#include "pictures/workers/PictureReading.h"

using namespace neb;
using namespace neb::tests;

namespace {

// A picture of 24 bits: in each row its reds, its greens, its blues, each filled up to an even
// length. Its pixels are red, green and blue in turn, row by row.
QByteArray Pcx(int FirstX, int FirstY, int LastX, int LastY) {
    const auto Word = [](int Value) {
        return QByteArray(1, char(Value & 0xFF)) + QByteArray(1, char(Value >> 8));
    };
    const int Width = LastX - FirstX + 1, RowLength = (Width + 1) / 2 * 2;
    QByteArray Bytes = QByteArray::fromHex("0a050108") + Word(FirstX) + Word(FirstY) + Word(LastX) +
                       Word(LastY) + Word(72) + Word(72) + QByteArray(48, 0) + QByteArray(1, 0) +
                       QByteArray(1, 3) + Word(RowLength) + Word(1);
    Bytes.resize(128, 0);
    int Number = 0;
    for (int Y = FirstY; Y <= LastY; ++Y, Number += Width)
        for (int Plane = 0; Plane < 3; ++Plane)
            for (int X = 0; X < RowLength; ++X)
                Bytes += (Number + X) % 3 == Plane && X < Width ? QByteArray("\xC1\xFF", 2)
                                                                : QByteArray(1, 0);
    return Bytes;
}

std::string PixelsOf(const QImage& Picture) {
    QStringList Out;
    for (int Y = 0; Y < Picture.height(); ++Y)
        for (int X = 0; X < Picture.width(); ++X) Out << Picture.pixelColor(X, Y).name();
    return Out.join(u' ').toStdString();
}

TEST(Pcx, ASideOfOnePixelIsASide) {
    const harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("small.pcx");
    const struct {
        int FirstX, FirstY, LastX, LastY;
        const char* Pixels;
    } Rows[] = {
        {0, 0, 0, 2, "#ff0000 #00ff00 #0000ff"},         {7, 0, 7, 2, "#ff0000 #00ff00 #0000ff"},
        {0, 0, 2, 0, "#ff0000 #00ff00 #0000ff"},         {3, 5, 3, 5, "#ff0000"},
        {0, 0, 1, 1, "#ff0000 #00ff00 #0000ff #ff0000"},
    };
    for (const auto& Row : Rows) {
        SCOPED_TRACE(testing::Message()
                     << Row.FirstX << ' ' << Row.FirstY << ' ' << Row.LastX << ' ' << Row.LastY);
        WriteFile(File, Pcx(Row.FirstX, Row.FirstY, Row.LastX, Row.LastY));
        const QImage Picture = Loaded(File).Picture();
        EXPECT_EQ(QSize(Row.LastX - Row.FirstX + 1, Row.LastY - Row.FirstY + 1), Picture.size());
        EXPECT_EQ(Row.Pixels, PixelsOf(Picture));
    }
}

TEST(Pcx, AnEndBeforeItsBeginningIsNoPicture) {
    const harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("none.pcx");
    for (const auto& [LastX, LastY] : {std::pair(0, 3), std::pair(3, 0)}) {
        QByteArray Bytes = Pcx(1, 1, 3, 3);
        Bytes[8] = char(LastX);
        Bytes[10] = char(LastY);
        WriteFile(File, Bytes);
        EXPECT_EQ(FaultUnknownPicture, FaultOf(File)) << LastX << ' ' << LastY;
    }
}

struct Kind {
    int Version;
    int Bits;
    int Planes;
    QByteArray Palette = {};
    bool Packed = true;
};

// A picture of one row, six pixels wide.
QByteArray Row(const Kind& What, const char* Pixels) {
    const QByteArray Body = QByteArray::fromHex(Pixels);
    const auto Byte = [](int Value) { return QByteArray(1, static_cast<char>(Value)); };
    QByteArray Head = Byte(10) + Byte(What.Version) + Byte(What.Packed) + Byte(What.Bits) +
                      QByteArray::fromHex("00000000 0500 0000 4800 4800") + What.Palette;
    Head.resize(65, 0);
    Head += Byte(What.Planes) + Byte(What.Bits == 8 ? 6 : What.Bits == 4 ? 4 : 2);
    Head.resize(128, 0);
    return Head + Body;
}

std::string ColoursOf(const QByteArray& Bytes) {
    return PixelsOf(DecodePicture(Bytes).Picture);
}

constexpr const char* BlackAndWhite = "#000000 #ffffff #ffffff #000000 #000000 #ffffff";

TEST(Pcx, OneBitIsBlackAndWhite) {
    const QByteArray LeftOver = QByteArray::fromHex("0000aa 00aa00 aa0000 aaaaaa");
    for (const Kind& What : {Kind{5, 1, 1}, Kind{3, 1, 1}, Kind{2, 1, 1}, Kind{0, 1, 1},
                             Kind{5, 1, 1, LeftOver}, Kind{3, 1, 1, LeftOver}})
        EXPECT_EQ(BlackAndWhite, ColoursOf(Row(What, "64 00")));
}

TEST(Pcx, OneBitHasTheTwoColoursOfAPaletteMadeForIt) {
    const QByteArray Own = QByteArray::fromHex("ff0000 ffff00");
    EXPECT_EQ("#ff0000 #ffff00 #ffff00 #ff0000 #ff0000 #ffff00",
              ColoursOf(Row({5, 1, 1, Own}, "64 00")));
}

TEST(Pcx, SixteenColoursComeInPlanesOrInHalvesOfBytes) {
    QByteArray Palette;
    for (int I = 0; I < 16; ++I) Palette += QByteArray(3, static_cast<char>(I * 17));
    const std::string Seen = "#000000 #111111 #222222 #444444 #888888 #ffffff";
    EXPECT_EQ(Seen, ColoursOf(Row({5, 4, 1, Palette}, "01 24 8f 00")));
    EXPECT_EQ(Seen, ColoursOf(Row({5, 1, 4, Palette}, "44 00 24 00 14 00 0c 00")));
    EXPECT_EQ("#000000 #333333 #222222 #111111 #000000 #333333",
              ColoursOf(Row({5, 2, 1, Palette}, "39 30")));
}

TEST(Pcx, WithoutAPaletteSixteenColoursAreTheScreens) {
    for (const int Version : {3, 5})
        EXPECT_EQ("#000000 #0000aa #00aa00 #aa0000 #555555 #ffffff",
                  ColoursOf(Row({Version, 4, 1}, "01 24 8f 00")));
}

TEST(Pcx, A256ColourPaletteStandsAtTheEnd) {
    QByteArray Bytes = Row({5, 8, 1}, "00 01 02 03 C1FF C1C0");
    EXPECT_EQ("#000000 #010101 #020202 #030303 #ffffff #c0c0c0", ColoursOf(Bytes));
    Bytes += char(12);
    for (int I = 0; I < 256; ++I) Bytes += QByteArray::fromHex("00") + char(255 - I) + char(I);
    EXPECT_EQ("#00ff00 #00fe01 #00fd02 #00fc03 #0000ff #003fc0", ColoursOf(Bytes));
    EXPECT_EQ(FaultEndsEarly, FaultOfBytes(Bytes.chopped(1)));
    EXPECT_EQ(FaultEndsEarly, FaultOfBytes(Bytes.chopped(767)));
}

TEST(Pcx, UnpackedRowsAreTakenAsTheyAre) {
    EXPECT_EQ("#c0c0c0 #c1c1c1 #ffffff #000000 #101010 #202020",
              ColoursOf(Row({5, 8, 1, {}, false}, "c0 c1 ff 00 10 20")));
}

TEST(Pcx, NoDamageDoesHarm) {
    const QByteArray Good[] = {Row({5, 1, 1}, "64 00"), Row({5, 1, 4}, "44 00 24 00 14 00 0c 00"),
                               Row({5, 8, 1}, "00 01 02 03 C1FF C1C0"), Pcx(0, 0, 2, 2)};
    for (const QByteArray& Bytes : Good) ExpectFlipsDoNoHarm(Bytes);
    // A row's filling may be missing, more may not.
    const QByteArray Whole = Pcx(0, 0, 3, 3);
    for (qsizetype Length = 0; Length < Whole.size() - 8; ++Length)
        EXPECT_NE(0U, FaultOfBytes(Whole.left(Length))) << Length;
}

}  // namespace
