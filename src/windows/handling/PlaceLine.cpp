#include "windows/handling/PlaceLine.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "show/ShowRun.h"
#include "show/captions/CaptionFit.h"
#include "support/modCharacters.h"

namespace neb {
namespace {

constexpr int EdgePixels = 24;  // on a screen of the usual height
constexpr int UsualHeight = 1080;
constexpr QColor Strip(0, 0, 0);  // nothing of the caption below shines through
constexpr QColor TipGround(0, 0, 0, 190);
constexpr QColor Ahead(130, 130, 130);
constexpr QColor Behind(240, 240, 240);
constexpr QColor Pointed(120, 170, 240);

}  // namespace

PlaceLine::PlaceLine(QWidget& Window, const ShowRun& Run, std::function<ShowCaptions()> Captions)
    : QWidget(&Window), mRun(Run), mCaptions(std::move(Captions)) {
    setObjectName(QStringLiteral("PlaceLine"));
    setAccessibleName(tr("Where the show stands"));
    setCursor(Qt::PointingHandCursor);
    setVisible(false);
}

int PlaceLine::EdgeHeight() const {
    return EdgePixels * std::max(UsualHeight, parentWidget()->height()) / UsualHeight;
}

void PlaceLine::Follow(const QPoint& At) {
    const bool AtEdge = At.y() >= parentWidget()->height() - EdgeHeight();
    if (!AtEdge || mRun.SlideCount() < 1) return hide();
    Come();
    mPointed = SlideAt(At.x());
    const QString Caption = mCaptions().At(mPointed);
    mTip = tr("%1 of %2").arg(mPointed).arg(mRun.SlideCount());
    if (!Caption.isEmpty()) mTip += QStringLiteral(": ") + InOwnDirection(Caption);
    setAccessibleDescription(mTip);
    update();
}

void PlaceLine::Come() {
    const QWidget& Window = *parentWidget();
    QFont Type = font();
    Type.setPointSizeF(StandardCaption({}, {0, Window.height(), 0}, this).Points);
    setFont(Type);
    const int Height = EdgeHeight() + fontMetrics().height() * 2;
    setGeometry(0, Window.height() - Height, Window.width(), Height);
    show();
    raise();
}

std::int32_t PlaceLine::SlideAt(int X) const {
    const std::int64_t Count = mRun.SlideCount();
    const std::int64_t Place = 1 + X * Count / std::max(1, width());
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(Place, 1, Count));
}

// The stretch of the line from the beginning of one slide to the end of another.
QRectF PlaceLine::PartOf(std::int32_t From, std::int32_t To) const {
    const double Step = width() / std::max(1.0, static_cast<double>(mRun.SlideCount()));
    const double Thick = EdgeHeight() / 4.0;
    return {(From - 1) * Step, height() - 2 * Thick, (To - From + 1) * Step, Thick};
}

void PlaceLine::paintEvent(QPaintEvent*) {
    QPainter Painter(this);
    Painter.fillRect(0, height() - EdgeHeight(), width(), EdgeHeight(), Strip);
    PaintLine(Painter);
    PaintTip(Painter);
}

void PlaceLine::PaintLine(QPainter& Painter) const {
    Painter.fillRect(PartOf(1, mRun.SlideCount()), Ahead);
    Painter.fillRect(PartOf(1, mRun.Memory().CurrentSlideSeq), Behind);
    QRectF Under = PartOf(mPointed, mPointed);
    Under.setWidth(std::max(Under.width(), Under.height()));
    Painter.fillRect(Under, Pointed);
}

void PlaceLine::PaintTip(QPainter& Painter) const {
    const int Space = fontMetrics().height() / 2;
    const QString Text = fontMetrics().elidedText(mTip, Qt::ElideRight, width() - 4 * Space);
    const int Width = fontMetrics().horizontalAdvance(Text) + 2 * Space;
    const int Left = qRound(PartOf(mPointed, mPointed).center().x()) - Width / 2;
    const QRect Tip(std::clamp(Left, 0, std::max(0, width() - Width)), 0, Width,
                    fontMetrics().height() * 3 / 2);
    Painter.fillRect(Tip, TipGround);
    Painter.setPen(Behind);
    Painter.drawText(Tip, Qt::AlignCenter, Text);
}

// The right button is the menu's, and goes to the window.
void PlaceLine::mousePressEvent(QMouseEvent* Event) {
    Event->setAccepted(Event->button() == Qt::LeftButton);
}

void PlaceLine::mouseReleaseEvent(QMouseEvent* Event) {
    if (Event->button() != Qt::LeftButton) return Event->ignore();
    if (rect().contains(Event->position().toPoint()))
        Q_EMIT Chosen(SlideAt(Event->position().toPoint().x()));
}

}  // namespace neb
