// The controls of the two import windows, and the import itself; the reading of directories is in
// ImportFormRead.cpp.
#include "windows/import/ImportForm.h"

#include <QProgressBar>

#include "controls/fields/Icons.h"
#include "controls/fields/ToolBar.h"
#include "controls/forms/ScreenPointer.h"
#include "controls/forms/frmLoading.h"
#include "controls/forms/frmProgress.h"
#include "controls/grid/FlexGrid.h"
#include "controls/grid/GridRows.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Services.h"
#include "support/modDEValidation.h"
#include "support/modNumbers.h"
#include "ui_ImportForm.h"
#include "windows/frame/modWindowState.h"
#include "windows/lists/SlideRows.h"
#include "windows/lists/frmPicturePopup.h"

namespace neb {
namespace {

// What the bar's tool tip says after item I of Count, I from 1: the item's index from 0 plus one
// item's share of a hundred, as the program has always counted it here.
QString ImportProgressText(int I, int Count) {
    return Format((I - 1) + 100.0 / Count, "##0") + QStringLiteral("% Complete");
}

}  // namespace

ImportForm::ImportForm(const WindowMemory& Memory)
    : mUi(std::make_unique<Ui::ImportForm>()), mMemory(Memory) {
    mUi->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    SetUpGrid(
        *mUi->flxNonSelected,
        tr("No pictures here.\nImport a directory, or drop files and folders on this window."));
    SetUpGrid(*mUi->flxSelected, tr("Pictures moved here are imported,\nin this order."));
    SetUpButtons();
    SetUpToolBar();
}

ImportForm::~ImportForm() = default;

void ImportForm::SetUpGrid(FlexGrid& Grid, const QString& EmptyText) {
    Grid.SetCols(ColCount);
    Grid.SetColumn(ColPicture, {.Kind = FlexKind::Picture, .Align = Qt::AlignCenter});
    Grid.SetColumn(ColCaption, {.Editable = !ReadOnlyDB, .Stretch = true});
    Grid.SetColumn(ColPath, {.Hidden = true});
    Grid.SetEmptyText(EmptyText);
    Grid.SetKeyPressEdit(&FixQuoteKeyInGrid);
    connect(&Grid, &FlexGrid::AfterEdit, this,
            [&Grid](int Row, int Col) { FitCaption(Grid, Row, Col); });
    connect(&Grid, &FlexGrid::CellDblClicked, this, [this, &Grid](int Row, int Col) {
        if (Row >= 0 && Col == ColPicture) ShowPreview(Grid, Row);
    });
    connect(&Grid, &FlexGrid::RowActivated, this,
            [this, &Grid](int Row) { ShowPreview(Grid, Row); });
}

void ImportForm::SetUpButtons() {
    const struct {
        QPushButton* Button;
        FlexGrid *From, *To;
        bool All;
        const char* Icon;
    } Moves[] = {
        {mUi->cmdMoveRightOne, mUi->flxNonSelected, mUi->flxSelected, false, "move-right-one"},
        {mUi->cmdMoveRightAll, mUi->flxNonSelected, mUi->flxSelected, true, "move-right-all"},
        {mUi->cmdMoveLeftOne, mUi->flxSelected, mUi->flxNonSelected, false, "move-left-one"},
        {mUi->cmdMoveLeftAll, mUi->flxSelected, mUi->flxNonSelected, true, "move-left-all"},
    };
    for (const auto& Move : Moves) {
        Move.Button->setIcon(ThemeIcon(Move.Icon));
        connect(Move.Button, &QPushButton::clicked, this,
                [this, Move] { MoveRows(*Move.From, *Move.To, Move.All); });
    }
    connect(mUi->cmdImport, &QPushButton::clicked, this, &ImportForm::Import);
    connect(mUi->cmdCancel, &QPushButton::clicked, this, &ImportForm::Unload);
    UpdateButtons();
}

void ImportForm::SetUpToolBar() {
    mUi->abrMenu->AddTool(QStringLiteral("mnuImportDirectory"), tr("Import Graphics Directory"),
                          tr("Import the graphics in a directory"),
                          QStringLiteral("import-directory"), QKeySequence(Qt::CTRL | Qt::Key_O));
    mUi->abrMenu->AddTool(QStringLiteral("mnuFindGraphics"), tr("Find Graphics"),
                          tr("Search drives for graphics to import"),
                          QStringLiteral("find-graphics"), QKeySequence(Qt::CTRL | Qt::Key_F));
    mUi->abrMenu->AddTool(QStringLiteral("mnuExit"), tr("Exit"), tr("Close this window"),
                          QStringLiteral("exit"));
    connect(mUi->abrMenu, &ToolBar::ToolClicked, this, &ImportForm::ToolClicked);
}

void ImportForm::ToolClicked(const QString& Name) {
    const auto Held = shared_from_this();
    if (Name == u"mnuImportDirectory") ImportAnotherDirectory();
    if (Name == u"mnuFindGraphics") ImportFoundGraphics();
    if (Name == u"mnuExit") Unload();
}

// A button is of use while the grid that it takes from has rows.
void ImportForm::UpdateButtons() {
    const bool CanMove = !ReadOnlyDB;
    for (QPushButton* Button : {mUi->cmdMoveRightOne, mUi->cmdMoveRightAll})
        Button->setEnabled(CanMove && mUi->flxNonSelected->Rows() > 0);
    for (QPushButton* Button : {mUi->cmdMoveLeftOne, mUi->cmdMoveLeftAll})
        Button->setEnabled(CanMove && mUi->flxSelected->Rows() > 0);
    mUi->cmdImport->setEnabled(CanMove);
    mUi->cmdCancel->setEnabled(CanMove);
}

void ImportForm::MoveRows(FlexGrid& From, FlexGrid& To, bool All) {
    From.GiveRows(RowsToMove(From, All), To);
    UpdateButtons();
}

void ImportForm::ShowPreview(const FlexGrid& Grid, int Row) {
    const auto Held = shared_from_this();
    PopUpPicture(Grid.TextMatrix(Row, ColPath));
}

void ImportForm::Form_Load() {
    mInForm_Load = true;
    ReadUnderLoading();
    UpdateButtons();
    if (IsLoaded()) RestoreWindow(*this, mMemory);
}

bool ImportForm::Form_Unload() {
    mAborted = true;
    if (mProgressForm) std::exchange(mProgressForm, nullptr)->Unload();
    ReleaseLoading();
    if (!mInForm_Load) SaveWindow(*this, mMemory);  // else it has had no place yet
    return true;
}

bool ImportForm::HasSelection() const {
    if (mUi->flxSelected->Rows() > 0) return true;
    MsgBox(QStringLiteral("You must select atleast 1 picture in order to import."));
    return false;
}

void ImportForm::RunImport() {
    const auto Held = shared_from_this();
    mUi->flxSelected->FinishEdit();
    ReleaseLoading();
    mProgressForm = NewForm<frmProgress>();
    const auto Shown = mProgressForm;
    try {
        Shown->ShowProgressMeter(*this);
    } catch (...) {
        EndOperation();
        throw;
    }
}

void ImportForm::EndOperation() {
    SetScreenPointer(Pointer::Default);
    if (mProgressForm) std::exchange(mProgressForm, nullptr)->Unload();
}

bool ImportForm::ImportRows(clsNEBAlbum& Album, const RowDone& Done) {
    const auto Progress = mProgressForm;
    Progress->setWindowTitle(QStringLiteral("Importing Slides ..."));
    Progress->pgbLoadingProgress()->setMaximum(mUi->flxSelected->Rows());
    Progress->pgbLoadingProgress()->setValue(0);
    Progress->Refresh();
    return GoesOn() && EnterRows(Album, Done);
}

// The window may be closed while it imports, and its album be gone then.
bool ImportForm::GoesOn() const {
    DoEvents();
    return !mAborted;
}

bool ImportForm::EnterRows(clsNEBAlbum& Album, const RowDone& Done) {
    const FlexGrid& Grid = *mUi->flxSelected;
    const int Count = Grid.Rows();
    const auto Progress = mProgressForm;
    QStringList Paths;
    for (int Row = 0; Row < Count; ++Row) Paths.append(Grid.TextMatrix(Row, ColPath));
    PictureImport Run(*DBEngine, Album, Paths, [this] { return GoesOn(); });
    for (int Row = 0; Row < Count; ++Row) {
        const auto Outcome = Run.EnterNext(
            {Paths[Row], Grid.TextMatrix(Row, ColCaption), Grid.CellPicture(Row, ColPicture)});
        if (Outcome == PictureImport::Outcome::Ended) return false;
        Done(Row, Outcome, Run.SlideID());
        Progress->pgbLoadingProgress()->setValue(Row + 1);
        Progress->pgbLoadingProgress()->setToolTip(ImportProgressText(Row + 1, Count));
        Progress->Refresh();
        if (!GoesOn()) return false;
    }
    return true;
}

}  // namespace neb
