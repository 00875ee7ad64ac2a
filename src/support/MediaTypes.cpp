#include "support/MediaTypes.h"

#include <algorithm>
#include <atomic>

#include "support/modFUFL.h"

namespace neb {
namespace {

std::atomic<bool> ExtraFormats = true;

// clang-format off
constexpr MediaType Pictures[] = {
    {"Windows Bitmap Images", "bmp"},
    {"Windows Enhanced Meta Files", "emf"},
    {"JPEG Images", "jpg jpeg"},
    {"Kodak (tm) PhotoCD Images", "pcd"},
    {"ZSoft PaintBrush Images", "pcx"},
    {"Portable Network Graphic Images", "png"},
    {"Photoshop Images", "psd"},
    {"Truevision Targa Images", "tga"},
    {"Tagged Image Files", "tif tiff"},
    {"TLA Images", "tla"},
    {"Wireless Bitmap Images", "wbmp"},
    {"Windows Meta Files", "wmf"},
    {"AVIF Images", "avif", true},
    {"GIF Images", "gif", true},
    {"HEIC Images", "heic heif hif", true},
    {"JPEG 2000 Images", "jp2 j2k jpf jpx", true},
    {"Multi-Picture Images", "mpo", true},
    {"WebP Images", "webp", true},
};
constexpr auto FirstExtra = std::find_if(std::begin(Pictures), std::end(Pictures),
                                         [](const MediaType& Type) { return Type.Extra; });

constexpr MediaType Sounds[] = {
    {"Wave Audio Files", "wav"},
    {"MP3 Audio Files", "mp3"},
    {"Ogg Audio Files", "ogg oga"},
    {"FLAC Audio Files", "flac"},
    {"AIFF Audio Files", "aif aiff"},
};
// clang-format on

QStringList ExtensionsOf(std::span<const MediaType> Types) {
    QStringList All;
    for (const MediaType& Type : Types)
        for (const QString& Ending : Type.Endings()) All << u'.' + Ending.toUpper();
    All.sort();
    return All;
}

// "*.tif;*.tiff"
QString MasksOf(const QStringList& Endings) {
    return QStringLiteral("*.") + Endings.join(QStringLiteral(";*."));
}

QString AllMasks(const QStringList& Extensions) {
    QStringList Endings;
    for (const QString& Extension : Extensions) Endings << Extension.toLower().sliced(1);
    return MasksOf(Endings);
}

QStringList FiltersOf(std::span<const MediaType> Types) {
    QStringList Filters;
    for (const MediaType& Type : Types) {
        const QString Masks = MasksOf(Type.Endings());
        Filters << QLatin1String(Type.Name) + QStringLiteral(" (") + Masks + QStringLiteral(")|") +
                       Masks;
    }
    return Filters;
}

}  // namespace

void SetExtraFormats(bool On) {
    ExtraFormats = On;
}

bool ExtraFormatsAreOn() {
    return ExtraFormats;
}

std::span<const MediaType> PictureTypes() {
    return {std::begin(Pictures), ExtraFormats ? std::end(Pictures) : FirstExtra};
}

const QStringList& PictureExtensions() {
    static const QStringList All = ExtensionsOf(Pictures);
    static const QStringList Plain = ExtensionsOf({std::begin(Pictures), FirstExtra});
    return ExtraFormats ? All : Plain;
}

bool IsPictureName(const QString& Name) {
    return PictureExtensions().contains(GetFileExt(Name).toUpper());
}

const QStringList& SoundExtensions() {
    static const QStringList All = ExtensionsOf(Sounds);
    return All;
}

bool IsSoundName(const QString& Name) {
    return SoundExtensions().contains(GetFileExt(Name).toUpper());
}

QString PictureFilters() {
    QStringList Filters = FiltersOf(PictureTypes());
    Filters << QStringLiteral("All Graphics Files|") + AllMasks(PictureExtensions());
    return Filters.join(u'|');
}

QString SoundFilters() {
    QStringList Filters = FiltersOf(Sounds);
    Filters.prepend(QStringLiteral("All Sound Files|") + AllMasks(SoundExtensions()));
    return Filters.join(u'|');
}

}  // namespace neb
