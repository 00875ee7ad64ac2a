#include "program/TitleBarStyle.h"

#include <QApplication>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOptionTitleBar>

#include "controls/fields/HintColour.h"

namespace neb {
namespace {

constexpr int RoomAroundTitle = 8;
constexpr int MarkMargin = 4;          // of a button's height one part
constexpr double SecondWindow = 0.75;  // of its mark has one that stands before another
constexpr int UsualLine = 16;

bool IsMinimised(const QStyleOptionTitleBar& Bar) {
    return Bar.titleBarState & Qt::WindowMinimized;
}

bool IsMaximised(const QStyleOptionTitleBar& Bar) {
    return Bar.titleBarState & Qt::WindowMaximized;
}

// Whether a button stands in the bar as the window is.
bool HasButton(const QStyleOptionTitleBar& Bar, QStyle::SubControl Button) {
    const bool MayMinimise = Bar.titleBarFlags & Qt::WindowMinimizeButtonHint;
    const bool MayMaximise = Bar.titleBarFlags & Qt::WindowMaximizeButtonHint;
    switch (Button) {
        case QStyle::SC_TitleBarMinButton:
            return MayMinimise && !IsMinimised(Bar);
        case QStyle::SC_TitleBarMaxButton:
            return MayMaximise && !IsMaximised(Bar);
        case QStyle::SC_TitleBarNormalButton:
            return (MayMinimise && IsMinimised(Bar)) || (MayMaximise && IsMaximised(Bar));
        default:
            return Bar.titleBarFlags & Qt::WindowSystemMenuHint;
    }
}

void DrawCross(QPainter& Painter, const QRectF& In) {
    Painter.drawLine(In.topLeft(), In.bottomRight());
    Painter.drawLine(In.topRight(), In.bottomLeft());
}

// A frame with a bar along its top, as a window.
void DrawWindow(QPainter& Painter, const QRectF& In) {
    Painter.drawRect(In);
    Painter.drawLine(In.topLeft() + QPointF(0, 1), In.topRight() + QPointF(0, 1));
}

void DrawMark(QStyle::SubControl Button, QPainter& Painter, const QRectF& In) {
    const QPointF Shift(In.width() * (1 - SecondWindow), 0), Drop(0, Shift.x());
    switch (Button) {
        case QStyle::SC_TitleBarMinButton:
            Painter.drawLine(In.bottomLeft(), In.bottomRight());
            break;
        case QStyle::SC_TitleBarMaxButton:
            DrawWindow(Painter, In);
            break;
        case QStyle::SC_TitleBarNormalButton:
            DrawWindow(Painter, {In.topLeft() + Shift, In.size() * SecondWindow});
            DrawWindow(Painter, {In.topLeft() + Drop, In.size() * SecondWindow});
            break;
        default:
            DrawCross(Painter, In);
    }
}

// The button under the pointer stands out.
void DrawButton(const QStyleOptionComplex& Of, QStyle::SubControl Button, QStyle::SubControl Mark,
                const QRect& Place, QPainter& Painter) {
    if (Of.activeSubControls & Button && Of.state & QStyle::State_MouseOver)
        Painter.fillRect(Place, Of.palette.color(QPalette::Mid));
    const int Margin = std::max(1, Place.height() / MarkMargin);
    const int Side = std::min(Place.width(), Place.height()) - 2 * Margin;
    QRectF In(0, 0, Side, Side);
    In.moveCenter(QRectF(Place).center());
    Painter.setRenderHint(QPainter::Antialiasing);
    Painter.setPen(QPen(Of.palette.color(QPalette::WindowText), std::max(1.0, Margin / 3.0)));
    DrawMark(Mark, Painter, In);
}

// The desktop's own, below what the program draws differently.
QString NameOfDesktopStyle() {
    const QStyle* Style = QApplication::style();
    while (const auto* Over = qobject_cast<const QProxyStyle*>(Style)) Style = Over->baseStyle();
    return Style->name();
}

int TitleLine() {
    return QFontMetrics(QApplication::font("QMdiSubWindowTitleBar")).height();
}

}  // namespace

TitleBarStyle::TitleBarStyle(QObject* Parent)
    : QProxyStyle(QStyleFactory::create(NameOfDesktopStyle())) {
    setParent(Parent);
}

void TitleBarStyle::drawComplexControl(ComplexControl Control, const QStyleOptionComplex* Option,
                                       QPainter* Painter, const QWidget* Widget) const {
    const auto* Bar = qstyleoption_cast<const QStyleOptionTitleBar*>(Option);
    if (Control == CC_MdiControls) return DrawControls(*Option, *Painter, Widget);
    const bool IsActive = Bar && Bar->titleBarState & State_Active;
    const bool IsRead = !Bar || IsActive || !IsDark(Option->palette);
    if (Control != CC_TitleBar || (IsRead && !HasHighContrast(Option->palette)))
        return QProxyStyle::drawComplexControl(Control, Option, Painter, Widget);
    QStyleOptionTitleBar Seen = *Bar;
    if (IsActive) {
        Seen.palette.setBrush(QPalette::Window, Bar->palette.highlight());
        Seen.palette.setBrush(QPalette::WindowText, Bar->palette.highlightedText());
    }
    DrawBar(Seen, *Painter, Widget);
}

int TitleBarStyle::pixelMetric(PixelMetric Metric, const QStyleOption* Option,
                               const QWidget* Widget) const {
    const int Usual = QProxyStyle::pixelMetric(Metric, Option, Widget);
    if (Metric != PM_TitleBarHeight) return Usual;
    return std::max(Usual, TitleLine() + RoomAroundTitle);
}

QSize TitleBarStyle::sizeFromContents(ContentsType Type, const QStyleOption* Option,
                                      const QSize& Contents, const QWidget* Widget) const {
    const QSize Usual = QProxyStyle::sizeFromContents(Type, Option, Contents, Widget);
    return Type == CT_MdiControls ? Usual * std::max(1.0, double(TitleLine()) / UsualLine) : Usual;
}

void TitleBarStyle::DrawBar(const QStyleOptionTitleBar& Bar, QPainter& Painter,
                            const QWidget* Widget) const {
    const QColor Text = Bar.palette.color(QPalette::WindowText);
    const auto Place = [&](SubControl Part) {
        return subControlRect(CC_TitleBar, &Bar, Part, Widget);
    };
    Painter.save();
    Painter.fillRect(Bar.rect, Bar.palette.color(QPalette::Window).lighter());
    Painter.setPen(Bar.palette.color(QPalette::Mid));
    Painter.drawRect(Bar.rect.adjusted(0, 0, -1, -1));
    if (Bar.subControls & SC_TitleBarSysMenu && !Bar.icon.isNull())
        Bar.icon.paint(&Painter, Place(SC_TitleBarSysMenu));
    Painter.setPen(Text);
    const QRect Label = Place(SC_TitleBarLabel);
    Painter.drawText(Label, Qt::AlignCenter | Qt::TextSingleLine,
                     Painter.fontMetrics().elidedText(Bar.text, Qt::ElideRight, Label.width()));
    for (const SubControl Each : {SC_TitleBarMinButton, SC_TitleBarMaxButton,
                                  SC_TitleBarNormalButton, SC_TitleBarCloseButton})
        if (Bar.subControls & Each && HasButton(Bar, Each))
            DrawButton(Bar, Each, Each, Place(Each), Painter);
    Painter.restore();
}

void TitleBarStyle::DrawControls(const QStyleOptionComplex& Controls, QPainter& Painter,
                                 const QWidget* Widget) const {
    constexpr std::pair<SubControl, SubControl> Marks[] = {
        {SC_MdiMinButton, SC_TitleBarMinButton},
        {SC_MdiNormalButton, SC_TitleBarNormalButton},
        {SC_MdiCloseButton, SC_TitleBarCloseButton}};
    Painter.save();
    for (const auto& [Button, Mark] : Marks)
        if (Controls.subControls & Button)
            DrawButton(Controls, Button, Mark,
                       subControlRect(CC_MdiControls, &Controls, Button, Widget), Painter);
    Painter.restore();
}

}  // namespace neb
