// How the pages are painted, and what the user's hands do with them.
#include <QCoreApplication>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>

#include "controls/fields/HintColour.h"
#include "windows/printing/PrintView.h"

namespace neb {
namespace {

constexpr int Notch = 120;       // of a wheel
constexpr int ShadowDepth = 7;   // pixels
constexpr int ShadowSlice = 24;  // pixels
constexpr int FocusWidth = 2;
constexpr QColor FaultText(0x60, 0x60, 0x60);

// Neither as bright as paper nor as dark as what is printed.
QColor GroundOf(const QPalette& Palette) {
    return Palette.color(QPalette::Window).darker(IsDark(Palette) ? 135 : 122);
}

// In slices: the toolkit gives anything higher to other threads, and waits for them in line behind
// the pages that are being painted.
void PaintShadow(QPainter& Painter, const QRect& Place) {
    const QRect Reach = Place.adjusted(-ShadowDepth, -ShadowDepth, ShadowDepth, ShadowDepth + 2);
    Painter.save();
    Painter.setRenderHint(QPainter::Antialiasing);
    Painter.setPen(Qt::NoPen);
    Painter.setBrush(QColor(0, 0, 0, 10));
    for (int Top = Reach.top(); Top <= Reach.bottom(); Top += ShadowSlice) {
        const QRect Slice(Reach.left(), Top, Reach.width(), ShadowSlice);
        Painter.setClipRegion(QRegion(Reach & Slice) - Place);
        for (int Depth = ShadowDepth; Depth > 0; --Depth)
            Painter.drawRoundedRect(Place.adjusted(-Depth, 1 - Depth, Depth, Depth + 2), Depth,
                                    Depth);
    }
    Painter.restore();
}

void PaintText(QPainter& Painter, const QRect& Place, const QString& Text, const QColor& Colour) {
    Painter.setPen(Colour);
    Painter.drawText(Place, Qt::AlignCenter | Qt::TextWordWrap | Qt::TextWrapAnywhere, Text);
}

void PaintFrame(QPainter& Painter, const QRect& Inside, const QColor& Colour) {
    Painter.setPen(QPen(Colour, FocusWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    Painter.setBrush(Qt::NoBrush);
    const double Half = FocusWidth / 2.0;
    Painter.drawRect(QRectF(Inside).adjusted(Half, Half, -Half, -Half));
}

}  // namespace

// What is painted is what is wanted: whatever brings another page into sight asks for it here.
void PrintView::paintEvent(QPaintEvent*) {
    QPainter Painter(viewport());
    Painter.fillRect(viewport()->rect(), GroundOf(palette()));
    if (PageCount() == 0)
        PaintText(Painter, viewport()->rect().adjusted(16, 16, -16, -16),
                  tr("There are no pages to look at."), palette().color(QPalette::WindowText));
    for (const PrintViewLayout::Sheet& Each : InSight()) PaintSheet(Painter, Each);
    if (hasFocus()) PaintFrame(Painter, viewport()->rect(), palette().color(QPalette::Highlight));
    if (mImages) mImages->Want(RequestsFor(InSight()), RequestsFor(Beside()));
}

void PrintView::PaintSheet(QPainter& Painter, const PrintViewLayout::Sheet& Sheet) const {
    const QRect Place = Sheet.Place.translated(-Scrolled());
    PaintShadow(Painter, Place);
    if (mLayout.Count() > 1 && Sheet.Page == mLook.Page)
        PaintFrame(Painter, Place.adjusted(-4, -4, 4, 4), palette().color(QPalette::Highlight));
    Painter.save();
    Painter.setClipRect(Place);
    PaintPaper(Painter, {Sheet.Page, Place});
    Painter.restore();
    if (!IsGrid()) return;
    Painter.setPen(palette().color(QPalette::WindowText));
    Painter.drawText(QRect(Place.left(), Place.bottom() + 6, Place.width(), fontMetrics().height()),
                     Qt::AlignCenter, QString::number(Sheet.Page));
}

void PrintView::PaintPaper(QPainter& Painter, const PrintViewLayout::Sheet& Sheet) const {
    Painter.fillRect(Sheet.Place, Qt::white);
    const PageRequest Wanted = RequestFor(Sheet);
    const PageImage* Found = mImages->Find(Wanted);
    const QImage Pixels = Found ? Found->Pixels : mImages->StandIn(Sheet.Page);
    if (Found && !Found->Fault.isEmpty())
        PaintText(Painter, Sheet.Place.adjusted(6, 6, -6, -6), Found->Fault, FaultText);
    if (Pixels.isNull()) return;
    // dot by dot where the picture is made for this place, however the place falls on the screen
    const QSizeF Room(Sheet.Place.size()), Dots = QSizeF(Pixels.size()) / devicePixelRatioF();
    const bool Fits = Pixels.size() == (Room * devicePixelRatioF()).toSize();
    Painter.setRenderHint(QPainter::SmoothPixmapTransform, !Fits);
    Painter.drawImage(QRectF(Sheet.Place.topLeft(), Fits ? Dots : Room), Pixels);
}

void PrintView::resizeEvent(QResizeEvent* Event) {
    QAbstractScrollArea::resizeEvent(Event);
    const double Was = Zoom();
    Relayout();
    Follow();
    if (Was != Zoom()) Q_EMIT ViewChanged();
}

void PrintView::changeEvent(QEvent* Event) {
    QAbstractScrollArea::changeEvent(Event);
    if (Event->type() == QEvent::FontChange || Event->type() == QEvent::StyleChange) Relayout();
}

void PrintView::focusInEvent(QFocusEvent* Event) {
    QAbstractScrollArea::focusInEvent(Event);
    viewport()->update();
}

void PrintView::focusOutEvent(QFocusEvent* Event) {
    QAbstractScrollArea::focusOutEvent(Event);
    viewport()->update();
}

void PrintView::contextMenuEvent(QContextMenuEvent* Event) {
    const bool ByKey = Event->reason() == QContextMenuEvent::Keyboard;
    PopUpMenu(ByKey ? Middle() : viewport()->mapFromGlobal(Event->globalPos()));
}

QPoint PrintView::Middle() const {
    return viewport()->rect().center();
}

void PrintView::PopUpMenu(QPoint At) {
    auto* Menu = new QMenu(this);
    Menu->setAttribute(Qt::WA_DeleteOnClose);
    Menu->addActions(actions());
    Menu->popup(viewport()->mapToGlobal(At));
}

// How many pages a key goes on; 0 when it is none of those that do.
int PrintView::PagesBy(int Key) const {
    const int Columns = mLayout.Columns();
    const int Rows = IsGrid() ? mLayout.RowsIn(viewport()->height()) : 1;
    const struct {
        int Key, Pages;
        bool InGridAlone;
    } Keys[] = {
        {Qt::Key_Home, -PageCount(), false},
        {Qt::Key_End, PageCount(), false},
        {Qt::Key_PageUp, -Columns * Rows, false},
        {Qt::Key_PageDown, Columns * Rows, false},
        {Qt::Key_Left, -1, true},
        {Qt::Key_Right, 1, true},
        {Qt::Key_Up, -Columns, true},
        {Qt::Key_Down, Columns, true},
    };
    const auto Found = std::ranges::find(Keys, Key, [](const auto& Each) { return Each.Key; });
    if (Found == std::end(Keys)) return 0;
    const int There = mLook.Page + Found->Pages;
    const bool Walks = IsGrid() && There >= 1 && There <= PageCount();
    return Found->InGridAlone && !Walks ? 0 : Found->Pages;
}

bool PrintView::ZoomByKey(int Key) {
    const int Steps = Key == Qt::Key_Plus || Key == Qt::Key_Equal ? 1
                      : Key == Qt::Key_Minus                      ? -1
                                                                  : 0;
    ZoomBy(Steps);
    return Steps != 0;
}

// Not every platform makes of these keys the wish for a menu.
void PrintView::keyPressEvent(QKeyEvent* Event) {
    const int Key = Event->key();
    const bool IsEnter = Key == Qt::Key_Return || Key == Qt::Key_Enter;
    const bool IsShift = Event->modifiers() == Qt::ShiftModifier;
    if (const int Pages = PagesBy(Key); Pages != 0)
        TurnTo(mLook.Page + Pages);
    else if (IsEnter && IsGrid())
        OpenThumbnail(mLook.Page);
    else if (Key == Qt::Key_Menu || (Key == Qt::Key_F10 && IsShift))
        PopUpMenu(Middle());
    else if (!ZoomByKey(Key) && !IsEnter)
        QAbstractScrollArea::keyPressEvent(Event);
}

// Whole steps of the wheel; what is left over counts with the next turn that way.
int PrintView::WheelSteps(int Turned) {
    if ((Turned > 0) != (mHand.Wheel > 0)) mHand.Wheel = 0;
    mHand.Wheel += Turned;
    const int Steps = mHand.Wheel / Notch;
    mHand.Wheel %= Notch;
    return Steps;
}

void PrintView::wheelEvent(QWheelEvent* Event) {
    Event->accept();
    const int Turned = Event->angleDelta().y();
    if (!Event->modifiers().testFlag(Qt::ControlModifier)) return WheelPages(Event);
    const int Steps = WheelSteps(Turned);
    const double Next = ZoomBeside(Zoom(), Steps);
    if (Next != Zoom()) ZoomAtPointer(Next, Event->position().toPoint());
}

// Scrolls, and at the end of what there is to scroll goes on to the next page, or back to the end
// of the one before.
void PrintView::WheelPages(QWheelEvent* Event) {
    const int Turned = Event->angleDelta().y();
    const QScrollBar& Bar = *verticalScrollBar();
    const bool AtEnd = Bar.value() == (Turned > 0 ? 0 : Bar.maximum());
    const bool Sideways = std::abs(Event->angleDelta().x()) > std::abs(Turned);
    if (Sideways || IsGrid() || !AtEnd || Turned == 0) {
        mHand.Wheel = 0;
        return QAbstractScrollArea::wheelEvent(Event);
    }
    const int Pages = -WheelSteps(Turned) * mLayout.Columns();
    const int Page = std::clamp(mLook.Page + Pages, 1, std::max(1, PageCount()));
    if (Page == mLook.Page) return;
    TurnTo(Page);
    if (Pages < 0) SetScrollTop(Bar.maximum());
}

void PrintView::ShowHand(Qt::CursorShape Now) {
    if (viewport()->cursor().shape() != Now) viewport()->setCursor(Now);
}

void PrintView::mousePressEvent(QMouseEvent* Event) {
    if (Event->button() != Qt::LeftButton) return Event->ignore();
    mHand.From = Event->pos();
    mHand.Opened = false;
    if (CanScroll() && !IsGrid()) ShowHand(Qt::ClosedHandCursor);
}

void PrintView::mouseMoveEvent(QMouseEvent* Event) {
    if (!mHand.From || IsGrid()) return;
    const QPoint Step = Event->pos() - *mHand.From;
    mHand.From = Event->pos();
    SetScrollLeft(ScrollLeft() - Step.x());
    SetScrollTop(ScrollTop() - Step.y());
}

void PrintView::mouseReleaseEvent(QMouseEvent* Event) {
    if (Event->button() != Qt::LeftButton || !mHand.From) return;
    const int Page = mLayout.PageAt(Event->pos() + Scrolled());
    const int Pressed = mLayout.PageAt(*std::exchange(mHand.From, {}) + Scrolled());
    mHand.Opened = IsGrid() && Page > 0 && Page == Pressed;
    if (mHand.Opened) OpenThumbnail(Page);
    Follow();
}

// A sheet that has just been opened by the first of two clicks stays as it is.
void PrintView::mouseDoubleClickEvent(QMouseEvent* Event) {
    if (Event->button() != Qt::LeftButton || std::exchange(mHand.Opened, false) || IsGrid()) return;
    if (mLook.View == PageView::WholePage)
        ZoomAtPointer(100, Event->pos());
    else
        SetView(PageView::WholePage);
}

}  // namespace neb
