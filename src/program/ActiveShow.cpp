#include "program/ActiveShow.h"

#include <QObject>
#include <algorithm>

#include "controls/forms/Tell.h"
#include "db/clsDBEngine.h"
#include "db/clsNEBAlbum.h"
#include "program/frmNEBSlideShow.h"
#include "settings/modNEBSlideShow.h"
#include "show/ShowSettings.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "windows/film/modFilms.h"
#include "windows/frame/Openers.h"
#include "windows/rehearsal/modRehearsals.h"
#include "windows/show/modSlideShows.h"

namespace neb {
namespace {

constexpr char Title[] = QT_TR_NOOP("No Active Slide Show");

bool HasSlideShows() {
    return std::ranges::any_of(DBEngine->Albums,
                               [](const auto& Album) { return !Album->SlideShows.empty(); });
}

bool Offer(const QString& Text, const QString& Words) {
    return ShowBox({.Text = Text,
                    .Title = tr(Title),
                    .Icon = BoxIcon::Information,
                    .Buttons = BoxButtons::YesNo,
                    .Default = BoxAnswer::Yes,
                    .YesWords = Words,
                    .NoWords = QObject::tr("Cancel")}) == BoxAnswer::Yes;
}

// Albums without a show have their pictures in already: what is wanting is the composing.
void OfferToMakeOne(frmNEBSlideShow& Main) {
    if (ReadOnlyDB) {
        MsgBox(
            QObject::tr("There is no slide show among these albums, and they cannot be changed."),
            tr(Title), BoxIcon::Information);
        return;
    }
    const bool HasAlbums = !DBEngine->Albums.empty();
    const QString Where = HasAlbums
                              ? QObject::tr(
                                    "The Slide Show Manager composes one from the slides "
                                    "of an album.")
                              : QObject::tr("Quick Show turns a folder of pictures into one.");
    if (!Offer(QObject::tr("There is no slide show yet. %1").arg(Where),
               QObject::tr("&Make One...")))
        return;
    if (HasAlbums)
        TheOpeners().SlideShowMgr(0, 0);
    else
        Main.OpenQuickShow();
}

// SlideShowID 0: there is none, and what the user wants instead has been opened.
ActiveShow ChosenActiveShow(frmNEBSlideShow& Main) {
    const ActiveShow Active = ReadActiveShow(OpenSettings());
    if (Active.SlideShowID != 0) return Active;
    if (!HasSlideShows()) {
        OfferToMakeOne(Main);
        return {};
    }
    if (!Offer(tr("You must first select an Active Slide Show in Preferences!"),
               QObject::tr("&Choose One...")))
        return {};
    EditSlideShowPreferences();
    return ReadActiveShow(OpenSettings());
}

}  // namespace

void PlayActiveShow(frmNEBSlideShow& Main) {
    ActiveShow Active = ChosenActiveShow(Main);
    if (Active.SlideShowID == 0) return;
    QString AlbumName;
    if (Active.AlbumID > 0 && !DBEngine->LoadAlbum(Active.AlbumID, AlbumName)) return;
    RunSlideShow(Active.AlbumID, AlbumName, Active.SlideShowID);
}

void RehearseActiveShow(frmNEBSlideShow& Main) {
    const ActiveShow Active = ChosenActiveShow(Main);
    if (Active.SlideShowID != 0) ShowRehearsal(Active.AlbumID, Active.SlideShowID);
}

void FilmActiveShow(frmNEBSlideShow& Main) {
    const ActiveShow Active = ChosenActiveShow(Main);
    if (Active.SlideShowID != 0) ShowFilm(Active.AlbumID, Active.SlideShowID);
}

}  // namespace neb
