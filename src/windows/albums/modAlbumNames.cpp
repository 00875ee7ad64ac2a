#include "windows/albums/modAlbumNames.h"

#include <QLineEdit>

#include "controls/fields/KeyFilter.h"
#include "controls/fields/NameCount.h"
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

// What is cleaned is still what somebody typed.
void KeepNameClean(QLineEdit& Field) {
    new KeyFilter(&Field, &FixQuoteKey);
    new NameCount(&Field);
    QObject::connect(&Field, &QLineEdit::editingFinished, &Field, [&Field] {
        const QString Clean = CleanName(Field.text());
        if (Clean == Field.text()) return;
        const bool Typed = Field.isModified();
        Field.setText(Clean);
        Field.setModified(Typed);
    });
}

void ReturnTo(QLineEdit& Field) {
    Field.setFocus();
    Field.selectAll();
}

}  // namespace neb
