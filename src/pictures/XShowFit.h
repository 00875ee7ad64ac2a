// How a picture lies in the transition view: fitted or at its own size, in proportion or not,
// centred or not, on black. Used by XShow, on worker threads as well.
#pragma once

#include <QImage>

namespace neb {

struct XShowLayout {
    QSize View;                // in pixels of the screen
    bool Fitted = false;       // option A: made to fit the view, else at its own size
    bool InProportion = true;  // option B: width to height as they are, but for less than a
                               // hundredth that would leave hairlines; else the view is filled
    bool Centred = false;      // option C: in the middle, else at the top left
    bool operator==(const XShowLayout&) const = default;
};

// Where a picture of a size lies in the view; may reach over its edges.
QRect PlaceInView(QSize Picture, const XShowLayout& Layout);
// The whole view with the picture in its place, black around it; Format_RGB32. A null picture
// gives a black view, an empty view a null picture.
QImage FitToView(const QImage& Picture, const XShowLayout& Layout);
// Format_RGB32, what is transparent on white.
QImage AsOpaque(const QImage& Picture);

}  // namespace neb
