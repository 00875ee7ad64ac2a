// PSD pictures of the rarer kinds, built byte by byte: what their pixels are is worked out here by
// the rule of the format.
#include "Blocks.h"
#include "DamagedBytes.h"
#include "Pictures.h"
#include "pictures/workers/PictureReading.h"

using namespace neb;
using namespace neb::tests;

namespace {

QByteArray Big(quint32 Number, int Width) {
    QByteArray Bytes;
    while (Width-- > 0) Bytes += static_cast<char>(Number >> 8 * Width);
    return Bytes;
}

struct Kind {
    int Mode;  // 1 greys, 2 palette, 3 colours, 4 inks, 7 inks without a colour space
    int Planes;
    int Depth = 8;
    QByteArray Palette = {};
    int Layers = 0;  // below zero: the first plane beyond the colours is alpha
    bool Packed = false;
    bool Large = false;
};

// Rows are packed as copies of all that they hold.
QByteArray PackedRows(const QByteArray& Planes, qsizetype Length, int CountWidth) {
    QByteArray Counts, Rows;
    for (qsizetype At = 0; At < Planes.size(); At += Length) {
        Counts += Big(static_cast<quint32>(Length) + 1, CountWidth);
        Rows += static_cast<char>(Length - 1) + Planes.mid(At, Length);
    }
    return Counts + Rows;
}

// Three by two pixels, plane after plane, given in hexadecimal.
QByteArray Psd(const Kind& What, const QByteArray& Text) {
    const QByteArray Planes = QByteArray::fromHex(Text);
    const int Width = What.Large ? 8 : 4;
    const auto Length = [Width](qsizetype Number) {
        return QByteArray(Width - 4, 0) + Big(static_cast<quint32>(Number), 4);
    };
    const QByteArray Count = Big(static_cast<quint32>(What.Layers), 2);
    const QByteArray Layers = What.Layers ? Length(Count.size()) + Count : QByteArray();
    const QByteArray Body =
        What.Packed ? PackedRows(Planes, 3 * What.Depth / 8, What.Large ? 4 : 2) : Planes;
    return "8BPS" + Big(What.Large ? 2 : 1, 2) + QByteArray(6, 0) + Big(What.Planes, 2) +
           Big(2, 4) + Big(3, 4) + Big(What.Depth, 2) + Big(What.Mode, 2) +
           Big(static_cast<quint32>(What.Palette.size()), 4) + What.Palette + Big(0, 4) +
           Length(Layers.size()) + Layers + Big(What.Packed, 2) + Body;
}

std::string PixelsOf(const QByteArray& Bytes) {
    const QImage Picture = DecodePicture(Bytes).Picture;
    EXPECT_EQ(QSize(3, 2), Picture.size());
    EXPECT_EQ(QImage::Format_RGB32, Picture.format());
    QStringList Out;
    for (int Y = 0; Y < Picture.height(); ++Y)
        for (int X = 0; X < Picture.width(); ++X) Out << QColor(Picture.pixel(X, Y)).name().mid(1);
    return Out.join(u' ').toStdString();
}

// All its reds, all its greens, all its blues.
QByteArray Palette() {
    QByteArray Bytes(768, 0);
    for (int I = 0; I < 256; ++I) {
        Bytes[I] = static_cast<char>(I);
        Bytes[256 + I] = static_cast<char>(255 - I);
        Bytes[512 + I] = static_cast<char>(7);
    }
    return Bytes;
}

constexpr const char* Reds = "ff0000 10ff80 ";
constexpr const char* Greens = "00ff00 20ff80 ";
constexpr const char* Blues = "0000ff 30ff80 ";
constexpr const char* Mask = "000000 00ff80 ";

QByteArray Planes(std::initializer_list<const char*> All) {
    QByteArray Text;
    for (const char* Plane : All) Text += Plane;
    return Text;
}

constexpr const char* Seen = "ff0000 00ff00 0000ff 102030 ffffff 808080";

}  // namespace

TEST(Psd, PalettesAreRead) {
    for (const bool Packed : {false, true})
        for (const bool Large : {false, true})
            EXPECT_EQ("00ff07 01fe07 02fd07 807f07 ff0007 c03f07",
                      PixelsOf(Psd({2, 1, 8, Palette(), 0, Packed, Large}, "000102 80ffc0")));
}

