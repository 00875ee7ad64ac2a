// How the grid of the bulk slide manager is filled, what it says of the captions that are not
// stored, how many are set at once, and how it follows the other windows.
#include <QMenu>

#include "controls/fields/ComboBoxList.h"
#include "controls/grid/FlexGrid.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Grouped.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "ui_frmSlideMgrBulk.h"
#include "windows/lists/SlideRows.h"
#include "windows/lists/clsImageBuffer.h"
#include "windows/slides/FindRow.h"
#include "windows/slides/frmSetCaptions.h"
#include "windows/slides/frmSlideMgrBulk.h"

namespace neb {

// An album that changes while it is being shown is shown once more.
void frmSlideMgrBulk::Fill() {
    const auto Finder = std::make_shared<SlideFinder>();
    const auto Missing = std::make_shared<int>(0);
    mReading.Read({
        .Begin =
            [this] {
                mUi->flxAlbum->SetRows(0);
                return AlbumID() != 0 && HasAlbum();
            },
        .Keys = [this] { return SlidesToList(); },
        .MakeRow =
            [this, Finder, Missing](std::int32_t SlideID, int) {
                if (!AddSlideRow(*Finder, SlideID)) ++*Missing;
            },
        .IsThere = [this] { return ShownAlbum() != nullptr; },
        .Grids = {mUi->flxAlbum},
        .MayStop = true,
    });
    if (!IsLoaded()) return;
    ShowStatus();
    if (*Missing > 0) MsgBox(tr("Slide could not be found."));
}

std::optional<SlideReading::KeyList> frmSlideMgrBulk::SlidesToList() {
    clsNEBAlbum* Album = ShownAlbum();
    if (!Album) return {};
    Album->SortSlides();
    SlideReading::KeyList SlideIDs;
    for (const NameIndexEntry& Row : Album->SlideIndex) SlideIDs.push_back(Row.ID);
    return SlideIDs;
}

bool frmSlideMgrBulk::AddSlideRow(SlideFinder& Finder, std::int32_t SlideID) {
    const clsNEBSlide* Slide = Finder.Find(*ShownAlbum(), SlideID);
    if (Slide) ShowSlide(mUi->flxAlbum->AddItem(), *Slide);
    return Slide != nullptr;
}

// A caption that is being worked on stays.
void frmSlideMgrBulk::ShowSlide(int Row, const clsNEBSlide& Slide) {
    const QString Caption = mEdits.ShownOf(Slide);
    ShowSlideInRow(*mUi->flxAlbum, Row, AlbumID(), Slide, mReading.Window());
    mUi->flxAlbum->SetTextMatrix(Row, clsImageBuffer::ColText, Caption);
    ShowMark(Row);
}

void frmSlideMgrBulk::ShowMark(int Row) {
    const bool Edited = mEdits.All().contains(SlideIn(*mUi->flxAlbum, Row));
    mUi->flxAlbum->SetTextMatrix(Row, SlideColHeader, Edited ? QStringLiteral("*") : QString());
}

void frmSlideMgrBulk::ShowStatus() {
    if (mReading.IsReading()) return;
    const clsNEBAlbum* Album = ShownAlbum();
    const qsizetype Listed = mUi->flxAlbum->Rows(), Edited = EditedIDs().size();
    const auto All = Album ? std::ssize(Album->Slides) : Listed;
    QStringList Parts;
    if (Listed < All)
        Parts << tr("%1 of %2 slides are listed; Cancel lists them all")
                     .arg(Grouped(Listed), Grouped(All));
    else if (Listed > 0)
        Parts << (Listed == 1 ? tr("1 slide") : tr("%1 slides").arg(Grouped(Listed)));
    if (Listed > 0) Parts << tr("%1 selected").arg(Grouped(mUi->flxAlbum->SelectedRows()));
    if (Edited > 0)
        Parts << (Edited == 1 ? tr("1 caption (*) is not saved")
                              : tr("%1 captions (*) are not saved").arg(Grouped(Edited)));
    mUi->lblStatus->setText(Parts.join(QStringLiteral(", ")));
}

// While the user was asked rows may have gone; what was meant are slides.
void frmSlideMgrBulk::PutCaptions(const std::vector<std::int32_t>& SlideIDs,
                                  const QStringList& Captions) {
    std::vector<int> Rows;
    for (size_t I = 0; I < SlideIDs.size(); ++I) {
        const int Row = RowOfSlide(*mUi->flxAlbum, SlideIDs[I]);
        if (Row < 0) continue;
        mUi->flxAlbum->SetTextMatrix(Row, clsImageBuffer::ColText,
                                     Captions[static_cast<qsizetype>(I)]);
        Rows.push_back(Row);
    }
    NoteEdits(Rows);
}

void frmSlideMgrBulk::SetCaptions() {
    const std::vector<std::int32_t> SlideIDs = SelectedIDs();
    if (SlideIDs.empty()) return mUi->lblStatus->setText(tr("First select the slides to caption."));
    QStringList Present;
    for (const std::int32_t SlideID : SlideIDs)
        Present << mUi->flxAlbum->TextMatrix(RowOfSlide(*mUi->flxAlbum, SlideID),
                                             clsImageBuffer::ColText);
    const auto Captions = NewForm<frmSetCaptions>()->CaptionsFor(Present);
    if (!Captions || !IsLoaded()) return;
    PutCaptions(SlideIDs, *Captions);
    mUi->flxAlbum->setFocus();
}

void frmSlideMgrBulk::Find() {
    mUi->wdgFind->Open(false);
}

void frmSlideMgrBulk::reject() {
    if (mUi->wdgFind->isVisible()) return mUi->wdgFind->Close();
    Form::reject();
}

void frmSlideMgrBulk::FindToReplace() {
    mUi->wdgFind->Open(true);
}

void frmSlideMgrBulk::FindNext() {
    mUi->wdgFind->FindNext();
}

// At the pointer, or at the row that has the keyboard.
void frmSlideMgrBulk::ShowMenu(const QPoint& Place) {
    FlexGrid& Grid = *mUi->flxAlbum;
    const int Row = Grid.Row();
    QMenu Menu(this);
    const auto Add = [&](const QString& Text, bool Usable, std::function<void()> Do) {
        Menu.addAction(Text, this, [this, Do] { Command(Do); })->setEnabled(Usable);
    };
    const bool MayEdit = !ReadOnlyDB && Row >= 0;
    Add(tr("Edit &Caption	F2"), MayEdit,
        [&Grid, Row] { Grid.EditCell(Row, clsImageBuffer::ColText); });
    Add(tr("&Set Captions...	Shift+F2"), MayEdit, [this] { SetCaptions(); });
    Add(tr("&Find and Replace...	Ctrl+F"), Grid.Rows() > 0, [this] { Find(); });
    Menu.addSeparator();
    Add(tr("Show the &Picture	Enter"), Row >= 0, [this, Row] { ShowPicture(Row); });
    Add(tr("&Delete Slides	Del"), MayEdit, [this] { Delete(); });
    Menu.exec(Grid.viewport()->mapToGlobal(Place));
}

// Fills the grid anew for a change that came from elsewhere: what was selected and what was typed
// stays.
void frmSlideMgrBulk::Reload() {
    if (mReading.IsReading()) return Fill();
    FlexGrid& Grid = *mUi->flxAlbum;
    Grid.FinishEdit();
    const std::vector<std::int32_t> Selected = SelectedIDs();
    const std::int32_t Current = Grid.Row() >= 0 ? SlideIn(Grid, Grid.Row()) : 0;
    Fill();
    SelectAgain(Selected, Current);
}

void frmSlideMgrBulk::SelectAgain(const std::vector<std::int32_t>& SlideIDs,
                                  std::int32_t CurrentID) {
    FlexGrid& Grid = *mUi->flxAlbum;
    Grid.SetRedraw(false);
    for (std::int32_t SlideID : SlideIDs)
        if (const int Row = RowOfSlide(*mUi->flxAlbum, SlideID); Row >= 0) Grid.SelectRow(Row);
    Grid.SetRedraw(true);
    MakeCurrent(RowOfSlide(*mUi->flxAlbum, CurrentID));
}

void frmSlideMgrBulk::ReceiveEvent(const QString& ObjectType, const QString& EventType,
                                   const EventKeys& EventData) {
    static const struct {
        const char* EventType;
        void (frmSlideMgrBulk::*React)(const EventKeys& Keys);
    } Reactions[] = {
        {"Delete", &frmSlideMgrBulk::AlbumDeleted},
        {"Insert", &frmSlideMgrBulk::AlbumsChanged},
        {"Update", &frmSlideMgrBulk::AlbumsChanged},
        {"Add Slides", &frmSlideMgrBulk::SlidesAdded},
        {"Delete Slides", &frmSlideMgrBulk::SlidesDeleted},
    };
    if (ObjectType != u"Album" || EventData.empty()) return;
    for (const auto& Each : Reactions)
        if (EventType == QLatin1String(Each.EventType)) (this->*Each.React)(EventData);
}

void frmSlideMgrBulk::AlbumDeleted(const EventKeys& Keys) {
    const bool Shown = Keys[0] == AlbumID();
    ComboBoxList Albums(*mUi->cboAlbum);
    ComboRemoveByData(Albums, Keys[0]);
    if (Shown)
        ShowAlbum();
    else
        FollowAlbum();
}

void frmSlideMgrBulk::AlbumsChanged(const EventKeys& Keys) {
    const std::int32_t Shown = AlbumID();
    ListAlbums(Shown == 0 ? -1 : Shown);
    if (AlbumID() != Shown) return ShowAlbum();
    FollowAlbum();
    if (Shown != 0 && Shown == Keys[0]) Reload();
}

void frmSlideMgrBulk::SlidesAdded(const EventKeys& Keys) {
    const std::int32_t SlideID = Keys.size() > 1 ? Keys[1] : 0;
    if (Keys[0] != AlbumID()) return;
    if (SlideID == 0 || mReading.IsReading()) return Reload();
    clsNEBAlbum* Album = ShownAlbum();
    const clsNEBSlide* Slide = Album ? Album->GetSlide(SlideID) : nullptr;
    if (!Slide) return;
    mUi->flxAlbum->FinishEdit();
    const int Row = RowOfSlide(*mUi->flxAlbum, SlideID);
    ShowSlide(Row >= 0 ? Row : mUi->flxAlbum->AddItem(), *Slide);
}

// An editor that is open on another row would not be known as one any more, and its text be lost.
void frmSlideMgrBulk::SlidesDeleted(const EventKeys& Keys) {
    if (Keys[0] != AlbumID() || Keys.size() < 2) return;
    mUi->flxAlbum->FinishEdit();
    mEdits.Forget(Keys[1]);
    if (mReading.IsReading()) return Fill();
    if (const int Row = RowOfSlide(*mUi->flxAlbum, Keys[1]); Row >= 0)
        mUi->flxAlbum->RemoveItem(Row);
    ShowStatus();
}

}  // namespace neb
