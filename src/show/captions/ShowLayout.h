// How the window of a show is divided: the picture above, its caption below. Read by the projector,
// by the stage of films and by the rehearsal.
#pragma once

#include <QSize>
#include <optional>

#include "show/captions/CaptionFit.h"

namespace neb {

// The caption gets the lines that it needs, up to a third of the window. Window: pixels.
CaptionSpace CaptionSpaceIn(QSize Window);
// What is left for the picture, in pixels; nothing where the window is too low for both.
std::optional<int> PictureHeightIn(int WindowHeight, int CaptionHeight);

}  // namespace neb
