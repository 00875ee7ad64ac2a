#include "windows/show/modSlideShows.h"

#include <algorithm>

#include "support/Fault.h"
#include "windows/show/frmPreferences.h"
#include "windows/show/frmSlideShowProjector.h"

namespace neb {
namespace {

// From the moment that it begins to load.
bool IsShowUp() {
    const auto Loaded = LoadedForms();
    return std::any_of(Loaded.begin(), Loaded.end(), [](const auto& Window) {
        return dynamic_cast<const frmSlideShowProjector*>(Window.get());
    });
}

}  // namespace

void RunSlideShow(std::int32_t AlbumID, const QString& AlbumName, std::int32_t SlideShowID,
                  std::int32_t BeginAt) {
    RunSlideShowIn(DesktopShowWorld(), AlbumID, AlbumName, SlideShowID, BeginAt);
}

void RunSlideShowIn(const ShowWorld& World, std::int32_t AlbumID, const QString& AlbumName,
                    std::int32_t SlideShowID, std::int32_t BeginAt) {
    if (IsShowUp()) return;
    const auto Projector = NewForm<frmSlideShowProjector>(World);
    Projector->SetAlbumID(AlbumID);
    Projector->SetAlbumName(AlbumName);
    Projector->BeginAt(BeginAt);
    try {
        Projector->LoadSlideShow(SlideShowID);
    } catch (const Fault&) {
        // a show that cannot run ends, and the window that started it goes on
    }
}

void EditSlideShowPreferences() {
    const auto Preferences = NewForm<frmPreferences>();
    try {
        Preferences->LoadPreferences();
    } catch (const Fault&) {
        // a show goes on with the settings that it has
    }
    SlideTimeout = Preferences->SlideTimeout();
}

}  // namespace neb
