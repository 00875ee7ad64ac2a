#include "support/MediaTypes.h"

#include <algorithm>
#include <atomic>

#include "support/Texts.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

std::atomic<bool> ExtraFormats = true;

// clang-format off
constexpr MediaType Pictures[] = {
    {QT_TR_NOOP("Windows Bitmap Images"), "bmp"},
    {QT_TR_NOOP("Windows Enhanced Meta Files"), "emf"},
    {QT_TR_NOOP("JPEG Images"), "jpg jpeg"},
    {QT_TR_NOOP("Kodak (tm) PhotoCD Images"), "pcd"},
    {QT_TR_NOOP("ZSoft PaintBrush Images"), "pcx"},
    {QT_TR_NOOP("Portable Network Graphic Images"), "png"},
    {QT_TR_NOOP("Photoshop Images"), "psd"},
    {QT_TR_NOOP("Truevision Targa Images"), "tga"},
    {QT_TR_NOOP("Tagged Image Files"), "tif tiff"},
    {QT_TR_NOOP("TLA Images"), "tla"},
    {QT_TR_NOOP("Wireless Bitmap Images"), "wbmp"},
    {QT_TR_NOOP("Windows Meta Files"), "wmf"},
    {QT_TR_NOOP("AVIF Images"), "avif", true},
    {QT_TR_NOOP("GIF Images"), "gif", true},
    {QT_TR_NOOP("HEIC Images"), "heic heif hif", true},
    {QT_TR_NOOP("JPEG 2000 Images"), "jp2 j2k jpf jpx", true},
    {QT_TR_NOOP("Multi-Picture Images"), "mpo", true},
    {QT_TR_NOOP("WebP Images"), "webp", true},
};
constexpr auto FirstExtra = std::find_if(std::begin(Pictures), std::end(Pictures),
                                         [](const MediaType& Type) { return Type.Extra; });

constexpr MediaType Sounds[] = {
    {QT_TR_NOOP("Wave Audio Files"), "wav"},
    {QT_TR_NOOP("MP3 Audio Files"), "mp3"},
    {QT_TR_NOOP("Ogg Audio Files"), "ogg oga"},
    {QT_TR_NOOP("FLAC Audio Files"), "flac"},
    {QT_TR_NOOP("AIFF Audio Files"), "aif aiff"},
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
        Filters << tr(Type.Name) + QStringLiteral(" (") + Masks + QStringLiteral(")|") + Masks;
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
    Filters << tr("All Graphics Files|") + AllMasks(PictureExtensions());
    return Filters.join(u'|');
}

QString SoundFilters() {
    QStringList Filters = FiltersOf(Sounds);
    Filters.prepend(tr("All Sound Files|") + AllMasks(SoundExtensions()));
    return Filters.join(u'|');
}

}  // namespace neb
