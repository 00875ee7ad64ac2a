#include "windows/transfer/ViewerForm.h"

#include <QApplication>
#include <QProgressBar>
#include <QPushButton>

#include "controls/fields/Icons.h"
#include "controls/forms/ScreenPointer.h"
#include "controls/forms/frmLoading.h"
#include "controls/grid/FlexGrid.h"
#include "db/modAlbumFiles.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Services.h"
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
    connect(&cmdClose, &QPushButton::clicked, this, [this] { Unload(); });
}

void ViewerForm::View(clsDBEngine& objDB, std::int32_t AlbumID, const QString& Title) {
    const auto Held = shared_from_this();
    mDB = &objDB;
    mDBPath = objDB.DBPath();
    mAlbumID = AlbumID;
    setWindowTitle(Title);
    ShowWindow();
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
    mLoadingForm = NewForm<frmLoading>();
    const auto Shown = mLoadingForm;
    Shown->ShowProgressMeter(*this);
    mDB = nullptr;
    if (mGrid->Rows() > 0) mGrid->SetRow(0);
}

// A place that cannot be remembered must not keep the window open. A fill that is under way sees
// that the window has gone.
bool ViewerForm::Form_Unload() {
    try {
        SaveWindow(*this, mMemory);
    } catch (const Fault&) {
    }
    if (mLoadingForm) std::exchange(mLoadingForm, nullptr)->ClearParent();
    return true;
}

clsNEBAlbum* ViewerForm::Album() const {
    return mDB ? mDB->GetAlbum(mAlbumID) : nullptr;
}

void ViewerForm::DoActivity() {
    const auto Held = shared_from_this();
    const PointerScope Working(Pointer::Hourglass);
    Fill();
}

void ViewerForm::Fill() {
    mGrid->SetRows(0);
    mGrid->SetEmptyText(mSays.Gone);
    DoEvents();
    if (!IsLoaded()) return;
    clsNEBAlbum* Shown = Album();
    const auto Keys = Shown ? SortedKeys(*Shown) : std::nullopt;
    if (!Keys) return;
    if (Keys->empty()) mGrid->SetEmptyText(mSays.Empty);
    FillRows(*Keys);
}

void ViewerForm::FillRows(const std::vector<std::int32_t>& Keys) {
    const auto Loading = mLoadingForm;
    const int Count = static_cast<int>(Keys.size());
    Loading->pgbLoadingProgress()->setMaximum(std::max(Count, 1));  // 0 would not be a bar
    MoveBar(*Loading, 0);
    mGrid->SetRedraw(false);
    for (int I = 0; I < Count && !Stopped(); ++I) {
        AddSlideRow(Keys[static_cast<size_t>(I)], I + 1);
        MoveBar(*Loading, I + 1);
    }
    mGrid->SetRedraw(true);
    Loading->ClearParent();
    Loading->Unload();
}

// At each yield this window may be closed, and the album or the show deleted.
bool ViewerForm::Stopped() const {
    clsNEBAlbum* Shown = Album();
    return !IsLoaded() || !Shown || !IsThere(*Shown);
}

void ViewerForm::AddSlideRow(std::int32_t Key, int Number) {
    if (const auto Viewed = SlideOf(*Album(), Key, Number)) ShowSlide(mGrid->AddItem(), *Viewed);
}

// The shared thumbnails are those of the main database.
void ViewerForm::ShowSlide(int Row, const ViewedSlide& Viewed) {
    if (mDBPath != DBEngine->DBPath()) return ShowForeignSlide(Row, Viewed);
    ShowSlideInRow(*mGrid, Row, mAlbumID, *Viewed.Slide, mLoadingForm);
    mGrid->SetTextMatrix(Row, clsImageBuffer::ColText, Viewed.Caption);
}

void ViewerForm::ShowForeignSlide(int Row, const ViewedSlide& Viewed) {
    const QString Path = SlidePath(mDBPath, mAlbumID, Viewed.Slide->SlideLoc);
    SetSlideKeys(*mGrid, Row, Viewed.Slide->SlideID, Viewed.Caption);
    mGrid->SetTextMatrix(Row, clsImageBuffer::ColPath, Path);
    const QImage Thumbnail = ThumbnailOrNone(Path);
    mGrid->SetCellPicture(Row, clsImageBuffer::ColPicture, Thumbnail);
    mLoadingForm->ShowPicture(Thumbnail);
}

void ViewerForm::ShowPicture(int Row) {
    const auto Held = shared_from_this();
    PopUpPicture(mGrid->TextMatrix(Row, clsImageBuffer::ColPath));
}

}  // namespace neb
