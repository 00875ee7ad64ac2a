#include "albums/transfer/SuggestedName.h"

#include <QSet>

#include "support/modCharacters.h"
#include "support/modDEValidation.h"

namespace neb {
namespace {

// At most so long; never half a character, and no blank at the end.
QString Beginning(const QString& Whole, qsizetype Length) {
    if (Whole.size() <= Length) return Whole;
    QString Name = FirstUnits(Whole, Length);
    while (!Name.isEmpty() && Name.back().isSpace()) Name.chop(1);
    return Name;
}

QString Numbered(const QString& Name, int Number) {
    if (Number == 0) return Name;
    const QString Behind = u' ' + QString::number(Number);
    return Beginning(Name, MaxName - Behind.size()) + Behind;
}

QString FreeName(const QString& Name, const QStringList& Taken, int First) {
    QSet<QString> Names;
    for (const QString& Each : Taken) Names << CaselessName(Each);
    int Number = First;
    while (Names.contains(CaselessName(Numbered(Name, Number))))
        Number = Number == 0 ? 2 : Number + 1;
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
