// A picture in smaller versions, each half as large as the one before it, for whatever is seen
// small or from the side: read from the right one, four pixels are enough and nothing sparkles.
// Made in an engine's constructor (about 5 ms for 3840 by 2160); drawn from by many threads.
//
//   HalfSizes Old(Pictures.Old, HalfSizes::Way::Both);     // shrinks evenly: zooms, tiles, ripples
//   HalfSizes Turned(Pictures.Old, HalfSizes::Way::Across);  // turned about an upright axis
//   Old.Read(Out, U, V, Count, Shrink);   // places and steps as for the picture itself
//
// Shrink is how much of the picture, of One, comes to one pixel of the frame: One for full size,
// 2 * One where a picture is seen at half its width. Read goes softly from version to version as
// Shrink grows, so that a picture that shrinks with time does not jump. To read from one version
// without that, take At(LevelFor(Shrink)) and carry each place over with AcrossAt and DownAt.
#pragma once

#include <memory>
#include <vector>

#include "effects/drawing/Sampling.h"

namespace neb::effects {

class HalfSizes {
  public:
    // In which direction the versions are smaller.
    enum class Way { Across, Down, Both };
    // P stays while this lives. There are at most Count smaller versions, fewer for pictures that
    // soon are a single pixel long.
    HalfSizes(const Picture& P, Way W, int Count = 4);

    // Version 0 is the picture itself; Level up to and including Last().
    const Picture& At(int Level) const { return mLevels[static_cast<std::size_t>(Level)]; }
    int Last() const { return static_cast<int>(mLevels.size()) - 1; }

    // The version in which Shrink (of One) is 3/4 to 3/2 pixels.
    int LevelFor(int Shrink) const;
    // Where a place of the picture (of One, pixel centres at whole numbers) lies in a version.
    int AcrossAt(int U, int Level) const { return mWay == Way::Down ? U : Halved(U, Level); }
    int DownAt(int V, int Level) const { return mWay == Way::Across ? V : Halved(V, Level); }

    // As SamplePlaces, for pixels which all are shrunk alike; U and V are places of the picture.
    void Read(QRgb* Out, const int* U, const int* V, int Count, int Shrink) const;

  private:
    static int Halved(int Place, int Level) {
        return static_cast<int>((std::int64_t{Place} + One / 2) >> Level) - One / 2;
    }
    bool Add();
    void ReadLevel(QRgb* Out, const int* U, const int* V, int Count, int Level) const;

    Way mWay;
    std::vector<Picture> mLevels;
    std::vector<std::unique_ptr<QRgb[]>> mRoom;
};

}  // namespace neb::effects
