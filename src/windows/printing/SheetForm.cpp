#include "windows/printing/SheetForm.h"

#include <QAbstractItemView>
#include <QScopeGuard>

#include "controls/fields/ComboBoxList.h"
#include "controls/fields/Icons.h"
#include "controls/fields/NumberKeys.h"
#include "controls/forms/ScreenPointer.h"
#include "controls/forms/Tell.h"
#include "db/clsDBEngine.h"
#include "printing/PrintBeside.h"
#include "printing/SheetComposer.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Grouped.h"
#include "support/Texts.h"
#include "support/modNumbers.h"
#include "ui_SheetForm.h"
#include "windows/frame/modNotice.h"
#include "windows/printing/PageSketch.h"
#include "windows/printing/modPrinting.h"

namespace neb {
namespace {

const QSize UsualShape(4, 3);

QString CompletedText(double Percent) {
    return tr("%1% Completed").arg(Decimal(Percent, 1));
}

// In the bar itself, where the next picture is being read.
QString PictureOf(const PrintProgress& Now) {
    return SheetForm::tr("Picture %1 of %2")
        .arg(Grouped(std::min(Now.Done + 1, Now.Total)), Grouped(Now.Total));
}

}  // namespace

SheetForm::SheetForm() : mUi(std::make_unique<Ui::SheetForm>()) {
    mUi->setupUi(this);
    setWindowIcon(ThemeIcon(QStringLiteral("print")));
    mUi->cmdPrint->setIcon(ThemeIcon(QStringLiteral("print")));
    mUi->cmdStop->setIcon(ThemeIcon(QStringLiteral("stop")));
    mUi->cmdClose->setIcon(ThemeIcon(QStringLiteral("exit")));
    for (QWidget* Each : std::initializer_list<QWidget*>{mUi->pbrProgress, mUi->cmdStop}) {
        QSizePolicy Policy = Each->sizePolicy();
        Policy.setRetainSizeWhenHidden(true);
        Each->setSizePolicy(Policy);
        Each->hide();
    }
    SetUpFields();
    On(mUi->cmdPrint, &QPushButton::clicked, &SheetForm::Print);
    On(mUi->cmdClose, &QPushButton::clicked, &SheetForm::Close);
    connect(mUi->cmdStop, &QPushButton::clicked, this, &SheetForm::Stop);
}

SheetForm::~SheetForm() = default;

void SheetForm::SetUpFields() {
    for (QComboBox* Each : {mUi->cboAlbum, mUi->cboSlideShow})
        Each->view()->setAccessibleName(Each->accessibleName());
    connect(mUi->cboAlbum, &QComboBox::currentIndexChanged, this, [this] { AlbumChosen(); });
    connect(mUi->cboSlideShow, &QComboBox::currentIndexChanged, this, &SheetForm::ShowSketch);
    for (QLineEdit* Each : {mUi->txtSlidesPerRow, mUi->txtRowsPerPage}) {
        StepByKeys(*Each, 1, 1);
        connect(Each, &QLineEdit::textChanged, this, &SheetForm::ShowSketch);
    }
    for (QAbstractButton* Each : std::initializer_list<QAbstractButton*>{
             mUi->optLandscape, mUi->chkMaintainRatio, mUi->chkWholeSheet, mUi->chkCaptions,
             mUi->chkPageNumbers, mUi->chkName})
        connect(Each, &QAbstractButton::toggled, this, &SheetForm::ShowSketch);
}

void SheetForm::Form_Load() {
    LoadAlbums();
    UpdateControls();
    ShowSketch();
    (mUi->cboAlbum->isEnabled() ? static_cast<QWidget*>(mUi->cboAlbum) : mUi->cmdClose)->setFocus();
}

void SheetForm::LoadAlbums() {
    ComboBoxList Albums(*mUi->cboAlbum);
    if (DBEngine) DBEngine->LoadAlbumsCombo(Albums, false);
    OpenAsWideAsNames(*mUi->cboAlbum);
    if (mAlbumID > 0)
        ComboSelectByData(Albums, mAlbumID, -2);
    else
        Albums.SetListIndex(Albums.ListCount() > 0 ? 0 : -1);
}

bool SheetForm::Form_Unload() {
    return mStage == Stage::Idle || mStage == Stage::Previewing;
}

std::int32_t SheetForm::AlbumID() const {
    return ComboBoxList(*mUi->cboAlbum).ItemData(mUi->cboAlbum->currentIndex());
}

void SheetForm::AlbumChosen() {
    UpdateControls();
    ShowSketch();
}

Answer<> SheetForm::IsChosen() const {
    if (AlbumID() != 0) return Done();
    return Refuse(tr("You must select an Album to print."), tr("Missing User Input"));
}

bool SheetForm::CanPrint() const {
    return mUi->cboAlbum->count() > 0;
}

QString SheetForm::WhatToDo() const {
    return tr("There are no albums yet. New Album in the menu Album makes one.");
}

void SheetForm::UpdateControls() {
    const bool Idle = mStage == Stage::Idle;
    for (QWidget* Each : std::initializer_list<QWidget*>{
             mUi->cmdClose, mUi->txtSlidesPerRow, mUi->txtRowsPerPage, mUi->fraLayout,
             mUi->chkMaintainRatio, mUi->chkWholeSheet, mUi->fraExtras})
        Each->setEnabled(Idle);
    mUi->cboAlbum->setEnabled(Idle && mUi->cboAlbum->count() > 0);
    mUi->cboSlideShow->setEnabled(Idle && CanPrint());
    mUi->cmdPrint->setEnabled(Idle && CanPrint());
}

GridWish SheetForm::Wish() const {
    return {.PerRow = NumberIn(*mUi->txtSlidesPerRow),
            .RowsPerPage = NumberIn(*mUi->txtRowsPerPage),
            .Turn = mUi->optLandscape->isChecked() ? PageTurn::Landscape : PageTurn::Portrait,
            .KeepsRatio = mUi->chkMaintainRatio->isChecked(),
            .WholeSheet = mUi->chkWholeSheet->isChecked(),
            .Captions = mUi->chkCaptions->isChecked()};
}

SketchedFoot SheetForm::Foot() const {
    return {mUi->chkName->isChecked(), mUi->chkPageNumbers->isChecked()};
}

QString SheetForm::Sentence(Answer<CellGrid>& Grid, int Slides) const {
    if (!CanPrint()) return WhatToDo();
    if (const Answer<> Chosen = IsChosen(); !Chosen) return Chosen.Refusal().Text;
    if (!Grid) return Grid.Refusal().Text;
    if (Slides == 0) return tr("There are no slides to print.");
    return Counted(Slides, tr("slide"), tr("slides")) + QStringLiteral(", ") +
           Counted(PagesFor(*Grid, Slides), tr("page"), tr("pages"));
}

void SheetForm::ShowSketch() {
    const GridWish Wanted = Wish();
    Answer<CellGrid> Grid = GridFor(Wanted);
    const QSizeF Paper = PaperOfCountry();
    const int Slides = CanPrint() && IsChosen() ? SlideCount() : 0;
    mUi->sktPage->Show(Grid && Slides > 0 ? FirstSheet(Paper, *Grid, Slides, UsualShape, Foot())
                                          : EmptyPage(Paper, Wanted.Turn),
                       Sentence(Grid, Slides));
}

Answer<CellGrid> SheetForm::CheckedGrid() const {
    const Answer<> Chosen = IsChosen();
    return Chosen ? GridFor(Wish()) : Answer<CellGrid>(Chosen.Refusal());
}

// The window stays as it is behind the preview.
void SheetForm::Print() {
    Answer<CellGrid> Grid = CheckedGrid();
    if (!Tell(Grid)) return;
    const auto Over = qScopeGuard([this] { SetStage(Stage::Idle); });
    SetStage(Stage::Composing);
    Composed Document = Compose(*Grid);
    if (!Document) return;
    SetStage(Stage::Previewing);
    PreviewDocument(std::move(Document));
}

SheetForm::Composed SheetForm::Compose(const CellGrid& Grid) try {
    Answer<SheetMatter> Given = Matter();
    if (!Tell(Given)) return {};
    for (const BoxRequest& Each : Given->Slides.Missing) ShowBox(Each);
    if (Given->Slides.Paths.isEmpty()) return {};
    Composed Document = ComposeBeside(Grid, *Given);
    if (!Document) ShowNotice(tr("Stopped; there is no preview."));
    return Document;
} catch (const Fault& Problem) {
    MsgBox(Problem.Text(), windowTitle(), BoxIcon::Critical);
    return {};
}

// Nothing when it was stopped.
SheetForm::Composed SheetForm::ComposeBeside(const CellGrid& Grid, const SheetMatter& Given) {
    const PointerScope Working(Pointer::Hourglass);
    const SheetContents Contents{Given.Slides.Paths, Given.Slides.Captions,
                                 Foot().Name ? Given.Name : QString(), Foot().PageNumber};
    const auto Work = [Grid, Contents,
                       Document = NewPrintDocument(Given.Name)](const PrintGoOn& GoOn) -> Composed {
        return ComposeSheets(*Document, Grid, Contents, GoOn).Whole ? Document : nullptr;
    };
    Composed Document =
        RunBeside<Composed>(Work, [this](const PrintProgress& Now) { return ShowProgress(Now); });
    const auto All = static_cast<int>(Contents.Paths.size());
    return Document && ShowProgress({All, All}) ? Document : nullptr;
}

bool SheetForm::ShowProgress(const PrintProgress& Now) {
    const double Percent = Now.Total == 0          ? 0
                           : Now.Done >= Now.Total ? 100
                                                   : 100.0 * Now.Done / Now.Total;
    mUi->pbrProgress->setValue(static_cast<int>(Percent));
    mUi->pbrProgress->setToolTip(CompletedText(Percent));
    mUi->pbrProgress->setFormat(PictureOf(Now));
    DoEvents();
    return mStage != Stage::Stopping;
}

void SheetForm::SetStage(Stage Now) {
    mStage = Now;
    const bool Begins = Now == Stage::Composing;
    if (Begins) {
        mUi->pbrProgress->setValue(0);
        mUi->pbrProgress->setFormat({});
    }
    mUi->pbrProgress->setVisible(Now != Stage::Idle);
    mUi->cmdStop->setEnabled(Begins);
    mUi->cmdStop->setVisible(Begins);
    if (Begins) mUi->cmdStop->setFocus();
    UpdateControls();
    if (Now == Stage::Idle) mUi->cmdPrint->setFocus();
}

void SheetForm::Stop() {
    if (mStage == Stage::Composing) mStage = Stage::Stopping;
    mUi->cmdStop->setEnabled(false);
}

}  // namespace neb
