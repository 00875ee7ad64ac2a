#include "windows/albums/modAlbumNames.h"

#include <QLineEdit>

#include "controls/fields/KeyFilter.h"
#include "settings/modNEBSlideShow.h"
#include "windows/albums/frmAlbumDelete.h"
#include "windows/albums/frmAlbumRename.h"

namespace neb {

bool ShowRenameAlbum(std::int32_t AlbumID) {
    const auto Window = NewForm<frmAlbumRename>();
    Window->SetAdjective(QStringLiteral("Album"));
    return Window->ShowRenameAlbum(AlbumID);
}

bool ShowDeleteAlbum(std::int32_t AlbumID) {
    return NewForm<frmAlbumDelete>()->ShowDeleteAlbum(AlbumID);
}

Answer<> CheckName(const QString& Adjective, const QString& Name) {
    if (!Name.trimmed().isEmpty()) return Done();
    const QString Article = StartsWithVowel(Adjective) ? QStringLiteral("You must enter an ")
                                                       : QStringLiteral("You must enter a ");
    return Refuse(Article + Adjective + QStringLiteral(" name."),
                  QStringLiteral("Invalid User Input"));
}

void KeepQuotesClean(QLineEdit& Field) {
    new KeyFilter(&Field, &FixQuoteKey);
    QObject::connect(&Field, &QLineEdit::editingFinished, &Field, [&Field] {
        const QString Clean = ConvertQuotes(Field.text());
        if (Clean != Field.text()) Field.setText(Clean);
    });
}

}  // namespace neb
