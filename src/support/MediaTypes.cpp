#include "support/MediaTypes.h"

#include "support/modFUFL.h"

namespace neb {
namespace {

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
};

constexpr MediaType Sounds[] = {
    {"Wave Audio Files", "wav"},
    {"MP3 Audio Files", "mp3"},
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

std::span<const MediaType> PictureTypes() {
    return Pictures;
}

const QStringList& PictureExtensions() {
    static const QStringList All = ExtensionsOf(Pictures);
    return All;
}

bool IsPictureName(const QString& Name) {
    return PictureExtensions().contains(GetFileExt(Name).toUpper());
}

bool IsSoundName(const QString& Name) {
    static const QStringList All = ExtensionsOf(Sounds);
    return All.contains(GetFileExt(Name).toUpper());
}

QString PictureFilters() {
    QStringList All;
    for (const QString& Extension : PictureExtensions()) All << Extension.toLower().sliced(1);
    QStringList Filters = FiltersOf(Pictures);
    Filters << QStringLiteral("All Graphics Files|") + MasksOf(All);
    return Filters.join(u'|');
}

QString SoundFilters() {
    QStringList All;
    for (const MediaType& Type : Sounds) All << Type.Endings();
    const QString Masks = MasksOf(All);
    const QString First = QStringLiteral("All Sound Files (%1)|%1").arg(Masks);
    return (QStringList(First) + FiltersOf(Sounds)).join(u'|');
}

}  // namespace neb
