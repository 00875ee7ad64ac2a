#include "windows/show/modSlideShows.h"

#include <QGuiApplication>
#include <algorithm>
#include <cstdlib>
#include <optional>

#include "db/clsDBEngine.h"
#include "settings/SettingKeys.h"
#include "settings/modNEBSlideShow.h"
#include "show/ShowSettings.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "windows/frame/modNotice.h"
#include "windows/show/frmPreferences.h"
#include "windows/show/frmSlideShowProjector.h"

namespace neb {
namespace {

// In the show as it was saved, where a slide may stand more than once: the one nearest to Place; 1
// for a slide that is not in it.
std::int32_t PlaceInShow(std::int32_t AlbumID, std::int32_t SlideShowID, std::int32_t SlideID,
                         std::int32_t Place) {
    const clsNEBAlbum* Album = DBEngine ? DBEngine->GetAlbum(AlbumID) : nullptr;
    const clsNEBSlideShow* Show = Album ? Album->GetSlideShow(SlideShowID) : nullptr;
    if (!Show) return 1;
    std::optional<std::int32_t> Nearest;
    for (const auto& Each : Show->Details)
        if (Each->SlideID == SlideID &&
            (!Nearest || std::abs(Each->SlideSeq - Place) < std::abs(*Nearest - Place)))
            Nearest = Each->SlideSeq;
    return Nearest.value_or(1);
}

bool IsThere(const ActiveShow& Active) {
    const clsNEBAlbum* Album = DBEngine ? DBEngine->GetAlbum(Active.AlbumID) : nullptr;
    return Album && Active.SlideShowID != 0 && Album->GetSlideShow(Active.SlideShowID);
}

}  // namespace

bool IsShowUp() {
    const auto Loaded = LoadedForms();
    return std::any_of(Loaded.begin(), Loaded.end(), [](const auto& Window) {
        return dynamic_cast<const frmSlideShowProjector*>(Window.get());
    });
}

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

void MakeActiveWhereNoneIs(std::int32_t AlbumID, std::int32_t SlideShowID) {
    clsSettings Settings = OpenSettings();
    const ActiveShow Active = ReadActiveShow(Settings);
    if (IsThere(Active) || ReadOnlyDB) return;
    PutNumber(Settings, Setting::ActiveAlbum, AlbumID);
    PutNumber(Settings, Setting::ActiveSlideShow, SlideShowID);
    PutNumber(Settings, Setting::NextSlideSeq, 0);
    try {
        Settings.Save();
    } catch (const Fault& Problem) {
        ShowNotice(Problem.Text());  // the show runs all the same
    }
}

void ViewSlideShow(std::int32_t AlbumID, const QString& AlbumName, std::int32_t SlideShowID,
                   std::int32_t SlideInHand, std::int32_t Place) {
    if (AlbumID == 0 || SlideShowID == 0) {
        MsgBox(tr("You must first select a Slide Show to View."), tr("Missing User Input"));
        return;
    }
    const bool FromHere = QGuiApplication::keyboardModifiers() & Qt::ShiftModifier;
    const std::int32_t Begin = FromHere ? PlaceInShow(AlbumID, SlideShowID, SlideInHand, Place) : 1;
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
