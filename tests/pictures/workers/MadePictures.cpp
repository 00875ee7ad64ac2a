#include "pictures/workers/MadePictures.h"

#include <libheif/heif.h>
#include <tiffio.h>

#include <QBuffer>
#include <QColorSpace>
#include <QImageWriter>

#include "pictures/NotedPictures.h"

namespace neb::tests {
namespace {

const QSize Odd(701, 467);

struct TiffKind {
    const char* Name;
    int Photometric, Samples, Bits, Compression;
    bool Tiled = false, Separate = false;
};
constexpr TiffKind TiffKinds[] = {
    {"16 bits", PHOTOMETRIC_RGB, 3, 16, COMPRESSION_NONE},
    {"16 bits, packed", PHOTOMETRIC_RGB, 3, 16, COMPRESSION_ADOBE_DEFLATE},
    {"inks", PHOTOMETRIC_SEPARATED, 4, 8, COMPRESSION_LZW},
    {"16 bits of ink", PHOTOMETRIC_SEPARATED, 4, 16, COMPRESSION_NONE},
    {"greys", PHOTOMETRIC_MINISBLACK, 1, 8, COMPRESSION_PACKBITS},
    {"16 bits of grey", PHOTOMETRIC_MINISBLACK, 1, 16, COMPRESSION_LZW},
    {"tiles", PHOTOMETRIC_RGB, 3, 8, COMPRESSION_ADOBE_DEFLATE, true},
    {"planes", PHOTOMETRIC_RGB, 3, 8, COMPRESSION_NONE, false, true},
    {"by JPEG", PHOTOMETRIC_YCBCR, 3, 8, COMPRESSION_JPEG},
    {"by LZMA", PHOTOMETRIC_RGB, 3, 8, COMPRESSION_LZMA},
    {"by Zstd", PHOTOMETRIC_RGB, 3, 8, COMPRESSION_ZSTD},
    {"by WebP", PHOTOMETRIC_RGB, 3, 8, COMPRESSION_WEBP},
};

QByteArray SamplesOf(const TiffKind& Kind, qint64 Bytes) {
    QByteArray Samples(Bytes, '\0');
    for (qint64 I = 0; I < Bytes; ++I)
        Samples[I] = static_cast<char>(I / 7 * (Kind.Samples + 2) + I % 31);
    return Samples;
}

void Describe(TIFF* Out, const TiffKind& Kind, QSize Size = Odd) {
    constexpr int TileSide = 128;
    TIFFSetField(Out, TIFFTAG_IMAGEWIDTH, Size.width());
    TIFFSetField(Out, TIFFTAG_IMAGELENGTH, Size.height());
    TIFFSetField(Out, TIFFTAG_BITSPERSAMPLE, Kind.Bits);
    TIFFSetField(Out, TIFFTAG_SAMPLESPERPIXEL, Kind.Samples);
    TIFFSetField(Out, TIFFTAG_PHOTOMETRIC, Kind.Photometric);
    TIFFSetField(Out, TIFFTAG_COMPRESSION, Kind.Compression);
    TIFFSetField(Out, TIFFTAG_PLANARCONFIG,
                 Kind.Separate ? PLANARCONFIG_SEPARATE : PLANARCONFIG_CONTIG);
    if (Kind.Compression == COMPRESSION_JPEG)
        TIFFSetField(Out, TIFFTAG_JPEGCOLORMODE, JPEGCOLORMODE_RGB);
    for (const int Tag : {TIFFTAG_TILEWIDTH, TIFFTAG_TILELENGTH})
        if (Kind.Tiled) TIFFSetField(Out, Tag, TileSide);
    if (!Kind.Tiled) TIFFSetField(Out, TIFFTAG_ROWSPERSTRIP, 16);
}

// A strip or a tile; the lowest strip has the rows that are left.
bool Write(TIFF* Out, const TiffKind& Kind, quint32 Piece) {
    constexpr quint32 StripRows = 16;
    const auto Height = static_cast<quint32>(Odd.height());
    const quint32 Strips = (Height + StripRows - 1) / StripRows;
    const quint32 Rows = std::min(StripRows, Height - Piece % Strips * StripRows);
    const tmsize_t Bytes = Kind.Tiled ? TIFFTileSize(Out) : TIFFVStripSize(Out, Rows);
    QByteArray Samples = SamplesOf(Kind, Bytes);
    return (Kind.Tiled ? TIFFWriteEncodedTile(Out, Piece, Samples.data(), Bytes)
                       : TIFFWriteEncodedStrip(Out, Piece, Samples.data(), Bytes)) >= 0;
}

// Empty where this library does not know the way of packing.
QByteArray Tiff(const TiffKind& Kind) {
    if (!TIFFIsCODECConfigured(static_cast<quint16>(Kind.Compression))) return {};
    const harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("made.tif");
    TIFF* const Out = TIFFOpen(qPrintable(File), "w");
    Describe(Out, Kind);
    const quint32 Pieces = Kind.Tiled ? TIFFNumberOfTiles(Out) : TIFFNumberOfStrips(Out);
    for (quint32 I = 0; I < Pieces; ++I) EXPECT_TRUE(Write(Out, Kind, I)) << Kind.Name;
    TIFFClose(Out);
    return ReadFile(File);
}

heif_error Append(heif_context*, const void* Data, size_t Length, void* Into) {
    static_cast<QByteArray*>(Into)->append(static_cast<const char*>(Data),
                                           static_cast<qsizetype>(Length));
    return {heif_error_Ok, heif_suberror_Unspecified, ""};
}

heif_image* HeifImageOf(const QImage& Picture) {
    heif_image* Image = nullptr;
    heif_image_create(Picture.width(), Picture.height(), heif_colorspace_RGB,
                      heif_chroma_interleaved_RGB, &Image);
    heif_image_add_plane(Image, heif_channel_interleaved, Picture.width(), Picture.height(), 8);
    int Stride = 0;
    uchar* const Plane = heif_image_get_plane(Image, heif_channel_interleaved, &Stride);
    for (int Y = 0; Y < Picture.height(); ++Y)
        std::memcpy(Plane + qint64(Y) * Stride, Picture.constScanLine(Y),
                    static_cast<size_t>(Picture.width()) * 3);
    return Image;
}

QByteArray Heif(heif_compression_format Format, QSize Size) {
    heif_context* const File = heif_context_alloc();
    heif_encoder* Encoder = nullptr;
    heif_image_handle* Picture = nullptr;
    QByteArray Bytes;
    heif_image* const Image = HeifImageOf(Woven(Size, QImage::Format_RGB888));
    if (heif_context_get_encoder_for_format(File, Format, &Encoder).code == 0) {
        heif_encoder_set_lossy_quality(Encoder, 60);
        // Whichever of the two it is: as fast as it can.
        heif_encoder_set_parameter_string(Encoder, "preset", "ultrafast");
        heif_encoder_set_parameter_integer(Encoder, "speed", 9);
        heif_context_encode_image(File, Image, Encoder, nullptr, &Picture);
        heif_writer Writer = {1, Append};
        heif_context_write(File, &Writer, &Bytes);
        heif_encoder_release(Encoder);
        heif_image_handle_release(Picture);
    }
    heif_image_release(Image);
    heif_context_free(File);
    return Bytes;
}

QByteArray Progressive(const QImage& Picture) {
    QByteArray Bytes;
    QBuffer Into(&Bytes);
    QImageWriter Writer(&Into, "jpeg");
    Writer.setProgressiveScanWrite(true);
    Writer.write(Picture);
    return Bytes;
}

QImage WithColours(QImage Picture, const QColorSpace& Space) {
    Picture.setColorSpace(Space);
    return Picture;
}

std::vector<NamedFile> MadeByQt() {
    std::vector<NamedFile> All;
    const QColorSpace Wide(QColorSpace::DisplayP3);
    for (const auto& [Name, Format] :
         {std::pair("plain", QImage::Format_RGB32), std::pair("clear", QImage::Format_ARGB32),
          std::pair("fine", QImage::Format_RGBA64), std::pair("grey", QImage::Format_Grayscale8),
          std::pair("fine grey", QImage::Format_Grayscale16),
          std::pair("palette", QImage::Format_Indexed8),
          std::pair("two colours", QImage::Format_Mono)}) {
        const QImage Picture = Woven(Odd, Format);
        All.push_back({std::string("PNG, ") + Name, ByQt(Picture, "png")});
        All.push_back(
            {std::string("PNG with a profile, ") + Name, ByQt(WithColours(Picture, Wide), "png")});
        All.push_back({std::string("BMP, ") + Name, ByQt(Picture, "bmp")});
        All.push_back({std::string("WebP, ") + Name, ByQt(Picture, "webp")});
    }
    All.push_back({"WebP without a loss", ByQt(Woven(Odd), "webp", 100)});
    All.push_back({"WBMP", ByQt(Woven(Odd, QImage::Format_Mono), "wbmp")});
    return All;
}

void Add(std::vector<NamedFile>& To, const std::vector<NamedFile>& More) {
    for (const NamedFile& Each : More)
        if (!Each.Bytes.isEmpty()) To.push_back(Each);
}

}  // namespace

QImage Woven(QSize Size, QImage::Format Format) {
    QImage Picture(Size, QImage::Format_ARGB32);
    quint32 Noise = 1;
    for (int Y = 0; Y < Size.height(); ++Y) {
        auto* Line = reinterpret_cast<QRgb*>(Picture.scanLine(Y));
        for (int X = 0; X < Size.width(); ++X) {
            Noise = Noise * 1664525 + 1013904223;
            const int Grain = static_cast<int>(Noise >> 28);
            Line[X] = qRgba((X * 255 / Size.width() + Grain) & 255, (Y + Grain) & 255,
                            (X * Y / 64) & 255, Format == QImage::Format_RGB32 ? 255 : X & 255);
        }
    }
    return Picture.convertToFormat(Format);
}

QByteArray ByQt(const QImage& Picture, const char* Format, int Quality) {
    QByteArray Bytes;
    QBuffer Into(&Bytes);
    EXPECT_TRUE(Picture.save(&Into, Format, Quality)) << Format;
    return Bytes;
}

std::vector<NamedFile> MadeTiffs() {
    std::vector<NamedFile> All;
    for (const TiffKind& Kind : TiffKinds)
        Add(All, {{std::string("TIFF, ") + Kind.Name, Tiff(Kind)}});
    return All;
}

QByteArray FineTiff(QSize Size) {
    const harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("made.tif");
    TIFF* const Out = TIFFOpen(qPrintable(File), "w");
    Describe(Out, {"", PHOTOMETRIC_MINISBLACK, 1, 16, COMPRESSION_ADOBE_DEFLATE}, Size);
    TIFFSetField(Out, TIFFTAG_ROWSPERSTRIP, 1);
    QByteArray Row(qsizetype(Size.width()) * 2, '\x42');
    for (int Y = 0; Y < Size.height(); ++Y) {
        Row[Y % Row.size()] = static_cast<char>(Y);
        TIFFWriteEncodedStrip(Out, static_cast<quint32>(Y), Row.data(), Row.size());
    }
    TIFFClose(Out);
    return ReadFile(File);
}

std::vector<NamedFile> MadeHeifs() {
    std::vector<NamedFile> All;
    for (const QSize Size : {Odd, QSize(64, 64)}) {
        const std::string Name = std::to_string(Size.width());
        Add(All, {{"HEIC of " + Name, Heif(heif_compression_HEVC, Size)},
                  {"AVIF of " + Name, Heif(heif_compression_AV1, Size)}});
    }
    return All;
}

std::vector<NamedFile> MadeJpegs() {
    const QImage Picture = Woven(Odd);
    const QByteArray Plain = ByQt(Picture, "jpeg"), InPasses = Progressive(Picture);
    std::vector<NamedFile> All{
        {"JPEG", Plain},
        {"JPEG in passes", InPasses},
        {"JPEG, grey", ByQt(Woven(Odd, QImage::Format_Grayscale8), "jpeg")},
        {"JPEG in wide colours", ByQt(WithColours(Picture, QColorSpace::AdobeRgb), "jpeg")},
        {"JPEG of 12 megapixels", ByQt(Woven({4000, 3000}), "jpeg", 80)},
        {"JPEG with words", Noted(ByQt(Woven({640, 480}), "jpeg"), 6, {640, 480})}};
    for (int Turn = 1; Turn <= 8; ++Turn)
        for (const QByteArray& Each : {Plain, InPasses})
            All.push_back({"JPEG, turned " + std::to_string(Turn),
                           WithExif(Each, ExifBlock(Turn % 2, Turn))});
    return All;
}

std::vector<NamedFile> MadePictures() {
    std::vector<NamedFile> All = MadeByQt();
    Add(All, MadeJpegs());
    Add(All, MadeTiffs());
    Add(All, MadeHeifs());
    return All;
}

}  // namespace neb::tests
