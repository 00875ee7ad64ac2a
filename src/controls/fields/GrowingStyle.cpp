#include "controls/fields/GrowingStyle.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>
#include <algorithm>
#include <iterator>

#include "controls/fields/HintColour.h"
#include "effects/MotionWish.h"

namespace neb {
namespace {

constexpr double UsualPoints = 10;
constexpr int FocusMargin = 2;  // around the words of a box to choose from
constexpr QMargins WithinEdge(3, 3, 3, 3);
constexpr int FrameShade = 145;  // percent
constexpr double SeenLine = 3;   // the contrast of a line that is no letter

constexpr QStyle::PixelMetric Growing[] = {
    QStyle::PM_ButtonIconSize,
    QStyle::PM_CheckBoxLabelSpacing,
    QStyle::PM_ExclusiveIndicatorHeight,
    QStyle::PM_ExclusiveIndicatorWidth,
    QStyle::PM_HeaderMarkSize,
    QStyle::PM_IndicatorHeight,
    QStyle::PM_IndicatorWidth,
    QStyle::PM_LineEditIconSize,
    QStyle::PM_MdiSubWindowMinimizedWidth,
    QStyle::PM_MenuButtonIndicator,
    QStyle::PM_MenuScrollerHeight,
    QStyle::PM_RadioButtonLabelSpacing,
    QStyle::PM_ScrollBarExtent,
    QStyle::PM_SliderControlThickness,
    QStyle::PM_SliderLength,
    QStyle::PM_SliderThickness,
    QStyle::PM_SmallIconSize,
    QStyle::PM_TabBarIconSize,
    QStyle::PM_TabBarScrollButtonWidth,
    QStyle::PM_TitleBarHeight,
    QStyle::PM_ToolBarExtensionExtent,
    QStyle::PM_ToolBarIconSize,
    QStyle::PM_TreeViewIndentation,
};

constexpr QStyle::PrimitiveElement Drawn[] = {
    QStyle::PE_IndicatorArrowDown, QStyle::PE_IndicatorArrowLeft, QStyle::PE_IndicatorArrowRight,
    QStyle::PE_IndicatorArrowUp,   QStyle::PE_IndicatorBranch,    QStyle::PE_IndicatorHeaderArrow,
    QStyle::PE_IndicatorSpinDown,  QStyle::PE_IndicatorSpinUp,
};

// Some styles draw their frames in a shade of the window, which is hardly seen, and not in dark
// colours.
constexpr QStyle::PrimitiveElement Framed[] = {QStyle::PE_IndicatorCheckBox,
                                               QStyle::PE_IndicatorRadioButton};

// With high contrast what can be used has a line around it, in the colour of the text: a shade of
// the ground is not seen.
constexpr QStyle::PrimitiveElement Outlined[] = {
    QStyle::PE_FrameGroupBox,
    QStyle::PE_FrameMenu,
    QStyle::PE_IndicatorCheckBox,
    QStyle::PE_PanelButtonCommand,
};
// Around lists, pages and fields, so that the line around the one with the keys is told from it.
constexpr QColor FrameWithoutKeys(128, 128, 128);
constexpr QStyle::ComplexControl OutlinedControls[] = {QStyle::CC_ComboBox, QStyle::CC_SpinBox};
constexpr QStyle::ControlElement OutlinedElements[] = {QStyle::CE_HeaderSection,
                                                       QStyle::CE_ProgressBarGroove};

constexpr QStyle::ComplexControl WithArrows[] = {
    QStyle::CC_ComboBox, QStyle::CC_ScrollBar,  QStyle::CC_Slider,
    QStyle::CC_SpinBox,  QStyle::CC_ToolButton,
};

template <class List, class Value>
bool Has(const List& Of, Value Wanted) {
    return std::find(std::begin(Of), std::end(Of), Wanted) != std::end(Of);
}

void Outline(const QRect& Place, const QColor& Ink, QPainter& Painter) {
    Painter.save();
    Painter.setRenderHint(QPainter::Antialiasing, false);
    Painter.setPen(Ink);
    Painter.setBrush(Qt::NoBrush);
    Painter.drawRect(Place.adjusted(0, 0, -1, -1));
    Painter.restore();
}

void Outline(const QStyleOption& Of, const QRect& Place, QPainter& Painter) {
    const bool HasKeys = Of.state & QStyle::State_HasFocus;
    Outline(Place, Of.palette.color(HasKeys ? QPalette::Highlight : QPalette::WindowText), Painter);
}

// Where the keys are: styles mark that by faint shades, or not at all around lists and pages, and
// have the same line around the button that Enter presses with the keys as without.
QColor KeysOn(const QColor& Ground, const QPalette& Palette) {
    for (const auto Role : {QPalette::Highlight, QPalette::WindowText})
        if (Contrast(Palette.color(Role), Ground) >= SeenLine) return Palette.color(Role);
    return Palette.color(QPalette::HighlightedText);
}

bool HaveComeByKeys(const QStyleOption& To) {
    return To.state & QStyle::State_HasFocus && To.state & QStyle::State_KeyboardFocusChange;
}

void MarkKeysWithin(const QStyleOption& Of, QPainter& Painter) {
    if (!HaveComeByKeys(Of)) return;
    Outline(Of.rect.marginsRemoved(WithinEdge),
            KeysOn(Of.palette.color(QPalette::Window), Of.palette), Painter);
}

void MarkKeysOnWords(const QStyleOption& Of, QPainter& Painter) {
    if (!HaveComeByKeys(Of)) return;
    const auto* Its = qstyleoption_cast<const QStyleOptionFocusRect*>(&Of);
    const bool IsCell = Its && Its->state & QStyle::State_Item;
    const QColor Ground = IsCell ? Its->backgroundColor : Of.palette.color(QPalette::Window);
    Outline(Of.rect, KeysOn(Ground, Of.palette), Painter);
}

void MarkKeysOnFrame(const QStyleOption& Of, QPainter& Painter) {
    const bool HasKeys = Of.state & QStyle::State_HasFocus;
    if (HasHighContrast(Of.palette))
        Outline(Of.rect, HasKeys ? Of.palette.color(QPalette::WindowText) : FrameWithoutKeys,
                Painter);
    else if (HasKeys)
        Outline(Of.rect, KeysOn(Of.palette.color(QPalette::Window), Of.palette), Painter);
}

// What is moved along a bar.
QStyle::SubControl HandleOf(QStyle::ComplexControl Control) {
    if (Control == QStyle::CC_ScrollBar) return QStyle::SC_ScrollBarSlider;
    return Control == QStyle::CC_Slider ? QStyle::SC_SliderHandle : QStyle::SC_None;
}

QFont FontOf(const QWidget* Widget) {
    return Widget ? Widget->font() : QApplication::font();
}

// A screen of another fineness, for which nothing is drawn.
class FinerScreen : public QPaintDevice {
  public:
    explicit FinerScreen(int Dpi) : mDpi(Dpi) {}
    QPaintEngine* paintEngine() const override { return nullptr; }

