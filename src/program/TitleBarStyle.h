// The title bars of the main window's children, and the buttons of a maximised one in the menu bar:
// as high as the font of the titles, and read in dark palettes, where some styles draw those of
// inactive windows black on black.
#pragma once

#include <QProxyStyle>

QT_BEGIN_NAMESPACE
class QStyleOptionTitleBar;
QT_END_NAMESPACE

namespace neb {

class TitleBarStyle : public QProxyStyle {
    Q_OBJECT

  public:
    explicit TitleBarStyle(QObject* Parent);

    void drawComplexControl(ComplexControl Control, const QStyleOptionComplex* Option,
                            QPainter* Painter, const QWidget* Widget) const override;
    int pixelMetric(PixelMetric Metric, const QStyleOption* Option,
                    const QWidget* Widget) const override;
    QSize sizeFromContents(ContentsType Type, const QStyleOption* Option, const QSize& Contents,
                           const QWidget* Widget) const override;

  private:
    void DrawBar(const QStyleOptionTitleBar& Bar, QPainter& Painter, const QWidget* Widget) const;
    void DrawControls(const QStyleOptionComplex& Controls, QPainter& Painter,
                      const QWidget* Widget) const;
};

}  // namespace neb
