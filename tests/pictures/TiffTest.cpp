// TIFF of the rarer kinds, written by libtiff from samples that are worked out here, or built byte
// by byte where it does not write them any more. What is seen is worked out by the rule of each.
#include <tiffio.h>

#include <QBuffer>
#include <thread>

#include "DamagedBytes.h"
#include "Pictures.h"
#include "pictures/formats/PictureFaults.h"
#include "pictures/workers/PictureReading.h"

using namespace neb;
using namespace neb::tests;

namespace {

constexpr int Side = 16;

struct Kind {
    int Photometric = PHOTOMETRIC_RGB;
    int Bits = 8;
    int Samples = 3;
    int Compression = COMPRESSION_NONE;
    int Extra = -1;  // what the last sample is; -1: it is a colour
    bool Separate = false;
    bool Tiled = false;
    int TileSide = Side;
};

// A picture of Side by Side pixels, each plane or all of it given as one strip or tile.
QByteArray Tiff(const Kind& What, const std::vector<QByteArray>& Planes) {
    const harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("made.tif");
    TIFF* Out = TIFFOpen(qPrintable(File), "w");
    for (const int Tag : {TIFFTAG_IMAGEWIDTH, TIFFTAG_IMAGELENGTH}) TIFFSetField(Out, Tag, Side);
    TIFFSetField(Out, TIFFTAG_BITSPERSAMPLE, What.Bits);
    TIFFSetField(Out, TIFFTAG_SAMPLESPERPIXEL, What.Samples);
    TIFFSetField(Out, TIFFTAG_PHOTOMETRIC, What.Photometric);
    TIFFSetField(Out, TIFFTAG_COMPRESSION, What.Compression);
    TIFFSetField(Out, TIFFTAG_PLANARCONFIG,
                 What.Separate ? PLANARCONFIG_SEPARATE : PLANARCONFIG_CONTIG);
    const auto Extra = static_cast<quint16>(What.Extra);
    if (What.Extra >= 0) TIFFSetField(Out, TIFFTAG_EXTRASAMPLES, 1, &Extra);
    for (const int Tag : {TIFFTAG_TILEWIDTH, TIFFTAG_TILELENGTH})
        if (What.Tiled) TIFFSetField(Out, Tag, What.TileSide);
    if (!What.Tiled) TIFFSetField(Out, TIFFTAG_ROWSPERSTRIP, Side);
    if (What.Compression == COMPRESSION_JPEG) TIFFSetField(Out, TIFFTAG_JPEGQUALITY, 100);
    for (quint32 I = 0; I < Planes.size(); ++I) {
        QByteArray Copy = Planes[I];
        EXPECT_GE(What.Tiled ? TIFFWriteEncodedTile(Out, I, Copy.data(), Copy.size())
                             : TIFFWriteEncodedStrip(Out, I, Copy.data(), Copy.size()),
                  0);
    }
    TIFFClose(Out);
    return ReadFile(File);
}

// Sample number I of the pixel at X, Y.
using SampleOf = std::function<int(int X, int Y, int I)>;

QByteArray Contiguous(int Samples, const SampleOf& Of) {
    QByteArray Bytes;
    for (int Y = 0; Y < Side; ++Y)
        for (int X = 0; X < Side; ++X)
            for (int I = 0; I < Samples; ++I) Bytes += static_cast<char>(Of(X, Y, I));
    return Bytes;
}

std::vector<QByteArray> Apart(int Samples, const SampleOf& Of) {
    std::vector<QByteArray> Planes;
    for (int I = 0; I < Samples; ++I)
        Planes.push_back(Contiguous(1, [&](int X, int Y, int) { return Of(X, Y, I); }));
    return Planes;
}

using ColourOf = std::function<QRgb(int X, int Y)>;

void ExpectSeen(const QByteArray& Bytes, const ColourOf& Of, int Tolerance = 0) {
    const QImage Picture = DecodePicture(Bytes).Picture;
    ASSERT_EQ(QSize(Side, Side), Picture.size());
    ASSERT_EQ(QImage::Format_RGB32, Picture.format());
    int Farthest = 0;
    for (int Y = 0; Y < Side; ++Y)
        for (int X = 0; X < Side; ++X)
            Farthest = std::max(Farthest, Distance(Picture.pixel(X, Y), Of(X, Y)));
    EXPECT_LE(Farthest, Tolerance);
}

// Gentle slopes in every sample, so that what JPEG does to them is little.
int Slope(int X, int Y, int I) {
    return std::array{20 + X * 8, 40 + Y * 8, 60 + (X + Y) * 4, 10 + Y * 3, 255 - X * 16}[I % 5];
}

QRgb SlopeColour(int X, int Y) {
    return qRgb(Slope(X, Y, 0), Slope(X, Y, 1), Slope(X, Y, 2));
}

QRgb SlopeInks(int X, int Y) {
    const int Paper = 255 - Slope(X, Y, 3);
    const auto Mix = [Paper](int C) { return ((255 - C) * Paper + 127) / 255; };
    return qRgb(Mix(Slope(X, Y, 0)), Mix(Slope(X, Y, 1)), Mix(Slope(X, Y, 2)));
}

QRgb OnWhite(QRgb Colour, int Alpha) {
    const auto Mix = [Alpha](int C) { return (C * Alpha + 255 * (255 - Alpha) + 127) / 255; };
    return qRgb(Mix(qRed(Colour)), Mix(qGreen(Colour)), Mix(qBlue(Colour)));
}

QByteArray Little(quint32 Number, int Width) {
    QByteArray Bytes;
    for (int I = 0; I < Width; ++I) Bytes += static_cast<char>(Number >> 8 * I);
    return Bytes;
}

// The old way of JPEG: a whole JPEG file behind the tags, and its pieces pointed at.
QByteArray OldJpeg(const QByteArray& Jpeg) {
    constexpr int Entries = 11;
    const quint32 Subsampling = 2 | 2 << 16, Begin = 8 + 2 + Entries * 12 + 4 + 6;
    const auto Length = static_cast<quint32>(Jpeg.size());
    const std::array<quint32, 4> Tags[Entries] = {
        {256, 3, 1, Side},  {257, 3, 1, Side},   {258, 3, 3, Begin - 6},  {259, 3, 1, 6},
        {262, 3, 1, 6},     {273, 4, 1, Begin},  {277, 3, 1, 3},          {279, 4, 1, Length},
        {513, 4, 1, Begin}, {514, 4, 1, Length}, {530, 3, 2, Subsampling}};
    QByteArray Bytes = QByteArray("II*\0", 4) + Little(8, 4) + Little(Entries, 2);
    for (const auto& [Tag, Type, Count, Value] : Tags)
        Bytes += Little(Tag, 2) + Little(Type, 2) + Little(Count, 4) + Little(Value, 4);
    return Bytes + Little(0, 4) + Little(8, 2) + Little(8, 2) + Little(8, 2) + Jpeg;
}

QByteArray SlopeJpeg() {
    QImage Picture(Side, Side, QImage::Format_RGB32);
    for (int Y = 0; Y < Side; ++Y)
        for (int X = 0; X < Side; ++X) Picture.setPixel(X, Y, SlopeColour(X, Y));
    QByteArray Bytes;
    QBuffer Buffer(&Bytes);
    Picture.save(&Buffer, "JPEG", 75);
    return Bytes;
}

}  // namespace

