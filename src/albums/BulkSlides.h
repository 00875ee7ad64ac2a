// What the bulk slide manager does to an album that needs no window: it finds ten thousand slides
// one after the other in no time, and counts what became of them.
#pragma once

#include <QHash>
#include <QString>
#include <cstdint>

namespace neb {

class clsNEBAlbum;
class clsNEBSlide;

// The slides of one album by ID. What it remembers are places, each looked at before it is
// believed: slides may come and go between two calls.
class SlideFinder {
  public:
    // nullptr when the album has no such slide.
    clsNEBSlide* Find(clsNEBAlbum& Album, std::int32_t SlideID);

  private:
    void Learn(const clsNEBAlbum& Album);

    QHash<std::int32_t, size_t> mPlaces;  // in the list of slides, by ID
};

// How many of the slides went well, and how many did not.
struct SlideTally {
    int Done = 0;
    int Failed = 0;

    void Count(bool Success) { ++(Success ? Done : Failed); }
    // "3 slides successfully saved." and, after failures, a second line; DoneWord is
    // what was done ("saved"), DoWord what was tried ("save").
    QString Text(const QString& DoneWord, const QString& DoWord) const;
};

}  // namespace neb
