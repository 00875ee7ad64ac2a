#include "intake/modAlbumNames.h"

#include <QLineEdit>
#include <chrono>
#include <future>

#include "db/modAlbumFiles.h"
#include "intake/frmAlbumDelete.h"
#include "intake/frmAlbumRename.h"
#include "platform/KeyFilter.h"
#include "settings/modNEBSlideShow.h"
#include "support/Services.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

constexpr std::chrono::milliseconds Pause(5);

// A host may take a quarter of a second to give back the room of a folder that held thousands of
// files, in one call.
void DropFolder(const QString& Folder, const std::function<void()>& Between) {
    const auto Gone = std::async(std::launch::async, [&Folder] { DeleteFolder(Folder); });
    while (Gone.wait_for(Pause) != std::future_status::ready) Between();
}

}  // namespace

bool ShowRenameAlbum(std::int32_t AlbumID) {
    const auto Window = NewForm<frmAlbumRename>();
    Window->SetAdjective(QStringLiteral("Album"));
    return Window->ShowRenameAlbum(AlbumID);
}

bool ShowDeleteAlbum(std::int32_t AlbumID) {
    return NewForm<frmAlbumDelete>()->ShowDeleteAlbum(AlbumID);
}

bool IsNameGiven(const QString& Adjective, const QString& Name) {
    if (!Name.trimmed().isEmpty()) return true;
    const QString Article = StartsWithVowel(Adjective) ? QStringLiteral("You must enter an ")
                                                       : QStringLiteral("You must enter a ");
    MsgBox(Article + Adjective + QStringLiteral(" name."), QStringLiteral("Invalid User Input"),
           BoxIcon::Information);
    return false;
}

void KeepQuotesClean(QLineEdit& Field) {
    new KeyFilter(&Field, &FixQuoteKey);
    QObject::connect(&Field, &QLineEdit::editingFinished, &Field, [&Field] {
        const QString Clean = ConvertQuotes(Field.text());
        if (Clean != Field.text()) Field.setText(Clean);
    });
}

void DeleteAlbumFiles(const QString& DBPath, std::int32_t AlbumID,
                      const std::function<void()>& Between) {
    const QString Album = AlbumFolder(DBPath, AlbumID);
    if (!IsLink(Album)) {
        for (const QString& Folder :
             {SoundTracksFolder(DBPath, AlbumID), SlidesFolder(DBPath, AlbumID)}) {
            DeleteFilesIn(Folder, Between);
            DropFolder(Folder, Between);
        }
    }
    DeleteFolder(Album);
}

}  // namespace neb
