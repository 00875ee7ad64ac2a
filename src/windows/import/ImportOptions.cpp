#include "windows/import/ImportOptions.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QScreen>

#include "controls/fields/ComboBoxList.h"
#include "settings/SettingKeys.h"
#include "settings/clsSettings.h"
#include "settings/modNEBSlideShow.h"
#include "windows/frame/KeepPicturesField.h"
#include "windows/frame/modWindowState.h"

namespace neb {
namespace {

constexpr int WidestRow = 960;  // pixels, in a window of its first width; less on a small screen

// The entries of the list of orders, and what the settings file calls them.
struct OrderRow {
    PictureOrder Order;
    const char* Stored;
    QString Text;
};

const std::vector<OrderRow>& OrderRows() {
    static const std::vector<OrderRow> Rows = {
        {PictureOrder::ByName, "Name", ImportOptions::tr("By name")},
        {PictureOrder::ByTime, "Taken", ImportOptions::tr("By the time taken")},
    };
    return Rows;
}

const OrderRow& OrderAt(int Index) {
    return OrderRows().at(static_cast<size_t>(std::max(Index, 0)));
}

// The entry that the settings file names; the first for anything else.
int StoredOrder() {
    const QString Stored = ReadText(OpenSettings(), Setting::PictureOrder);
    for (int I = 0; I < static_cast<int>(OrderRows().size()); ++I)
        if (Stored == QLatin1String(OrderAt(I).Stored)) return I;
    return 0;
}

// A label and its field stand close together.
QBoxLayout* Labelled(QLabel& Label, QWidget& Field) {
    auto* Pair = new QHBoxLayout;
    Pair->addWidget(&Label);
    Pair->addWidget(&Field);
    Pair->addStretch();
    Label.setBuddy(&Field);
    return Pair;
}

}  // namespace

ImportOptions::ImportOptions(QWidget* Parent)
    : QWidget(Parent), mRow(new QHBoxLayout(this)), mListed(new QHBoxLayout) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);  // the height belongs to the lists
    mRow->setContentsMargins(0, 0, 0, 0);
    mListed->addLayout(AddOrder());
    mListed->addSpacing(fontMetrics().averageCharWidth());
    mListed->addWidget(AddCaptions());
    mListed->addStretch(1);
    mRow->addLayout(mListed, 1);
    mKeeping = new KeepPicturesField;
    mRow->addWidget(mKeeping, 0, Qt::AlignLeft);
    Arrange();
}

QLayout* ImportOptions::AddOrder() {
    auto* Label = new QLabel(tr("Or&der pictures"));
    mOrder = new QComboBox;
    mOrder->setObjectName(QStringLiteral("cboOrder"));
    mOrder->setAccessibleName(tr("Order pictures"));
    mOrder->setToolTip(
        tr("The order in which pictures are listed before they are selected; IMG_2 comes before "
           "IMG_10"));
    for (const OrderRow& Each : OrderRows()) mOrder->addItem(Each.Text);
    mOrder->setCurrentIndex(StoredOrder());
    ChooseNotByWheel(*mOrder);
    connect(mOrder, &QComboBox::activated, this, [this](int Index) {
        clsSettings Settings = OpenSettings();
        PutText(Settings, Setting::PictureOrder, QString::fromLatin1(OrderAt(Index).Stored));
        SaveMemory(Settings);
        Q_EMIT OrderChosen(Order());
    });
    return Labelled(*Label, *mOrder);
}

QWidget* ImportOptions::AddCaptions() {
    mCaptions = new QCheckBox(tr("&Captions from the pictures' own words"));
    mCaptions->setObjectName(QStringLiteral("chkCaptions"));
    mCaptions->setAccessibleName(tr("Captions from the pictures' own words"));
    mCaptions->setToolTip(
        tr("Titles and descriptions that are kept in the pictures become captions; else the names "
           "of the files"));
    mCaptions->setChecked(ReadFlag(OpenSettings(), Setting::PictureCaptions));
    connect(mCaptions, &QCheckBox::clicked, this, [this](bool On) {
        clsSettings Settings = OpenSettings();
        PutFlag(Settings, Setting::PictureCaptions, On);
        SaveMemory(Settings);
        Q_EMIT OwnWordsChosen(On);
    });
    return mCaptions;
}

PictureOrder ImportOptions::Order() const {
    return OrderAt(mOrder->currentIndex()).Order;
}

bool ImportOptions::OwnWords() const {
    return mCaptions->isChecked();
}

PictureKeeping ImportOptions::Keeping() const {
    return mKeeping->Keeping();
}

// In a large font the row becomes two or three: the window stays within the screen.
void ImportOptions::Arrange() {
    for (QBoxLayout* Each : {mRow, mListed}) Each->setDirection(QBoxLayout::LeftToRight);
    const int OnScreen = screen()->availableSize().width() * 9 / 10;
    for (QBoxLayout* Each : {mRow, mListed})
        if (mRow->sizeHint().width() > std::min(WidestRow, OnScreen))
            Each->setDirection(QBoxLayout::TopToBottom);
}

void ImportOptions::changeEvent(QEvent* Event) {
    QWidget::changeEvent(Event);
    if (Event->type() == QEvent::FontChange || Event->type() == QEvent::StyleChange) Arrange();
}

}  // namespace neb
