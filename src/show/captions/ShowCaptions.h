// The captions of a show as they come up under its pictures, for whoever looks for a slide by its
// number or by words. Good as long as nothing changes the show.
#pragma once

#include <QString>
#include <cstdint>

namespace neb {

class clsDBEngine;
class clsNEBAlbum;
class clsNEBSlideShow;
class clsNEBSlideShowDetail;

class ShowCaptions {
  public:
    // Engine: null when no database is open. A show that is not there has no captions.
    ShowCaptions(const clsDBEngine* Engine, std::int32_t AlbumID, std::int32_t SlideShowID);

    // How many slides the show has.
    std::int32_t Count() const;
    // As a viewer reads it; empty when the slide has none or is not there. SlideSeq: from 1.
    QString At(std::int32_t SlideSeq) const;
    // The slide of this number, else the next one after Present, the way round, whose caption holds
    // all of these words or parts of words, in any case and with or without accents; 0: none.
    std::int32_t Find(const QString& Wanted, std::int32_t Present) const;

  private:
    QString Of(const clsNEBSlideShowDetail& Detail) const;
    std::int32_t WayTo(std::int32_t SlideSeq, std::int32_t Present) const;

    clsNEBAlbum* mAlbum = nullptr;
    const clsNEBSlideShow* mSlideShow = nullptr;
};

}  // namespace neb
