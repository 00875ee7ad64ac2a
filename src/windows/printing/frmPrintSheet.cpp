#include "windows/printing/frmPrintSheet.h"

#include "controls/fields/Icons.h"
#include "controls/fields/NumberKeys.h"
#include "controls/forms/Tell.h"
#include "printing/SheetComposer.h"
#include "support/modNumbers.h"
#include "ui_frmPrintSheet.h"
#include "windows/printing/PageSketch.h"

namespace neb {

frmPrintSheet::frmPrintSheet() : mUi(std::make_unique<Ui::frmPrintSheet>()) {
    mUi->setupUi(this);
    setWindowIcon(ThemeIcon(QStringLiteral("print-sheet")));
    mUi->cmdPrint->setIcon(ThemeIcon(QStringLiteral("print")));
    mUi->cmdCancel->setIcon(ThemeIcon(QStringLiteral("cancel")));
    for (QLineEdit* Each : {mUi->txtSlidesPerRow, mUi->txtRowsPerPage}) {
        StepByKeys(*Each, 1, 1);
        connect(Each, &QLineEdit::textChanged, this, &frmPrintSheet::ShowSketch);
    }
    connect(mUi->optLandscape, &QRadioButton::toggled, this, &frmPrintSheet::ShowSketch);
    connect(mUi->chkMaintainRatio, &QCheckBox::toggled, this, &frmPrintSheet::ShowSketch);
    On(mUi->cmdPrint, &QPushButton::clicked, &frmPrintSheet::Print);
    On(mUi->cmdCancel, &QPushButton::clicked, &frmPrintSheet::Close);
}

frmPrintSheet::~frmPrintSheet() = default;

void frmPrintSheet::PrintSlide(const QString& PicturePath, const QString& Text) {
    mPicture = ReadToPrint(PicturePath);
    mText = Text;
    ShowModal();
}

void frmPrintSheet::Form_Load() {
    mUi->imgSlide->SetPicture(mPicture.Shown);
    mUi->imgSlide->setAccessibleDescription(mText);
    mUi->sktPage->SetPicture(mPicture.Shown);
    const bool Stands = OpeningWish(mPicture.Size).Turn == PageTurn::Portrait;
    (Stands ? mUi->optPortrait : mUi->optLandscape)->setChecked(true);
    ShowSketch();
    mUi->txtSlidesPerRow->setFocus();
    mUi->txtSlidesPerRow->selectAll();
}

GridWish frmPrintSheet::Wish() const {
    return {.PerRow = NumberIn(*mUi->txtSlidesPerRow),
            .RowsPerPage = NumberIn(*mUi->txtRowsPerPage),
            .Turn = mUi->optLandscape->isChecked() ? PageTurn::Landscape : PageTurn::Portrait,
            .KeepsRatio = mUi->chkMaintainRatio->isChecked(),
            .WholeSheet = true,
            .OfOnePicture = true};
}

void frmPrintSheet::ShowSketch() {
    const GridWish Wanted = Wish();
    Answer<CellGrid> Grid = GridFor(Wanted);
    const QSizeF Paper = PaperOfCountry();
    if (!Grid) return mUi->sktPage->Show(EmptyPage(Paper, Wanted.Turn), Grid.Refusal().Text);
    mUi->sktPage->Show(FirstSheet(Paper, *Grid, 1, mPicture.Size),
                       Counted(Grid->CellsPerPage(), tr("copy"), tr("copies")));
}

void frmPrintSheet::Print() {
    Answer<CellGrid> Grid = GridFor(Wish());
    if (!Tell(Grid)) return;
    PreviewComposed(*this, mPicture,
                    [Cells = *Grid, Path = mPicture.Path](PrintDocument& Into) -> Answer<> {
                        ComposeSheets(Into, Cells, {{Path}});
                        return Done();
                    });
}

}  // namespace neb
