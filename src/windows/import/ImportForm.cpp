// The controls of the two import windows, and the import itself; the reading of directories is in
// ImportFormRead.cpp.
#include "windows/import/ImportForm.h"

#include <QProgressBar>
#include <QScopeGuard>

#include "controls/fields/Icons.h"
#include "controls/fields/ToolBar.h"
#include "controls/forms/ScreenPointer.h"
#include "controls/forms/frmProgress.h"
#include "controls/grid/FlexGrid.h"
#include "controls/grid/GridRows.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/ReasonOf.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "support/modDEValidation.h"
#include "support/modNumbers.h"
#include "support/modText.h"
#include "ui_ImportForm.h"
#include "windows/frame/modWindowState.h"
#include "windows/lists/SlideRows.h"
#include "windows/lists/frmPicturePopup.h"

namespace neb {
namespace {

// What the bar's tool tip says after item I of Count, I from 1.
QString ImportProgressText(int I, int Count) {
    return tr("%1% Complete").arg(Format(100.0 * I / Count, "##0"));
}

}  // namespace

ImportForm::ImportForm(const WindowMemory& Memory)
    : mUi(std::make_unique<Ui::ImportForm>()), mMemory(Memory) {
    mUi->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    SetUpGrid(*mUi->flxNonSelected, tr("No pictures here.\nImport a directory, or drop files and "
                                       "folders on this window."));
    SetUpGrid(*mUi->flxSelected, tr("Pictures moved here are imported,\nin this order."));
    mReading = std::make_unique<PictureReading>(*this, *mUi->wdgOptions, *mUi->flxNonSelected,
                                                *mUi->flxSelected);
    SetUpOptions();
    SetUpButtons();
    SetUpToolBar();
}

ImportForm::~ImportForm() = default;

void ImportForm::SetUpGrid(FlexGrid& Grid, const QString& EmptyText) {
    Grid.SetCols(ColCount);
    Grid.SetColumn(ColPicture, {.Kind = FlexKind::Picture, .Align = Qt::AlignCenter});
    Grid.SetColumn(ColCaption, {.Editable = !ReadOnlyDB, .IsCaption = true, .Stretch = true});
    Grid.SetColumn(ColPath, {.Hidden = true});
    Grid.SetEmptyText(EmptyText);
    Grid.SetKeyPressEdit(&FixQuoteKeyInGrid);
    connect(&Grid, &FlexGrid::AfterEdit, this,
            [this, &Grid](int Row, int Col) { CaptionEdited(Grid, Row, Col); });
    const auto Preview = [this, &Grid](int Row) {
        Command([&Grid, Row] { PopUpPicture(Grid.TextMatrix(Row, ColPath)); });
    };
    connect(&Grid, &FlexGrid::CellDblClicked, this, [Preview](int Row, int Col) {
        if (Row >= 0 && Col == ColPicture) Preview(Row);
    });
    connect(&Grid, &FlexGrid::RowActivated, this, Preview);
}

void ImportForm::CaptionEdited(FlexGrid& Grid, int Row, int Col) {
    FitCaption(Grid, Row, Col);
    Rows().NoteTyped(Grid, Row, mUi->wdgOptions->OwnWords());
}

void ImportForm::SetUpOptions() {
    mUi->wdgOptions->setEnabled(!ReadOnlyDB);
    connect(mUi->wdgOptions, &ImportOptions::OrderChosen, this,
            [this](PictureOrder Order) { Command([this, Order] { OrderChosen(Order); }); });
    connect(mUi->wdgOptions, &ImportOptions::OwnWordsChosen, this, [this](bool OwnWords) {
        Command([this, OwnWords] { Rows().ProposeCaptions(OwnWords); });
    });
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
        connect(Move.Button, &QPushButton::clicked, this, [this, Move] {
            Command([this, Move] { MoveRows(*Move.From, *Move.To, Move.All); });
        });
    }
    On(mUi->cmdImport, &QPushButton::clicked, &ImportForm::Import);
    On(mUi->cmdCancel, &QPushButton::clicked, &ImportForm::Close);
    UpdateButtons();
}

