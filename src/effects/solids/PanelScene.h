// What the perspective engine draws: flat panels in space that all stand on one plane, seen from
// above as lines. The scenes make them for a moment, the engine looks at them.
#pragma once

#include "effects/drawing/HalfSizes.h"

namespace neb::effects {

// A line from a point in a direction. Lengths are of One, the direction a unit of One; X from the
// middle of the view, Z away from the viewer, 0 at the glass.
struct Panel {
    const HalfSizes* Front = nullptr;  // seen from the front; null: not drawn
    const HalfSizes* Back = nullptr;   // seen from behind, the other way round; null: not drawn
    std::int64_t X = 0, Z = 0;         // of its start
    int Cx = One, Cz = 0;
    std::int64_t Length = 0;
    std::int64_t FrontStart = 0, BackStart = 0;  // of the part of the picture that it bears
    int Shade = 0;                               // darkness 0..256
    bool JoinsAtStart = false;                   // another panel goes on there: no soft edge
    bool JoinsAtEnd = false;
};

// What is seen past the panels; null: black.
struct Backdrop {
    const Picture* Source = nullptr;
    int Shade = 0;
};

struct PanelScene {
    static constexpr int kMost = 24;
    Panel Panels[kMost];
    int Count = 0;
    Backdrop Behind[2];      // the first half along the turning, and the second
    bool Mirroring = false;  // the ground below upright panels shines

    Panel& Add(const Panel& P) { return Panels[Count++] = P; }
    void SetBehind(const Picture& P, int Shade) { Behind[0] = Behind[1] = {&P, Shade}; }
};

// The two pictures of a scene, halved along the turning, their length along it, and the distance
// of the viewer from the glass; of One.
struct Stage {
    HalfSizes Old, New;
    std::int64_t Length, Eye;
};

// Sets up an empty scene for a progress of One.
using ScenePlanner = void (*)(PanelScene& Scene, const Stage& S, int Progress);

void PlanCube(PanelScene& Scene, const Stage& S, int Progress);
void PlanFlip(PanelScene& Scene, const Stage& S, int Progress);
void PlanDoors(PanelScene& Scene, const Stage& S, int Progress);
void PlanCarousel(PanelScene& Scene, const Stage& S, int Progress);
void PlanLeaf(PanelScene& Scene, const Stage& S, int Progress);
void PlanMap(PanelScene& Scene, const Stage& S, int Progress);
void PlanPrisms(PanelScene& Scene, const Stage& S, int Progress);
void PlanBars(PanelScene& Scene, const Stage& S, int Progress);
void PlanFall(PanelScene& Scene, const Stage& S, int Progress);

}  // namespace neb::effects
