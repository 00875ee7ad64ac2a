#include "albums/transfer/SuggestedName.h"

#include <QSet>

namespace neb {
namespace {

QString Numbered(const QString& Name, int Number) {
    return Number > 0 ? Name + u' ' + QString::number(Number) : Name;
}

QString FreeName(const QString& Name, const QStringList& Taken, int First) {
    QSet<QString> Names;
    for (const QString& Each : Taken) Names << Each.toUpper();
    int Number = First;
    while (Names.contains(Numbered(Name, Number).toUpper())) Number = Number == 0 ? 2 : Number + 1;
    return Numbered(Name, Number);
}

}  // namespace

QString SuggestAlbumName(const std::optional<QString>& Source, const QStringList& Taken,
                         bool InSameDatabase) {
    return Source ? FreeName(*Source, Taken, InSameDatabase ? 2 : 0) : QString();
}

QString SuggestSlideShowName(const std::optional<QString>& Source, const QStringList& Taken,
                             bool InSameDatabase) {
    return SuggestAlbumName(Source, Taken, InSameDatabase);
}

}  // namespace neb