TEST(Tiff, ZeroMayBeWhiteAtEveryDepth) {
    for (const int Bits : {1, 2, 4, 8}) {
        const int Most = (1 << Bits) - 1, APixel = 8 / Bits;
        const auto Number = [Most](int X, int Y) { return (X + 3 * Y) & Most; };
        QByteArray Bytes(Side * Side / APixel, 0);
        for (int I = 0; I < Side * Side; ++I)
            Bytes[I / APixel] = static_cast<char>(
                Bytes[I / APixel] | Number(I % Side, I / Side) << (8 - Bits * (I % APixel + 1)));
        for (const int White : {PHOTOMETRIC_MINISWHITE, PHOTOMETRIC_MINISBLACK}) {
            SCOPED_TRACE(testing::Message() << Bits << " bits, kind " << White);
            ExpectSeen(Tiff({White, Bits, 1}, {Bytes}), [&](int X, int Y) {
                const int Level = Number(X, Y) * 255 / Most;
                const int Seen = White == PHOTOMETRIC_MINISWHITE ? 255 - Level : Level;
                return qRgb(Seen, Seen, Seen);
            });
        }
    }
}

TEST(Tiff, TheOldWayOfJpegGivesItsColours) {
    ExpectSeen(OldJpeg(SlopeJpeg()), SlopeColour, 12);
}

TEST(Tiff, SubsampledColoursAreSpreadOverTheirPixels) {
    // Four levels and one pair of colours for each two by two pixels.
    QByteArray Bytes;
    for (int Y = 0; Y < Side; Y += 2)
        for (int X = 0; X < Side; X += 2) {
            for (const auto& [DX, DY] : {std::pair(0, 0), {1, 0}, {0, 1}, {1, 1}})
                Bytes += static_cast<char>(Slope(X + DX, Y + DY, 0));
            Bytes += static_cast<char>(100 + X) + QByteArray(1, static_cast<char>(150 + Y));
        }
    const auto Of = [](int X, int Y) {
        const double Level = Slope(X, Y, 0), Cb = 100 + X / 2 * 2 - 128, Cr = 150 + Y / 2 * 2 - 128;
        const auto Whole = [](double C) { return std::clamp(int(std::lround(C)), 0, 255); };
        return qRgb(Whole(Level + 1.402 * Cr), Whole(Level - 0.344136 * Cb - 0.714136 * Cr),
                    Whole(Level + 1.772 * Cb));
    };
    ExpectSeen(Tiff({PHOTOMETRIC_YCBCR}, {Bytes}), Of, 2);
}

