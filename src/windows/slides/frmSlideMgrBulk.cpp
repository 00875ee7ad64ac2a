// The controls of the bulk slide manager, saving and deleting; how its grid is filled and follows
// the other windows is in frmSlideMgrBulkFill.cpp.
#include "windows/slides/frmSlideMgrBulk.h"

#include <QAbstractItemView>
#include <QProgressBar>

#include "controls/fields/ComboBoxList.h"
#include "controls/fields/Icons.h"
#include "controls/forms/PaintRate.h"
#include "controls/forms/ScreenPointer.h"
#include "controls/forms/frmLoading.h"
#include "controls/forms/frmProgress.h"
#include "controls/grid/FlexGrid.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Services.h"
#include "support/modDEValidation.h"
#include "ui_frmSlideMgrBulk.h"
#include "windows/frame/Openers.h"
#include "windows/frame/modWindowState.h"
#include "windows/lists/SlideRows.h"
#include "windows/lists/frmPicturePopup.h"

namespace neb {
namespace {

const WindowMemory Memory{QStringLiteral("frmSlideMgrBulk"), 6315};

}  // namespace

frmSlideMgrBulk::frmSlideMgrBulk() : mUi(std::make_unique<Ui::frmSlideMgrBulk>()) {
    mUi->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    mUi->cboAlbum->view()->setAccessibleName(mUi->cboAlbum->accessibleName());
    ChooseNotByWheel(*mUi->cboAlbum);
    SetUpGrid();
    SetUpButtons();
    connect(mUi->cboAlbum, &QComboBox::currentIndexChanged, this, &frmSlideMgrBulk::AlbumChosen);
}

frmSlideMgrBulk::~frmSlideMgrBulk() = default;

// A double click shows the picture; a caption is edited by typing, by F2 or Enter, or by a second
// click on it, as names are in a list of files.
void frmSlideMgrBulk::SetUpGrid() {
    FlexGrid& Grid = *mUi->flxAlbum;
    SetSlideColumns(Grid, !ReadOnlyDB);
    Grid.SetKeyColumn(clsImageBuffer::ColSlideID);
    Grid.SetKeyPressEdit(&FixQuoteKeyInGrid);
    Grid.SetEditOnDblClick(false);
    Grid.setEditTriggers(Grid.editTriggers() | QAbstractItemView::SelectedClicked);
    connect(&Grid, &FlexGrid::AfterEdit, this, &frmSlideMgrBulk::AfterEdit);
    connect(&Grid, &FlexGrid::CellDblClicked, this, &frmSlideMgrBulk::ShowPicture);
    connect(&Grid, &FlexGrid::RowActivated, this, &frmSlideMgrBulk::ShowPicture);
    connect(&Grid, &FlexGrid::DeletePressed, mUi->cmdDelete, &QPushButton::click);
}

void frmSlideMgrBulk::SetUpButtons() {
    const struct {
        QPushButton* Button;
        const char* Icon;
        void (frmSlideMgrBulk::*Action)();
    } Buttons[] = {
        {mUi->cmdSave, "save", &frmSlideMgrBulk::Save},
        {mUi->cmdCancel, "cancel", &frmSlideMgrBulk::Cancel},
        {mUi->cmdDelete, "delete", &frmSlideMgrBulk::Delete},
        {mUi->cmdClose, "exit", &frmSlideMgrBulk::Close},
    };
    for (const auto& Each : Buttons) {
        Each.Button->setIcon(ThemeIcon(Each.Icon));
        connect(Each.Button, &QPushButton::clicked, this, Each.Action);
    }
}

void frmSlideMgrBulk::LoadAlbumMgr(std::int32_t AlbumID) {
    const auto Held = shared_from_this();
    ListAlbums(AlbumID);
    mUi->flxAlbum->SetRows(0);
    if (TheOpeners().ShowAsChild)
        TheOpeners().ShowAsChild(*this);
    else
        ShowModeless();
    if (IsLoaded()) AlbumChosen();
}

void frmSlideMgrBulk::Form_Load() {
    for (QPushButton* Button : {mUi->cmdSave, mUi->cmdDelete, mUi->cmdCancel})
        Button->setEnabled(!ReadOnlyDB);
    RestoreWindow(*this, Memory);
}

// Work that is under way sees that the window has gone and ends by itself.
bool frmSlideMgrBulk::Form_Unload() {
    SaveWindow(*this, Memory);
    if (mLoadingForm) std::exchange(mLoadingForm, nullptr)->ClearParent();
    if (mProgressForm) std::exchange(mProgressForm, nullptr)->ClearParent();
    return true;
}

// Tells nobody of the choice: whoever lists the albums knows what comes of it.
void frmSlideMgrBulk::ListAlbums(std::int32_t AlbumID) {
    const QSignalBlocker Quiet(mUi->cboAlbum);
    ComboBoxList Albums(*mUi->cboAlbum);
    DBEngine->LoadAlbumsCombo(Albums, false);
    if (AlbumID > 0)
        ComboSelectByData(Albums, AlbumID, -2);
    else if (AlbumID == 0 && Albums.ListCount() > 0)
        Albums.SetListIndex(0);
}

std::int32_t frmSlideMgrBulk::AlbumID() const {
    const ComboBoxList Albums(*mUi->cboAlbum);
    return Albums.ListIndex() < 0 ? 0 : Albums.ItemData(Albums.ListIndex());
}

clsNEBAlbum* frmSlideMgrBulk::ShownAlbum() const {
    return DBEngine && AlbumID() != 0 ? DBEngine->GetAlbum(AlbumID()) : nullptr;
}

void frmSlideMgrBulk::AlbumChosen() {
    mEdits.clear();
    FollowAlbum();
    Fill();
}

// The title, and what an empty grid says.
void frmSlideMgrBulk::FollowAlbum() {
    const bool Shown = AlbumID() != 0;
    setWindowTitle(Shown ? QStringLiteral("Bulk Slide Manager - ") + mUi->cboAlbum->currentText()
                         : QStringLiteral("Bulk Slide Manager"));
    const bool NoAlbums = mUi->cboAlbum->count() == 0;
    mUi->flxAlbum->SetEmptyText(
        NoAlbums ? tr("There is no album yet.\nMake one with New Album in the Album menu.")
        : Shown  ? tr("This album has no slides.\nAdd some with Slide Manager in the Album menu.")
                 : tr("Choose an album above to see its slides here."));
}

std::vector<std::int32_t> frmSlideMgrBulk::SelectedIDs() const {
    std::vector<std::int32_t> IDs;
    for (int I = 0; I < mUi->flxAlbum->SelectedRows(); ++I)
        IDs.push_back(SlideIn(*mUi->flxAlbum, mUi->flxAlbum->SelectedRow(I)));
    return IDs;
}

void frmSlideMgrBulk::MakeCurrent(int Row) {
    FlexGrid& Grid = *mUi->flxAlbum;
    if (Row < 0 || Row >= Grid.Rows()) return;
    Grid.selectionModel()->setCurrentIndex(Grid.model()->index(Row, clsImageBuffer::ColText),
                                           QItemSelectionModel::NoUpdate);
    Grid.EnsureRowVisible(Row);
}

void frmSlideMgrBulk::AfterEdit(int Row, int Col) {
    FitCaption(*mUi->flxAlbum, Row, Col);
    NoteEdit(Row);
}

void frmSlideMgrBulk::NoteEdit(int Row) {
    const std::int32_t SlideID = SlideIn(*mUi->flxAlbum, Row);
    const QString& Caption = mUi->flxAlbum->TextMatrix(Row, clsImageBuffer::ColText);
    clsNEBAlbum* Album = ShownAlbum();
    const clsNEBSlide* Slide = Album ? Album->GetSlide(SlideID) : nullptr;
    if (Slide && Slide->SlideText == Caption)
        mEdits.remove(SlideID);
    else
        mEdits[SlideID] = Caption;
}

void frmSlideMgrBulk::ShowPicture(int Row) {
    const auto Held = shared_from_this();
    PopUpPicture(mUi->flxAlbum->TextMatrix(Row, clsImageBuffer::ColPath));
}

void frmSlideMgrBulk::Save() {
    const auto Held = shared_from_this();
    mUi->flxAlbum->FinishEdit();
    const std::int32_t Saved = AlbumID();
    if (Saved == 0) {
        MsgBox(QStringLiteral("You must first select the album changes are to be made to."));
        return;
    }
    if (!ShownAlbum()) {
        MsgBox(QStringLiteral("Album not found."));
        return;
    }
    const SlideTally Tally = SaveRows();
    MsgBox(Tally.Text(QStringLiteral("saved"), QStringLiteral("save")),
           QStringLiteral("Operation Completed"), BoxIcon::Information);
    BroadcastEvent(QStringLiteral("Album"), QStringLiteral("Add Slides"), this, {Saved, 0});
    mUi->cboAlbum->setFocus();
}

// While a box is open anything may happen, so the album is asked for anew behind it.
SlideTally frmSlideMgrBulk::SaveRows() {
    FlexGrid& Grid = *mUi->flxAlbum;
    SlideTally Tally;
    SlideFinder Finder;
    mEdits.clear();
    clsNEBAlbum* Album = ShownAlbum();
    Grid.SetRedraw(false);
    for (int Row = 0; Album && Row < Grid.Rows(); ++Row) {
        const bool Success = SaveRow(*Album, Finder, Row);
        Tally.Count(Success);
        if (Success) continue;
        NoteEdit(Row);
        Grid.SetRedraw(true);
        MsgBox(QStringLiteral("Slide #%1 Not Found.").arg(Row + 1),
               QStringLiteral("Failed to Save Slide"), BoxIcon::Information);
        Grid.SetRedraw(false);
        Album = ShownAlbum();
    }
    Grid.SetRedraw(true);
    return Tally;
}

bool frmSlideMgrBulk::SaveRow(clsNEBAlbum& Album, SlideFinder& Finder, int Row) {
    FlexGrid& Grid = *mUi->flxAlbum;
    const QString& Typed = Grid.TextMatrix(Row, clsImageBuffer::ColText);
    const QString Caption = CleanText(Typed);
    if (Caption != Typed) Grid.SetTextMatrix(Row, clsImageBuffer::ColText, Caption);
    clsNEBSlide* Slide = Finder.Find(Album, SlideIn(Grid, Row));
    if (!Slide) return false;
    Slide->SlideText = Caption;
    return true;
}

void frmSlideMgrBulk::Cancel() {
    const auto Held = shared_from_this();
    mUi->flxAlbum->FinishEdit();
    mEdits.clear();
    Fill();
}

void frmSlideMgrBulk::Delete() {
    const auto Held = shared_from_this();
    mUi->flxAlbum->FinishEdit();
    if (AlbumID() == 0) {
        MsgBox(
            QStringLiteral("You must first select the album the slides are to be deleted from."));
        return;
    }
    if (!AskYesNo(QStringLiteral("Are you sure you want to delete the selected slides?"),
                  QStringLiteral("Delete Confirmation")))
        return;
    if (!ShownAlbum()) {
        MsgBox(QStringLiteral("Album not found."));
        return;
    }
    const int First = mUi->flxAlbum->SelectedRow(0);
    const SlideTally Tally = DeleteSlides(SelectedIDs());
    if (!IsLoaded()) return;
    MsgBox(Tally.Text(QStringLiteral("deleted"), QStringLiteral("delete")),
           QStringLiteral("Operation Completed"), BoxIcon::Information);
    Fill();
    MakeCurrent(std::min(First, mUi->flxAlbum->Rows() - 1));
}

SlideTally frmSlideMgrBulk::DeleteSlides(std::vector<std::int32_t> SlideIDs) {
    mDeleting = std::move(SlideIDs);
    mTally = {};
    mProgressForm = NewForm<frmProgress>();
    const auto Shown = mProgressForm;
    Shown->ShowProgressMeter(*this);
    mProgressForm = nullptr;
    return mTally;
}

// At each yield the window may go, or the album: what is left then stays.
void frmSlideMgrBulk::StartOperation() {
    const auto Held = shared_from_this();
    const PointerScope Working(Pointer::Hourglass);
    const auto Progress = mProgressForm;
    QProgressBar& Bar = *Progress->pgbLoadingProgress();
    Progress->setWindowTitle(tr("Deleting Slides ..."));
    Bar.setMaximum(static_cast<int>(mDeleting.size()));
    Bar.setValue(0);
    PaintRate Rate;
    for (size_t I = 0; I < mDeleting.size() && IsLoaded() && ShownAlbum(); ++I) {
        DeleteSlide(*ShownAlbum(), mDeleting[I]);
        Bar.setValue(static_cast<int>(I) + 1);
        if (Rate.IsDue()) DoEvents();
    }
    if (clsNEBAlbum* Album = ShownAlbum()) Album->SortSlides();
}

void frmSlideMgrBulk::DeleteSlide(clsNEBAlbum& Album, std::int32_t SlideID) {
    const bool Success = Album.DeleteSlide(SlideID, *DBEngine);
    mTally.Count(Success);
    if (!Success) return;
    mEdits.remove(SlideID);
    BroadcastEvent(QStringLiteral("Album"), QStringLiteral("Delete Slides"), this,
                   {Album.AlbumID, SlideID});
}

}  // namespace neb