TEST(Psd, MasksBesideTheColoursAreNotSeen) {
    const QByteArray Text = Planes({Reds, Greens, Blues, Mask, Mask, Mask});
    for (const bool Packed : {false, true})
        EXPECT_EQ(Seen, PixelsOf(Psd({3, 6, 8, {}, 0, Packed}, Text)));
    EXPECT_EQ("000000 404040 202020 ffffff 808080 101010",
              PixelsOf(Psd({1, 3}, Planes({"004020 ff8010", Mask, Mask}))));
}

TEST(Psd, AlphaBesideTheColoursShowsWhite) {
    // The colours have been laid on white by who wrote them, but where nothing is left of them.
    const QByteArray Text = Planes({Reds, Greens, Blues, "ffffff 00ffff", Mask, Mask});
    EXPECT_EQ("ff0000 00ff00 0000ff ffffff ffffff 808080", PixelsOf(Psd({3, 6, 8, {}, -1}, Text)));
}

// Those with masks are read here, those without elsewhere.
TEST(Psd, TheyAreTurnedByWhatTheirResourcesSay) {
    const std::pair<quint32, QByteArray> Told[] = {{0x0422, ExifTurned(6)}, {0x0424, XmpTurned(6)}};
    for (const auto& [Which, Block] : Told)
        for (const int Count : {3, 6}) {
            QByteArray File = Psd(
                {3, Count}, Planes({Reds, Greens, Blues}) + QByteArray(Mask).repeated(Count - 3));
            const QByteArray Resource = "8BIM" + Big(Which, 2) + Big(0, 2) +
                                        Big(static_cast<quint32>(Block.size()), 4) + Block +
                                        QByteArray(Block.size() % 2, 0);
            EXPECT_EQ(QSize(3, 2), DecodePicture(File).Full);
            File.replace(30, 4, Big(static_cast<quint32>(Resource.size()), 4) + Resource);
            EXPECT_EQ(QSize(2, 3), DecodePicture(File).Full) << Count << " planes";
            EXPECT_EQ(QColor(0x10, 0x20, 0x30), DecodePicture(File).Picture.pixelColor(0, 0));
        }
}

TEST(Psd, OfSixteenBitsTheUpperHalfCounts) {
    const char* Row = "ff12 0034 0056 10ff ffff 8000 ";
    EXPECT_EQ("ffffff 000000 000000 101010 ffffff 808080",
              PixelsOf(Psd({3, 6, 16}, Planes({Row, Row, Row, Row, Row, Row}))));
    EXPECT_EQ("ffffff 000000 000000 101010 ffffff 808080",
              PixelsOf(Psd({3, 6, 16, {}, 0, true}, Planes({Row, Row, Row, Row, Row, Row}))));
}

TEST(Psd, InksWithoutAColourSpaceAreInks) {
    const QByteArray Black = "ffffff ffff00 ";
    EXPECT_EQ("ff0000 00ff00 0000ff 102030 ffffff 000000",
              PixelsOf(Psd({7, 4}, Planes({Reds, Greens, Blues, Black.constData()}))));
    EXPECT_EQ(Seen, PixelsOf(Psd({7, 3}, Planes({Reds, Greens, Blues}))));
    EXPECT_EQ(Seen,
              PixelsOf(Psd({4, 6}, Planes({Reds, Greens, Blues, "ffffff ffffff", Mask, Mask}))));
}

TEST(Psd, PicturesOfOneBitAreOpaqueWhateverTheirMasks) {
    const QImage Picture = DecodePicture(Psd({0, 3, 1}, "00 e0 00 00 e0 40")).Picture;
    ASSERT_EQ(QSize(3, 2), Picture.size());
    for (int Y = 0; Y < 2; ++Y)
        for (int X = 0; X < 3; ++X)
            EXPECT_EQ(Y == 0 ? 0xFFFFFFFF : 0xFF000000,
                      reinterpret_cast<const QRgb*>(Picture.constScanLine(Y))[X]);
}

TEST(Psd, NoDamageDoesHarm) {
    const QByteArray Text = Planes({Reds, Greens, Blues, Mask, Mask, Mask});
    const QByteArray Good[] = {Psd({3, 6, 8, {}, -1, true}, Text), Psd({3, 6, 8}, Text),
                               Psd({7, 6, 8, {}, 0, true, true}, Text)};
    for (const QByteArray& Bytes : Good) {
        ExpectCutsAreTold(Bytes);
        ExpectFlipsDoNoHarm(Bytes, 1000);
    }
}