  protected:
    int metric(PaintDeviceMetric Metric) const override {
        return Metric == PdmDpiX || Metric == PdmDpiY ? mDpi : QPaintDevice::metric(Metric);
    }

  private:
    int mDpi;
};

// Styles take the size of their arrows from the fineness of the screen for which the letters are
// measured. So the same letters are measured as smaller ones for a finer screen, for as long as
// this lives.
class GrownArrows {
  public:
    GrownArrows(const QStyleOption* Option, const QWidget* Widget, bool Wanted) {
        const QFont Font = FontOf(Widget);
        const double Growth = GrowingStyle::Growth(Font);
        if (!Wanted || !Option || Growth <= 1) return;
        // a style asks for parts of what it draws: they are grown by then
        if (Option->fontMetrics.fontDpi() > QFontMetrics(Font).fontDpi()) return;
        mOption = const_cast<QStyleOption*>(Option);
        mBefore = Option->fontMetrics;
        const int Dpi = static_cast<int>(mBefore.fontDpi());
        const FinerScreen Finer(qRound(Dpi * Growth));
        QFont Smaller = Font;
        Smaller.setPointSizeF(QFontInfo(Font).pointSizeF() * Dpi / Finer.logicalDpiY());
        mOption->fontMetrics = QFontMetrics(Smaller, &Finer);
    }
    ~GrownArrows() {
        if (mOption) mOption->fontMetrics = mBefore;
    }
    Q_DISABLE_COPY_MOVE(GrownArrows)

