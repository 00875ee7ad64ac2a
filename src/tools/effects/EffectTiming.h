// How long the transitions take on this machine, and EffectStats.txt, the file of these times that
// lies beside the program. Used by nebctl effects timings.
#pragma once

#include <QImage>
#include <QString>
#include <functional>
#include <vector>

namespace neb {

struct TimingOrder {
    QSize Size{3840, 2160};
    int Runs = 3;  // of each transition; the shortest counts
};

// Seconds of processor time of one whole transition of 100 steps on one thread, as a show has it:
// preparing, drawing each step and painting it on a screen, which is a picture in memory. Both
// pictures are Format_RGB32 and of one size.
double TimeTransition(int Number, const QImage& Old, const QImage& New);

// The least times of all 127 numbers, in seconds. Measured is called before each run with how many
// are done.
std::vector<double> TimeAll(const TimingOrder& Order, const QImage& Old, const QImage& New,
                            const std::function<void(int Done)>& Measured);

// The whole text of EffectStats.txt: a line that says how it came about, then a row for each time.
QString EffectStatsText(const TimingOrder& Order, const std::vector<double>& Times);

// What these times mean for a show at 60 refreshes a second: how many of the transitions draw every
// frame in the time of one, and which is the slowest. One line, without its end.
QString FrameLimitText(const std::vector<double>& Times);

}  // namespace neb
