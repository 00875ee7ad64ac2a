// The title bars of the main window's children: as high as the font of their titles, and read in
// dark palettes, where some styles draw the titles and buttons of inactive windows black on black.
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

  private:
    void DrawBar(const QStyleOptionTitleBar& Bar, QPainter& Painter, const QWidget* Widget) const;
    void DrawButton(const QStyleOptionTitleBar& Bar, SubControl Button, QPainter& Painter,
                    const QWidget* Widget) const;
};

}  // namespace neb
