// How long a piece of work will still take, told calmly: nothing in the first seconds, then a
// figure that follows the pace of the last quarter of a minute, in steps that do not flicker to and
// fro. Without a clock of its own: the progress windows hand it the time.
#pragma once

#include <QString>
#include <optional>

namespace neb {

class TimeLeft {
  public:
    // How much is done, 0 to 1, at a moment in milliseconds of a clock that never jumps. Less than
    // before begins anew.
    void Note(double Part, double NowMs);
    // So long nothing was done because the user was asked something: that does not count.
    void Skip(double Ms);

    // The estimate at the last note, smoothed; nothing while it would be a guess.
    std::optional<double> Seconds() const { return mLeft; }
    // "About 3 minutes left"; empty while it would be a guess.
    QString Text() const;

  private:
    struct Moment {
        double Part = 0, Ms = 0;
    };

    void Begin(const Moment& Now);
    void Follow(const Moment& Now);
    void Show();

    std::optional<Moment> mStart;
    Moment mLast;
    double mPace = 0;              // part a millisecond, of late
    std::optional<double> mLeft;   // seconds
    std::optional<double> mShown;  // the same, as the text tells it
};

}  // namespace neb
