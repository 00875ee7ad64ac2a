// How a caption of a show is set: the size of its type and the lines that it takes. The caption's
// label paints by it; a rehearsal tells of captions that do not fit.
#pragma once

#include <QFont>
#include <QString>

class QPaintDevice;
class QPainter;

namespace neb {

// Where a caption goes, in pixels.
struct CaptionSpace {
    int Width = 0;
    int ScreenHeight = 0;  // the type is larger on a screen taller than 1080
    int MostHeight = 0;    // the type gets smaller rather than the caption taller than this
};

struct CaptionSetting {
    double Points = 0;  // of the type
    int Lines = 0;
    int Height = 0;  // pixels, with the margins
};

QFont CaptionFont(double Points);
// At the size of type that captions have as a rule. Text as a viewer reads it; an empty one takes
// one line. Device: where it will be painted, whose dots an inch count; null: the first screen.
CaptionSetting StandardCaption(const QString& Text, const CaptionSpace& Space,
                               const QPaintDevice* Device = nullptr);
// The same, in a smaller type as far as MostHeight asks for.
CaptionSetting FitCaption(const QString& Text, const CaptionSpace& Space,
                          const QPaintDevice* Device = nullptr);
// In the painter's font and colour, centred at the top of this width.
void PaintCaption(QPainter& Painter, const QString& Text, int Width, const QPaintDevice* Device);

}  // namespace neb
