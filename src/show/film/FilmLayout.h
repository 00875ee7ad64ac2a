// How a frame of a film is divided and what its caption looks like: as on a screen of the film's
// size with 96 dots an inch, whatever desktop the film is made on. Used by FilmStage.
#pragma once

#include <QImage>

#include "show/captions/CaptionFit.h"

namespace neb {

struct FilmLayout {
    QSize Picture;           // pixels, at the top
    CaptionSetting Caption;  // Height 0: none, or no room for it
};

// Caption: as a viewer reads it. With captions an empty one keeps its line, as in a show.
FilmLayout LayOutFrame(QSize Film, bool WithCaptions, const QString& Caption);
// White on black, Format_RGB32, without colours at the edges of its letters; null for none.
QImage PaintFilmCaption(int Width, const QString& Caption, const CaptionSetting& Setting);

}  // namespace neb
