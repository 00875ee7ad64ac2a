// The sample pictures: what each is called, how large it is, who paints it. The generator of
// the samples and the pictures beside the program draw on this table.
#pragma once

#include <QSize>
#include <QString>
#include <span>

#include "Picture.h"

namespace neb::demo {

enum class Turned { No, QuarterRight };  // stored as a camera on its side stores it

struct Scene {
    const char* FileName;  // UTF-8; the extension chooses the format
    QSize Size;            // as seen, in pixels at 100 percent
    QImage (*Paint)(QSize Size);
    Turned Stored = Turned::No;
};

std::span<const Scene> AllScenes();

QImage PaintMountains(QSize Size);
QImage PaintBalloons(QSize Size);
QImage PaintSunset(QSize Size);
QImage PaintLighthouse(QSize Size);
QImage PaintHarbour(QSize Size);
QImage PaintMilkyWay(QSize Size);
QImage PaintAurora(QSize Size);
QImage PaintDunes(QSize Size);
QImage PaintLavender(QSize Size);
QImage PaintGarden(QSize Size);
QImage PaintAutumn(QSize Size);
QImage PaintWinter(QSize Size);
QImage PaintDew(QSize Size);
QImage PaintRainyWindow(QSize Size);
QImage PaintUnderwater(QSize Size);
QImage PaintClouds(QSize Size);
QImage PaintJulia(QSize Size);
QImage PaintRoseWindow(QSize Size);
QImage PaintWindmill(QSize Size);

}  // namespace neb::demo
