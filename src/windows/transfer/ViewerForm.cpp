#include "windows/transfer/ViewerForm.h"

#include <QApplication>
#include <QPushButton>

#include "controls/fields/Icons.h"
#include "controls/forms/frmLoading.h"
#include "controls/grid/FlexGrid.h"
#include "db/modAlbumFiles.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
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

void ViewerForm::View(clsDBEngine& objDB, std::int32_t AlbumID, const QString& Title) {
    const auto Held = shared_from_this();
    mSubject = {&objDB, objDB.DBPath(), AlbumID};
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
    mReading.Read(Reading());
    mSubject.DB = nullptr;
    if (mGrid->Rows() > 0) mGrid->SetRow(0);
}

void ViewerForm::Refill(clsDBEngine& objDB) {
    if (!IsLoaded()) return;
    mSubject.DB = &objDB;
    mReading.Read(Reading());
    mSubject.DB = nullptr;
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
            .MakeRow = [this](std::int32_t Key, int Number) { AddSlideRow(Key, Number); },
            .IsThere = [this] { return IsStillThere(); },
            .Grids = {mGrid},
            .Shows = SlideReading::Bar::Count};
}

void ViewerForm::Clear() {
    mGrid->SetRows(0);
    mGrid->SetEmptyText(mSays.Gone);
}

std::optional<SlideReading::KeyList> ViewerForm::Keys() {
    clsNEBAlbum* Shown = Album();
    auto Keys = Shown ? SortedKeys(*Shown) : std::nullopt;
    if (Keys && Keys->empty()) mGrid->SetEmptyText(mSays.Empty);
    return Keys;
}

// At each yield the album or the show may be deleted.
bool ViewerForm::IsStillThere() const {
    clsNEBAlbum* Shown = Album();
    return Shown && IsThere(*Shown);
}

void ViewerForm::AddSlideRow(std::int32_t Key, int Number) {
    if (const auto Viewed = SlideOf(*Album(), Key, Number)) ShowSlide(mGrid->AddItem(), *Viewed);
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

}  // namespace neb
