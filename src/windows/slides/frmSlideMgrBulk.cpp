// The controls of the bulk slide manager, saving and deleting; how its grid is filled and follows
// the other windows is in frmSlideMgrBulkFill.cpp.
#include "windows/slides/frmSlideMgrBulk.h"

#include <QAbstractItemView>
#include <QScopeGuard>
#include <QShortcut>

#include "controls/fields/ComboBoxList.h"
#include "controls/fields/Icons.h"
#include "controls/grid/FlexGrid.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "support/modCharacters.h"
#include "support/modDEValidation.h"
#include "ui_frmSlideMgrBulk.h"
#include "windows/frame/Openers.h"
#include "windows/frame/modWindowState.h"
#include "windows/lists/SlideRows.h"
#include "windows/lists/clsImageBuffer.h"
#include "windows/lists/frmPicturePopup.h"
#include "windows/slides/FindRow.h"
#include "windows/slides/SlideDeletion.h"

namespace neb {
namespace {

const WindowMemory BulkMemory{QStringLiteral("frmSlideMgrBulk"), 6315};

bool ConfirmDelete() {
    return AskYesNo(tr("Are you sure you want to delete the selected slides?"),
                    tr("Delete Confirmation"));
}

}  // namespace

frmSlideMgrBulk::frmSlideMgrBulk() : mUi(std::make_unique<Ui::frmSlideMgrBulk>()) {
    mUi->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    mUi->cboAlbum->view()->setAccessibleName(mUi->cboAlbum->accessibleName());
    ChooseNotByWheel(*mUi->cboAlbum);
    SetUpGrid();
    SetUpButtons();
    SetUpKeys();
    SetUpFinding();
    On(mUi->cboAlbum, &QComboBox::currentIndexChanged, &frmSlideMgrBulk::AlbumChosen);
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
    const int MarkWidth = Grid.fontMetrics().horizontalAdvance(u'*') + 12;
    FlexColumn Header = Grid.Column(SlideColHeader);
    Header.Width = std::max(Header.Width, MarkWidth);
    Header.Align = Qt::AlignCenter;
    Grid.SetColumn(SlideColHeader, Header);
    connect(&Grid, &FlexGrid::AfterEdit, this, &frmSlideMgrBulk::AfterEdit);
    connect(&Grid, &FlexGrid::SelChange, this, &frmSlideMgrBulk::ShowStatus);
    Grid.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&Grid, &QWidget::customContextMenuRequested, this, &frmSlideMgrBulk::ShowMenu);
    const auto Show = [this](int Row) { Command([this, Row] { ShowPicture(Row); }); };
    connect(&Grid, &FlexGrid::CellDblClicked, this, Show);
    connect(&Grid, &FlexGrid::RowActivated, this, Show);
    connect(&Grid, &FlexGrid::DeletePressed, mUi->cmdDelete, &QPushButton::click);
}

void frmSlideMgrBulk::SetUpButtons() {
    const struct {
        QPushButton* Button;
        const char* Icon;
        void (frmSlideMgrBulk::*Action)();
    } Buttons[] = {
        {mUi->cmdFind, "find-graphics", &frmSlideMgrBulk::Find},
        {mUi->cmdSetCaptions, "album-rename", &frmSlideMgrBulk::SetCaptions},
        {mUi->cmdSave, "save", &frmSlideMgrBulk::Save},
        {mUi->cmdCancel, "cancel", &frmSlideMgrBulk::Cancel},
        {mUi->cmdDelete, "delete", &frmSlideMgrBulk::Delete},
        {mUi->cmdClose, "exit", &frmSlideMgrBulk::Close},
    };
    for (const auto& Each : Buttons) {
        Each.Button->setIcon(ThemeIcon(Each.Icon));
        On(Each.Button, &QPushButton::clicked, Each.Action);
    }
}

