// A little picture and the shape in which it is to be seen: what is stretched to a square on the
// disk is drawn in its true proportions. Used by FlexGrid, its painting and its dragging.
#pragma once

#include <QImage>

namespace neb {

// The sides, in logical pixels, of the place into which a shape is fitted.
inline constexpr int PictureSide = 72;

struct ShapedPicture {
    QImage Picture;    // any number of pixels; null: there is none
    QSize Shape = {};  // of the true picture, in any unit; empty: it is drawn as it is
};

// As it is drawn on a screen of so many device pixels to the logical one: the pixels of a picture
// with a shape are those of the screen. One without is only handed on; null gives null.
QImage FittedPicture(const ShapedPicture& Of, double Scale);

}  // namespace neb
