#include "controls/grid/FlexGridDrag.h"

#include <QApplication>
#include <QDrag>
#include <QDropEvent>
#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOption>
#include <algorithm>
#include <utility>

#include "controls/grid/FlexGrid.h"

namespace neb {
namespace {

constexpr int TickMs = 30;
constexpr int TicksBeforeScroll = 8;  // a pointer that only crosses the edge scrolls nothing
constexpr double RowsPerSecond = 8;   // at first; it grows while the pointer stays
constexpr int LineWidth = 3;

// Only the program itself knows the rows behind it: the type is its own, the content empty.
class RowsInHand : public QMimeData {
  public:
    explicit RowsInHand(FlexGrid& Grid) : From(&Grid) {
        setData(QStringLiteral("application/x-neb-rows"), QByteArray());
    }
    const QPointer<FlexGrid> From;
};

// A child window of the main window counts as a window.
const QWidget* WindowOf(const QWidget* Part) {
    while (!Part->isWindow() && Part->windowType() != Qt::SubWindow && Part->parentWidget())
        Part = Part->parentWidget();
    return Part;
}

}  // namespace

std::function<void(QDrag&)>& TheDragRunner() {
    static std::function<void(QDrag&)> Runner = [](QDrag& Drag) { Drag.exec(Qt::MoveAction); };
    return Runner;
}

FlexGridDrag::FlexGridDrag(FlexGrid& Grid, const QString& Group)
    : QObject(&Grid), mGrid(Grid), mGroup(Group) {
    mScroll.setInterval(TickMs);
    connect(&mScroll, &QTimer::timeout, this, &FlexGridDrag::ScrollOn);
    mGrid.viewport()->installEventFilter(this);
}

std::unique_ptr<QMimeData> FlexGridDrag::Data() const {
    return std::make_unique<RowsInHand>(mGrid);
}

// A drag ends with a release that belongs to no press: it must not change a selection.
bool FlexGridDrag::Released() {
    const Press Before = std::exchange(mPress, Press::None);
    return Before == Press::OnRow || Before == Press::Elsewhere;
}

// The drag runs an event loop, in which the grid may go: nothing of the view may wait for it.
void FlexGridDrag::Begin() {
    mPress = Press::Dragging;
    QMetaObject::invokeMethod(this, &FlexGridDrag::Carry, Qt::QueuedConnection);
}

void FlexGridDrag::Carry() {
    const bool Held = mPress == Press::Dragging && !mRunning;
    if (!Held || !mGrid.Redraw() || mGrid.SelectedRows() == 0) return;
    const QPointer<QDrag> Drag = new QDrag(qApp);
    Drag->setMimeData(Data().release());
    Drag->setPixmap(DragPicture(mGrid));
    Drag->setHotSpot(QPoint(-LineWidth * 4, -LineWidth * 4));  // the line stays in sight
    const QPointer<FlexGridDrag> Still = this;
    mRunning = true;
    TheDragRunner()(*Drag);
    if (Drag) Drag->deleteLater();
    if (!Still) return;
    mRunning = false;
    if (mAfter) WhenEnded(std::exchange(mAfter, nullptr));
}

void FlexGridDrag::WhenEnded(const std::function<void()>& Then) {
    if (mRunning)
        mAfter = Then;
    else
        QMetaObject::invokeMethod(this, Then, Qt::QueuedConnection);
}

// The grid whose rows may land here; null: not ours, or not for here.
FlexGrid* FlexGridDrag::Welcome(const QDropEvent& Event) const {
    const auto* Rows = dynamic_cast<const RowsInHand*>(Event.mimeData());
    FlexGrid* From = Rows ? Rows->From.data() : nullptr;
    const bool Known = From && From->RowDrag() && !mGroup.isEmpty() &&
                       From->RowDrag()->mGroup == mGroup && WindowOf(From) == WindowOf(&mGrid);
    return Known && mGrid.Redraw() && mGrid.isEnabled() && From->SelectedRows() > 0 ? From
                                                                                    : nullptr;
}

bool FlexGridDrag::OwnPlace(const FlexGrid& From, int Before) const {
    const int Count = From.SelectedRows();
    const int First = From.SelectedRow(0), Last = From.SelectedRow(Count - 1);
    return &From == &mGrid && Last - First + 1 == Count && Before >= First && Before <= Last + 1;
}

int FlexGridDrag::PlaceAt(int Y) const {
    const int Row = mGrid.rowAt(Y);
    if (Row < 0) return mGrid.Rows();
    const int Middle = mGrid.rowViewportPosition(Row) + mGrid.rowHeight(Row) / 2;
    return Y < Middle ? Row : Row + 1;
}

bool FlexGridDrag::eventFilter(QObject* Watched, QEvent* Event) {
    const QEvent::Type Type = Event->type();
    if (Type == QEvent::DragEnter || Type == QEvent::DragMove)
        Over(*static_cast<QDragMoveEvent*>(Event));
    else if (Type == QEvent::DragLeave)
        Leave();
    else if (Type == QEvent::Drop)
        Drop(*static_cast<QDropEvent*>(Event));
    else
        return QObject::eventFilter(Watched, Event);
    return true;
}

void FlexGridDrag::Over(QDragMoveEvent& Event) {
    FlexGrid* From = Welcome(Event);
    if (!From) {
        Leave();
        Event.ignore();
        return;
    }
    mOver = From;
    mAt = Event.position().toPoint();
    Event.setDropAction(Qt::MoveAction);
    Event.accept();
    ShowLine(*From, PlaceAt(mAt.y()));
    WatchEdges();
}

void FlexGridDrag::Leave() {
    mOver = nullptr;
    mScroll.stop();
    if (std::exchange(mLine, -1) >= 0) mGrid.viewport()->update();
}

void FlexGridDrag::Drop(QDropEvent& Event) {
    FlexGrid* From = Welcome(Event);
    Leave();
    Event.setAccepted(From != nullptr);
    if (!From) return;
    Event.setDropAction(Qt::MoveAction);
    Event.accept();
    const int Before = PlaceAt(Event.position().toPoint().y());
    if (OwnPlace(*From, Before)) return;
    From->RowDrag()->WhenEnded([Into = QPointer(&mGrid), From = QPointer(From), Before] {
        if (!Into || !From || From->SelectedRows() == 0) return;
        Into->FinishEdit();
        Q_EMIT Into->RowsDropped(From, std::min(Before, Into->Rows()));
    });
}

// No line where nothing would move.
void FlexGridDrag::ShowLine(const FlexGrid& From, int Before) {
    const int Line = OwnPlace(From, Before) ? -1 : Before;
    if (std::exchange(mLine, Line) != Line) mGrid.viewport()->update();
}

void FlexGridDrag::PaintLine() const {
    if (mLine < 0) return;
    const QRect Port = mGrid.viewport()->rect();
    const int Row = std::min(mLine, mGrid.Rows()), Last = Row - 1;
    const int Y = Row < mGrid.Rows() ? mGrid.rowViewportPosition(Row)
                  : Row > 0          ? mGrid.rowViewportPosition(Last) + mGrid.rowHeight(Last)
                                     : 0;
    QStyleOption Option;
    Option.initFrom(&mGrid);
    Option.rect =
        QRect(0, std::clamp(Y, LineWidth / 2, Port.height() - LineWidth), Port.width(), 0);
    QPainter Painter(mGrid.viewport());
    // seen on selected rows, too
    Painter.setPen(QPen(mGrid.palette().color(QPalette::Text), LineWidth));
    mGrid.style()->drawPrimitive(QStyle::PE_IndicatorItemViewItemDrop, &Option, &Painter, &mGrid);
}

// How far the pointer is in the upper edge (down to -1) or in the lower (up to 1); else 0.
double FlexGridDrag::EdgeDepth() const {
    const int Height = mGrid.viewport()->height();
    const int Edge = std::max(1, std::min(2 * mGrid.fontMetrics().height(), Height / 4));
    if (mAt.y() < Edge) return static_cast<double>(mAt.y() - Edge) / Edge;
    const int Below = mAt.y() - (Height - 1 - Edge);
    return Below > 0 ? static_cast<double>(Below) / Edge : 0;
}

void FlexGridDrag::WatchEdges() {
    if (EdgeDepth() == 0)
        mScroll.stop();
    else if (!mScroll.isActive()) {
        mTicks = -TicksBeforeScroll;
        mScroll.start();
    }
}

// Faster the longer the pointer stays, so that the far end of a long list is a matter of seconds.
void FlexGridDrag::ScrollOn() {
    if (!mOver || !mGrid.Redraw()) return Leave();
    if (++mTicks <= 0) return;
    QScrollBar& Bar = *mGrid.verticalScrollBar();
    const double Seconds = mTicks * TickMs / 1000.0;
    const double Pixels = RowsPerSecond * (1 + Seconds * Seconds) * TickMs / 1000 *
                          mGrid.verticalHeader()->defaultSectionSize();
    const double Step = std::min<double>(Pixels, Bar.pageStep()) * EdgeDepth();
    Bar.setValue(Bar.value() + static_cast<int>(Step < 0 ? Step - 1 : Step + 1));
    ShowLine(*mOver, PlaceAt(mAt.y()));
}

}  // namespace neb
