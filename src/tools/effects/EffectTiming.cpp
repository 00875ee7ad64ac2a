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

QString EffectStatsText(const TimingOrder& Order, const QImage& Old, const QImage& New,
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
    QString Text = Heading(Order) + u'\n';
    for (int Number = 1; Number <= EffectCount(); ++Number)
        Text += QStringLiteral("%1, %2\n")
                    .arg(Number)
                    .arg(Best[static_cast<std::size_t>(Number - 1)], 0, 'f', 4);
    return Text;
}

}  // namespace neb
