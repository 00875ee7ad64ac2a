#include "TourWatch.h"

#include "TourControls.h"
#include "TourSound.h"
#include "controls/picture/XShow.h"
#include "support/files/modHostFiles.h"
#include "windows/show/frmSlideShowProjector.h"
#include "windows/show/modSlideShows.h"

namespace neb::demo {
namespace {

constexpr double TellingMoment = 0.35;

double Shown = 0;

// Where the sound goes into a file: how much of it there is.
QString TellFile() {
    const QString File = qEnvironmentVariable("SDL_DISKAUDIOFILE");
    constexpr int BytesPerSecond = 44100 * 2 * 4;
    if (File.isEmpty() || !FileExists(File)) return {};
    const double Seconds = static_cast<double>(FileSize(File)) / BytesPerSecond;
    return QStringLiteral(" at %1 s").arg(Seconds, 0, 'f', 2);
}

}  // namespace

void WatchProgress(XShow& View) {
    Shown = 0;
    QObject::connect(&View, &XShow::EffectStepped, &View, [](double Now) { Shown = Now; });
    QObject::connect(&View, &XShow::EffectEnded, &View, [] { Shown = 0; });
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

std::function<bool()> SlideStands(int SlideSeq) {
    return [SlideSeq] { return CurrentSlideSeq == SlideSeq && !ShowView().IsRunning(); };
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
