// sound-levels FILE: how loud each tenth of a second is of the sound that a show gave its device
// (two channels of 32-bit floats at 44100 Hz), as lines "seconds decibels"; -120 is silence. Used
// by the test of the whole road.
#include <cmath>
#include <cstdio>
#include <cstring>

#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace {

constexpr qsizetype Piece = 44100 / 10 * 2;  // samples
constexpr qsizetype PieceBytes = Piece * static_cast<qsizetype>(sizeof(float));

double Decibels(const char* Bytes) {
    float Samples[Piece];
    std::memcpy(Samples, Bytes, sizeof Samples);
    double Sum = 1e-12 * Piece;
    for (const float Sample : Samples)
        Sum += static_cast<double>(Sample) * static_cast<double>(Sample);
    return 10 * std::log10(Sum / Piece);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) return std::fputs("usage: sound-levels FILE\n", stderr), 2;
    try {
        const QByteArray Sound = neb::ReadFile(QString::fromLocal8Bit(argv[1]));
        for (qsizetype At = 0; At + PieceBytes <= Sound.size(); At += PieceBytes)
            std::printf("%.1f %.1f\n", static_cast<double>(At / PieceBytes) / 10,
                        Decibels(Sound.constData() + At));
        return 0;
    } catch (const neb::Fault& Problem) {
        return std::fprintf(stderr, "sound-levels: %s\n", qPrintable(Problem.Text())), 2;
    }
}
