#include "windows/compose/modShowManagers.h"

#include "controls/forms/Tell.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "windows/compose/frmSlideShowDBM.h"

namespace neb {

void ShowSlideInManager(std::int32_t AlbumID, std::int32_t SlideShowID, std::int32_t SlideID) {
    for (const auto& Each : LoadedForms()) {
        const auto Open = std::dynamic_pointer_cast<frmSlideShowDBM>(Each);
        if (Open && Open->IsAbout(AlbumID, SlideShowID)) return Open->GoToSlide(SlideID);
    }
    const auto Manager = NewForm<frmSlideShowDBM>();
    Manager->LoadSlideShowMgr(AlbumID, SlideShowID);
    Manager->GoToSlide(SlideID);
}

std::optional<Announcement> DeleteShowAsked(std::int32_t AlbumID, std::int32_t SlideShowID,
                                            const QObject* Asker) {
    if (!AskYesNo(tr("Are you sure you want to delete the selected slide show?"),
                  tr("Delete Confirmation")))
        return std::nullopt;
    if (!DBEngine->GetAlbum(AlbumID)) {
        MsgBox(tr("Album not found."));
        return std::nullopt;
    }
    Answer<Announcement> Deleted = Changes(*DBEngine, Asker).DeleteShow(AlbumID, SlideShowID);
    if (!Tell(Deleted)) return std::nullopt;
    return std::move(*Deleted);
}

bool StoredShowWillDo() {
    return AskYesNo(tr("The changes to this slide show are not saved, and will not be in the "
                       "film. Make it of the show as it was last saved?"),
                    tr("Make a Film"));
}

}  // namespace neb
