#include "show/rehearsal/CueTexts.h"

#include <algorithm>

namespace neb {
namespace {

constexpr std::pair<CueSoundKind, const char*> SoundWords[] = {
    {CueSoundKind::Silent, "silent"},       {CueSoundKind::Starts, "starts"},
    {CueSoundKind::Resumes, "resumes"},     {CueSoundKind::Moves, "moves"},
    {CueSoundKind::GoesOn, "goes on"},      {CueSoundKind::Over, "over"},
    {CueSoundKind::Unplayed, "not played"},
};

constexpr double Unnoticed = 0.1;  // seconds

QString Counted(size_t Count, const char* Thing) {
    return QStringLiteral("%1 %2%3").arg(Count == 0 ? QStringLiteral("no") : QString::number(Count),
                                         QLatin1String(Thing),
                                         Count == 1 ? QString() : QStringLiteral("s"));
}

}  // namespace

QString TimeText(double Seconds) {
    const qint64 Tenths = qRound64(Seconds * 10);
    return QStringLiteral("%1:%2.%3")
        .arg(Tenths / 600)
        .arg(Tenths / 10 % 60, 2, 10, QLatin1Char('0'))
        .arg(Tenths % 10);
}

QString SoundWord(const CueSound& Sound) {
    const auto* Found = std::find_if(std::begin(SoundWords), std::end(SoundWords),
                                     [&](const auto& Row) { return Row.first == Sound.Kind; });
    return QLatin1String(Found->second);
}

bool Sounds(const CueSound& Sound) {
    return Sound.Kind != CueSoundKind::Silent && Sound.Kind != CueSoundKind::Unplayed;
}

QString SoundText(const RehearsalCue& Cue) {
    const CueSound& Sound = Cue.Sound;
    QString Text = SoundWord(Sound);
    if (Sound.Loops == 1) Text += QStringLiteral(", begins anew");
    if (Sound.Loops > 1) Text += QStringLiteral(", begins anew %1 times").arg(Sound.Loops);
    if (Sound.EndVolume < Sound.Volume)
        Text += QStringLiteral(", fades to %1").arg(Sound.EndVolume);
    if (Sound.EndsAt >= 0 && Sound.EndsAt < Cue.At + Cue.Seconds - Unnoticed)
        Text += QStringLiteral(", ends at %1").arg(TimeText(Sound.EndsAt));
    return Text;
}

QString SummaryText(size_t Slides, double RunningTime, const RehearsalFindings& Found,
                    RehearsalEnd End) {
    QString Text = QStringLiteral("%1, running time %2, %3")
                       .arg(Counted(Slides, "slide"), TimeText(RunningTime),
                            Counted(Found.Problems.size(), "problem"));
    if (!Found.Notes.empty()) Text += QStringLiteral(", ") + Counted(Found.Notes.size(), "note");
    if (End == RehearsalEnd::Stopped) Text += QStringLiteral("; the show stops by itself");
    return Text;
}

}  // namespace neb
