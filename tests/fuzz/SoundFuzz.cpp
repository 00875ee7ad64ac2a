// The sound files under libFuzzer: opened, read through and jumped about in. Built with the
// sanitizers only. Start it with tests/data/sound as its corpus.
#include <array>
#include <cmath>
#include <cstdlib>

#include "sound/workers/SoundsHere.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace {

constexpr qint64 PieceSamples = 8192;
constexpr int MostPieces = 64;  // a header may promise hours

// False for a sample that is no sound, or one too many.
bool ReadsWell(neb::SoundDecoder& Sound, qint64 Most) {
    std::array<float, PieceSamples> Piece{};
    const qint64 Wanted = PieceSamples / Sound.Channels();
    for (int I = 0; I < MostPieces; ++I) {
        const qint64 Frames = Sound.Read(Piece.data(), Wanted);
        if (Frames == 0) return true;
        if (Frames < 0 || Frames > Wanted || (Most -= Frames) < 0) return false;
        for (qint64 At = 0; At < Frames * Sound.Channels(); ++At)
            if (!std::isfinite(Piece[static_cast<size_t>(At)])) return false;
    }
    return true;
}

bool PlaysWell(const QString& Path) {
    const auto Sound = neb::SoundsHere().Open(Path);
    const qint64 Length = Sound->Frames();
    if (Length < 0 || Sound->Channels() < 1 || Sound->Channels() > 8 || Sound->Rate() < 1)
        return false;
    for (const qint64 Place : {qint64{0}, Length / 2, Length - 1, Length}) {
        if (Place < 0) continue;
        Sound->Seek(Place);
        if (!ReadsWell(*Sound, Length - Place)) return false;
    }
    return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* Data, size_t Size) {
    static const neb::ScratchDir Folder;
    const QString Path = Folder.Path() + QStringLiteral("sound");
    neb::WriteFile(Path,
                   QByteArray(reinterpret_cast<const char*>(Data), static_cast<qsizetype>(Size)));
    try {
        if (!PlaysWell(Path)) std::abort();
    } catch (const neb::Fault&) {
        return 0;  // what cannot be played is refused
    }
    return 0;
}
