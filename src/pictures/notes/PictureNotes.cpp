#include "pictures/notes/PictureNotes.h"

#include <exiv2/exiv2.hpp>
#include <mutex>

#include "pictures/formats/FileBlocks.h"
#include "pictures/notes/ExifBlock.h"
#include "pictures/notes/HeifBlocks.h"
#include "pictures/notes/JpegParts.h"

namespace neb {
namespace {

// No picture has as much to say; the rest is a small picture, or somebody's joke.
constexpr long LongestValue = 8000;
constexpr uint16_t LastOfPixels = 0x0103;  // the first tags of a TIFF picture are its layout

// The library's part for packets is not made for threads: one at a time works with it.
class Alone {
  public:
    Alone() {
        static std::once_flag Once;
        std::call_once(Once, [] {
            Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
            Exiv2::XmpParser::initialize(&Hold, &Guard());
        });
        Guard().lock();
    }
    ~Alone() { Guard().unlock(); }
    Alone(const Alone&) = delete;
    Alone& operator=(const Alone&) = delete;

  private:
    static std::recursive_mutex& Guard() {
        static std::recursive_mutex Only;
        return Only;
    }
    static void Hold(void* Lock, bool Locks) {
        auto* Of = static_cast<std::recursive_mutex*>(Lock);
        Locks ? Of->lock() : Of->unlock();
    }
};

const Exiv2::byte* BytesOf(QByteArrayView View) {
    return reinterpret_cast<const Exiv2::byte*>(View.data());
}

QByteArray BytesOf(const Exiv2::Blob& Blob) {
    return {reinterpret_cast<const char*>(Blob.data()), static_cast<qsizetype>(Blob.size())};
}

// What the blocks of a photograph are about, and not where the pixels of a TIFF lie, in the file
// or on a map.
bool IsOfPicture(const Exiv2::Exifdatum& Each, bool KeepsPlace) {
    constexpr uint16_t Layout[] = {0x0106, 0x0111, 0x0112, 0x0115, 0x0116, 0x0117, 0x011C, 0x013D,
                                   0x0140, 0x0142, 0x0143, 0x0144, 0x0145, 0x014A, 0x0152, 0x0153,
                                   0x015B, 0x0211, 0x0212, 0x0213, 0x0214, 0x02BC, 0x830E, 0x8480,
                                   0x8482, 0x83BB, 0x85D8, 0x8649, 0x87AF, 0x87B0, 0x87B1, 0x8769,
                                   0x8773, 0x8825, 0x927C, 0xA001, 0xA002, 0xA003, 0xA005};
    const std::string Group = Each.groupName();
    const uint16_t Tag = Each.tag();
    if (Each.size() > LongestValue) return false;
    if (Group == "GPSInfo") return KeepsPlace;
    if (Group == "Image" && (Tag <= LastOfPixels || Tag >= 0xC612)) return false;
    return (Group == "Image" || Group == "Photo") &&
           std::ranges::find(Layout, Tag) == std::end(Layout);
}

QByteArray ExifPart(const Exiv2::ExifData& All, QSize Pixels, bool KeepsPlace) {
    Exiv2::ExifData Kept;
    for (const auto& Each : All)
        if (IsOfPicture(Each, KeepsPlace)) Kept.add(Each);
    if (Kept.empty()) return {};
    Kept["Exif.Image.Orientation"] = uint16_t(1);
    Kept["Exif.Image.YCbCrPositioning"] = uint16_t(1);
    Kept["Exif.Photo.ColorSpace"] = uint16_t(1);
    Kept["Exif.Photo.PixelXDimension"] = uint32_t(Pixels.width());
    Kept["Exif.Photo.PixelYDimension"] = uint32_t(Pixels.height());
    Exiv2::Blob Block;
    Exiv2::ExifParser::encode(Block, Exiv2::littleEndian, Kept);
    return JpegPartOf(ExifMarker, ExifMark + BytesOf(Block));
}

bool TellsPlace(const std::string& Key) {
    const QString Name = QString::fromStdString(Key);
    for (const auto* Word : {"gps", "latitude", "longitude"})
        if (Name.contains(QLatin1String(Word), Qt::CaseInsensitive)) return true;
    return false;
}

bool TellsPixels(const std::string& Key) {
    constexpr const char* Starts[] = {"Xmp.tiff.Orientation",
                                      "Xmp.tiff.ImageWidth",
                                      "Xmp.tiff.ImageLength",
                                      "Xmp.exif.PixelXDimension",
                                      "Xmp.exif.PixelYDimension",
                                      "Xmp.exif.ColorSpace",
                                      "Xmp.photoshop.ICCProfile",
                                      "Xmp.xmp.Thumbnails",
                                      "Xmp.xmpNote",
                                      "Xmp.GCamera",
                                      "Xmp.Container",
                                      "Xmp.hdrgm",
                                      "Xmp.crs"};
    return std::ranges::any_of(Starts, [&](const char* Start) { return Key.starts_with(Start); });
}

template <class Test>
bool Erase(Exiv2::XmpData& From, Test Goes) {
    const long Before = From.count();
    for (auto At = From.begin(); At != From.end();)
        At = Goes(At->key()) ? From.erase(At) : std::next(At);
    return From.count() != Before;
}

QByteArray XmpPart(const Exiv2::XmpData& All) {
    std::string Packet;
    constexpr auto Form = Exiv2::XmpParser::useCompactFormat | Exiv2::XmpParser::omitAllFormatting;
    if (All.empty() || Exiv2::XmpParser::encode(Packet, All, Form) != 0) return {};
    return JpegPartOf(ExifMarker, XmpMark + QByteArray::fromStdString(Packet));
}

QByteArray IptcPart(const Exiv2::IptcData& All) {
    if (All.empty()) return {};
    const Exiv2::DataBuf Resource = Exiv2::Photoshop::setIptcIrb(nullptr, 0, All);
    return JpegPartOf(
        PhotoshopMarker,
        PhotoshopMark + QByteArray(reinterpret_cast<const char*>(Resource.pData_), Resource.size_));
}

// Nothing when the part cannot be made, which takes none of the others with it.
template <class Maker>
QByteArray OrNothing(Maker Make) try {
    return Make();
} catch (const std::exception&) {
    return {};
}

struct Said {
    Exiv2::ExifData Exif;
    Exiv2::XmpData Xmp;
    Exiv2::IptcData Iptc;
};

Said SaidBy(const QByteArray& File) {
    const auto Opened = Exiv2::ImageFactory::open(BytesOf(File), File.size());
    Opened->readMetadata();
    return {Opened->exifData(), Opened->xmpData(), Opened->iptcData()};
}

// The library knows too few of these files.
Said SaidByHeif(const QByteArray& File) {
    const HeifBlocks Blocks = BlocksOfHeif(File);
    Said Found;
    Exiv2::ExifParser::decode(Found.Exif, BytesOf(Blocks.Exif), uint32_t(Blocks.Exif.size()));
    Exiv2::XmpParser::decode(Found.Xmp, Blocks.Xmp.toStdString());
    return Found;
}

QByteArray XmpWithoutPlace(const JpegPart& Part, const QByteArray& AsItIs) {
    return OrNothing([&]() -> QByteArray {
        const Alone Now;
        Exiv2::XmpData All;
        if (Exiv2::XmpParser::decode(All, Part.Xmp().toByteArray().toStdString()) != 0) return {};
        return Erase(All, TellsPlace) ? XmpPart(All) : AsItIs;
    });
}

// Some programs keep the blocks once more among the resources.
QByteArray ResourcesWithoutPlace(const JpegPart& Part, const QByteArray& AsItIs) {
    QByteArray Kept = PhotoshopMark;
    qsizetype Behind = PhotoshopMark.size();
    for (const PhotoshopResource& Each : ResourcesIn(Part.Content.sliced(Behind))) {
        Behind += Each.Whole.size();
        if (Each.Kind != ExifResourceKind && Each.Kind != XmpResourceKind) Kept += Each.Whole;
    }
    Kept += Part.Content.sliced(Behind);
    return Kept == Part.Content ? AsItIs : JpegPartOf(PhotoshopMarker, Kept);
}

// What a camera or a program has in a form of its own, as proofs of origin are, and names the place
// in.
bool IsOtherThatTellsPlace(const JpegPart& Part) {
    constexpr int FirstOther = 0xE3, Colours = 0xEE, Comment = 0xFE;
    const bool IsOther = Part.Marker == Comment || (Part.Marker >= FirstOther &&
                                                    Part.Marker < Colours && !Part.IsPhotoshop());
    return IsOther && Part.Content.toByteArray().toLower().contains("latitude");
}

}  // namespace

QByteArray NotesFor(QSize Pixels, const QByteArray& Source, bool KeepsPlace) {
    return OrNothing([&] {
        const Alone Now;
        Said All = IsHeif(Source) ? SaidByHeif(Source) : SaidBy(Source);
        Erase(All.Xmp, TellsPixels);
        if (!KeepsPlace) Erase(All.Xmp, TellsPlace);
        return OrNothing([&] { return ExifPart(All.Exif, Pixels, KeepsPlace); }) +
               OrNothing([&] { return XmpPart(All.Xmp); }) +
               OrNothing([&] { return IptcPart(All.Iptc); });
    });
}

QByteArray WithoutPlace(const QByteArray& Jpeg) {
    const auto Parts = PartsOf(Jpeg);
    if (!Parts) return Jpeg;
    return WithParts(Jpeg, *Parts, [&](const JpegPart& Part) {
        const QByteArray AsItIs = Jpeg.mid(Part.At, Part.Length);
        if (Part.IsXmp()) return XmpWithoutPlace(Part, AsItIs);
        if (Part.IsMoreXmp() || IsOtherThatTellsPlace(Part)) return QByteArray();
        if (Part.IsPhotoshop()) return ResourcesWithoutPlace(Part, AsItIs);
        if (!Part.IsExif()) return AsItIs;
        QByteArray Block = Part.Exif().toByteArray();
        return ExifBlock(Block).DropPlace() ? ExifPartOf(Block) : AsItIs;
    });
}

}  // namespace neb