void ImportForm::SetUpToolBar() {
    const struct {
        const char* Name;
        QString Caption, ToolTip;
        const char* Icon;
        QKeySequence Key;
        void (ImportForm::*Do)();
    } Tools[] = {
        {"mnuImportDirectory", tr("Import Graphics Directory"),
         tr("Import the graphics in a directory"), "import-directory",
         QKeySequence(Qt::CTRL | Qt::Key_O), &ImportForm::ImportAnotherDirectory},
        {"mnuFindGraphics", tr("Find Graphics"), tr("Search drives for graphics to import"),
         "find-graphics", QKeySequence(Qt::CTRL | Qt::Key_F), &ImportForm::ImportFoundGraphics},
        {"mnuExit", tr("Exit"), tr("Close this window"), "exit", {}, &ImportForm::Close},
    };
    for (const auto& Tool : Tools) {
        const QString Name = QString::fromLatin1(Tool.Name);
        mUi->abrMenu->AddTool(Name, Tool.Caption, Tool.ToolTip, QString::fromLatin1(Tool.Icon),
                              Tool.Key);
        connect(mUi->abrMenu, &ToolBar::ToolClicked, this,
                [this, Name, Do = Tool.Do](const QString& Clicked) {
                    if (Clicked == Name) Command([this, Do] { (this->*Do)(); });
                });
    }
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

// A caption that is being typed counts, and goes with its row.
void ImportForm::FinishEdits() {
    mUi->flxNonSelected->FinishEdit();
    mUi->flxSelected->FinishEdit();
}

void ImportForm::Form_Load() {
    ReadOpened();
    Leave(Phase::Loading);
    UpdateButtons();
    if (IsLoaded()) RestoreWindow(*this, mMemory);
}

bool ImportForm::HoldsWork() const {
    return !ReadOnlyDB && mPhase == Phase::Waiting && mUi->flxSelected->Rows() > 0;
}

// Where the window stays in the end because of another one, what it has kept is not kept twice.
bool ImportForm::Form_QueryUnload() {
    if (!HoldsWork()) return true;
    BringToFront(*this);
    const BoxAnswer Answered =
        AskSave(tr("Are you sure you want to discard the selected pictures?"),
                tr("Discard Changes Confirmation"));
    if (Answered != BoxAnswer::Save) return Answered == BoxAnswer::Discard;
    if (!Keep()) return false;
    mUi->flxSelected->SetRows(0);
    UpdateButtons();
    return true;
}

bool ImportForm::Form_Unload() {
    if (mPhase != Phase::Loading) SaveWindow(*this, mMemory);
    mPhase = Phase::Closed;
    mReading->WindowClosed();
    return true;
}

// Whatever has ended, a window that was closed stays so.
void ImportForm::Leave(Phase Done) {
    if (mPhase == Done) mPhase = Phase::Waiting;
}

void ImportForm::During(Phase What, const std::function<void()>& Do) {
    mPhase = What;
    const auto Over = qScopeGuard([this, What] { Leave(What); });
    Do();
}

bool ImportForm::HasSelection() const {
    if (mUi->flxSelected->Rows() > 0) return true;
    MsgBox(tr("You must select atleast 1 picture in order to import."));
    return false;
}

bool ImportForm::RunImport() {
    bool Done = false;
    const auto Work = [&](frmProgress& Bar) { Done = StartOperation(Bar); };
    During(Phase::Importing, [&] { RunUnderProgress(*this, Work); });
    return Done;
}

Answer<Announcement> ImportForm::MakeAlbum(Changes& Door, const QString& Name) {
    const PointerScope Working(Pointer::Hourglass);
    return NewAlbum(Door, *DBEngine, ConvertQuotes(Name));
}

// What a medium or the memory ends has its reason; what came in before that is in.
std::optional<ImportTally> ImportForm::ImportRows(Changes& Door, std::int32_t AlbumID,
                                                  frmProgress& Bar, const SlideEntered& Entered) {
    const PointerScope Working(Pointer::Hourglass);
    ImportTally Tally{.Of = mUi->flxSelected->Rows()};
    BeginBar(Bar, Tally.Of);
    if (!GoesOn()) return std::nullopt;
    try {
        Tally.Entered.reserve(static_cast<size_t>(Tally.Of));
        PictureImport Run(Door, *DBEngine, AlbumID, Rows().SelectedPaths(),
                          mUi->wdgOptions->Keeping(),
                          [this, &Bar] { return GoesOn() && !Bar.IsStopped(); });
        if (!EnterRows(Run, Bar, Tally, Entered)) return std::nullopt;
    } catch (const std::exception& Problem) {
        Tally.Problem = ReasonOf(Problem);
    }
    Bar.Unload();  // what is told now is no more about work that could be stopped
    return Tally;
}

// The window may be closed while it imports, and its album be gone then.
bool ImportForm::GoesOn() const {
    DoEvents();
    return IsLoaded();
}

// Stopped by the user, it ends between two pictures: what is in is in as a whole.
bool ImportForm::EnterRows(PictureImport& Run, frmProgress& Bar, ImportTally& Tally,
                           const SlideEntered& Entered) {
    for (int Row = 0; Row < Tally.Of && !Bar.IsStopped(); ++Row) {
        const PictureToImport Picture = Rows().Selected(Row);
        const auto Outcome = Run.EnterNext(Picture);
        if (Outcome == PictureImport::Outcome::Ended) break;
        if (Outcome == PictureImport::Outcome::LeftOut) {
            Tally.LeftOut << ReadableText(Picture.Path) + QStringLiteral(": ") + Run.Reason();
            Rows().MarkLeftOut(Row);
        } else {
            Tally.Entered.push_back(Row);
            Entered(Run.SlideID());
        }
        MoveBar(Bar, Row + 1, Tally.Of);
        if (!GoesOn()) return false;
    }
    return IsLoaded();
}

void ImportForm::BeginBar(frmProgress& Bar, int Count) {
    Bar.setWindowTitle(tr("Importing Slides ..."));
    Bar.SupportsStop(true);
    Bar.ShowCount(0, Count);
    Bar.Refresh();
}

void ImportForm::MoveBar(frmProgress& Bar, int Done, int Count) {
    Bar.ShowCount(Done, Count);
    Bar.pgbLoadingProgress()->setToolTip(ImportProgressText(Done, Count));
    Bar.Refresh();
}

void ImportForm::DropEntered(const ImportTally& Tally) {
    Rows().DropSelected(Tally.Entered);
    UpdateButtons();
}

}  // namespace neb
