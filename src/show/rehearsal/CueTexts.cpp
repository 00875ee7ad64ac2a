#include "show/rehearsal/CueTexts.h"

#include <algorithm>

#include "support/Grouped.h"
#include "support/Texts.h"

namespace neb {
namespace {

constexpr std::pair<CueSoundKind, const char*> SoundWords[] = {
    {CueSoundKind::Silent, QT_TR_NOOP("silent")},
    {CueSoundKind::Starts, QT_TR_NOOP("starts")},
    {CueSoundKind::Resumes, QT_TR_NOOP("resumes")},
    {CueSoundKind::Moves, QT_TR_NOOP("moves")},
    {CueSoundKind::GoesOn, QT_TR_NOOP("goes on")},
    {CueSoundKind::Over, QT_TR_NOOP("over")},
    {CueSoundKind::Unplayed, QT_TR_NOOP("not played")},
};

constexpr double UnnoticedCue = 0.1;  // seconds

QString Counted(size_t Count, const char* None, const char* One, const char* Many) {
    return Count == 0 ? tr(None) : Count == 1 ? tr(One) : tr(Many).arg(Count);
}

}  // namespace

QString TimeText(double Seconds) {
    const qint64 Tenths = qRound64(Seconds * 10);
    const QString Rest = Decimal(static_cast<double>(Tenths % 600) / 10, 1);
    return QStringLiteral("%1:%2").arg(Tenths / 600).arg(Rest, 4, u'0');
}

QString SoundWord(const CueSound& Sound) {
    const auto* Found = std::find_if(std::begin(SoundWords), std::end(SoundWords),
                                     [&](const auto& Row) { return Row.first == Sound.Kind; });
    return tr(Found->second);
}

bool Sounds(const CueSound& Sound) {
    return Sound.Kind != CueSoundKind::Silent && Sound.Kind != CueSoundKind::Unplayed;
}

QString SoundText(const RehearsalCue& Cue) {
    const CueSound& Sound = Cue.Sound;
    QString Text = SoundWord(Sound);
    if (Sound.Loops == 1) Text += tr(", begins anew");
    if (Sound.Loops > 1) Text += tr(", begins anew %1 times").arg(Sound.Loops);
    if (Sound.EndVolume < Sound.Volume) Text += tr(", fades to %1").arg(Sound.EndVolume);
    if (Sound.EndsAt >= 0 && Sound.EndsAt < Cue.At + Cue.Seconds - UnnoticedCue)
        Text += tr(", ends at %1").arg(TimeText(Sound.EndsAt));
    return Text;
}

QString SummaryText(size_t Slides, double RunningTime, const RehearsalFindings& Found,
                    RehearsalEnd End) {
    QString Text = tr("%1, running time %2, %3")
                       .arg(Counted(Slides, QT_TR_NOOP("no slides"), QT_TR_NOOP("1 slide"),
                                    QT_TR_NOOP("%1 slides")),
                            TimeText(RunningTime),
                            Counted(Found.Problems.size(), QT_TR_NOOP("no problems"),
                                    QT_TR_NOOP("1 problem"), QT_TR_NOOP("%1 problems")));
    if (const size_t Notes = Found.Notes.size(); Notes > 0)
        Text += QStringLiteral(", ") + (Notes == 1 ? tr("1 note") : tr("%1 notes").arg(Notes));
    if (End == RehearsalEnd::Stopped) Text += tr("; the show stops by itself");
    return Text;
}

}  // namespace neb
