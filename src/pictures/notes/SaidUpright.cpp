#include "pictures/notes/SaidUpright.h"

#include <QRegularExpression>

#include "pictures/notes/ExifBlock.h"
#include "pictures/notes/JpegParts.h"

namespace neb {
namespace {

// One letter for another: the length stays.
QByteArray XmpUpright(QByteArray Part) {
    static const QRegularExpression Lying(QStringLiteral("tiff:Orientation\\W+([2-8])"));
    auto Each = Lying.globalMatch(QString::fromLatin1(Part));
    while (Each.hasNext()) Part[Each.next().capturedStart(1)] = '1';
    return Part;
}

}  // namespace

QByteArray SaidUpright(const QByteArray& Jpeg) {
    const auto Parts = PartsOf(Jpeg);
    if (!Parts) return Jpeg;
    return WithParts(Jpeg, *Parts, [&](const JpegPart& Part) {
        const QByteArray AsItIs = Jpeg.mid(Part.At, Part.Length);
        if (Part.IsXmp()) return XmpUpright(AsItIs);
        if (!Part.IsExif()) return AsItIs;
        QByteArray Block = Part.Exif().toByteArray();
        ExifBlock(Block).SetUpright(Parts->Stored);
        return ExifPartOf(Block);
    });
}

}  // namespace neb
