#include "controls/picture/XShow.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <algorithm>
#include <cmath>
#include <limits>

#include "controls/speech/SpokenRole.h"
#include "effects/EffectCatalogue.h"
#include "effects/EffectSteps.h"
#include "effects/XShowBands.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "support/Texts.h"

namespace neb {
namespace {

constexpr int LookMs = 10;              // for a picture that is on its way
constexpr double AnnounceAfter = 1000;  // milliseconds
constexpr int ShortPatience = 5;        // whose slides come one upon the other would wait often

int gPatience = 50;

int ButtonNumber(Qt::MouseButton Button) {
    if (Button == Qt::LeftButton) return 1;
    if (Button == Qt::RightButton) return 2;
    return Button == Qt::MiddleButton ? 4 : 0;
}

int ShiftNumber(Qt::KeyboardModifiers Keys) {
    return (Keys & Qt::ShiftModifier ? 1 : 0) + (Keys & Qt::ControlModifier ? 2 : 0) +
           (Keys & Qt::AltModifier ? 4 : 0);
}

void Fit(LoadedPicture& P, const XShowLayout& Layout) {
    if (P.Layout == Layout && P.Fitted.size() == Layout.View) return;
    P.Fitted = FitToView(P.Source, Layout);
    P.Layout = Layout;
}

}  // namespace

XShow::XShow(QWidget* Parent) : QWidget(Parent), mRefresh(*this) {
    SpeakAs(*this, QAccessible::Graphic);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(tr("Slide picture"));
    mLayout.InProportion = false;
    connect(&mRefresh, &ScreenRefresh::Reached, this, [this](bool Told) {
        if (Told) mPace.RefreshBegins(TheServices().Time->Ticks());
        OnTime();
    });
    connect(&mArrival, &QTimer::timeout, this, &XShow::LookForPicture);
}

XShow::~XShow() = default;

void XShow::SetReader(ShownReader Reader, int Patience) {
    XShowLoader::SetReader(std::move(Reader));
    gPatience = Patience;
}

void XShow::LoadPicture(const QString& File) {
    ForgetPicture();
    mLoader.Begin(File, LayoutNow());
    mNext = mLoader.Take();
}

XShow::Arrival XShow::AskForPicture(const QString& File) {
    const int Patience = mArrival.isActive() ? std::min(ShortPatience, gPatience) : gPatience;
    ForgetPicture();
    mLoader.Begin(File, LayoutNow());
    if (mLoader.Wait(Patience)) return TakePicture() ? Arrival::Here : Arrival::Unreadable;
    mAsked = TheServices().Time->Ticks();
    mArrival.start(LookMs);
    return Arrival::OnItsWay;
}

bool XShow::TakePicture() {
    try {
        mNext = mLoader.Take();
    } catch (const Fault&) {
        return false;
    }
    return true;
}

void XShow::LookForPicture() {
    if (mLoader.Wait(0)) {
        ForgetPicture();
        TakePicture() ? Q_EMIT PictureCame() : Q_EMIT PictureFailed();
    } else if (TheServices().Time->Ticks() - mAsked >= AnnounceAfter) {
        mAsked = std::numeric_limits<double>::infinity();
        Q_EMIT PictureLate();
    }
}

void XShow::Prefetch(const QString& File) {
    mLoader.Prefetch(File, LayoutNow());
}

QString XShow::EffectName() const {
    return neb::EffectName(mNumber);
}

void XShow::SetEffectDelay(int Delay) {
    mDelay = std::clamp(Delay, 0, 1000);
}

void XShow::SetEffectStep(int Percent) {
    mStepPercent = std::clamp(Percent, 1, 100);
}

void XShow::SetShowOptionA(bool On) {
    ChangeLayout(&XShowLayout::Fitted, On);
}
void XShow::SetShowOptionB(bool On) {
    ChangeLayout(&XShowLayout::InProportion, On);
}
void XShow::SetShowOptionC(bool On) {
    ChangeLayout(&XShowLayout::Centred, On);
}

void XShow::ChangeLayout(bool XShowLayout::*Option, bool On) {
    if (mLayout.*Option == On) return;
    mLayout.*Option = On;
    update();
}

XShowLayout XShow::LayoutNow() const {
    XShowLayout L = mLayout;
    L.View = (QSizeF(size()) * devicePixelRatioF()).toSize();
    return L;
}

// What has been prepared counts for the wait for the first step.
void XShow::RunEffect() {
    const QPointer<XShow> Alive(this);
    StopEffect();
    if (!Alive || mRunning) return;
    const double Began = TheServices().Time->Ticks();
    FitAgain();
    mStep = mSteps = 0;
    mRunDelay = 0;
    if (!mNext.Source.isNull()) StartSteps();
    mRunning = true;
    ++mRunCount;
    mDue = Began + mRunDelay;
    const double Ready = TheServices().Time->Ticks();
    mPace.Begin(Began, Ready, mSteps, mRunDelay, RefreshRate());
    if (mPacing == Pacing::EveryStep || mSteps == 0)
        AwaitStep();
    else
        AwaitRefresh(Ready);
}

double XShow::RefreshRate() const {
    return screen() ? screen()->refreshRate() : 0;
}

void XShow::TakeNext(const XShowLayout& Layout) {
    mOld = std::move(mNow);
    mNow = std::exchange(mNext, {});
    Fit(mNow, Layout);
}

void XShow::StartSteps() {
    TakeNext(LayoutNow());
    mRunNumber = mNumber;
    mRunStep = mStepPercent;
    mRunDelay = mDelay / 10.0;
    mSteps = EffectStepCount(mRunStep);
    MakeTransition();
}

// One step alone goes straight to the new picture, so that nothing need be prepared for it.
void XShow::MakeTransition() {
    mTransition.reset();
    if (mSteps > 1 && !mNow.Layout.View.isEmpty())
        mTransition = std::make_unique<Transition>(mRunNumber, mOld.Fitted, mNow.Fitted);
}

// The view, the screen or an option may have changed since the pictures were fitted.
bool XShow::FitAgain() {
    const XShowLayout Layout = LayoutNow();
    if (mNow.Layout == Layout && mNow.Fitted.size() == Layout.View) return false;
    Fit(mNow, Layout);
    if (!mRunning || mSteps == 0) return false;
    Fit(mOld, Layout);
    MakeTransition();
    DrawStep();
    return true;
}

double XShow::ProgressNow() const {
    return mStep >= mSteps ? 1.0 : EffectProgress(mStep, mRunStep);
}

// Neither end of the way is drawn: the pictures themselves are shown then.
const QImage& XShow::Visible() const {
    if (!mRunning || ProgressNow() >= 1) return mNow.Fitted;
    return mStep > 0 && mTransition ? mFrame : mOld.Fitted;
}

void XShow::DrawStep() {
    const double Progress = ProgressNow();
    if (mTransition && Progress > 0 && Progress < 1) DrawInBands(*mTransition, Progress, mFrame);
}

void XShow::AwaitStep() {
    mRefresh.WaitUntil(mDue);
}

void XShow::AwaitRefresh(double Earliest) {
    if (mStep < mSteps)
        mRefresh.WaitForRefresh(mPace.DrawAt(mStep + 1, Earliest), mPace.Period());
    else
        mRefresh.WaitUntil(mPace.End());
}

void XShow::OnTime() {
    if (mStep >= mSteps)
        Finish();
    else if (mPacing == Pacing::EveryStep)
        DoStep(mStep + 1);
    else
        OnRefresh();
}

// Every step that is due when the frame will be seen has been taken by then.
void XShow::OnRefresh() {
    const double Now = TheServices().Time->Ticks();
    const int Step = mPace.StepFor(Now);
    if (Step > mStep)
        DoStep(Step);
    else
        AwaitRefresh(mPace.SeenAt(Now));
}

// Whoever watches the painting or hears of the step may stop the transition, begin another or
// delete the view.
void XShow::DoStep(int Step) {
    mDue = TheServices().Time->Ticks() + mRunDelay;
    const int Before = std::exchange(mStep, Step);
    if (!FitAgain()) DrawStep();
    const QPointer<XShow> Alive(this);
    const auto Goes = [&Alive, this, Run = mRunCount] {
        return Alive && mRunning && Run == mRunCount;
    };
    ShowStep();
    if (!Goes()) return;
    const bool Last = mStep >= mSteps, EveryStep = mPacing == Pacing::EveryStep;
    if (!EveryStep) CountFrame(Before);
    if (!EveryStep)
        AwaitRefresh(mPace.SeenAt(TheServices().Time->Ticks()));
    else if (!Last)
        AwaitStep();
    Q_EMIT EffectStepped(ProgressNow());
    if (Last && EveryStep && Goes()) Finish();
}

// A plain change is no transition, and what nobody sees is no frame.
void XShow::CountFrame(int StepBefore) {
    const QWindow* Window = window()->windowHandle();
    if (mSteps < 2 || !Window || !Window->isExposed()) return;
    mFrames.Add(StepBefore == 0, mPace.IsLate(StepBefore, TheServices().Time->Ticks()));
}

// Wholly on the screen before the next one is begun, if that is asked for.
void XShow::ShowStep() {
    if (mWhole)
        repaint();
    else
        update();
}

void XShow::StopEffect() {
    if (mRunning) Finish();
}

void XShow::Finish() {
    mRefresh.Stop();
    mRunning = false;
    mTransition.reset();
    mOld = {};
    update();
    Q_EMIT EffectEnded();
}

void XShow::paintEvent(QPaintEvent*) {
    FitAgain();
    const QImage& Shown = Visible();
    QPainter Painter(this);
    if (QSizeF(Shown.size()) != QSizeF(size()) * devicePixelRatioF())
        Painter.fillRect(rect(), Qt::black);
    // The frame has the screen's own pixels; telling it so would copy it at every step.
    Painter.scale(1 / devicePixelRatioF(), 1 / devicePixelRatioF());
    Painter.drawImage(QPoint(0, 0), Shown);
}

void XShow::resizeEvent(QResizeEvent* Event) {
    QWidget::resizeEvent(Event);
    update();
}

void XShow::mousePressEvent(QMouseEvent* Event) {
    mPressed = Event->button() == Qt::LeftButton;
    const QPoint At = Event->position().toPoint();
    const int Button = ButtonNumber(Event->button());
    if (Button) Q_EMIT SurfaceMouseDown(Button, ShiftNumber(Event->modifiers()), At.x(), At.y());
}

// The second of two quick clicks counts as a click like the first.
void XShow::mouseDoubleClickEvent(QMouseEvent* Event) {
    mousePressEvent(Event);
}

void XShow::mouseReleaseEvent(QMouseEvent* Event) {
    if (Event->button() != Qt::LeftButton) return;
    if (std::exchange(mPressed, false) && rect().contains(Event->position().toPoint()))
        Q_EMIT SurfaceClick();
}

}  // namespace neb
