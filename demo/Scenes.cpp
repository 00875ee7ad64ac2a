#include "Scenes.h"

namespace neb::demo {
namespace {

// The largest first, so that all processors finish at about the same time.
constexpr Scene Table[] = {
    {"Morning in the Mountains.jpg", {2400, 1600}, PaintMountains},
    {"Autumn Wood.jpg", {1800, 1350}, PaintAutumn},
    {"Lavender in Provence.jpg", {2100, 1400}, PaintLavender},
    {"Sunset at Sea.jpg", {1920, 1080}, PaintSunset},
    {"Above the Clouds.jpg", {2400, 800}, PaintClouds},
    {"Northern Lights.jpg", {1200, 1800}, PaintAurora, Turned::QuarterRight},
    {"Käthe's Garten.tif", {1500, 1000}, PaintGarden},
    {"Harbour at Night.png", {1620, 1080}, PaintHarbour},
    {"Under the Sea.jpg", {1920, 1080}, PaintUnderwater},
    {"Balloons over the Valley.jpg", {1800, 1200}, PaintBalloons},
    {"Milky Way over the Lake.tga", {1350, 900}, PaintMilkyWay},
    {"Lighthouse at Dusk.psd", {1280, 960}, PaintLighthouse},
    {"Desert Dunes.bmp", {1280, 960}, PaintDunes},
    {"Winter Evening.jpg", {1600, 1200}, PaintWinter},
    {"Seahorse Valley.png", {1200, 900}, PaintJulia},
    {"Dew on a Leaf.jpg", {1400, 1400}, PaintDew},
    {"Rose Window.png", {1200, 1200}, PaintRoseWindow},
    {"Rain on the Window.pcx", {1024, 768}, PaintRainyWindow},
    {"The Old Mill.wbmp", {1024, 768}, PaintWindmill},
};

}  // namespace

std::span<const Scene> AllScenes() {
    return Table;
}

}  // namespace neb::demo
