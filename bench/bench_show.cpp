// Transitions on the screen: how long one of a hundred steps of ten milliseconds takes against its
// second, and, without delays, the processor time of the view against that of the plain drawing of
// the same frames, which a busy machine does not change much. Then the same second as a show has
// it, paced by the screen: how many frames that were, how many of them late, and what of the
// processor they took.
//   bench_show [--size WxH] [NUMBER ...]   1920x1080, and effects of all weights, unless told
#include <QElapsedTimer>
#include <QEventLoop>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <memory>

#include "BenchScene.h"
#include "controls/forms/NebApplication.h"
#include "controls/picture/XShow.h"
#include "effects/EffectCatalogue.h"
#include "effects/XShowBands.h"

using namespace neb;

namespace {

constexpr int Steps = 100;
constexpr double SecondMs = 1000;

double Elapsed(const QElapsedTimer& Watch) {
    return static_cast<double>(Watch.nsecsElapsed()) * 1e-6;
}

// Of all threads of this program.
double ProcessorMs() {
    return static_cast<double>(std::clock()) * 1e3 / CLOCKS_PER_SEC;
}

struct Shown {
    double Ms = 0;         // from RunEffect to EffectEnded
    double Processor = 0;  // the same, of the processor
    double Longest = 0;    // from one step to the next, ms
    double First = 0;      // until RunEffect has prepared the transition, ms
    int Frames = 0;        // of a view that is paced by the screen
    int Late = 0;
};

// The next picture is always the one that is not up.
Shown Show(XShow& View, int Number, int Delay, XShow::Pacing By = XShow::Pacing::EveryStep) {
    static bool Second = false;
    View.LoadPicture((Second = !Second) ? QStringLiteral("1") : QStringLiteral("2"));
    View.SetEffectNumber(Number);
    View.SetEffectStep(1);
    View.SetEffectDelay(Delay);
    View.SetPacing(By);
    const FrameCount Frames = View.Frames();
    Shown S;
    QEventLoop Loop;
    QElapsedTimer Watch;
    double Last = 0;
    QObject::connect(&View, &XShow::EffectEnded, &Loop, &QEventLoop::quit);
    QObject::connect(&View, &XShow::EffectStepped, &Loop, [&] {
        const double Now = Elapsed(Watch);
        S.Longest = std::max(S.Longest, Now - Last);
        Last = Now;
    });
    const double Before = ProcessorMs();
    Watch.start();
    View.RunEffect();
    S.First = Last = Elapsed(Watch);
    Loop.exec();
    S.Ms = Elapsed(Watch);
    S.Processor = ProcessorMs() - Before;
    S.Frames = View.Frames().Frames() - Frames.Frames();
    S.Late = View.Frames().Late() - Frames.Late();
    return S;
}

// The same frames in memory alone; milliseconds of the processor.
double DrawPlainly(int Number, const QImage& Old, const QImage& New) {
    QImage Out(Old.size(), QImage::Format_RGB32);
    const double Before = ProcessorMs();
    const Transition T(Number, Old, New);
    for (int I = 1; I <= Steps; ++I) DrawInBands(T, I / double{Steps}, Out);
    return ProcessorMs() - Before;
}

void Measure(XShow& View, int Number, const QImage& One, const QImage& Two) {
    const Shown Timed = Show(View, Number, 100);
    const Shown Free = Show(View, Number, 0);
    const Shown Paced = Show(View, Number, 100, XShow::Pacing::Screen);
    const double Plain = DrawPlainly(Number, One, Two);
    std::printf(
        "%4d %-26s %5.0f ms, %.3f of its second; processor: a step %4.1f ms, %.2f of its "
        "drawing; ready in %3.0f ms, longest step %3.0f ms; paced: %4.0f ms, %d frames, %d late, "
        "processor %4.0f ms\n",
        Number, qPrintable(EffectName(Number)), Timed.Ms, Timed.Ms / SecondMs,
        Free.Processor / Steps, Free.Processor / Plain, Free.First,
        std::max(Timed.Longest, Free.Longest), Paced.Ms, Paced.Frames, Paced.Late, Paced.Processor);
    std::fflush(stdout);
}

QSize SizeOf(const QString& Text) {
    return {Text.section(u'x', 0, 0).toInt(), Text.section(u'x', 1, 1).toInt()};
}

}  // namespace

int main(int argc, char** argv) {
    NebApplication App(argc, argv);
    QStringList Words = QCoreApplication::arguments().mid(1);
    QSize Size(1920, 1080);
    if (Words.value(0) == QStringLiteral("--size")) {
        Size = SizeOf(Words.value(1));
        Words = Words.mid(2);
    }
    if (Words.isEmpty())
        for (const int N : {1, 2, 20, 56, 70, 85, 118, 121}) Words << QString::number(N);
    const QImage One = BenchScene(Size, 1), Two = BenchScene(Size, 2);
    XShow::SetReader([&](const QString& Name) { return Name == QStringLiteral("1") ? One : Two; });
    XShow View;
    View.setWindowFlags(Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint);
    View.SetShowOptionD(true);
    View.setGeometry(QRect(QPoint(), Size));
    View.show();
    Show(View, 1, 0);
    for (const QString& Number : Words) Measure(View, Number.toInt(), One, Two);
}
