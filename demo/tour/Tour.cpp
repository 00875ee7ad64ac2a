#include "Tour.h"

#include <QApplication>
#include <QBuffer>
#include <QMessageBox>
#include <QPixmap>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <cstdio>

#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb::demo {
namespace {

constexpr int PollMs = 30;
constexpr int SettlePolls = 6;  // until what has just opened is painted
// A slow machine reads many pictures. Counted are the looks that the program has had time for, so
// that a busy machine has its patience longer.
constexpr int PatiencePolls = 2000;

// The whole screen; where the desktop does not give that out, the window in front.
QPixmap GrabScreen() {
    const QPixmap Screen = QApplication::primaryScreen()->grabWindow(0);
    QWidget* Front = QApplication::activeModalWidget() ? QApplication::activeModalWidget()
                                                       : QApplication::activeWindow();
    return Screen.isNull() && Front ? Front->grab() : Screen;
}

// On a thread of its own: the show that the tour watches must not wait for it.
void WritePng(const QImage& Screen, const QString& File) {
    QByteArray Png;
    QBuffer Buffer(&Png);
    Buffer.open(QIODevice::WriteOnly);
    Screen.save(&Buffer, "PNG", 90);  // packed lightly, for it takes most of the time
    WriteFile(File, Png);
}

QString BoxInTheWay() {
    const auto* Box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    return Box ? Box->text() : QString();
}

void AnswerBox() {
    QWidget* Front = QApplication::activeModalWidget();
    const auto* Box = qobject_cast<QMessageBox*>(Front);
    QAbstractButton* Yes = Box ? Box->button(QMessageBox::Yes) : nullptr;
    if (Yes)
        QTest::mouseClick(Yes, Qt::LeftButton);
    else
        QTest::keyClick(Front, Qt::Key_Return);
}

QString InFront() {
    const QWidget* Front = QApplication::activeWindow();
    return Front ? Front->objectName() + u'/' + QLatin1String(Front->metaObject()->className())
                 : QStringLiteral("nothing");
}

}  // namespace

void Print(const QString& Line) {
    if (Line.isEmpty()) return;
    std::printf("  %s\n", qPrintable(Line));
    std::fflush(stdout);
}

Tour::Tour(const QString& ScreenshotDir) : mScreenshotDir(ScreenshotDir) {
    MakeDirs(mScreenshotDir);
    mShots = ListMask(mScreenshotDir + QStringLiteral("/*.png")).size();
}

void Tour::Do(const QString& Name, std::function<bool()> Ready, std::function<void()> Act) {
    Add({Name, std::move(Ready), std::move(Act), false});
}

void Tour::Look(const QString& Name, std::function<bool()> Ready) {
    Add({Name, std::move(Ready), {}, true, true});
}

void Tour::Answer(const QString& Name, const QString& Box, bool Shot) {
    Add({Name, {}, &AnswerBox, Shot, false, Box});
}

void Tour::Start() {
    PollLater();
}

// A new timer each time: the windows run loops of their own inside a step's action.
void Tour::PollLater() {
    QTimer::singleShot(PollMs, this, &Tour::Poll);
}

template <class Part>
auto Tour::Try(const QString& Name, const Part& Do) {
    try {
        return Do();
    } catch (const Fault& Problem) {
        Fail(Name, Problem.Text());
    }
}

void Tour::Poll() {
    if (mDone == mSteps.size()) {
        Try(QStringLiteral("screenshots"), [this] { FinishShots(); });
        return Q_EMIT Ended();
    }
    const Step& Now = mSteps[mDone];
    if (Try(Now.Name, [&] { return WaitsOn(Now); })) {
        if (++mWaited > PatiencePolls) Fail(Now.Name, QStringLiteral("it took too long"));
        return PollLater();
    }
    if (!Now.Moving && mSettled++ < SettlePolls) return PollLater();
    mSettled = 0;
    PollStep(Now);
}

void Tour::PollStep(const Step& Now) {
    if (Now.Shot) TakeShot(Now.Name);
    Print(mTell ? mTell() : QString());
    ++mDone;
    mWaited = 0;
    PollLater();
    if (Now.Act) Try(Now.Name, Now.Act);
}

// A box that the step does not speak of stands in the way.
bool Tour::WaitsOn(const Step& Now) {
    const QString Box = BoxInTheWay();
    if (Box != Now.Box && !Box.isEmpty())
        throw Fault(QStringLiteral("a message box stands in the way: ") + Box);
    return Box != Now.Box || (Now.Ready && !Now.Ready());
}

void Tour::TakeShot(const QString& Name) {
    const QString File = QStringLiteral("%1/%2-%3.png")
                             .arg(mScreenshotDir)
                             .arg(++mShots, 2, 10, QLatin1Char('0'))
                             .arg(Name);
    mWriting.push_back(std::async(std::launch::async, &WritePng, GrabScreen().toImage(), File));
    Print(File);
}

void Tour::FinishShots() {
    for (auto& Each : std::exchange(mWriting, {})) Each.get();
}

void Tour::Fail(const QString& Name, const QString& Reason) {
    TakeShot(QStringLiteral("failed"));
    std::fprintf(stderr, "neb-demo: at the step \"%s\": %s (in front: %s)\n", qPrintable(Name),
                 qPrintable(Reason), qPrintable(InFront()));
    for (const auto& Each : mWriting) Each.wait();
    std::_Exit(1);
}

}  // namespace neb::demo
