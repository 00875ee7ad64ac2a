// A placed text as outlines, so that it looks alike on the screen, on paper and in a PDF, whatever
// fonts are there: broken into lines, shortened by an ellipsis where there is more than has room.
#pragma once

#include <QPainterPath>

#include "printing/PrintDocument.h"

namespace neb {

// In inches, where it stands on the page. Needs fonts: the program, not nebctl, draws texts. May
// run on a worker thread.
QPainterPath OutlinesOf(const PlacedText& Text);

}  // namespace neb
