#include "albums/transfer/SuggestedName.h"

#include <QSet>

namespace neb {
namespace {

constexpr qsizetype MaxName = 80;  // as wide as its field in the record

// At most so long; never half a letter, and no blank at the end.
QString Head(QString Name, qsizetype Length) {
    if (Name.size() <= Length) return Name;
    Name.truncate(Length);
    if (Name.back().isHighSurrogate()) Name.chop(1);
    while (!Name.isEmpty() && Name.back().isSpace()) Name.chop(1);
    return Name;
}

QString Numbered(const QString& Name, int Number) {
    if (Number == 0) return Name;
    const QString Behind = u' ' + QString::number(Number);
    return Head(Name, MaxName - Behind.size()) + Behind;
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
