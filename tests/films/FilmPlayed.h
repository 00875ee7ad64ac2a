// A film as a player sees it: read back by the libraries, and as ffprobe tells of it.
#pragma once

#include <QImage>
#include <QJsonObject>
#include <vector>

#include "harness/TempFolder.h"

namespace neb::filmtest {

struct PlayedFilm {
    std::vector<QImage> Frames;      // RGB32
    std::vector<double> FrameTimes;  // seconds
    std::vector<float> Sound;        // pairs of samples, at the rate of the film
    int SoundRate = 0;
};
PlayedFilm Play(const std::vector<std::uint8_t>& Film);

struct ProbedFilm {
    QJsonObject All;
    // The first of a kind: "video", "audio", "subtitle"; empty for none.
    QJsonObject Stream(const char* Kind) const;
    QJsonObject Cover() const;
    QStringList SubtitleTimes() const;  // "0.200+0.600", from the packets
};
ProbedFilm Probe(const std::vector<std::uint8_t>& Film);

// By the differences of red, green and blue; 99 for none.
double Psnr(const QImage& One, const QImage& Other);

}  // namespace neb::filmtest
