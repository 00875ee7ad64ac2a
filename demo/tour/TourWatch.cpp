#include "TourWatch.h"

#include <optional>

#include "TourControls.h"
#include "TourSound.h"
#include "controls/picture/XShow.h"
#include "support/Services.h"
#include "support/files/modHostFiles.h"
#include "windows/show/frmSlideShowProjector.h"
#include "windows/show/modSlideShows.h"

namespace neb::demo {
namespace {

constexpr double TellingMoment = 0.35;
// Of a slide's time. A transition that still runs then takes all of it, as on a slow machine.
constexpr double LatestMoment = 0.7;

double Shown = 0;

// Which slide is up and since when, by the clock that the show itself goes by.
struct SlideTime {
    std::int32_t SlideSeq = 0;
    double Since = 0;
};
SlideTime Up;

void NoteSlide() {
    if (Up.SlideSeq != CurrentSlideSeq) Up = {CurrentSlideSeq, TheServices().Time->Ticks()};
}

bool TimeIsNearlyOver() {
    const double Seconds = (TheServices().Time->Ticks() - Up.Since) / 1000;
    return Seconds > LatestMoment * Opened<frmSlideShowProjector>().SlideInterval();
}

// Where the sound goes into a file: how much of it there is.
std::optional<double> SecondsInFile() {
    const QString File = qEnvironmentVariable("SDL_DISKAUDIOFILE");
    constexpr int BytesPerSecond = 44100 * 2 * 4;
    if (File.isEmpty() || !FileExists(File)) return {};
    return static_cast<double>(FileSize(File)) / BytesPerSecond;
}

QString TellFile() {
    const auto Seconds = SecondsInFile();
    return Seconds ? QStringLiteral(" at %1 s").arg(*Seconds, 0, 'f', 2) : QString();
}

}  // namespace

void WatchProgress(XShow& View) {
    Shown = 0;
    Up = {};
    QObject::connect(&View, &XShow::EffectStepped, &View, [](double Now) {
        Shown = Now;
        NoteSlide();
    });
    QObject::connect(&View, &XShow::EffectEnded, &View, [] {
        Shown = 0;
        NoteSlide();
    });
}

double Progress() {
    return Shown;
}

XShow& ShowView() {
    return In<XShow, frmSlideShowProjector>("Show1");
}

std::function<bool()> ShowIsOver() {
    return IsClosed<frmSlideShowProjector>();
}

std::function<bool()> SlideIsUp(int SlideSeq) {
    return [SlideSeq] {
        NoteSlide();
        if (CurrentSlideSeq > SlideSeq)
            throw Fault(QStringLiteral("the show is at slide %1 already").arg(CurrentSlideSeq));
        return CurrentSlideSeq == SlideSeq;
    };
}

std::function<bool()> SlideStands(int SlideSeq) {
    return [SlideSeq] {
        NoteSlide();
        return CurrentSlideSeq == SlideSeq && (!ShowView().IsRunning() || TimeIsNearlyOver());
    };
}

std::function<bool()> IsListenedTo(double Seconds) {
    return [Seconds, From = std::make_shared<std::optional<double>>()] {
        const double Now = SecondsInFile().value_or(TheServices().Time->Ticks() / 1000);
        if (!*From) *From = Now;
        return Now - **From > Seconds || TimeIsNearlyOver();
    };
}

std::function<bool()> IsBetween(int SlideSeq) {
    return [SlideSeq] {
        return CurrentSlideSeq == SlideSeq && (!ShowView().IsRunning() || Shown > TellingMoment);
    };
}

QString TellShow() {
    if (!Open<frmSlideShowProjector>() || CurrentSlideSeq == 0) return {};
    const QString Sound = TourSound::NowPlaying();
    return QStringLiteral("Slide %1%2: ").arg(CurrentSlideSeq).arg(TellFile()) +
           (Sound.isEmpty() ? QStringLiteral("no sound")
                            : QStringLiteral("the show plays ") + Sound);
}

}  // namespace neb::demo
