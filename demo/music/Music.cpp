#include "Music.h"

#include "Room.h"
#include "Scores.h"
#include "support/files/modHostFiles.h"

namespace neb::demo {
namespace {

constexpr Tune Tunes[] = {
    {"Morning Light.wav", 24, 44100, false, MorningBeat, 0.24, 2.4, &ComposeMorning},
    {"Evening Waltz.wav", 40, 44100, false, EveningBeat, 0.3, 3.5, &ComposeEvening},
    {"Chime.wav", 3, 22050, true, 0.4, 0.22, 1.2, &ComposeChime},
};

}  // namespace

std::span<const Tune> AllTunes() {
    return Tunes;
}

Stereo Render(const Tune& Music) {
    Stereo Sound(Music.Rate, Music.Seconds);
    for (const Note& One : Music.Compose()) Play(One, Sound);
    AddRoom(Sound, Music.Beat * 0.75, Music.Hall);
    if (Music.Mono) FoldToMono(Sound);
    Master(Sound, Music.FadeOut);
    return Sound;
}

QByteArray RenderWave(const Tune& Music) {
    return AsWave(Render(Music), Music.Mono);
}

void WriteMusic(const QString& Folder) {
    MakeDirs(Folder);
    for (const Tune& Music : AllTunes())
        WriteFile(Folder + u'/' + QString::fromUtf8(Music.FileName), RenderWave(Music));
}

}  // namespace neb::demo
