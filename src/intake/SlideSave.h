// The rules of keeping one slide, without a window: what becomes of its picture and of its sound
// when it is saved, and which slide comes before and after it. For the slide manager.
#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <optional>

namespace neb {

class ImgX;
class clsDBEngine;
class clsNEBSlide;

// What the user has made of a slide.
struct SlideEdits {
    QString SlideLoc;              // the stored name, or the full path of a chosen file
    const ImgX* Edited = nullptr;  // the picture when it was turned or flipped; all its pixels
    QString SoundLoc;              // the sound that the slide had; empty for none
    bool SoundCleared = false;     // goes before a recording
    std::optional<QByteArray> Recording;  // bytes of a WAV file
    bool Override = false;
    bool Repeat = false;
};

// Writes the edited picture, or else a chosen file, fitted, as the slide's JPEG, and drops its
// thumbnail; a stored picture that was not edited stands. Throws Fault when the picture cannot be
// read or written: slide and old picture are then as they were.
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
