// The rules of keeping one slide, without a window: whether it can be saved, what becomes of its
// picture and of its sound, how it goes, and which slide comes before and after it. For the slide
// manager.
#pragma once

#include <QString>
#include <cstdint>

#include "albums/SlideInHand.h"
#include "db/Changes.h"

namespace neb {

// Where the stored picture of the slide in hand lies. Refused, with what is to be said, when it has
// none or its file has gone.
Answer<QString> StoredPicture(const QString& DBPath, const SlideInHand& InHand);
// Whether there is a picture to save it with.
Answer<> CheckPicture(const QString& DBPath, const SlideInHand& InHand);

// Saves the slide in hand under its numbers, the picture and the sound first, then its record in
// one go; it is in hand as stored afterwards, and has its number when it was new. Jpeg: as
// SlideInHand::Jpeg, made ready or not. Throws Fault when a file cannot be written: the slide then
// has its caption, a new one no picture, and what was made stays in hand for the next save.
Answer<Announcement> SaveSlide(clsDBEngine& theDB, const QObject* Asker, SlideInHand& InHand,
                               const SlideInHand::JpegMaker& Jpeg);
// A stored slide turned, with the bytes of its new JPEG: ready to be saved by the routine above.
struct TurnedSlide {
    SlideInHand InHand;
    QByteArray Jpeg;
};
// Quarters: clockwise where positive. On any thread. Throws as ImgX::Load does.
TurnedSlide TurnSlide(const QString& DBPath, std::int32_t AlbumID, const clsNEBSlide& Stored,
                      int Quarters, const PictureKeeping& Keeping);
// Deletes a slide with its files. Asker: the window that knows of it already.
Answer<Announcement> DeleteSlide(clsDBEngine& theDB, const QObject* Asker, std::int32_t AlbumID,
                                 std::int32_t SlideID);

// Clears the sound of Record, or stores the new one, or sets how the sound that is there is played;
// Record, not yet in the album, says so afterwards. The file of a cleared sound is for SaveSlide to
// delete. Throws Fault when a file cannot be written: record and old sound are as they were.
void StoreSound(const clsDBEngine& theDB, Changes& Door, const SlideInHand& InHand,
                clsNEBSlide& Record);
// Where the sound is that is stored of the slide.
QString StoredSound(const QString& DBPath, const SlideInHand& InHand);

// The entry of the list to go to; entry 0 is for a new slide, Last is the last one. Both walk
// round in circles over 1 to Last; -1 when there is nowhere to go.
int NextSlideIndex(int Index, int Last);
int PreviousSlideIndex(int Index, int Last);

}  // namespace neb
