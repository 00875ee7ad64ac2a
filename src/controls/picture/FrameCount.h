// How many transitions a view has shown, in how many frames, and how many of these came late. Used
// by XShow, which counts, and by the projector, which writes it in the log at the end of a show.
#pragma once

#include <QString>

namespace neb {

class FrameCount {
  public:
    // A frame of a transition has come; the first one counts the transition, too.
    void Add(bool IsFirst, bool IsLate);

    int Transitions() const { return mTransitions; }
    int Frames() const { return mFrames; }
    int Late() const { return mLate; }
    // "250 transitions, 15,000 frames, 0 late"; empty when there was no transition.
    QString Text() const;

  private:
    int mTransitions = 0, mFrames = 0, mLate = 0;
};

}  // namespace neb
