// The chance in the painted pictures: smooth noise for clouds, water and ground, and dice for
// things strewn about. All of it follows from seeds, so that a picture is always the same.
#pragma once

#include <cstdint>

namespace neb::demo {

std::uint32_t Hash(int X, int Y, std::uint32_t Seed);
// The same, as a number from 0 up to 1.
float Chance(int X, int Y, std::uint32_t Seed);

// Smooth noise of wave length 1, from -1 to 1.
float Noise(float X, float Y, std::uint32_t Seed);
// Octaves of it, each half as high and twice as fine; about -1 to 1.
float Fbm(float X, float Y, int Octaves, std::uint32_t Seed);
// The same folded at zero: sharp ridges at 1, valleys at 0.
float Ridged(float X, float Y, int Octaves, std::uint32_t Seed);

struct Cell {
    float Dist = 0;        // to the nearest seed point, cells being about 1 wide
    float Edge = 0;        // to the border of the next cell
    std::uint32_t Id = 0;  // the same all over one cell
};
Cell Worley(float X, float Y, std::uint32_t Seed);

class Dice {
  public:
    explicit Dice(std::uint32_t Seed) : mState(Seed * 747796405U + 2891336453U) {}
    float Next();                       // 0 up to 1
    float Range(float From, float To);  // From up to To
    int Below(int Count);               // 0 to Count - 1
    bool Odds(float Share) { return Next() < Share; }

  private:
    std::uint32_t mState;
};

}  // namespace neb::demo
