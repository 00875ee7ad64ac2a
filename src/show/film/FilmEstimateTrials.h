// Small pieces of a film, encoded as they will be and counted: what a still picture, a transition
// and a second of sound come to. Used by FilmEstimate alone.
#pragma once

#include <QImage>
#include <map>
#include <vector>

#include "films/FilmEncoder.h"
#include "show/film/FilmOrder.h"
#include "show/film/FilmStage.h"
#include "show/rehearsal/RehearsalLog.h"

namespace neb {

class FilmTrials {
  public:
    explicit FilmTrials(const FilmOrder& Order);

    // A cue's frame when nothing moves any more; a picture that cannot be read is black.
    QImage Still(const RehearsalCue& Cue) const;
    // In bytes: what a still picture costs when it comes up out of nothing.
    double Arrival(const QImage& Frame) const;
    // The same anew whenever the encoder begins a new group of frames, as a multiple of the
    // arrival; and what each further frame of a still costs.
    struct Keeping {
        double Renewal = 1, EachFrame = 0;
    };
    Keeping KeepingOf(const QImage& Frame) const;
    // What the frames of the transition from one cue to the next cost, and what they would if each
    // cost as much as the mean of both arrivals. In a smaller film: they go with each other.
    struct Moved {
        double Bytes = 0, Arrivals = 0;
    };
    Moved Moving(const RehearsalCue& Old, const RehearsalCue& New) const;
    int MostTransitions() const;  // for which a few seconds are enough
    // Of an arrival, what is left to it behind a transition, which has brought the rest.
    double AfterTransition() const;
    // Bytes a second of what is heard of a cue from its beginning; of silence for null.
    double Sound(const RehearsalCue* Cue) const;
    // Of a film without frames.
    qint64 Empty(const FilmSetup& Setup) const;

    // Frames from the beginning of one group of frames to the next.
    int Group() const;
    const FilmOrder& Order() const { return mOrder; }

  private:
    struct Run {
        QImage Frame;
        int Count;
    };
    QImage StillOf(const FilmSlide& Slide, QSize Size) const;
    FilmSetup SetupFor(QSize Size) const;
    qint64 EmptyOf(const FilmSetup& Setup) const;
    double Bytes(const std::vector<Run>& Frames) const;
    std::vector<Run> FramesOf(const FilmSlide& Old, const FilmSlide& New, int All) const;

    const FilmOrder mOrder;
    mutable std::map<std::pair<int, int>, qint64> mEmpty;  // by the size
};

// Frames of a cue in which something moves; none where its picture comes in one step.
int MovingFrames(const RehearsalCue& Cue, int Rate);

}  // namespace neb
