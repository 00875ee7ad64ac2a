#include "windows/transfer/ViewerForm.h"

#include <QApplication>
#include <QPushButton>
#include <QScopedValueRollback>

#include "controls/fields/Icons.h"
#include "controls/forms/Tell.h"
#include "controls/forms/frmLoading.h"
#include "controls/grid/FlexGrid.h"
#include "db/modAlbumFiles.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/modCharacters.h"
#include "windows/frame/Openers.h"
#include "windows/lists/SlideRows.h"
#include "windows/lists/clsImageBuffer.h"
#include "windows/lists/frmPicturePopup.h"

namespace neb {
namespace {

// A list is there to be looked at: a picture that cannot be shown leaves its cell blank.
QImage ThumbnailOrNone(const QString& Path) {
    try {
        return ImageBuffer->Thumbnail(Path);
    } catch (const Fault&) {
        return {};
    }
}

}  // namespace

ViewerForm::ViewerForm(WindowMemory Memory, Texts Says)
    : mMemory(std::move(Memory)), mSays(std::move(Says)) {
    setWindowFlag(Qt::WindowMaximizeButtonHint);
}

ViewerForm::~ViewerForm() = default;

void ViewerForm::SetControls(FlexGrid& Grid, QPushButton& cmdClose) {
    mGrid = &Grid;
    SetSlideColumns(Grid, false);
    Grid.SetEditOnDblClick(false);
    connect(&Grid, &FlexGrid::CellDblClicked, this, &ViewerForm::ShowPicture);
    connect(&Grid, &FlexGrid::RowActivated, this, &ViewerForm::ShowPicture);
    cmdClose.setIcon(ThemeIcon("exit"));
    On(&cmdClose, &QPushButton::clicked, &ViewerForm::Close);
}

void ViewerForm::View(clsDBEngine& objDB, std::int32_t AlbumID, const QString& Names) {
    const auto Held = shared_from_this();
    mSubject = {&objDB, objDB.DBPath(), AlbumID};
    ShowTitle(Names);
    ShowWindow();
}

void ViewerForm::ShowTitle(const QString& Names) {
    setWindowTitle(mSays.Kind + QStringLiteral(" [") + InOwnDirection(mSubject.DBPath) + u':' +
                   InOwnDirection(Names) + u']');
}

// A modal window lets nobody at the windows beside it: whoever looks into a database from one gets
// this one above it. From elsewhere two of them can stand side by side to be compared.
void ViewerForm::ShowWindow() {
    if (QApplication::activeModalWidget())
        ShowModal();
    else if (TheOpeners().ShowAsChild)
        TheOpeners().ShowAsChild(*this);
    else
        ShowModeless();
}

void ViewerForm::Form_Load() {
    RestoreWindow(*this, mMemory);
    SlideReading::Order First = Reading();
    First.MakeRow = [this](std::int32_t Key, int Number) { AddSlideRowOrTell(Key, Number); };
    mReading.Read(First);
    mSubject.DB = nullptr;
    if (mGrid->Rows() > 0) mGrid->SetRow(0);
    FollowWaiting();
}

void ViewerForm::Refill(clsDBEngine& objDB) {
    if (!IsLoaded()) return;
    const QScopedValueRollback<clsDBEngine*> Asked(mSubject.DB, &objDB);
    Reload();
}

// A place that cannot be remembered must not keep the window open. A fill that is under way sees
// that the window has gone.
bool ViewerForm::Form_Unload() {
    try {
        SaveWindow(*this, mMemory);
    } catch (const Fault&) {
    }
    mReading.WindowClosed();
    return true;
}

clsNEBAlbum* ViewerForm::Album() const {
    return mSubject.DB ? mSubject.DB->GetAlbum(mSubject.AlbumID) : nullptr;
}

SlideReading::Order ViewerForm::Reading() {
    return {.Begin =
                [this] {
                    Clear();
                    return true;
                },
            .Keys = [this] { return Keys(); },
            .MakeRow = [this](std::int32_t Key, int Number) { (void)AddSlideRow(Key, Number); },
            .IsThere = [this] { return IsStillThere(); },
            .Grids = {mGrid},
            .Shows = SlideReading::Bar::Count,
            .MayStop = true};
}

void ViewerForm::Clear() {
    mGrid->SetRows(0);
    mGrid->SetEmptyText(mSays.Gone);
}

std::optional<SlideReading::KeyList> ViewerForm::Keys() {
    clsNEBAlbum* Shown = Album();
    auto Keys = Shown ? SortedKeys(*Shown) : std::nullopt;
    if (Keys) mGrid->SetEmptyText(mSays.Empty);
    return Keys;
}

// At each yield the album or the show may be deleted.
bool ViewerForm::IsStillThere() const {
    clsNEBAlbum* Shown = Album();
    return Shown && IsThere(*Shown);
}

Answer<ViewerForm::ViewedSlide> ViewerForm::AddSlideRow(std::int32_t Key, int Number) {
    Answer<ViewedSlide> Viewed = SlideOf(*Album(), Key, Number);
    if (Viewed) ShowSlide(mGrid->AddItem(), *Viewed);
    return Viewed;
}

void ViewerForm::AddSlideRowOrTell(std::int32_t Key, int Number) {
    const Answer<ViewedSlide> Added = AddSlideRow(Key, Number);
    if (!Added && !Added.Refusal().Text.isEmpty()) Tell(Added);
}

// The shared thumbnails are those of the main database.
void ViewerForm::ShowSlide(int Row, const ViewedSlide& Viewed) {
    if (mSubject.DBPath != DBEngine->DBPath()) return ShowForeignSlide(Row, Viewed);
    ShowSlideInRow(*mGrid, Row, mSubject.AlbumID, *Viewed.Slide, mReading.Window());
    mGrid->SetTextMatrix(Row, clsImageBuffer::ColText, Viewed.Caption);
}

void ViewerForm::ShowForeignSlide(int Row, const ViewedSlide& Viewed) {
    const QString Path = SlidePath(mSubject.DBPath, mSubject.AlbumID, Viewed.Slide->SlideLoc);
    SetSlideKeys(*mGrid, Row, Viewed.Slide->SlideID, Viewed.Caption);
    mGrid->SetTextMatrix(Row, clsImageBuffer::ColPath, Path);
    const QImage Thumbnail = ThumbnailOrNone(Path);
    mGrid->SetCellPicture(Row, clsImageBuffer::ColPicture, Thumbnail);
    mReading.Window()->ShowPicture(Thumbnail);
}

void ViewerForm::ShowPicture(int Row) {
    Command([this, Row] { PopUpPicture(mGrid->TextMatrix(Row, clsImageBuffer::ColPath)); });
}

void ViewerForm::ReceiveEvent(const QString& ObjectType, const QString& EventType,
                              const EventKeys& EventData) {
    const SlideReading::HeardChange Heard{ObjectType, EventType, EventData};
    if (!Concerns(Heard)) return;
    mReading.KeepForLater(Heard);
    if (!mReading.IsReading()) FollowWaiting();
}

// Of another database nobody tells.
bool ViewerForm::Concerns(const SlideReading::HeardChange& Heard) const {
    const EventKeys& Keys = Heard.Keys;
    if (!DBEngine || mSubject.DBPath != DBEngine->DBPath()) return false;
    if (Keys.empty() || Keys[0] != mSubject.AlbumID) return false;
    return Heard.ObjectType == u"Album" ||
           (SlideShowID() != 0 && Keys.size() > 1 && Keys[1] == SlideShowID());
}

void ViewerForm::FollowWaiting() {
    const auto Held = shared_from_this();
    while (IsLoaded() && DBEngine) {
        const auto Next = mReading.NextWaiting();
        if (!Next) return;
        const QScopedValueRollback<clsDBEngine*> Asked(mSubject.DB, DBEngine);
        Follow(*Next);
    }
}

// Slides are saved and deleted one by one, and a thousand in a row: each is followed by itself.
void ViewerForm::Follow(const SlideReading::HeardChange& Heard) {
    const std::int32_t SlideID = Heard.Keys.size() > 1 ? Heard.Keys[1] : 0;
    if (Heard.EventType == u"Delete")
        Clear();
    else if (Heard.EventType == u"Delete Slides")
        SlideDeleted(SlideID);
    else if (Heard.EventType == u"Add Slides" && SlideID != 0)
        SlideSaved(SlideID);
    else
        Reload();
}

void ViewerForm::Reload() {
    if (IsStillThere()) ShowTitle(NamesIn(*Album()));
    KeepingTheRow([this] { mReading.Read(Reading()); });
}

std::vector<int> ViewerForm::RowsOf(std::int32_t SlideID) const {
    std::vector<int> Rows;
    for (int Row = 0; Row < mGrid->Rows(); ++Row)
        if (SlideIn(*mGrid, Row) == SlideID) Rows.push_back(Row);
    return Rows;
}

// In an album another caption means another place; in a show a slide keeps its own, whatever
// caption it comes up with.
void ViewerForm::SlideSaved(std::int32_t SlideID) {
    const clsNEBSlide* Slide = IsStillThere() ? FindSlide(*Album(), SlideID) : nullptr;
    if (!Slide) return;
    const QStringList Captions = CaptionsOf(*Album(), *Slide);
    const std::vector<int> Rows = RowsOf(SlideID);
    const auto Count = static_cast<size_t>(Captions.size());
    const bool Moves = SlideShowID() == 0 && Rows.size() == 1 &&
                       mGrid->TextMatrix(Rows[0], clsImageBuffer::ColText) != Captions[0];
    if (Moves || Rows.size() != Count) return Reload();
    for (size_t I = 0; I < Count; ++I)
        ShowSlide(Rows[I], {Slide, Captions[static_cast<qsizetype>(I)]});
}

void ViewerForm::SlideDeleted(std::int32_t SlideID) {
    KeepingTheRow([this, SlideID] {
        for (int Row = mGrid->Rows() - 1; Row >= 0; --Row)
            if (SlideIn(*mGrid, Row) == SlideID) mGrid->RemoveItem(Row);
    });
}

// The chosen slide stays chosen; where it has gone, the one that has come to its place.
void ViewerForm::KeepingTheRow(const std::function<void()>& Change) {
    const int Was = mGrid->Row();
    const std::int32_t SlideID = Was >= 0 ? SlideIn(*mGrid, Was) : 0;
    Change();
    const int Last = mGrid->Rows() - 1;
    if (!IsLoaded() || Last < 0) return;
    const bool InPlace = Was >= 0 && Was <= Last && SlideIn(*mGrid, Was) == SlideID;
    const int Row = InPlace ? Was : RowOfSlide(*mGrid, SlideID);
    mGrid->SetRow(Row >= 0 ? Row : std::clamp(Was, 0, Last));
}

}  // namespace neb
