// TGA pictures of every kind, built byte by byte: what their pixels are is worked out here by the
// rule of the format.
#include "DamagedBytes.h"
#include "Pictures.h"
#include "pictures/workers/PictureReading.h"

using namespace neb;
using namespace neb::tests;

namespace {

constexpr int FromTheRight = 0x10, FromTheTop = 0x20;

struct Kind {
    int Number;  // 1 palette, 2 colours, 3 greys; 8 more when packed
    int Depth;
    int Marks = FromTheTop;
    int MapBits = 0;
    QByteArray Map = {};
    int MapFirst = 0;
};

QByteArray Hex(const char* Text) {
    return QByteArray::fromHex(Text);
}

// Two by two pixels.
QByteArray Tga(const Kind& What, const char* Pixels) {
    const auto Byte = [](qsizetype Number) { return QByteArray(1, static_cast<char>(Number)); };
    const int Length =
        What.MapBits ? static_cast<int>(What.Map.size() / ((What.MapBits + 7) / 8)) : 0;
    return Byte(0) + Byte(What.MapBits ? 1 : 0) + Byte(What.Number) + Byte(What.MapFirst) +
           Byte(0) + Byte(Length) + Byte(0) + Byte(What.MapBits) + Hex("00000000 0200 0200") +
           Byte(What.Depth) + Byte(What.Marks) + What.Map + Hex(Pixels);
}

std::string PixelsOf(const QByteArray& Bytes) {
    const QImage Picture = DecodePicture(Bytes).Picture;
    EXPECT_EQ(QSize(2, 2), Picture.size());
    EXPECT_EQ(QImage::Format_RGB32, Picture.format());
    QStringList Out;
    for (int Y = 0; Y < Picture.height(); ++Y)
        for (int X = 0; X < Picture.width(); ++X) Out << QColor(Picture.pixel(X, Y)).name().mid(1);
    return Out.join(u' ').toStdString();
}

}  // namespace

TEST(Tga, GreysMayHaveAlphaBesideThem) {
    // Black, a grey, the same half clear, a clear black.
    const Kind Plain{3, 16, FromTheTop | 8}, Packed{11, 16, FromTheTop | 8};
    const std::string Seen = "000000 404040 9f9f9f ffffff";
    EXPECT_EQ(Seen, PixelsOf(Tga(Plain, "00ff 40ff 4080 0000")));
    EXPECT_EQ(Seen, PixelsOf(Tga(Packed, "01 00ff 40ff 80 4080 80 0000")));
}

TEST(Tga, GreysOfOneByteAndOfOneBitAreGreys) {
    EXPECT_EQ("000000 404040 808080 ffffff", PixelsOf(Tga({3, 8}, "00 40 80 ff")));
    EXPECT_EQ("ffffff 000000 000000 ffffff", PixelsOf(Tga({3, 1}, "80 40")));
}

TEST(Tga, ColoursOfEveryDepthAreRead) {
    EXPECT_EQ("ff0000 00ff00 0000ff ffffff", PixelsOf(Tga({2, 15}, "007c e003 1f00 ff7f")));
    EXPECT_EQ("ff0000 00ff00 0000ff ffffff", PixelsOf(Tga({2, 16}, "007c e003 1f00 ff7f")));
    EXPECT_EQ("102030 405060 708090 a0b0c0", PixelsOf(Tga({2, 24}, "302010 605040 908070 c0b0a0")));
    EXPECT_EQ("ff0000 ff7f7f ffffff 00ff00",
              PixelsOf(Tga({2, 32, FromTheTop | 8}, "0000ffff 0000ff80 00000000 00ff00ff")));
}

TEST(Tga, OneBitOfAlphaIsAllOrNothing) {
    EXPECT_EQ("ff0000 ffffff 0000ff ffffff",
              PixelsOf(Tga({2, 16, FromTheTop | 1}, "00fc e003 1f80 ff7f")));
}

TEST(Tga, APictureThatIsAllClearIsMeantToBeSeen) {
    EXPECT_EQ("ff0000 00ff00 0000ff ffffff",
              PixelsOf(Tga({2, 32, FromTheTop | 8}, "0000ff00 00ff0000 ff000000 ffffff00")));
    EXPECT_EQ("000000 404040 808080 ffffff",
              PixelsOf(Tga({3, 16, FromTheTop | 8}, "0000 4000 8000 ff00")));
}

TEST(Tga, PalettesOfEveryDepthAreRead) {
    const std::string Seen = "ff0000 00ff00 0000ff ff0000";
    EXPECT_EQ(Seen, PixelsOf(Tga({1, 8, FromTheTop, 16, Hex("007c e003 1f00")}, "00010200")));
    EXPECT_EQ(Seen, PixelsOf(Tga({1, 8, FromTheTop, 24, Hex("0000ff 00ff00 ff0000")}, "00010200")));
    EXPECT_EQ("ff0000 00ff00 7f7fff ff0000",
              PixelsOf(Tga({1, 8, FromTheTop, 32, Hex("0000ffff 00ff00ff ff000080")}, "00010200")));
    EXPECT_EQ(Seen, PixelsOf(Tga({1, 16, FromTheTop, 24, Hex("0000ff 00ff00 ff0000")},
                                 "0000 0100 0200 0000")));
}

TEST(Tga, APaletteMayBeginLaterAndEndEarly) {
    const Kind Late{1, 8, FromTheTop, 24, Hex("0000ff 00ff00"), 5};
    EXPECT_EQ("ff0000 00ff00 000000 000000", PixelsOf(Tga(Late, "05060704")));
    const Kind Clear{1, 8, FromTheTop, 32, Hex("0000ffff 00ff00ff"), 5};
    EXPECT_EQ("ff0000 00ff00 ffffff ffffff", PixelsOf(Tga(Clear, "05060704")));
}

TEST(Tga, PacketsGoOnInTheNextRow) {
    EXPECT_EQ("ff0000 ff0000 ff0000 00ff00", PixelsOf(Tga({10, 24}, "82 0000ff 00 00ff00")));
    EXPECT_EQ("ff0000 00ff00 0000ff 0000ff",
              PixelsOf(Tga({10, 24}, "02 0000ff 00ff00 ff0000 80 ff0000")));
    EXPECT_EQ("00ff00 00ff00 00ff00 00ff00",
              PixelsOf(Tga({9, 8, FromTheTop, 24, Hex("0000ff 00ff00")}, "83 01")));
}

TEST(Tga, APictureBeginsInAnyCorner) {
    const char* Pixels = "00 40 80 ff";
    EXPECT_EQ("000000 404040 808080 ffffff", PixelsOf(Tga({3, 8, FromTheTop}, Pixels)));
    EXPECT_EQ("808080 ffffff 000000 404040", PixelsOf(Tga({3, 8, 0}, Pixels)));
    EXPECT_EQ("ffffff 808080 404040 000000", PixelsOf(Tga({3, 8, FromTheRight}, Pixels)));
    EXPECT_EQ("404040 000000 ffffff 808080",
              PixelsOf(Tga({3, 8, FromTheRight | FromTheTop}, Pixels)));
}

TEST(Tga, NoDamageDoesHarm) {
    const QByteArray Good[] = {Tga({3, 16, 8}, "00ff 40ff 4080 0000"),
                               Tga({10, 24}, "82 0000ff 00 00ff00"),
                               Tga({1, 8, 0, 24, Hex("0000ff 00ff00 ff0000")}, "00010200")};
    for (const QByteArray& Bytes : Good) {
        ExpectCutsAreTold(Bytes);
        ExpectFlipsDoNoHarm(Bytes);
    }
}
