// How large a window opens that has no size of its own yet, by what is done in it; and which
// windows have their size and place kept from outside, as they keep none themselves.
#pragma once

#include <QSize>
#include <QStringView>

namespace neb {

// What a window asks for: what it was designed with; lines, as many as are seen; a picture, as
// large as it can be.
enum class WindowAsks { Designed, Lines, Picture };

WindowAsks AskedBy(QStringView Section);
// Whether WindowKeeper restores and saves it.
bool IsKeptFromOutside(QStringView Section);

// The first size in a room, in pixels, at least Designed as far as the room allows. LineHeight:
// that of a line of text, as lines of a larger font are longer.
QSize OpeningSize(WindowAsks Asks, const QSize& Designed, int LineHeight, const QSize& Room);

}  // namespace neb
