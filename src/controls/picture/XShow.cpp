#include "controls/picture/XShow.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <algorithm>
#include <cmath>

#include "effects/EffectCatalogue.h"
#include "effects/XShowBands.h"
#include "support/Services.h"

namespace neb {
namespace {

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

XShow::XShow(QWidget* Parent) : QWidget(Parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(QStringLiteral("Slide picture"));
    mLayout.InProportion = false;
    mTimer.setSingleShot(true);
    mTimer.setTimerType(Qt::PreciseTimer);
    connect(&mTimer, &QTimer::timeout, this, &XShow::OnTimer);
}

XShow::~XShow() = default;

void XShow::SetReader(PictureReader Reader) {
    XShowLoader::SetReader(std::move(Reader));
}

void XShow::LoadPicture(const QString& File) {
    mNext = mLoader.Load(File, LayoutNow());
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
    AwaitStep();
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
    mSteps = (100 + mRunStep - 1) / mRunStep;
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
    return mStep >= mSteps ? 1.0 : std::min(1.0, mStep * mRunStep / 100.0);
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

// The timer counts whole milliseconds; the rest of the wait goes round the event loop, so that
// a hundred steps do not add up to a hundred roundings.
void XShow::AwaitStep() {
    const double Wait = mDue - TheServices().Time->Ticks();
    mTimer.start(std::max(0, static_cast<int>(std::floor(Wait))));
}

void XShow::OnTimer() {
    if (TheServices().Time->Ticks() < mDue)
        AwaitStep();
    else if (mSteps == 0)
        Finish();
    else
        DoStep();
}

// Whoever watches the painting or hears of the step may stop the transition, begin another or
// delete the view.
void XShow::DoStep() {
    mDue = TheServices().Time->Ticks() + mRunDelay;
    ++mStep;
    if (!FitAgain()) DrawStep();
    const QPointer<XShow> Alive(this);
    const auto Goes = [&Alive, this, Run = mRunCount] {
        return Alive && mRunning && Run == mRunCount;
    };
    ShowStep();
    if (!Goes()) return;
    const bool Last = mStep >= mSteps;
    if (!Last) AwaitStep();
    Q_EMIT EffectStepped(ProgressNow());
    if (Last && Goes()) Finish();
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
    mTimer.stop();
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
