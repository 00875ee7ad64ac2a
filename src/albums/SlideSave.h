// The rules of keeping one slide, without a window: what becomes of its picture and of its sound
// when it is saved, and which slide comes before and after it. For the slide manager.
#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <functional>
#include <optional>

namespace neb {

class ImgX;
class clsDBEngine;
class clsNEBSlide;

// What the user has made of a slide.
struct SlideEdits {
    std::function<QByteArray()> Jpeg;     // makes the new picture; none: the stored one stands
    QString SoundLoc;                     // the sound that the slide had; empty for none
    bool SoundCleared = false;            // goes before a recording
    std::optional<QByteArray> Recording;  // bytes of a WAV file
    bool Override = false;
    bool Repeat = false;
};

// How the slide's JPEG is made, fitted: from the edited picture (all its pixels; null when it was
// not turned or flipped), else from a chosen file, which SlideLoc gives by its full path; a stored
// picture that was not edited stands: no function. It throws Fault, on any thread.
std::function<QByteArray()> JpegToStore(const QString& SlideLoc, const ImgX* Edited);
// Writes a new picture as the slide's JPEG and drops its thumbnail. Throws Fault when the picture
// cannot be read or written: slide and old picture are then as they were.
void StorePicture(const clsDBEngine& theDB, std::int32_t AlbumID, clsNEBSlide& Slide,
                  const SlideEdits& Edits);
// Takes the sound away, or stores the recording, or sets how the sound that is there is played.
// Throws Fault when a file cannot be written or deleted: slide and old sound are as they were.
void StoreSound(const clsDBEngine& theDB, std::int32_t AlbumID, clsNEBSlide& Slide,
                const SlideEdits& Edits);

// The entry of the list to go to; entry 0 is for a new slide, Last is the last one. Both walk
// round in circles over 1 to Last; -1 when there is nowhere to go.
int NextSlideIndex(int Index, int Last);
int PreviousSlideIndex(int Index, int Last);

}  // namespace neb