void frmSlideMgrBulk::SetUpKeys() {
    const struct {
        QKeySequence Key;
        void (frmSlideMgrBulk::*Action)();
    } Keys[] = {
        {QKeySequence(Qt::CTRL | Qt::Key_F), &frmSlideMgrBulk::Find},
        {QKeySequence(Qt::CTRL | Qt::Key_H), &frmSlideMgrBulk::FindToReplace},
        {QKeySequence(Qt::Key_F3), &frmSlideMgrBulk::FindNext},
    };
    for (const auto& Each : Keys) {
        auto* Key = new QShortcut(Each.Key, this);
        Key->setContext(Qt::WidgetWithChildrenShortcut);
        On(Key, &QShortcut::activated, Each.Action);
    }
    const std::pair<QKeySequence, QPushButton*> Buttons[] = {
        {QKeySequence(Qt::CTRL | Qt::Key_S), mUi->cmdSave},
        {QKeySequence(Qt::SHIFT | Qt::Key_F2), mUi->cmdSetCaptions}};
    for (const auto& [Sequence, Button] : Buttons) {
        auto* Key = new QShortcut(Sequence, this);
        Key->setContext(Qt::WidgetWithChildrenShortcut);
        connect(Key, &QShortcut::activated, Button, &QPushButton::click);
    }
}

void frmSlideMgrBulk::SetUpFinding() {
    mUi->wdgFind->SearchIn({mUi->flxAlbum, clsImageBuffer::ColText, clsImageBuffer::ColSlideID,
                            !ReadOnlyDB, MaxCaption},
                           [this](const std::function<void()>& Do) { Command(Do); });
    connect(mUi->wdgFind, &FindRow::Replaced, this, &frmSlideMgrBulk::NoteEdits);
    connect(mUi->wdgFind, &FindRow::Left, mUi->flxAlbum, qOverload<>(&QWidget::setFocus));
}

void frmSlideMgrBulk::LoadAlbumMgr(std::int32_t AlbumID) {
    const auto Held = shared_from_this();
    ListAlbums(AlbumID);
    mUi->flxAlbum->SetRows(0);
    if (TheOpeners().ShowAsChild)
        TheOpeners().ShowAsChild(*this);
    else
        ShowModeless();
    if (IsLoaded()) ShowAlbum();
}

void frmSlideMgrBulk::Form_Load() {
    for (QPushButton* Button : {mUi->cmdSave, mUi->cmdDelete, mUi->cmdCancel, mUi->cmdSetCaptions})
        Button->setEnabled(!ReadOnlyDB);
    RestoreWindow(*this, BulkMemory);
}

bool frmSlideMgrBulk::Form_QueryUnload() {
    return MayLeave();
}

// Work that is under way sees that the window has gone and ends by itself.
bool frmSlideMgrBulk::Form_Unload() {
    SaveWindow(*this, BulkMemory);
    mReading.WindowClosed();
    return true;
}

void frmSlideMgrBulk::FinishEdits() {
    mUi->flxAlbum->FinishEdit();
}

// Tells nobody of the choice: whoever lists the albums knows what comes of it.
void frmSlideMgrBulk::ListAlbums(std::int32_t AlbumID) {
    const QSignalBlocker Quiet(mUi->cboAlbum);
    ComboBoxList Albums(*mUi->cboAlbum);
    DBEngine->LoadAlbumsCombo(Albums, false);
    if (AlbumID > 0)
        ComboSelectByData(Albums, AlbumID, -2);
    else if (AlbumID == 0 && Albums.ListCount() > 0 &&
             !ComboSelectByData(Albums, AlbumInHand(), -2))
        Albums.SetListIndex(0);
}

void frmSlideMgrBulk::ChooseAlbum(std::int32_t AlbumID) {
    const QSignalBlocker Quiet(mUi->cboAlbum);
    ComboBoxList Albums(*mUi->cboAlbum);
    ComboSelectByData(Albums, AlbumID, -2);
    mUi->cboAlbum->update();
}

