#include "windows/compose/modShowManagers.h"

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

}  // namespace neb
