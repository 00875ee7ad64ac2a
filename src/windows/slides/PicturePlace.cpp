#include "windows/slides/PicturePlace.h"

#include <QEvent>
#include <QHeaderView>
#include <QStackedWidget>

#include "controls/grid/FlexGrid.h"
#include "controls/picture/PictureView.h"
#include "controls/speech/SpokenRole.h"
#include "support/Texts.h"

namespace neb {

PicturePlace::PicturePlace(QStackedWidget& Stack, PictureView& View, FlexGrid& Message)
    : QObject(&Stack), mStack(Stack), mView(View), mMessage(Message) {
    SetUpMessage();
    mStack.installEventFilter(this);
    mMessage.viewport()->installEventFilter(this);
    connect(&mView, &PictureView::DoubleClicked, this, &PicturePlace::Opened);
    connect(&mMessage, &FlexGrid::CellDblClicked, this, &PicturePlace::Opened);
    connect(&mMessage, &FlexGrid::RowActivated, this, &PicturePlace::Opened);
}

// One cell that fills the place.
void PicturePlace::SetUpMessage() {
    SpeakAs(mMessage, QAccessible::Graphic);
    mMessage.setAccessibleDescription(tr("Enter or a double click chooses a picture"));
    mMessage.SetCols(1);
    mMessage.SetColumn(0, {.Stretch = true, .Align = Qt::AlignCenter});
    mMessage.AddItem();
    mMessage.SetTextMatrix(0, 0, tr("Double-Click To Load a Graphic"));
    mMessage.horizontalHeader()->hide();
    mMessage.verticalHeader()->hide();
    mMessage.verticalHeader()->setMinimumSectionSize(1);
    mMessage.setShowGrid(false);
    mMessage.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    mMessage.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void PicturePlace::Show(const QImage& Picture) {
    mStack.setCurrentWidget(Picture.isNull() ? static_cast<QWidget*>(&mMessage) : &mView);
    mView.SetPicture(Picture);
    FitMessage();
}

// The message is as large as its place allows.
void PicturePlace::FitMessage() {
    constexpr int HeightsOfText = 12;
    const QSize Place = mMessage.viewport()->size();
    QFont Font = mStack.font();
    const int Least = QFontInfo(Font).pixelSize();
    const double Widths =
        Place.width() /
        std::max(1.0, 1.1 * QFontMetricsF(Font).horizontalAdvance(mMessage.TextMatrix(0, 0)));
    const double Largest = QFontMetricsF(Font).height() * Widths;
    const int Pixels = static_cast<int>(std::min(Largest, Place.height() / double(HeightsOfText)));
    Font.setPixelSize(std::max(Pixels, Least));
    if (mMessage.font() != Font) mMessage.setFont(Font);
    mMessage.verticalHeader()->resizeSection(0, std::max(1, Place.height()));
}

bool PicturePlace::eventFilter(QObject* Watched, QEvent* Event) {
    const QEvent::Type Of = Watched == &mStack ? QEvent::FontChange : QEvent::Resize;
    if (Event->type() == Of) FitMessage();
    return QObject::eventFilter(Watched, Event);
}

}  // namespace neb
