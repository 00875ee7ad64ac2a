#include "windows/home/CardDeeds.h"

#include "albums/modSaveShow.h"
#include "controls/forms/Tell.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Texts.h"
#include "windows/albums/frmGetObjectName.h"
#include "windows/albums/modAlbumNames.h"
#include "windows/compose/modShowManagers.h"
#include "windows/film/modFilms.h"
#include "windows/frame/Openers.h"
#include "windows/frame/modNotice.h"
#include "windows/home/HomeCards.h"
#include "windows/printing/frmPrintAlbum.h"
#include "windows/printing/modPrinting.h"
#include "windows/rehearsal/modRehearsals.h"
#include "windows/slides/frmSlideDBM.h"
#include "windows/slides/frmSlideMgrBulk.h"
#include "windows/transfer/frmAlbumExport.h"
#include "windows/transfer/frmAlbumView.h"
#include "windows/transfer/frmSlideShowExport.h"
#include "windows/transfer/frmSlideShowView.h"

namespace neb {
namespace {

using Kind = HomeCard::Kind;

bool IsAlbum(const HomeCard& Card) {
    return Card.What == Kind::Album;
}

bool IsShow(const HomeCard& Card) {
    return Card.What == Kind::Show;
}

bool IsSlide(const HomeCard& Card) {
    return Card.What == Kind::Slide;
}

bool IsNoShow(const HomeCard& Card) {
    return !IsShow(Card);
}

bool IsNoSlide(const HomeCard& Card) {
    return !IsSlide(Card);
}

QString AlbumName(const HomeCard& Card) {
    const clsNEBAlbum* Album = DBEngine->GetAlbum(Card.Of.AlbumID);
    return Album ? Album->AlbumName : QString();
}

void View(const HomeCard& Card) {
    if (IsAlbum(Card))
        return NewForm<frmAlbumView>()->ViewAlbum(*DBEngine, Card.Of.AlbumID, Card.Name);
    NewForm<frmSlideShowView>()->ViewSlideShow(*DBEngine, Card.Of.AlbumID, AlbumName(Card),
                                               Card.Of.SlideShowID, Card.Name);
}

void Edit(const HomeCard& Card) {
    if (!IsShow(Card))
        return NewForm<frmSlideDBM>()->LoadSlideMgr(Card.Of.AlbumID, Card.Of.SlideID);
    if (TheOpeners().SlideShowMgr) TheOpeners().SlideShowMgr(Card.Of.AlbumID, Card.Of.SlideShowID);
}

void EditCaptions(const HomeCard& Card) {
    NewForm<frmSlideMgrBulk>()->LoadAlbumMgr(Card.Of.AlbumID);
}

void Compose(const HomeCard& Card) {
    if (TheOpeners().SlideShowMgr) TheOpeners().SlideShowMgr(Card.Of.AlbumID, 0);
}

void Rehearse(const HomeCard& Card) {
    ShowRehearsal(Card.Of.AlbumID, Card.Of.SlideShowID);
}

void MakeFilm(const HomeCard& Card) {
    ShowFilm(Card.Of.AlbumID, Card.Of.SlideShowID);
}

// A name that is refused keeps its window.
void RenameShow(const HomeCard& Card) {
    const auto MayBe = [&Card](const QString& Name) -> Answer<> {
        const clsNEBAlbum* Album = DBEngine->GetAlbum(Card.Of.AlbumID);
        return Album ? CheckShowName(*Album, Card.Of.SlideShowID, Name) : Done();
    };
    const auto Window = NewForm<frmGetObjectName>();
    Window->SetAdjective(tr("Slide Show"));
    Window->setWindowTitle(QObject::tr("Rename Slide Show"));
    const QString Name = Window->GetObjectName(Card.Name, MayBe);
    if (!Name.isEmpty()) Tell(RenameShow(*DBEngine, Card.Of.AlbumID, Card.Of.SlideShowID, Name));
}

void Rename(const HomeCard& Card) {
    IsShow(Card) ? RenameShow(Card) : void(ShowRenameAlbum(Card.Of.AlbumID));
}

void Print(const HomeCard& Card) {
    if (IsShow(Card)) return ShowPrintSlideShow(Card.Of.AlbumID, Card.Of.SlideShowID);
    NewForm<frmPrintAlbum>()->PrintAlbum(Card.Of.AlbumID);
}

void Export(const HomeCard& Card) {
    if (!TheOpeners().ShowAsChild) return;
    const std::shared_ptr<TransferForm> Window =
        IsShow(Card) ? std::shared_ptr<TransferForm>(NewForm<frmSlideShowExport>())
                     : NewForm<frmAlbumExport>();
    TheOpeners().ShowAsChild(*Window);
    Window->Propose(Card.Of.AlbumID, Card.Of.SlideShowID);
}

void Delete(const HomeCard& Card) {
    if (IsAlbum(Card)) return void(DeleteAlbumAsked(Card.Of.AlbumID));
    if (auto Deleted = DeleteShowAsked(Card.Of.AlbumID, Card.Of.SlideShowID)) Deleted->Now();
}

constexpr CardDeed Deeds[] = {
    {"mnuCardPlay", QT_TR_NOOP("&Play"), "", "slide-show-play", false, &IsShow, nullptr},
    {"mnuCardOpen", QT_TR_NOOP("&Open"), "", "open", false, &IsNoShow, nullptr, true},
    {"mnuCardView", QT_TR_NOOP("&View"), "", "album", false, &IsNoSlide, &View},
    {"mnuCardEdit", QT_TR_NOOP("&Edit"), "", "slide-manager", true, &IsNoSlide, &Edit},
    {"mnuCardEditSlide", QT_TR_NOOP("&Edit Slide"), "", "slide-manager", true, &IsSlide, &Edit},
    {"mnuCardCaptions", QT_TR_NOOP("Edit &Captions"), "", "slide-manager-bulk", true, &IsAlbum,
     &EditCaptions},
    {"mnuCardCompose", QT_TR_NOOP("Compose a &Slide Show"), "", "slide-show-manager", true,
     &IsAlbum, &Compose},
    {"mnuCardRehearse", QT_TR_NOOP("Re&hearse"), "", "find-graphics", false, &IsShow, &Rehearse},
    {"mnuCardFilm", QT_TR_NOOP("&Make a Film..."), "", "film", false, &IsShow, &MakeFilm, true},
    {"mnuCardRename", QT_TR_NOOP("&Rename..."), "F2", "album-rename", true, &IsNoSlide, &Rename},
    {"mnuCardPrint", QT_TR_NOOP("Pr&int..."), "", "print", false, &IsNoSlide, &Print},
    {"mnuCardExport", QT_TR_NOOP("E&xport..."), "", "export", false, &IsNoSlide, &Export, true},
    {"mnuCardDelete", QT_TR_NOOP("&Delete..."), "Del", "delete", true, &IsNoSlide, &Delete},
};

}  // namespace

std::span<const CardDeed> CardDeeds() {
    return Deeds;
}

bool IsOffered(const CardDeed& Deed, const HomeCard& Card) {
    return Deed.Fits(Card) && !(Deed.Changes && ReadOnlyDB);
}

void DoDeed(const CardDeed& Deed, const HomeCard& Card) {
    if (!DBEngine || !Deed.Do || !IsOffered(Deed, Card)) return;
    try {
        Deed.Do(Card);
    } catch (const Fault& Problem) {
        ShowNotice(Problem.Text());
    }
}

}  // namespace neb
