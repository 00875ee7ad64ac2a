#include "show/film/FilmLayout.h"

#include <QPainter>
#include <cmath>

#include "show/captions/ShowLayout.h"

namespace neb {
namespace {

QImage WithFilmDots(QSize Size) {
    constexpr double DotsPerInch = 96, MetresPerInch = 0.0254;
    QImage Image(Size, QImage::Format_RGB32);
    const int PerMetre = static_cast<int>(std::lround(DotsPerInch / MetresPerInch));
    Image.setDotsPerMeterX(PerMetre);
    Image.setDotsPerMeterY(PerMetre);
    return Image;
}

}  // namespace

FilmLayout LayOutFrame(QSize Film, bool WithCaptions, const QString& Caption) {
    if (!WithCaptions) return {Film, {}};
    const QImage Dots = WithFilmDots({1, 1});
    const CaptionSetting Setting = FitCaption(Caption, CaptionSpaceIn(Film), &Dots);
    const std::optional<int> Height = PictureHeightIn(Film.height(), Setting.Height);
    if (!Height) return {Film, {}};
    return {{Film.width(), *Height}, Setting};
}

QImage PaintFilmCaption(int Width, const QString& Caption, const CaptionSetting& Setting) {
    if (Setting.Height == 0) return {};
    QImage Strip = WithFilmDots({Width, Setting.Height});
    Strip.fill(Qt::black);
    QPainter Painter(&Strip);
    Painter.setPen(Qt::white);
    Painter.setFont(CaptionFont(Setting.Points));
    PaintCaption(Painter, Caption, Width, &Strip);
    return Strip;
}

}  // namespace neb
