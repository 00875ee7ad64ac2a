#include "albums/library/ProposedName.h"

#include <QObject>

#include "db/clsDBEngine.h"
#include "support/modCharacters.h"
#include "support/modDEValidation.h"
#include "support/modFUFL.h"
#include "support/modText.h"

namespace neb {
namespace {

QString CutTo(qsizetype Length, const QString& Name) {
    return FirstUnits(Name, Length).trimmed();
}

// After the last separator but one that closes the path.
QString LastPart(const QString& Folder) {
    return GetFileName(IsSeparator(Folder.back()) ? Folder.chopped(1) : Folder);
}

// Line breaks and the like, which nobody can type into a name, are blanks in it.
QString NameOfFolder(const QString& Folder) {
    QString Name = Folder.isEmpty() ? QString() : ValidText(ReadableText(LastPart(Folder)));
    for (QChar& Each : Name)
        if (Each.category() == QChar::Other_Control) Each = u' ';
    Name = CutTo(MaxName, ConvertQuotes(Name.simplified()));
    return Name.isEmpty() ? QObject::tr("Pictures") : Name;  // of the root of a disk, say
}

}  // namespace

QString ProposedAlbumName(const QString& Folder, const clsDBEngine& In) {
    const QString Wanted = NameOfFolder(Folder);
    QString Name = Wanted;
    for (int Number = 2; In.FindAlbum(0, Name); ++Number) {
        const QString Behind = QStringLiteral(" (%1)").arg(Number);
        Name = CutTo(MaxName - Behind.size(), Wanted) + Behind;
    }
    return Name;
}

}  // namespace neb