  private:
    QStyleOption* mOption = nullptr;
    QFontMetrics mBefore{QFont()};
};

QPixmap ExtensionArrow(int Side, bool Mirrored, const QColor& Ink) {
    QPixmap Made(Side, Side);
    Made.fill(Qt::transparent);
    QPainter Painter(&Made);
    Painter.setRenderHint(QPainter::Antialiasing);
    Painter.setPen(QPen(Ink, Side / 8.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (Mirrored) Painter.setTransform(QTransform(-1, 0, 0, 1, Side, 0));
    Painter.scale(Side, Side);
    QPen Fine = Painter.pen();
    Fine.setWidthF(0.12);
    Painter.setPen(Fine);
    for (const double Left : {0.18, 0.52})
        Painter.drawPolyline(QPolygonF({{Left, 0.2}, {Left + 0.3, 0.5}, {Left, 0.8}}));
    return Made;
}

}  // namespace

double GrowingStyle::Growth(const QFont& Font) {
    const double Points = Font.pointSizeF() > 0 ? Font.pointSizeF() : QFontInfo(Font).pointSizeF();
    return std::max(1.0, Points / UsualPoints);
}

int GrowingStyle::styleHint(StyleHint Hint, const QStyleOption* Option, const QWidget* Widget,
                            QStyleHintReturn* Returned) const {
    if (Hint == SH_ItemView_ActivateItemOnSingleClick) return 0;
    if (Hint == SH_Widget_Animation_Duration && IsStillWanted()) return 0;
    return QProxyStyle::styleHint(Hint, Option, Widget, Returned);
}

int GrowingStyle::pixelMetric(PixelMetric Metric, const QStyleOption* Option,
                              const QWidget* Widget) const {
    if (!Has(Growing, Metric)) return QProxyStyle::pixelMetric(Metric, Option, Widget);
    const double Growth = GrowingStyle::Growth(FontOf(Widget));
    if (Growth <= 1) return QProxyStyle::pixelMetric(Metric, Option, Widget);
    return qRound(QProxyStyle::pixelMetric(Metric, nullptr, Widget) * Growth);
}

QRect GrowingStyle::subControlRect(ComplexControl Control, const QStyleOptionComplex* Option,
                                   SubControl Part, const QWidget* Widget) const {
    const GrownArrows Grown(Option, Widget, Has(WithArrows, Control));
    return QProxyStyle::subControlRect(Control, Option, Part, Widget);
}

// A box to choose from is as wide as its words and the larger arrow beside them.
QSize GrowingStyle::sizeFromContents(ContentsType Type, const QStyleOption* Option,
                                     const QSize& Content, const QWidget* Widget) const {
    QSize Size = QProxyStyle::sizeFromContents(Type, Option, Content, Widget);
    const auto* Box = qstyleoption_cast<const QStyleOptionComboBox*>(Option);
    if (Type != CT_ComboBox || !Box || Growth(FontOf(Widget)) <= 1) return Size;
    QStyleOptionComboBox There = *Box;
    There.rect = QRect(QPoint(), Size);
    const QRect Words = subControlRect(CC_ComboBox, &There, SC_ComboBoxEditField, Widget);
    Size.rwidth() += std::max(0, Content.width() + 2 * FocusMargin - Words.width());
    return Size;
}

void GrowingStyle::drawComplexControl(ComplexControl Control, const QStyleOptionComplex* Option,
                                      QPainter* Painter, const QWidget* Widget) const {
    const GrownArrows Grown(Option, Widget, Has(WithArrows, Control));
    QProxyStyle::drawComplexControl(Control, Option, Painter, Widget);
    if (!Option || !HasHighContrast(Option->palette)) return;
    if (Has(OutlinedControls, Control)) Outline(*Option, Option->rect, *Painter);
    if (Control == CC_ComboBox) MarkKeysWithin(*Option, *Painter);
    if (const SubControl Handle = HandleOf(Control))
        Outline(*Option, subControlRect(Control, Option, Handle, Widget), *Painter);
}

void GrowingStyle::drawControl(ControlElement Element, const QStyleOption* Option,
                               QPainter* Painter, const QWidget* Widget) const {
    QProxyStyle::drawControl(Element, Option, Painter, Widget);
    if (Option && Has(OutlinedElements, Element) && HasHighContrast(Option->palette))
        Outline(*Option, Option->rect, *Painter);
    if (Option && Element == CE_TabBarTabLabel) MarkKeysWithin(*Option, *Painter);
}

void GrowingStyle::drawPrimitive(PrimitiveElement Element, const QStyleOption* Option,
                                 QPainter* Painter, const QWidget* Widget) const {
    const auto* Box = qstyleoption_cast<const QStyleOptionButton*>(Option);
    if (Box && Has(Framed, Element)) {
        QStyleOptionButton Seen = *Box;
        Seen.palette.setColor(QPalette::Window,
                              IsDark(Box->palette)
                                  ? Seen.palette.color(QPalette::Text)
                                  : Seen.palette.color(QPalette::Window).darker(FrameShade));
        QProxyStyle::drawPrimitive(Element, &Seen, Painter, Widget);
    } else {
        const GrownArrows Grown(Option, Widget, Has(Drawn, Element));
        QProxyStyle::drawPrimitive(Element, Option, Painter, Widget);
    }
    if (!Option) return;
    const bool IsOutlined = HasHighContrast(Option->palette);
    if (IsOutlined && Has(Outlined, Element)) Outline(*Option, Option->rect, *Painter);
    if (Element == PE_PanelButtonCommand) MarkKeysWithin(*Option, *Painter);
    if (Element == PE_FrameFocusRect) MarkKeysOnWords(*Option, *Painter);
    if (Element == PE_Frame || (IsOutlined && Element == PE_FrameLineEdit))
        MarkKeysOnFrame(*Option, *Painter);
}

QIcon GrowingStyle::standardIcon(StandardPixmap Which, const QStyleOption* Option,
                                 const QWidget* Widget) const {
    if (Which != SP_ToolBarHorizontalExtensionButton)
        return QProxyStyle::standardIcon(Which, Option, Widget);
    const bool Mirrored = Option && Option->direction == Qt::RightToLeft;
    const QPalette Colours = Widget ? Widget->palette() : QApplication::palette();
    QIcon Made;
    for (const int Side : {16, 24, 32, 48, 64})
        Made.addPixmap(ExtensionArrow(Side, Mirrored, Colours.color(QPalette::ButtonText)));
    return Made;
}

}  // namespace neb
