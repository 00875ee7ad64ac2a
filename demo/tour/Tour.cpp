#include "Tour.h"

#include <QApplication>
#include <QBuffer>
#include <QMessageBox>
#include <QPixmap>
#include <QScreen>
#include <QTimer>
#include <cstdio>

#include "support/modHostFiles.h"

namespace {

constexpr int PollMs = 30;
constexpr int SettlePolls = 6;      // until what has just opened is painted
constexpr int PatienceMs = 120000;  // a slow machine reads many pictures

// The whole screen; where the desktop does not give that out, the window in front.
QPixmap GrabScreen() {
    const QPixmap Screen = QApplication::primaryScreen()->grabWindow(0);
    QWidget* Front = QApplication::activeModalWidget() ? QApplication::activeModalWidget()
                                                       : QApplication::activeWindow();
    return Screen.isNull() && Front ? Front->grab() : Screen;
}

}  // namespace

void Tour::Start() {
    neb::MakeDirs(mScreenshotDir);
    mWaiting.start();
    PollLater();
}

// A new timer each time: the windows run loops of their own inside a step's action.
void Tour::PollLater() {
    QTimer::singleShot(PollMs, this, &Tour::Poll);
}

void Tour::Poll() {
    if (mDone == mSteps.size()) return Q_EMIT Ended();
    const Step& Now = mSteps[mDone];
    if (WaitsOn(Now)) {
        if (mWaiting.elapsed() > PatienceMs) return Fail(QStringLiteral("it took too long"));
        return PollLater();
    }
    if (!Now.Moving && mSettled++ < SettlePolls) return PollLater();
    mSettled = 0;
    if (Now.Shot) TakeShot(Now.Name);
    Print(mTell ? mTell() : QString());
    ++mDone;
    mWaiting.start();
    PollLater();
    if (Now.Act) Now.Act();
}

// A box that the step does not speak of stands in the way.
bool Tour::WaitsOn(const Step& Now) {
    const auto* Box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (Box && Box->text() != Now.Box)
        Fail(QStringLiteral("a message box stands in the way: ") + Box->text());
    return (!Box && !Now.Box.isEmpty()) || (Now.Ready && !Now.Ready());
}

void Tour::TakeShot(const QString& Name) {
    const QString File = QStringLiteral("%1/%2-%3.png")
                             .arg(mScreenshotDir)
                             .arg(++mShots, 2, 10, QLatin1Char('0'))
                             .arg(Name);
    QByteArray Png;
    QBuffer Buffer(&Png);
    Buffer.open(QIODevice::WriteOnly);
    GrabScreen().save(&Buffer, "PNG");
    neb::WriteFile(File, Png);
    Print(File);
}

void Tour::Print(const QString& Line) {
    if (Line.isEmpty()) return;
    std::printf("  %s\n", qPrintable(Line));
    std::fflush(stdout);
}

void Tour::Fail(const QString& Reason) {
    TakeShot(QStringLiteral("failed"));
    std::fprintf(stderr, "neb-demo: at the step \"%s\": %s\n", qPrintable(mSteps[mDone].Name),
                 qPrintable(Reason));
    QApplication::exit(1);
    std::exit(1);
}
