#include "albums/SlideTurn.h"

#include "db/modAlbumFiles.h"

namespace neb {

TurnedSlide TurnSlide(const QString& DBPath, std::int32_t AlbumID, const clsNEBSlide& Stored,
                      int Quarters, const PictureKeeping& Keeping) {
    TurnedSlide Made;
    Made.InHand.Take(AlbumID, Stored);
    ImgX Picture;
    Picture.Load(SlidePath(DBPath, AlbumID, Stored.SlideLoc));
    Made.InHand.SetPicture(Picture);
    Picture.Rotate(90 * Quarters);
    Made.InHand.Turn(std::move(Picture));
    Made.Jpeg = Made.InHand.Jpeg(Keeping)();
    Made.InHand.SetPicture({});  // its pixels are of no more use
    return Made;
}

}  // namespace neb
