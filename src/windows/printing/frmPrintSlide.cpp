#include "windows/printing/frmPrintSlide.h"

#include <QSignalBlocker>

#include "controls/fields/Icons.h"
#include "controls/fields/NumberKeys.h"
#include "printing/SheetComposer.h"
#include "support/Grouped.h"
#include "ui_frmPrintSlide.h"
#include "windows/printing/PageSketch.h"

namespace neb {
namespace {

constexpr double KeyStep = 0.25, LeastByKey = 1;  // inches

QString InWords(QSizeF Inches) {
    const auto Side = [](double Of) { return Decimal(std::round(Of * 100) / 100); };
    return frmPrintSlide::tr("%1 by %2 inches").arg(Side(Inches.width()), Side(Inches.height()));
}

}  // namespace

frmPrintSlide::frmPrintSlide() : mUi(std::make_unique<Ui::frmPrintSlide>()) {
    mUi->setupUi(this);
    setWindowIcon(ThemeIcon(QStringLiteral("print")));
    mUi->cmdPrint->setIcon(ThemeIcon(QStringLiteral("print")));
    mUi->cmdCancel->setIcon(ThemeIcon(QStringLiteral("cancel")));
    for (QLineEdit* Each : {mUi->txtWidth, mUi->txtHeight}) StepByKeys(*Each, KeyStep, LeastByKey);
    connect(mUi->txtWidth, &QLineEdit::textChanged, this, &frmPrintSlide::WidthTyped);
    connect(mUi->txtHeight, &QLineEdit::textChanged, this, &frmPrintSlide::HeightTyped);
    connect(mUi->optLandscape, &QRadioButton::toggled, this, &frmPrintSlide::ShowSketch);
    connect(mUi->chkMaintainRatio, &QCheckBox::toggled, this, &frmPrintSlide::ShowSketch);
    On(mUi->cmdPrint, &QPushButton::clicked, &frmPrintSlide::Print);
    On(mUi->cmdCancel, &QPushButton::clicked, &frmPrintSlide::Close);
}

frmPrintSlide::~frmPrintSlide() = default;

void frmPrintSlide::PrintSlide(const QString& PicturePath) {
    mPicture = ReadToPrint(PicturePath);
    ShowModal();
}

void frmPrintSlide::Form_Load() {
    mUi->imgSlide->SetPicture(mPicture.Shown);
    mUi->sktPage->SetPicture(mPicture.Shown);
    const SlideWish Opening = OpeningWish(mPicture.Size);
    const bool Stands = Opening.Turn == PageTurn::Portrait;
    (Stands ? mUi->optPortrait : mUi->optLandscape)->setChecked(true);
    ShowNumber(*mUi->txtWidth, Opening.Width);
    ShowNumber(*mUi->txtHeight, Opening.Height);
    ShowSketch();
    mUi->txtWidth->setFocus();
    mUi->txtWidth->selectAll();
}

// Nothing follows from a number that the window itself has worked out.
void frmPrintSlide::ShowNumber(QLineEdit& In, double Inches) {
    const QSignalBlocker Updating(In);
    In.setText(Decimal(Inches));
    In.setCursorPosition(0);
}

void frmPrintSlide::WidthTyped() {
    if (mUi->chkMaintainRatio->isChecked())
        ShowNumber(*mUi->txtHeight, HeightForWidth(NumberIn(*mUi->txtWidth), mPicture.Size));
    ShowSketch();
}

void frmPrintSlide::HeightTyped() {
    if (mUi->chkMaintainRatio->isChecked())
        ShowNumber(*mUi->txtWidth, WidthForHeight(NumberIn(*mUi->txtHeight), mPicture.Size));
    ShowSketch();
}

SlideWish frmPrintSlide::Wish() const {
    return {.Width = NumberIn(*mUi->txtWidth),
            .Height = NumberIn(*mUi->txtHeight),
            .Turn = mUi->optLandscape->isChecked() ? PageTurn::Landscape : PageTurn::Portrait,
            .KeepsRatio = mUi->chkMaintainRatio->isChecked()};
}

void frmPrintSlide::ShowSketch() {
    const SlideWish Wanted = Wish();
    Answer<QSizeF> Size = SlideSizeFor(Wanted, mPicture.Size);
    SketchedPage Page = SlidePage(PaperOfCountry(), Wanted.Turn,
                                  Size ? *Size : QSizeF(Wanted.Width, Wanted.Height));
    Page.IsRight = static_cast<bool>(Size);
    mUi->sktPage->Show(std::move(Page), Size ? InWords(*Size) : Size.Refusal().Text);
}

void frmPrintSlide::Print() {
    PreviewComposed(*this, mPicture, [Wanted = Wish(), Path = mPicture.Path](PrintDocument& Into) {
        return ComposeSlide(Into, Wanted, Path);
    });
}

}  // namespace neb
