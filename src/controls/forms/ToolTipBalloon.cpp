#include "controls/forms/ToolTipBalloon.h"

#include <QApplication>
#include <QBitmap>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QToolTip>
#include <algorithm>
#include <cmath>

namespace neb {
namespace {

constexpr int FaceLength = 32;
constexpr int LargestFont = 500;
constexpr int TailLeft = 8, TailSize = 8;
constexpr double Corner = 7.5;
constexpr int Margin = 8;
constexpr int BesidePointer = 2, BelowPointer = 20, AbovePointer = 4;
constexpr QColor DarkGrey(64, 64, 64);
constexpr auto TextLayout = Qt::AlignLeft | Qt::AlignTop | Qt::AlignAbsolute | Qt::TextDontClip;

constexpr QEvent::Type EndsEverywhere[] = {QEvent::MouseButtonPress,
                                           QEvent::MouseButtonRelease,
                                           QEvent::MouseButtonDblClick,
                                           QEvent::Wheel,
                                           QEvent::WindowActivate,
                                           QEvent::WindowDeactivate,
                                           QEvent::FocusIn,
                                           QEvent::FocusOut,
                                           QEvent::Close};
constexpr QEvent::Type EndsAtControl[] = {QEvent::Leave, QEvent::Hide};

template <std::size_t Count>
bool IsOneOf(const QEvent::Type (&Types)[Count], QEvent::Type Type) {
    return std::find(std::begin(Types), std::end(Types), Type) != std::end(Types);
}

// One line all round, so that none runs between the box and its tail. In: pixels inside the edge.
QPainterPath Outline(const QRectF& Client, double In) {
    const QRectF Box = Client.adjusted(In, TailSize + In, -In, -In);
    const double Left = Client.left() + TailLeft + In, Slope = In * std::sqrt(2.0);
    const double Round = 2 * (Corner - In);
    const double Right = Box.right() - Round, Bottom = Box.bottom() - Round;
    QPainterPath Line(QPointF(Left, Client.top() + In + Slope));
    Line.lineTo(Left + TailSize - Slope, Box.top());
    Line.arcTo(Right, Box.top(), Round, Round, 90, -90);
    Line.arcTo(Right, Bottom, Round, Round, 0, -90);
    Line.arcTo(Box.left(), Bottom, Round, Round, 270, -90);
    Line.arcTo(Box.left(), Box.top(), Round, Round, 180, -90);
    Line.lineTo(Left, Box.top());
    Line.closeSubpath();
    return Line;
}

void PaintShape(QPainter& Painter, const QRect& Client, const QColor& Ground) {
    Painter.fillPath(Outline(Client, 0), Ground);
    QPen Frame(DarkGrey, 1, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
    Frame.setMiterLimit(4);
    Painter.strokePath(Outline(Client, 0.5), Frame);
}

void PaintText(QPainter& Painter, QRect Room, const QString& Text, const QPalette& Colours) {
    Painter.setPen(Colours.color(QPalette::Inactive, QPalette::Midlight));
    Painter.drawText(Room, TextLayout, Text);
    Room.setTopLeft(Room.topLeft() - QPoint(1, 1));
    Painter.setPen(Colours.color(QPalette::Inactive, QPalette::ToolTipText));
    Painter.drawText(Room, TextLayout, Text);
}

// As long as a plain tip stays: ten seconds, and more for a long text.
int TimeShown(const QString& Text) {
    return 10000 + 40 * static_cast<int>(std::max<qsizetype>(0, Text.size() - 100));
}

QString Lines(QString Text) {
    return Text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

// A part of the control that has a tip of its own speaks for itself.
bool HasOwnTip(const QWidget* Part, const QWidget* Control) {
    for (; Part != Control; Part = Part->parentWidget())
        if (!Part->toolTip().isEmpty() || !Part->property("Tag").toString().isEmpty()) return true;
    return false;
}

// A balloon comes in a window that is not the active one, too; plain tips do not.
void AskAlways(const QWidget& Control, bool Always) {
    Control.window()->setAttribute(Qt::WA_AlwaysShowToolTips, Always);
}

}  // namespace

QString FaceName(const QString& FontName) {
    return FontName.left(FontName.indexOf(QChar(u'\0'))).left(FaceLength);
}

QFont BalloonFont(const QString& FontName, int FontSize) {
    QFont Font;
    if (const QString Face = FaceName(FontName); !Face.isEmpty()) Font.setFamilies({Face});
    Font.setWeight(QFont::Normal);
    Font.setStyle(QFont::StyleNormal);
    if (FontSize == 0) return Font;
    const int Height = std::clamp(FontSize, -LargestFont, LargestFont);
    int Letters = std::abs(Height);
    Font.setPixelSize(Letters);
    while (Height > 0 && Letters > 1 && QFontMetrics(Font).height() > Height)
        Font.setPixelSize(--Letters);
    return Font;
}

QSize BalloonSize(const QString& Text, const QFont& Font) {
    return QFontMetrics(Font).size(0, Text) + QSize(2 * Margin, 2 * Margin + TailSize);
}

QPoint BalloonPlace(const QPoint& Pointer, const QSize& Size, const QRect& Screen) {
    const int Below = Pointer.y() + BelowPointer, Above = Pointer.y() - AbovePointer;
    const int Rightmost = Screen.x() + Screen.width() - Size.width();
    const int Lowest = Screen.y() + Screen.height() - Size.height();
    const int Top = Below <= Lowest ? Below : std::min(Above - Size.height(), Lowest);
    return {std::max(Screen.x(), std::min(Pointer.x() - BesidePointer, Rightmost)),
            std::max(Screen.y(), Top)};
}

void PaintBalloon(QPainter& Painter, const QRect& Client, const QString& Text, const QFont& Font,
                  const QPalette& Colours) {
    Painter.save();
    Painter.setRenderHint(QPainter::Antialiasing);
    PaintShape(Painter, Client, Colours.color(QPalette::Inactive, QPalette::ToolTipBase));
    Painter.setFont(Font);
    PaintText(Painter, Client.adjusted(Margin, TailSize + Margin, -Margin, -Margin), Text, Colours);
    Painter.restore();
}

QRegion BalloonShape(const QSize& Size) {
    QImage Cover(Size, QImage::Format_ARGB32_Premultiplied);
    Cover.fill(Qt::transparent);
    QPainter Painter(&Cover);
    Painter.setRenderHint(QPainter::Antialiasing);
    Painter.fillPath(Outline(QRect(QPoint(), Size), 0), Qt::black);
    Painter.end();
    return QRegion(QBitmap::fromImage(Cover.createMaskFromColor(0, Qt::MaskInColor)));
}

// What the balloon says is the control's description for those who hear the window instead of
// seeing it.
ToolTipBalloon::ToolTipBalloon(QWidget& Control, QWidget& Owner, const QString& Text,
                               const QFont& Font)
    : QWidget(&Owner, Qt::ToolTip | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint |
                          Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus),
      mControl(&Control),
      mText(Lines(Text)),
      mFont(Font) {
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAccessibleName(mText);
    setFixedSize(BalloonSize(mText, mFont));
    // Under X a desktop without a compositor would paint black what is outside the balloon.
    if (QGuiApplication::platformName() == u"xcb") setMask(BalloonShape(size()));
    mExpires.setSingleShot(true);
    connect(&mExpires, &QTimer::timeout, this, &QWidget::hide);
    if (Control.accessibleDescription().isEmpty()) Control.setAccessibleDescription(mText);
    Control.installEventFilter(this);
}

ToolTipBalloon::~ToolTipBalloon() {
    if (!mControl) return;
    AskAlways(*mControl, false);
    if (mControl->accessibleDescription() == mText) mControl->setAccessibleDescription({});
}

void ToolTipBalloon::AppearAt(const QPoint& Pointer) {
    if (mText.isEmpty()) return;
    Follow(Pointer);
    if (isVisible()) return;
    qApp->installEventFilter(this);
    mExpires.start(TimeShown(mText));
    show();
}

void ToolTipBalloon::Follow(const QPoint& Pointer) {
    const QScreen* On = QGuiApplication::screenAt(Pointer);
    move(BalloonPlace(Pointer, size(), (On ? On : screen())->geometry()));
}

// While the balloon is up it sees all events of the program: the pointer's moves do not come to a
// control that has no use for them.
bool ToolTipBalloon::eventFilter(QObject* Watched, QEvent* Event) {
    if (Event->type() == QEvent::ToolTip && Watched == mControl)
        return Asked(*static_cast<QHelpEvent*>(Event));
    if (Watched == mControl && (Event->type() == QEvent::Enter || Event->type() == QEvent::Leave))
        AskAlways(*mControl, Event->type() == QEvent::Enter);
    if (!isVisible()) return false;
    if (Event->type() == QEvent::MouseMove)
        PointerMoved(Watched, *static_cast<QMouseEvent*>(Event));
    else if (IsOneOf(EndsEverywhere, Event->type()) ||
             (Watched == mControl && IsOneOf(EndsAtControl, Event->type())))
        hide();
    return false;
}

bool ToolTipBalloon::Asked(QHelpEvent& Event) {
    if (mText.isEmpty()) return false;
    AppearAt(Event.globalPos());
    Event.accept();
    return true;
}

void ToolTipBalloon::PointerMoved(QObject* Watched, const QMouseEvent& Event) {
    const auto* Under = qobject_cast<QWidget*>(Watched);
    if (!Under || !mControl || (Under != mControl && !mControl->isAncestorOf(Under))) return;
    if (HasOwnTip(Under, mControl))
        hide();
    else
        Follow(Event.globalPosition().toPoint());
}

void ToolTipBalloon::paintEvent(QPaintEvent*) {
    QPainter Painter(this);
    PaintBalloon(Painter, rect(), mText, mFont, QToolTip::palette());
}

void ToolTipBalloon::hideEvent(QHideEvent* Event) {
    qApp->removeEventFilter(this);
    mExpires.stop();
    QWidget::hideEvent(Event);
}

}  // namespace neb