std::int32_t frmSlideMgrBulk::AlbumID() const {
    const ComboBoxList Albums(*mUi->cboAlbum);
    return Albums.ListIndex() < 0 ? 0 : Albums.ItemData(Albums.ListIndex());
}

clsNEBAlbum* frmSlideMgrBulk::ShownAlbum() const {
    return DBEngine && AlbumID() != 0 ? DBEngine->GetAlbum(AlbumID()) : nullptr;
}

// The list stands at the album whose captions the question is about until that has been answered.
void frmSlideMgrBulk::AlbumChosen() {
    const std::int32_t Wanted = AlbumID();
    if (HasEdits()) {
        ChooseAlbum(mEdits.AlbumID());
        if (!MayLeave()) return;
        ChooseAlbum(Wanted);
    }
    ShowAlbum();
}

void frmSlideMgrBulk::ShowAlbum() {
    NoteAlbumInHand(AlbumID());
    mEdits.Begin(AlbumID());
    FollowAlbum();
    Fill();
}

// The title, and what an empty grid says.
void frmSlideMgrBulk::FollowAlbum() {
    const bool Shown = AlbumID() != 0;
    setWindowTitle(Shown
                       ? tr("Bulk Slide Manager - ") + InOwnDirection(mUi->cboAlbum->currentText())
                       : tr("Bulk Slide Manager"));
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
    NoteEdits({Row});
}

void frmSlideMgrBulk::NoteEdits(const std::vector<int>& Rows) {
    clsNEBAlbum* Album = DBEngine->GetAlbum(mEdits.AlbumID());
    SlideFinder Finder;
    for (int Row : Rows) {
        const std::int32_t SlideID = SlideIn(*mUi->flxAlbum, Row);
        mEdits.Note(SlideID, mUi->flxAlbum->TextMatrix(Row, clsImageBuffer::ColText),
                    Album ? Finder.Find(*Album, SlideID) : nullptr);
        ShowMark(Row);
    }
    ShowStatus();
}

void frmSlideMgrBulk::ShowPicture(int Row) {
    PopUpPicture(mUi->flxAlbum->TextMatrix(Row, clsImageBuffer::ColPath));
}

// Whether there is an album to work on: one that is chosen, and is there.
bool frmSlideMgrBulk::HasAlbum() const {
    if (!ShownAlbum()) MsgBox(tr("Album not found."));
    return ShownAlbum() != nullptr;
}

void frmSlideMgrBulk::Save() {
    if (AlbumID() == 0) {
        MsgBox(tr("You must first select the album changes are to be made to."));
        return;
    }
    if (!HasAlbum()) return;
    CaptionSave Saved(*DBEngine, this, AlbumID());
    SaveRows(Saved);
    SaveUnlisted(Saved);
    ShowStatus();
    MsgBox(Saved.Tally().Text(QStringLiteral("saved"), QStringLiteral("save")),
           tr("Operation Completed"), BoxIcon::Information);
    Saved.Tell();
    mUi->cboAlbum->setFocus();
}

// What was typed for a slide that has gone is no work any more.
QList<std::int32_t> frmSlideMgrBulk::EditedIDs() const {
    clsNEBAlbum* Album = DBEngine->GetAlbum(mEdits.AlbumID());
    QList<std::int32_t> SlideIDs = mEdits.All().keys();
    SlideFinder Finder;
    SlideIDs.removeIf([&](std::int32_t ID) { return !Album || !Finder.Find(*Album, ID); });
    return SlideIDs;
}

// Whether the captions that were typed have been dealt with.
bool frmSlideMgrBulk::MayLeave() {
    if (!HasEdits()) return true;
    BringToFront(*this);
    const BoxAnswer Answered =
        AskSave(tr("Are you sure you want to discard the changes to the captions?"),
                tr("Discard Changes Confirmation"));
    return Answered == BoxAnswer::Save ? SaveEdits() : Answered == BoxAnswer::Discard;
}

