// A placed text as outlines, so that it looks alike on the screen, on paper and in a PDF, whatever
// fonts are there: broken into lines, shortened by an ellipsis where there is more than has room.
// Emoji that a font has as pictures alone are pictures.
#pragma once

#include <QImage>
#include <QPainterPath>
#include <vector>

#include "printing/PrintDocument.h"

namespace neb {

// In inches, where it stands on the page.
struct TextInk {
    struct Emoji {
        QImage Picture;  // transparent around it
        QRectF Place;
    };
    QPainterPath Outlines;
    std::vector<Emoji> Emojis;
};

// Needs fonts: the program, not nebctl, draws texts. May run on a worker thread.
TextInk InkOf(const PlacedText& Text);

}  // namespace neb
