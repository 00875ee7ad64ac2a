// Pictures that lie in the albums' folders and that no record names, because the records were lost:
// they become slides again. Used by nebctl.
#pragma once

#include <vector>

#include "db/Changes.h"

namespace neb {

struct StrayPicture {
    QString Path;              // in full
    std::int32_t AlbumID = 0;  // of its folder
    bool HasAlbum = false;     // there is a record of that album
};
// By album and name. Thumbnails are none, nor is what is no picture by its name or its content.
std::vector<StrayPicture> FindStrayPictures(const clsDBEngine& theDB);

// The album into which they come whose own has no record.
inline constexpr char RecoveredAlbum[] = "Recovered pictures";

struct AdoptedPicture {
    std::int32_t AlbumID = 0;
    std::int32_t SlideID = 0;
    QString Caption;
};
class Adoption {
  public:
    Adoption(clsDBEngine& theDB, Changes& Door) : mDB(theDB), mDoor(Door) {}

    // Makes a slide of it, with a thumbnail; its file is kept as it is. It has the number that its
    // file bears where no slide has that, so that shows find it again, else the next one, and its
    // file that name. The caption is what the picture says of itself, else "Recovered picture N",
    // counted from 1. Throws Fault when it cannot be read: it stays as it is.
    AdoptedPicture Adopt(const StrayPicture& Stray);

  private:
    std::int32_t AlbumFor(const StrayPicture& Stray);
    std::int32_t NumberFor(const StrayPicture& Stray, std::int32_t AlbumID) const;
    bool HasSlide(std::int32_t SlideID) const;
    QString CaptionOf(const QString& Path);

    clsDBEngine& mDB;
    Changes& mDoor;
    int mNameless = 0;
};

}  // namespace neb