TEST(Tiff, TiledInksInJpegAreRead) {
    const QByteArray Inks = Contiguous(4, Slope);
    Kind What{PHOTOMETRIC_SEPARATED, 8, 4, COMPRESSION_JPEG};
    for (const bool Tiled : {false, true}) {
        What.Tiled = Tiled;
        ExpectSeen(Tiff(What, {Inks}), SlopeInks, 4);
    }
}

TEST(Tiff, InksAreReadTogetherAndApart) {
    for (const bool Tiled : {false, true}) {
        ExpectSeen(Tiff({PHOTOMETRIC_SEPARATED, 8, 4, COMPRESSION_LZW, -1, false, Tiled},
                        {Contiguous(4, Slope)}),
                   SlopeInks);
        ExpectSeen(
            Tiff({PHOTOMETRIC_SEPARATED, 8, 4, COMPRESSION_LZW, -1, true, Tiled}, Apart(4, Slope)),
            SlopeInks);
        ExpectSeen(
            Tiff({PHOTOMETRIC_SEPARATED, 8, 5, COMPRESSION_NONE, 0, true, Tiled}, Apart(5, Slope)),
            SlopeInks);
    }
}

TEST(Tiff, SeparatePlanesMayHaveOneMore) {
    for (const bool Tiled : {false, true}) {
        ExpectSeen(
            Tiff({PHOTOMETRIC_RGB, 8, 4, COMPRESSION_NONE, EXTRASAMPLE_UNSPECIFIED, true, Tiled},
                 Apart(4, Slope)),
            SlopeColour);
        ExpectSeen(
            Tiff({PHOTOMETRIC_RGB, 8, 4, COMPRESSION_NONE, EXTRASAMPLE_UNASSALPHA, true, Tiled},
                 Apart(4, Slope)),
            [](int X, int Y) { return OnWhite(SlopeColour(X, Y), Slope(X, Y, 3)); }, 2);
    }
}

TEST(Tiff, AFourthSampleWithoutAWordIsAlpha) {
    QByteArray Bytes = Tiff({PHOTOMETRIC_RGB, 8, 4, COMPRESSION_NONE, EXTRASAMPLE_ASSOCALPHA},
                            {Contiguous(4, Slope)});
    // The word is made another, which nobody knows.
    const qsizetype Word = Bytes.indexOf(Little(TIFFTAG_EXTRASAMPLES, 2) + Little(3, 2));
    ASSERT_GT(Word, 0);
    Bytes.replace(Word, 2, Little(TIFFTAG_EXTRASAMPLES + 0x100, 2));
    ExpectSeen(
        Bytes, [](int X, int Y) { return OnWhite(SlopeColour(X, Y), Slope(X, Y, 3)); }, 2);
}

TEST(Tiff, PiecesMayBeSaidToBeLongerThanTheyAre) {
    QByteArray Bytes = Tiff({}, {Contiguous(3, Slope)});
    const QByteArray Length = Little(TIFFTAG_STRIPBYTECOUNTS, 2) + Little(4, 2) + Little(1, 4);
    const QByteArray Short = Little(TIFFTAG_STRIPBYTECOUNTS, 2) + Little(3, 2) + Little(1, 4);
    const qsizetype At = std::max(Bytes.indexOf(Length), Bytes.indexOf(Short));
    ASSERT_GT(At, 0);
    Bytes.replace(At + 8, 2, Little(60000, 2));
    ExpectSeen(Bytes, SlopeColour);
}

TEST(Tiff, GreysWithAlphaAreLaidOnWhite) {
    const auto Sample = [](int X, int Y, int I) { return I == 0 ? 16 * X : 17 * Y; };
    const auto GreyAt = [](int X) { return qRgb(16 * X, 16 * X, 16 * X); };
    ExpectSeen(Tiff({PHOTOMETRIC_MINISBLACK, 8, 2, COMPRESSION_NONE, EXTRASAMPLE_UNASSALPHA},
                    {Contiguous(2, Sample)}),
               [&](int X, int Y) { return OnWhite(GreyAt(X), 17 * Y); });
    ExpectSeen(
        Tiff({PHOTOMETRIC_MINISBLACK, 8, 2, COMPRESSION_NONE, EXTRASAMPLE_UNASSALPHA, true},
             Apart(2, Sample)),
        [&](int X, int Y) { return OnWhite(GreyAt(X), 17 * Y); }, 2);
    ExpectSeen(Tiff({PHOTOMETRIC_MINISBLACK, 8, 2, COMPRESSION_NONE, EXTRASAMPLE_UNSPECIFIED},
                    {Contiguous(2, Sample)}),
               [&](int X, int) { return GreyAt(X); });
}