// Those that were typed alone, also of slides that are just being listed anew.
bool frmSlideMgrBulk::SaveEdits() {
    if (!HasAlbum()) return false;
    CaptionSave Saved(*DBEngine, this, AlbumID());
    const auto Typed = mEdits.All();
    for (auto Each = Typed.begin(); Each != Typed.end(); ++Each) SaveEdit(Saved, Each.key(), *Each);
    ShowStatus();
    if (Saved.Tally().Failed > 0)
        MsgBox(Saved.Tally().Text(QStringLiteral("saved"), QStringLiteral("save")),
               tr("Operation Completed"), BoxIcon::Information);
    return true;
}

// Typed before the listing anew was stopped.
void frmSlideMgrBulk::SaveUnlisted(CaptionSave& Saved) {
    for (const std::int32_t SlideID : EditedIDs())
        if (RowOfSlide(*mUi->flxAlbum, SlideID) < 0)
            SaveEdit(Saved, SlideID, mEdits.All().value(SlideID));
}

void frmSlideMgrBulk::SaveEdit(CaptionSave& Saved, std::int32_t SlideID, const QString& Typed) {
    const int Row = RowOfSlide(*mUi->flxAlbum, SlideID);
    if (Row >= 0) return void(SaveRow(Saved, Row));
    Saved.Save(SlideID, CleanText(Typed));
    mEdits.Forget(SlideID);
}

// While a box is open anything may happen, so the album is looked for anew behind it.
void frmSlideMgrBulk::SaveRows(CaptionSave& Saved) {
    FlexGrid& Grid = *mUi->flxAlbum;
    Grid.SetRedraw(false);
    const auto Painted = qScopeGuard([&Grid] { Grid.SetRedraw(true); });
    const clsNEBAlbum* Album = ShownAlbum();
    for (int Row = 0; Album && Row < Grid.Rows(); ++Row) {
        if (SaveRow(Saved, Row)) continue;
        NoteEdits({Row});
        Grid.SetRedraw(true);
        MsgBox(tr("Slide #%1 Not Found.").arg(Row + 1), tr("Failed to Save Slide"),
               BoxIcon::Information);
        Grid.SetRedraw(false);
        Album = ShownAlbum();
    }
}

bool frmSlideMgrBulk::SaveRow(CaptionSave& Saved, int Row) {
    FlexGrid& Grid = *mUi->flxAlbum;
    const QString& Typed = Grid.TextMatrix(Row, clsImageBuffer::ColText);
    const QString Caption = CleanText(Typed);
    if (Caption != Typed) Grid.SetTextMatrix(Row, clsImageBuffer::ColText, Caption);
    const bool Done = Saved.Save(SlideIn(Grid, Row), Caption);
    if (Done) mEdits.Forget(SlideIn(Grid, Row));
    ShowMark(Row);
    return Done;
}

void frmSlideMgrBulk::Cancel() {
    mEdits.Clear();
    Fill();
}

void frmSlideMgrBulk::Delete() {
    if (AlbumID() == 0) {
        MsgBox(tr("You must first select the album the slides are to be deleted from."));
        return;
    }
    if (!ConfirmDelete() || !HasAlbum()) return;
    const int First = mUi->flxAlbum->SelectedRow(0);
    const SlideTally Tally = DeleteSelected();
    if (!IsLoaded()) return;
    MsgBox(Tally.Text(QStringLiteral("deleted"), QStringLiteral("delete")),
           tr("Operation Completed"), BoxIcon::Information);
    Fill();
    MakeCurrent(std::min(First, mUi->flxAlbum->Rows() - 1));
}

SlideTally frmSlideMgrBulk::DeleteSelected() {
    const std::vector<std::int32_t> SlideIDs = SelectedIDs();
    SlideDeletion Work(*this, AlbumID(), SlideIDs, [this] { return IsLoaded() && ShownAlbum(); });
    const SlideTally Tally = Work.Run();
    for (int I = 0; I < Tally.Done; ++I) mEdits.Forget(SlideIDs[static_cast<size_t>(I)]);
    return Tally;
}

}  // namespace neb
