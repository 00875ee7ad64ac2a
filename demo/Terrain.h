// Ground seen in perspective, from a height at every place: dunes, snow fields, cloud decks.
// Scenes give the height and the colouring; what lies behind a hill stays hidden.
#pragma once

#include <functional>

#include "Picture.h"

namespace neb::demo {

struct Spot {
    float X = 0, Z = 0, Height = 0;  // place on the ground; Z is the distance from the eye
    float Nx = 0, Ny = 1, Nz = 0;    // direction that the ground faces; Ny is up
};

struct Terrain {
    std::function<float(float X, float Z)> Height;
    float Eye = 1;         // height of the eye
    float Horizon = 0.4F;  // where level sight meets the picture, in heights
    float Focal = 1;       // larger sees a narrower part
    float Near = 0.5F, Far = 60;
    float Fine = 0.004F;  // step in parts of the distance
    // Span, in parts of the distance, over which the ground's facing is measured: away from the
    // eye, which lights the rims of soft hills, or below 0 towards it, which keeps crests sharp.
    float Slope = 0.01F;
};

using SpotColour = std::function<Rgb(const Spot&)>;
void DrawTerrain(Picture& Target, const Terrain& Ground, const SpotColour& Colour);

// How much of a light from direction (Lx, Ly, Lz) reaches a spot past the hills: 0 to 1.
float Sunlit(const Terrain& Ground, const Spot& Place, Rgb Light, float Reach, int Steps);

}  // namespace neb::demo
