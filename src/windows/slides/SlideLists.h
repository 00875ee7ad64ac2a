// The two lists of the slide manager: the albums, and the slides of the one that is chosen, behind
// an entry for a new slide. What is done here tells nobody: whoever does it knows what comes of it.
#pragma once

#include <cstdint>

#include "support/Answer.h"

QT_BEGIN_NAMESPACE
class QComboBox;
QT_END_NAMESPACE

namespace neb {

class SlideLists {
  public:
    SlideLists(QComboBox& Albums, QComboBox& Slides) : mAlbums(Albums), mSlides(Slides) {}

    std::int32_t AlbumID() const;  // as chosen; 0 for none
    std::int32_t SlideID() const;  // as chosen; 0 for none and for a new slide

    // The albums as they are now. The choice stays; false when its album is no longer there.
    bool ListAlbums() const;
    void RemoveAlbum(std::int32_t AlbumID) const;
    bool ChooseAlbum(std::int32_t AlbumID) const;  // false, and the choice as it was: not there
    void ChooseAlbumAt(int Index) const;

    // The slides of the chosen album, none of them chosen. Refused when there is no such album.
    Answer<> ListSlides() const;
    void RemoveSlide(std::int32_t SlideID) const;
    bool ChooseSlide(std::int32_t SlideID) const;  // false, and the new slide chosen: not there
    void ChooseSlideAt(int Index) const;           // the new slide is at 0
    void Clear() const;                            // no slides at all

  private:
    QComboBox& mAlbums;
    QComboBox& mSlides;
};

}  // namespace neb
