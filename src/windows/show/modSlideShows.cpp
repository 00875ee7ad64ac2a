#include "windows/show/modSlideShows.h"

#include <QGuiApplication>
#include <algorithm>

#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "windows/show/frmPreferences.h"
#include "windows/show/frmSlideShowProjector.h"

namespace neb {
namespace {

// In the show as it was saved; 1 for a slide that is not in it.
std::int32_t PlaceInShow(std::int32_t AlbumID, std::int32_t SlideShowID, std::int32_t SlideID) {
    const clsNEBAlbum* Album = DBEngine ? DBEngine->GetAlbum(AlbumID) : nullptr;
    const clsNEBSlideShow* Show = Album ? Album->GetSlideShow(SlideShowID) : nullptr;
    if (!Show) return 1;
    const auto Found = std::find_if(Show->Details.begin(), Show->Details.end(),
                                    [&](const auto& Each) { return Each->SlideID == SlideID; });
    return Found == Show->Details.end() ? 1 : (*Found)->SlideSeq;
}

}  // namespace

void RunSlideShow(std::int32_t AlbumID, const QString& AlbumName, std::int32_t SlideShowID,
                  std::int32_t BeginAt) {
    RunSlideShowIn(DesktopShowWorld(), AlbumID, AlbumName, SlideShowID, BeginAt);
}

void RunSlideShowIn(const ShowWorld& World, std::int32_t AlbumID, const QString& AlbumName,
                    std::int32_t SlideShowID, std::int32_t BeginAt) {
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

void ViewSlideShow(std::int32_t AlbumID, const QString& AlbumName, std::int32_t SlideShowID,
                   std::int32_t SlideInHand) {
    if (AlbumID == 0 || SlideShowID == 0) {
        MsgBox(QStringLiteral("You must first select a Slide Show to View."),
               QStringLiteral("Missing User Input"));
        return;
    }
    const bool FromHere = QGuiApplication::keyboardModifiers() & Qt::ShiftModifier;
    const std::int32_t Begin = FromHere ? PlaceInShow(AlbumID, SlideShowID, SlideInHand) : 1;
    RunSlideShow(AlbumID, AlbumName, SlideShowID, Begin);
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
