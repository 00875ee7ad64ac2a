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
    // The picture by FitFor, made beforehand; null, or not as large as it must be: the stage does
    // it itself.
    QImage Fitted;
};

class FilmStage {
  public:
    // Film: pixels. Without captions the picture has all the room.
    FilmStage(QSize Film, bool WithCaptions);
    ~FilmStage();
    FilmStage(const FilmStage&) = delete;
    FilmStage& operator=(const FilmStage&) = delete;

    // A picture as it will lie in a film above its caption; on any thread. The larger part of the
    // work that a slide makes.
    static QImage FitFor(QSize Film, bool WithCaptions, const QString& Caption,
                         const QImage& Picture);

    // In the order of time. The first comes up out of black.
    void ShowSlide(const FilmSlide& Slide);
    // What is seen at a moment, not before the slide that was shown last; Format_RGB32, of the
    // film's size. As long as nothing moves it is the same picture (QImage::cacheKey). Whoever
    // keeps it keeps a copy of the QImage: it is not drawn into while there is one.
    const QImage& FrameAt(double Seconds);
    // From when on nothing moves any more.
    double StillFrom() const;

  private:
    struct Scene;
    std::unique_ptr<Scene> mScene;
};

}  // namespace neb
