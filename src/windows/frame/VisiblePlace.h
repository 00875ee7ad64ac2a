// Where windows go in the room that is seen: beside one another, inside, beside the bars of the
// minimised ones. Geometry alone, in pixels; for modWindowState and the main window's area.
#pragma once

#include <QRect>
#include <vector>

namespace neb {

// From one window of the cascade to the next, each way, for titles of a line's height: those behind
// are to be read.
int CascadeStep(int LineHeight);

// What is left of an area above the bars that lie along its lower edge.
QRect FreeRoom(const QRect& Area, const std::vector<QRect>& Bars);

// A window as it fits a room, at least as large as Least: cut to the room, then moved until it is
// inside. One whose Least is larger begins at the room's upper left corner.
QRect BroughtInside(const QRect& Window, const QSize& Least, const QRect& Room);
// The same for one that stands in a cascade: it is cut where it stands before it is moved, but not
// below Wanted.
QRect CutIntoRoom(const QRect& Window, const QSize& Wanted, const QSize& Least, const QRect& Room);

// Places side by side, row by row, that fill the room as far as none is smaller than it may be:
// then they reach beyond it. One for each of Least, in that order.
std::vector<QRect> TiledPlaces(const std::vector<QSize>& Least, const QRect& Room);

struct WindowExtent {
    QSize Size, Least;
};
// Places one over the other, each a step from the one before; it begins again at the corner where
// the next would reach beyond the room.
std::vector<QRect> CascadedPlaces(const std::vector<WindowExtent>& Windows, const QRect& Room,
                                  int Step);

}  // namespace neb
