#include "windows/albums/modAlbumNames.h"

#include <QLineEdit>

#include "albums/AlbumRemoval.h"
#include "controls/fields/KeyFilter.h"
#include "controls/fields/NameCount.h"
#include "controls/forms/ScreenPointer.h"
#include "controls/forms/Tell.h"
#include "db/Changes.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "windows/albums/frmAlbumDelete.h"
#include "windows/albums/frmAlbumRename.h"

namespace neb {
namespace {

// What is cleaned is still what somebody typed.
void CleanWhenLeft(QLineEdit& Field, QString (*Cleaned)(const QString&)) {
    new KeyFilter(&Field, &FixQuoteKey);
    QObject::connect(&Field, &QLineEdit::editingFinished, &Field, [&Field, Cleaned] {
        const QString Clean = Cleaned(Field.text());
        if (Clean == Field.text()) return;
        const bool Typed = Field.isModified();
        Field.setText(Clean);
        Field.setModified(Typed);
    });
}

}  // namespace

bool ShowRenameAlbum(std::int32_t AlbumID) {
    const auto Window = NewForm<frmAlbumRename>();
    Window->SetAdjective(tr("Album"));
    return Window->ShowRenameAlbum(AlbumID);
}

bool ShowDeleteAlbum(std::int32_t AlbumID) {
    return NewForm<frmAlbumDelete>()->ShowDeleteAlbum(AlbumID);
}

bool IsAlbumToBeDeleted() {
    return AskYesNo(tr("Are you sure you want to delete the selected Album?\n"
                       "If you proceed all the slides and slide shows within\nwill be lost."),
                    tr("Delete Confirmation"));
}

bool DeleteAlbumAsked(std::int32_t AlbumID) {
    if (!IsAlbumToBeDeleted()) return false;
    const PointerScope Working(Pointer::Hourglass);
    Changes Door(*DBEngine);
    Answer<Announcement> Deleted = Door.DeleteAlbum(AlbumID);
    if (!Tell(Deleted)) return false;
    if (DBEngine->IsSessionStored())
        DeleteAlbumFiles(Door, DBEngine->DBPath(), AlbumID, &DoEventsButInput);
    Deleted->Now();
    return true;
}

Answer<> CheckName(const QString& Adjective, const QString& Name) {
    if (!Name.trimmed().isEmpty()) return Done();
    const QString Text = StartsWithVowel(Adjective) ? tr("You must enter an %1 name.")
                                                    : tr("You must enter a %1 name.");
    return Refuse(Text.arg(Adjective), tr("Invalid User Input"));
}

void KeepQuotesClean(QLineEdit& Field) {
    CleanWhenLeft(Field, &ConvertQuotes);
}

void KeepNameClean(QLineEdit& Field) {
    new NameCount(&Field);
    CleanWhenLeft(Field, &CleanName);
}

void ReturnTo(QLineEdit& Field) {
    Field.setFocus();
    Field.selectAll();
}

}  // namespace neb
