#include "windows/frame/KeepPicturesField.h"

#include <QComboBox>
#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QShortcut>

#include "albums/KeepingChoice.h"
#include "controls/fields/ComboBoxList.h"
#include "settings/SettingKeys.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "windows/frame/modNotice.h"

namespace neb {
namespace {

qint64 PixelsOf(QSize Size) {
    return qint64(Size.width()) * Size.height();
}

}  // namespace

QSize LargestScreenSize() {
    QSize Largest;
    for (const QScreen* Each : QGuiApplication::screens()) {
        const QSize Pixels = (QSizeF(Each->size()) * Each->devicePixelRatio()).toSize();
        if (PixelsOf(Pixels) > PixelsOf(Largest)) Largest = Pixels;
    }
    return Largest;
}

void ListKeepings(QComboBox& Box, const QString& Chosen) {
    const QSignalBlocker Quiet(Box);
    const QSize Screen = LargestScreenSize();
    Box.clear();
    for (const KeepingRow& Row : KeepingRows()) {
        const QString Key = QString::fromLatin1(Row.Key);
        Box.addItem(KeepingTitle(Key, Screen), Key);
    }
    const int At = Box.findData(Chosen, Qt::UserRole, Qt::MatchFixedString);
    if (At < 0) Box.addItem(KeepingTitle(Chosen, Screen), Chosen);
    Box.setCurrentIndex(At < 0 ? Box.count() - 1 : At);
    OpenAsWideAsNames(Box);
    Box.setMinimumWidth(Box.sizeHint().width());  // it keeps the least width of fewer entries
}

KeepPicturesField::KeepPicturesField(QWidget* Parent)
    : QWidget(Parent),
      mLabel(new QLabel(tr("&Keep pictures at most"), this)),
      mBox(new QComboBox(this)) {
    mLabel->setBuddy(mBox);
    mBox->setObjectName(QStringLiteral("cboKeepPictures"));
    mBox->setAccessibleName(tr("Keep pictures at most"));
    mBox->setToolTip(
        tr("The size in pixels at which pictures come into albums; larger ones are "
           "made smaller, those that are there stay as they are"));
    mBox->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    ChooseNotByWheel(*mBox);
    auto* const Row = new QHBoxLayout(this);
    Row->setContentsMargins({});
    Row->addWidget(mLabel);
    Row->addWidget(mBox);
    setFocusProxy(mBox);
    connect(mBox, &QComboBox::activated, this, &KeepPicturesField::Keep);
    ShowChoice();
}

void KeepPicturesField::SetKey(const QKeySequence& Key) {
    mLabel->setText(tr("Keep pictures at most"));
    mLabel->setBuddy(nullptr);
    auto* const Shortcut = new QShortcut(Key, this);
    connect(Shortcut, &QShortcut::activated, mBox,
            [this] { mBox->setFocus(Qt::ShortcutFocusReason); });
}

PictureKeeping KeepPicturesField::Keeping() const {
    return {LimitOf(mBox->currentData().toString(), LargestScreenSize()),
            ReadFlag(OpenSettings(), Setting::KeepPlace)};
}

void KeepPicturesField::ShowChoice() {
    if (mIsKept) ListKeepings(*mBox, ReadText(OpenSettings(), Setting::KeepPictures));
}

// Where it cannot be kept it counts for this window all the same.
void KeepPicturesField::Keep() try {
    mIsKept = false;
    clsSettings Settings = OpenSettings();
    PutText(Settings, Setting::KeepPictures, mBox->currentData().toString());
    Settings.Save();
    mIsKept = true;
} catch (const Fault& Problem) {
    ShowNotice(tr("The size of pictures counts for this window alone: %1").arg(Problem.What()));
}

bool KeepPicturesField::event(QEvent* Event) {
    if (Event->type() == QEvent::Show) {
        window()->installEventFilter(this);
        ShowChoice();
    }
    return QWidget::event(Event);
}

bool KeepPicturesField::eventFilter(QObject* Watched, QEvent* Event) {
    if (Event->type() == QEvent::WindowActivate && Watched == window()) ShowChoice();
    return QWidget::eventFilter(Watched, Event);
}

}  // namespace neb
