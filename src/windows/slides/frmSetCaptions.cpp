#include "windows/slides/frmSetCaptions.h"

#include "controls/fields/CaptionCount.h"
#include "controls/fields/Icons.h"
#include "controls/grid/FlexGrid.h"
#include "support/Grouped.h"
#include "ui_frmSetCaptions.h"
#include "windows/albums/modAlbumNames.h"
#include "windows/slides/CaptionPattern.h"

namespace neb {
namespace {

constexpr int MostShown = 200;  // the first ones tell how the others will be
enum PreviewColumn { ColNow, ColThen, PreviewColumns };

}  // namespace

frmSetCaptions::frmSetCaptions() : mUi(std::make_unique<Ui::frmSetCaptions>()) {
    mUi->setupUi(this);
    mUi->cmdOkay->setIcon(ThemeIcon(QStringLiteral("album-rename")));
    mUi->cmdCancel->setIcon(ThemeIcon(QStringLiteral("cancel")));
    new CaptionCount(mUi->txtPattern);
    KeepQuotesClean(*mUi->txtPattern);
    FlexGrid& Preview = *mUi->flxPreview;
    Preview.SetCols(PreviewColumns);
    Preview.SetColumn(ColNow, {.Width = width() / 2, .Heading = tr("Caption now")});
    Preview.SetColumn(ColThen, {.Stretch = true, .Heading = tr("Caption then")});
    connect(mUi->txtPattern, &QLineEdit::textChanged, this, &frmSetCaptions::ShowPreview);
    connect(mUi->spnFirst, &QSpinBox::valueChanged, this, &frmSetCaptions::ShowPreview);
    connect(mUi->cmdNumber, &QPushButton::clicked, this, [this] { Insert(QStringLiteral("#")); });
    connect(mUi->cmdPresent, &QPushButton::clicked, this,
            [this] { Insert(QString::fromUtf16(CaptionNow)); });
    On(mUi->cmdOkay, &QPushButton::clicked, &frmSetCaptions::Take);
    On(mUi->cmdCancel, &QPushButton::clicked, &frmSetCaptions::Close);
}

frmSetCaptions::~frmSetCaptions() = default;

// Where all have one caption already, that is where most people go on from.
std::optional<QStringList> frmSetCaptions::CaptionsFor(const QStringList& Present) {
    mPresent = Present;
    const bool Alike = Present.count(Present.front()) == Present.size();
    if (Alike && !Present.front().contains(u'#')) mUi->txtPattern->setText(Present.front());
    mUi->txtPattern->selectAll();
    ShowPreview();
    ShowModal();
    return mTaken;
}

CaptionPattern frmSetCaptions::Pattern() const {
    return {mUi->txtPattern->text(), mUi->spnFirst->value()};
}

void frmSetCaptions::ShowPreview() {
    const QStringList Shown = mPresent.mid(0, MostShown);
    const QStringList Then = Pattern().CaptionsFor(Shown);
    std::vector<QStringList> Rows;
    for (qsizetype I = 0; I < Shown.size(); ++I) Rows.push_back({Shown[I], Then[I]});
    mUi->flxPreview->SetRows(0);
    mUi->flxPreview->AddItems(Rows);
    SayWhatIsDone();
    mUi->spnFirst->setEnabled(mUi->txtPattern->text().contains(u'#'));
    const QString Slides = mPresent.size() == 1
                               ? tr("1 slide is selected.")
                               : tr("%1 slides are selected.").arg(Grouped(mPresent.size()));
    mUi->lblCount->setText(mPresent.size() <= MostShown
                               ? Slides
                               : Slides + tr(" The first %1 are shown.").arg(Grouped(MostShown)));
}

// Nobody empties captions by pressing Enter once too soon.
void frmSetCaptions::SayWhatIsDone() {
    const bool Clears = mUi->txtPattern->text().isEmpty();
    mUi->cmdOkay->setText(Clears ? tr("C&lear Captions") : tr("&Set Captions"));
    mUi->cmdOkay->setAccessibleName(Clears ? tr("Clear Captions") : tr("Set Captions"));
    (Clears ? mUi->cmdCancel : mUi->cmdOkay)->setDefault(true);
}

void frmSetCaptions::Insert(const QString& Text) {
    mUi->txtPattern->insert(Text);
    mUi->txtPattern->setFocus();
}

void frmSetCaptions::Take() {
    mTaken = Pattern().CaptionsFor(mPresent);
    Unload();
}

}  // namespace neb