TEST(Tiff, TilesMayReachBeyondTheEdge) {
    constexpr int Large = 32;
    const auto Tile = [](int Samples) {
        QByteArray Bytes;
        for (int Y = 0; Y < Large; ++Y)
            for (int X = 0; X < Large; ++X)
                for (int I = 0; I < Samples; ++I) Bytes += static_cast<char>(Slope(X, Y, I + 2));
        return Bytes;
    };
    const auto GreyAt = [](int X, int Y) {
        const int Level = Slope(X, Y, 2);
        return qRgb(Level, Level, Level);
    };
    const int Black = PHOTOMETRIC_MINISBLACK, Alpha = EXTRASAMPLE_UNASSALPHA;
    ExpectSeen(Tiff({Black, 8, 1, COMPRESSION_NONE, -1, false, true, Large}, {Tile(1)}), GreyAt);
    ExpectSeen(
        Tiff({Black, 8, 2, COMPRESSION_NONE, Alpha, false, true, Large}, {Tile(2)}),
        [&](int X, int Y) { return OnWhite(GreyAt(X, Y), Slope(X, Y, 3)); }, 2);
    ExpectSeen(Tiff({PHOTOMETRIC_RGB, 8, 3, COMPRESSION_LZW, -1, false, true, Large}, {Tile(3)}),
               [](int X, int Y) { return qRgb(Slope(X, Y, 2), Slope(X, Y, 3), Slope(X, Y, 4)); });
}

TEST(Tiff, ColoursThatHoldTheirAlphaAreLaidOnWhite) {
    // The colours are at most their alpha.
    const auto Sample = [](int X, int Y, int I) { return I == 3 ? 17 * Y : Y * X * (I + 1) / 3; };
    const auto Of = [&](int X, int Y) {
        const auto Seen = [&](int I) { return Sample(X, Y, I) + 255 - 17 * Y; };
        return qRgb(Seen(0), Seen(1), Seen(2));
    };
    ExpectSeen(Tiff({PHOTOMETRIC_RGB, 8, 4, COMPRESSION_NONE, EXTRASAMPLE_ASSOCALPHA},
                    {Contiguous(4, Sample)}),
               Of, 2);
}

TEST(Tiff, NoDamageDoesHarm) {
    const QByteArray Good[] = {
        OldJpeg(SlopeJpeg()),
        Tiff({PHOTOMETRIC_SEPARATED, 8, 4, COMPRESSION_JPEG, -1, false, true},
             {Contiguous(4, Slope)}),
        Tiff({PHOTOMETRIC_SEPARATED, 8, 5, COMPRESSION_LZW, 0, true}, Apart(5, Slope)),
        Tiff({PHOTOMETRIC_MINISWHITE, 4, 1}, {QByteArray(Side * Side / 2, 'x')}),
        Tiff({PHOTOMETRIC_YCBCR}, {QByteArray(Side * Side * 3 / 2, 'x')})};
    for (const QByteArray& Bytes : Good) {
        ASSERT_EQ(0U, FaultOfBytes(Bytes));
        ExpectFlipsDoNoHarm(Bytes, 300);
        for (qsizetype Length = 0; Length < Bytes.size() * 9 / 10; Length += 7)
            EXPECT_NE(0U, FaultOfBytes(Bytes.left(Length))) << Length << " of " << Bytes.size();
    }
}

// Both readers of TIFF stand on one library, which tells its complaints to one place by itself.
TEST(Tiff, BothReadersComplainAtOnceWithoutHarm) {
    const QByteArray Fine = Tiff({PHOTOMETRIC_RGB, 8, 3, COMPRESSION_LZW}, {Contiguous(3, Slope)});
    QByteArray Deep = ReadFile(PictureFile(QStringLiteral("rgb16.tif")));
    const auto Spoiled = [](QByteArray Bytes) {
        for (qsizetype I = 20; I < 120; I += 3) Bytes[I] = static_cast<char>(~Bytes[I]);
        return Bytes;
    };
    const QByteArray Bad = Spoiled(Fine), BadDeep = Spoiled(Deep);
    std::vector<std::thread> Threads;
    for (int Number = 0; Number < 4; ++Number)
        Threads.emplace_back([&] {
            for (int Round = 0; Round < 100; ++Round)
                for (const QByteArray& Bytes : {Bad, BadDeep, Fine, Deep}) FaultOfBytes(Bytes);
        });
    for (std::thread& Each : Threads) Each.join();
    EXPECT_NE(0U, FaultOfBytes(Bad));
    EXPECT_EQ(0U, FaultOfBytes(Deep));
}
