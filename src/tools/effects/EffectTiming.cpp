#include "tools/effects/EffectTiming.h"

#include <QDate>
#include <QPainter>
#include <QRegularExpression>
#include <QSysInfo>
#include <algorithm>
#include <cmath>
#include <ctime>

#include "effects/EffectCatalogue.h"
#include "effects/Transition.h"
#include "support/files/modHostFiles.h"
#include "tools/effects/EffectPictures.h"

namespace neb {
namespace {

constexpr int Steps = 100;
constexpr double FrameSeconds = 1 / 60.;

#ifdef NDEBUG
constexpr const char* BuildName = "release build";
#else
constexpr const char* BuildName = "development build";
#endif

// Of this process, so that other programs that are busy at the same time do not count.
double ProcessorSeconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

void Show(QImage& Screen, const QImage& Frame) {
    QPainter Painter(&Screen);
    Painter.drawImage(QPoint(0, 0), Frame);
}

QString ProcessorName() {
    static const QRegularExpression Line(QStringLiteral("model name\\s*:\\s*([^\\n,]*\\S)"));
    const QString File = QStringLiteral("/proc/cpuinfo");
    const QString Text =
        CanReadFile(File) ? QString::fromLatin1(ReadFileHead(File, 4096)) : QString();
    const QRegularExpressionMatch Found = Line.match(Text);
    return Found.hasMatch() ? Found.captured(1) : QSysInfo::currentCpuArchitecture();
}

QString Heading(const TimingOrder& Order) {
    return QStringLiteral(
               "Effect, AvgTime: seconds of processor time of a transition at %1x%2 with 1 thread, "
               "step 1, delay 0; least of %3 runs; %4; %5; %6")
        .arg(Order.Size.width())
        .arg(Order.Size.height())
        .arg(Order.Runs)
        .arg(QDate::currentDate().toString(Qt::ISODate), ProcessorName(), QLatin1String(BuildName));
}

}  // namespace

double TimeTransition(int Number, const QImage& Old, const QImage& New) {
    QImage Frame = Old.copy(), Screen = Old.copy();
    const double Start = ProcessorSeconds();
    const Transition T(Number, Old, New);
    for (int Step = 1; Step < Steps; ++Step) {
        T.Draw(Step / double{Steps}, Frame);
        Show(Screen, Frame);
    }
    Show(Screen, New);
    return ProcessorSeconds() - Start;
}

std::vector<double> TimeAll(const TimingOrder& Order, const QImage& Old, const QImage& New,
                            const std::function<void(int Done)>& Measured) {
    const QImage From = Filling(Old, Order.Size), To = Filling(New, Order.Size);
    std::vector<double> Best(std::size_t(EffectCount()), HUGE_VAL);
    // Round by round, so that a while in which the machine is busy spoils no effect's every run.
    for (int Done = 0; Done < Order.Runs * EffectCount(); ++Done) {
        Measured(Done);
        const int Index = Done % EffectCount();
        double& Time = Best[static_cast<std::size_t>(Index)];
        Time = std::min(Time, TimeTransition(Index + 1, From, To));
    }
    return Best;
}

QString EffectStatsText(const TimingOrder& Order, const std::vector<double>& Times) {
    QString Text = Heading(Order) + u'\n';
    for (std::size_t I = 0; I < Times.size(); ++I)
        Text += QStringLiteral("%1, %2\n").arg(I + 1).arg(Times[I], 0, 'f', 4);
    return Text;
}

QString FrameLimitText(const std::vector<double>& Times) {
    const auto Slowest = std::max_element(Times.begin(), Times.end());
    const auto Within = std::count_if(Times.begin(), Times.end(),
                                      [](double T) { return T / Steps <= FrameSeconds; });
    return QStringLiteral(
               "At 60 refreshes a second a frame has 16.7 ms: on one thread %1 of %2 transitions "
               "keep within it, and the slowest, %3, takes %4 ms.")
        .arg(Within)
        .arg(Times.size())
        .arg(Slowest - Times.begin() + 1)
        .arg(*Slowest / Steps * 1000, 0, 'f', 1);
}

}  // namespace neb
