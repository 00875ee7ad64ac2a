// Draws the frames of a film as the projector shows them on a screen of its size: the picture with
// its transition, the caption below. Used by FilmMaker and FilmEstimate, on any one thread.
#pragma once

#include <QImage>
#include <memory>

#include "pictures/XShowFit.h"

namespace neb {

class Transition;

struct FilmSlide {
    double At = 0;    // seconds, when it comes up
    QImage Picture;   // as it was read; any size
    QString Caption;  // as a viewer reads it; empty for none
    int EffectNumber = 0;
    int EffectDelay = 0;   // tenths of a millisecond from step to step
    int EffectStep = 100;  // percent a step
};

class FilmStage {
  public:
    // Film: pixels. Without captions the picture has all the room.
    FilmStage(QSize Film, bool WithCaptions);
    ~FilmStage();

    // In the order of time. The first comes up out of black.
    void ShowSlide(const FilmSlide& Slide);
    // What is seen at a moment, not before the slide that was shown last; Format_RGB32, of the
    // film's size. As long as nothing moves it is the same picture (QImage::cacheKey).
    const QImage& FrameAt(double Seconds);
    // From when on nothing moves any more.
    double StillFrom() const;

  private:
    struct Scene;
    std::unique_ptr<Scene> mScene;
};

}  // namespace neb
