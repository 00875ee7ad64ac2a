#include "windows/film/FilmChoices.h"

#include <QSignalBlocker>
#include <algorithm>

#include "support/Services.h"
#include "support/modFUFL.h"
#include "ui_FilmChoices.h"
#include "windows/film/FilmMemory.h"
#include "windows/transfer/modTransferAsks.h"

namespace neb {
namespace {

const struct {
    int To;
    const char* Words;
} Qualities[] = {
    {20, QT_TRANSLATE_NOOP("neb::FilmChoices", "Very small, coarse (%1)")},
    {45, QT_TRANSLATE_NOOP("neb::FilmChoices", "Small (%1)")},
    {65, QT_TRANSLATE_NOOP("neb::FilmChoices", "Good (%1)")},
    {85, QT_TRANSLATE_NOOP("neb::FilmChoices", "Very good (%1)")},
    {100, QT_TRANSLATE_NOOP("neb::FilmChoices", "The best, large (%1)")},
};

const char* WordsOf(int Quality) {
    return std::ranges::find_if(Qualities, [=](const auto& Each) { return Quality <= Each.To; })
        ->Words;
}

// "MP4 (H.264, AAC): televisions": what comes before the bracket is its name, the rest explains it.
QString NameOf(const FilmFormatRow& Row) {
    return FilmChoices::tr(Row.Name).section(QStringLiteral(" ("), 0, 0);
}

QString WordsOf(const FilmFormatRow& Row) {
    return FilmChoices::tr(Row.Name).section(QStringLiteral(" ("), 1).remove(u')');
}

// The format that is chosen comes first: the dialog gives a name without an ending that of the
// filter.
QString FiltersFor(FilmFormat Chosen) {
    QStringList Parts;
    const auto Add = [&Parts](const FilmFormatRow& Row) {
        Parts << FilmChoices::tr(Row.Name) + QStringLiteral(" (*%1)").arg(QLatin1String(Row.Ending))
              << u'*' + QLatin1String(Row.Ending);
    };
    Add(RowOf(Chosen));
    for (const FilmFormatRow& Each : FilmFormats())
        if (Each.Format != Chosen) Add(Each);
    return Parts.join(u'|');
}

}  // namespace

FilmChoices::FilmChoices(QWidget* Parent)
    : QWidget(Parent), mUi(std::make_unique<Ui::FilmChoices>()) {
    mUi->setupUi(this);
    FillLists();
    Connect();
    FormatChosen();
    SizeChosen();
}

FilmChoices::~FilmChoices() = default;

void FilmChoices::FillLists() {
    for (const FilmFormatRow& Each : FilmFormats())
        mUi->cboFormat->addItem(NameOf(Each), static_cast<int>(Each.Format));
    for (const FilmSizeRow& Each : FilmSizes()) mUi->cboSize->addItem(tr(Each.Name), Each.Size);
    mUi->cboSize->addItem(tr("Another size"), QSize());
    for (const int Each : FilmRates()) mUi->cboRate->addItem(QString::number(Each), Each);
}

void FilmChoices::Connect() {
    connect(mUi->cmdBrowse, &QPushButton::clicked, this, &FilmChoices::Browse);
    connect(mUi->txtFile, &QLineEdit::textEdited, this, &FilmChoices::FileTyped);
    connect(mUi->cboFormat, &QComboBox::currentIndexChanged, this, &FilmChoices::FormatChosen);
    connect(mUi->cboSize, &QComboBox::currentIndexChanged, this, &FilmChoices::SizeChosen);
    connect(mUi->cboRate, &QComboBox::currentIndexChanged, this, &FilmChoices::Changed);
    connect(mUi->sdrQuality, &QSlider::valueChanged, this, &FilmChoices::ShowQuality);
    connect(mUi->sdrQuality, &QSlider::valueChanged, this, &FilmChoices::Changed);
    for (QSpinBox* Each : {mUi->spnWidth, mUi->spnHeight, mUi->spnFirst, mUi->spnLast})
        connect(Each, &QSpinBox::valueChanged, this, &FilmChoices::Changed);
    for (QCheckBox* Each : {mUi->chkInPicture, mUi->chkTrack, mUi->chkBeside})
        connect(Each, &QCheckBox::toggled, this, &FilmChoices::Changed);
}

void FilmChoices::Propose(const QString& ShowName) {
    FilmOrder Order = RememberedFilm();
    mFolder = Order.Path;
    Order.Path += FilmNameOf(ShowName) + QLatin1String(RowOf(Order.Format).Ending);
    ShowOrder(Order);
}

void FilmChoices::ShowOrder(const FilmOrder& Order) {
    const QSignalBlocker Quiet(this);
    PutPath(*mUi->txtFile, Order.Path);
    mUi->cboFormat->setCurrentIndex(mUi->cboFormat->findData(static_cast<int>(Order.Format)));
    const int Known = mUi->cboSize->findData(Order.Size);
    mUi->cboSize->setCurrentIndex(Known < 0 ? mUi->cboSize->count() - 1 : Known);
    mUi->spnWidth->setValue(Order.Size.width());
    mUi->spnHeight->setValue(Order.Size.height());
    mUi->cboRate->setCurrentIndex(mUi->cboRate->findData(Order.Rate));
    mUi->sdrQuality->setValue(Order.Quality);
    mUi->chkInPicture->setChecked(Order.CaptionsInPicture);
    mUi->chkTrack->setChecked(Order.SubtitleTrack);
    mUi->chkBeside->setChecked(Order.SubtitleFile);
}

void FilmChoices::SetSlides(int Count) {
    const QSignalBlocker Quiet(this);
    const bool HadAll = mUi->spnLast->value() == mUi->spnLast->maximum();
    for (QSpinBox* Each : {mUi->spnFirst, mUi->spnLast}) Each->setMaximum(std::max(1, Count));
    if (HadAll) mUi->spnLast->setValue(Count);
}

FilmFormat FilmChoices::Format() const {
    return static_cast<FilmFormat>(mUi->cboFormat->currentData().toInt());
}

// A name alone lies in the folder that was proposed.
QString FilmChoices::Path() const {
    const QString Typed = mUi->txtFile->text().trimmed();
    if (Typed.isEmpty()) return {};
    const bool IsName = !HoldsSeparator(Typed) && !Typed.startsWith(u'~');
    return WithFilmEnding(IsName ? mFolder + Typed : PathIn(*mUi->txtFile), Format());
}

FilmOrder FilmChoices::Order() const {
    const int Last = mUi->spnLast->value();
    return {.First = mUi->spnFirst->value(),
            .Last = Last == mUi->spnLast->maximum() ? 0 : Last,
            .Path = Path(),
            .Format = Format(),
            .Size = {mUi->spnWidth->value(), mUi->spnHeight->value()},
            .Rate = mUi->cboRate->currentData().toInt(),
            .Quality = mUi->sdrQuality->value(),
            .CaptionsInPicture = mUi->chkInPicture->isChecked(),
            .SubtitleTrack = mUi->chkTrack->isChecked(),
            .SubtitleFile = mUi->chkBeside->isChecked()};
}

void FilmChoices::Remember() const {
    RememberFilm(Order());
}

void FilmChoices::PointOut(const FilmOrder& Order) {
    const struct {
        QWidget* Field;
        void (*Mend)(FilmOrder& Its);
    } Fields[] = {
        {mUi->spnWidth, [](FilmOrder& Its) { Its.Size = FilmSizes().front().Size; }},
        {mUi->cboRate, [](FilmOrder& Its) { Its.Rate = FilmRates().front(); }},
        {mUi->sdrQuality, [](FilmOrder& Its) { Its.Quality = 1; }},
        {mUi->txtFile, [](FilmOrder& Its) { Its.Path = QLatin1String(RowOf(Its.Format).Ending); }},
        {mUi->spnFirst, [](FilmOrder& Its) { Its.First = 1, Its.Last = 0; }},
    };
    const QString Said = CheckFilmOrder(Order).Refusal().Text;
    if (Said.isEmpty() || Order.Path.isEmpty()) return mUi->txtFile->setFocus();
    for (const auto& Each : Fields) {
        FilmOrder Mended = Order;
        Each.Mend(Mended);
        if (CheckFilmOrder(Mended).Refusal().Text != Said) return Each.Field->setFocus();
    }
}

void FilmChoices::Browse() {
    const QString Path =
        TheServices().Dialogs->SaveFile(tr("File of the Film"), Order().Path, FiltersFor(Format()));
    if (Path.isEmpty()) return;
    PutPath(*mUi->txtFile, Path);
    FileTyped();
}

void FilmChoices::FileTyped() {
    if (const auto Its = FormatOfFilm(mUi->txtFile->text().trimmed()))
        mUi->cboFormat->setCurrentIndex(mUi->cboFormat->findData(static_cast<int>(*Its)));
    Q_EMIT Changed();
}

void FilmChoices::FormatChosen() {
    mUi->sdrQuality->setEnabled(Format() != FilmFormat::Lossless);
    mUi->lblFormatWords->setText(WordsOf(RowOf(Format())));
    ShowQuality();
    const auto Its = FormatOfFilm(mUi->txtFile->text().trimmed());
    if (Its && *Its != Format())
        PutPath(*mUi->txtFile, WithFilmEnding(PathIn(*mUi->txtFile), Format()));
    Q_EMIT Changed();
}

// One of the list is shown in the fields as well, from where another one begins.
void FilmChoices::SizeChosen() {
    const QSize Size = mUi->cboSize->currentData().toSize();
    for (QWidget* Each :
         {static_cast<QWidget*>(mUi->lblPixels), static_cast<QWidget*>(mUi->spnWidth),
          static_cast<QWidget*>(mUi->lblTimes), static_cast<QWidget*>(mUi->spnHeight)})
        Each->setEnabled(!Size.isValid());
    if (Size.isValid()) {
        const QSignalBlocker Quiet(this);
        mUi->spnWidth->setValue(Size.width());
        mUi->spnHeight->setValue(Size.height());
    }
    Q_EMIT Changed();
}

void FilmChoices::ShowQuality() {
    const int Now = mUi->sdrQuality->value();
    mUi->lblQualityWords->setText(Format() == FilmFormat::Lossless ? tr("Every picture as it is")
                                                                   : tr(WordsOf(Now)).arg(Now));
}

}  // namespace neb
