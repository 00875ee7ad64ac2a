// The level at which a recording is taken: it may be changed while somebody speaks, and what was
// said before stays as it was. The recorder brings its samples to it.
#pragma once

#include <QByteArray>
#include <cstdint>
#include <vector>

namespace neb {

class RecordingLevel {
  public:
    // What a sample is multiplied by at a volume of 1 to 100: 50 leaves it as it comes, each step
    // more or less is a quarter of a decibel, as it is where a sound is played.
    static double GainOf(int Volume);

    void Begin(int Volume);  // of a new recording
    void ChangeAt(std::int32_t Byte, int Volume);
    // Unsigned samples of 8 bits, of which the first is byte First of the recording. What would
    // grow beyond full level is cut there.
    void Apply(QByteArray& Samples, std::int32_t First) const;

  private:
    struct Stretch {
        std::int32_t From;  // bytes
        double Gain;
    };
    std::vector<Stretch> mStretches;
};

}  // namespace neb
