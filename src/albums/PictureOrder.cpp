#include "albums/PictureOrder.h"

#include <QCollator>

#include "support/modFUFL.h"

namespace neb {
namespace {

QCollator MakeCollator() {
    QCollator Collator;
    Collator.setNumericMode(true);
    Collator.setCaseSensitivity(Qt::CaseInsensitive);
    return Collator;
}

}  // namespace

bool IsNamedBefore(const QString& PathA, const QString& PathB) {
    static thread_local const QCollator Collator = MakeCollator();
    const int Order = Collator.compare(PathA, PathB);
    return Order != 0 ? Order < 0 : PathA < PathB;
}

QString ProposedCaption(const QString& Path, const PictureFacts& Facts) {
    return Facts.Words.isEmpty() ? GetFileBaseName(Path) : Facts.Words;
}

}  // namespace neb
