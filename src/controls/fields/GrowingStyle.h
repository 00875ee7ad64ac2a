// The desktop's style with arrows, boxes to tick, icons, scroll bars and title bars that grow with
// the letters beside them: styles draw them at a size of their own, whatever the font. The
// application sets it once (NebApplication). Up to 10 points all is as the desktop draws it, but
// for boxes to tick, which have a frame that is seen, for the lines around all that can be used in
// colours of high contrast, and for the one around what has the keys.
#pragma once

#include <QProxyStyle>

namespace neb {

class GrowingStyle : public QProxyStyle {
    Q_OBJECT

  public:
    GrowingStyle() = default;  // over the style that the desktop asks for

    // How much larger things are beside letters of this font than beside the usual ones; never
    // below 1. Measured in points: a scaled screen scales both.
    static double Growth(const QFont& Font);

    // Enter and a double click open things in all lists, on desktops of one click as well: there a
    // click could mark nothing.
    int styleHint(StyleHint Hint, const QStyleOption* Option, const QWidget* Widget,
                  QStyleHintReturn* Returned) const override;
    int pixelMetric(PixelMetric Metric, const QStyleOption* Option,
                    const QWidget* Widget) const override;
    QRect subControlRect(ComplexControl Control, const QStyleOptionComplex* Option, SubControl Part,
                         const QWidget* Widget) const override;
    QSize sizeFromContents(ContentsType Type, const QStyleOption* Option, const QSize& Content,
                           const QWidget* Widget) const override;
    void drawComplexControl(ComplexControl Control, const QStyleOptionComplex* Option,
                            QPainter* Painter, const QWidget* Widget) const override;
    void drawControl(ControlElement Element, const QStyleOption* Option, QPainter* Painter,
                     const QWidget* Widget) const override;
    void drawPrimitive(PrimitiveElement Element, const QStyleOption* Option, QPainter* Painter,
                       const QWidget* Widget) const override;
    // The arrow at the end of a tool bar that is too short, in the colour of the other texts.
    QIcon standardIcon(StandardPixmap Which, const QStyleOption* Option,
                       const QWidget* Widget) const override;
};

}  // namespace neb
