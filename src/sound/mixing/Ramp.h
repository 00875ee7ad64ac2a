// A level that goes to another in a straight line, a step a frame, so that no change clicks. Voices
// use it for their volume and for fading in.
#pragma once

namespace neb {

class Ramp {
  public:
    explicit Ramp(float Level) : mLevel(Level), mGoal(Level) {}

    void JumpTo(float Level) {
        mLevel = mGoal = Level;
        mLeft = 0;
    }
    void GlideTo(float Goal, int Frames) {
        mGoal = Goal;
        mLeft = Frames;
        mStep = (Goal - mLevel) / static_cast<float>(Frames);
    }
    bool IsStill() const { return mLeft == 0; }
    float Level() const { return mLevel; }
    // The level of the next frame.
    float Next() {
        if (mLeft == 0) return mLevel;
        mLevel = --mLeft == 0 ? mGoal : mLevel + mStep;
        return mLevel;
    }

  private:
    float mLevel;
    float mGoal;
    float mStep = 0;
    int mLeft = 0;  // frames
};

}  // namespace neb
