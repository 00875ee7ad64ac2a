#include "windows/frame/AlbumInHand.h"

#include <QMdiArea>
#include <QMdiSubWindow>

#include "controls/forms/Form.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"

namespace neb {
namespace {

std::int32_t& LastChosen() {
    static std::int32_t AlbumID = 0;
    return AlbumID;
}

// Also while a menu is open, or another program in front.
bool IsCurrent(const Form& Window) {
    const auto* Frame = qobject_cast<QMdiSubWindow*>(Window.parentWidget());
    return Frame && Frame->mdiArea() && Frame->mdiArea()->currentSubWindow() == Frame;
}

std::int32_t AlbumOfCurrent() {
    for (const auto& Each : LoadedForms()) {
        const auto* Holder = dynamic_cast<const AlbumHolder*>(Each.get());
        if (Holder && IsCurrent(*Each)) return Holder->HeldAlbum();
    }
    return 0;
}

bool IsThere(std::int32_t AlbumID) {
    return AlbumID > 0 && DBEngine && DBEngine->GetAlbum(AlbumID);
}

}  // namespace

std::int32_t AlbumInHand() {
    for (const std::int32_t AlbumID : {AlbumOfCurrent(), LastChosen()})
        if (IsThere(AlbumID)) return AlbumID;
    return 0;
}

void NoteAlbumInHand(std::int32_t AlbumID) {
    if (AlbumID > 0) LastChosen() = AlbumID;
}

void ForgetAlbumInHand() {
    LastChosen() = 0;
}

}  // namespace neb
