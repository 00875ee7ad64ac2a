// A transition view on the screen, pictures by their names and a clock that stands: what the tests
// of the view run on.
#pragma once

#include <gtest/gtest.h>

#include <QBackingStore>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QThread>
#include <atomic>
#include <functional>

#include "controls/picture/XShow.h"
#include "harness/ByTheClock.h"
#include "support/Fault.h"
#include "support/Services.h"

namespace neb::test {

constexpr QRgb kBlack = 0xFF000000u, kRed = 0xFFC02020u, kBlue = 0xFF2020C0u, kGreen = 0xFF20C020u;

inline QImage Filled(QSize Size, QRgb Colour) {
    QImage P(Size, QImage::Format_RGB32);
    P.fill(Colour);
    return P;
}

// A picture of which no two pixels beside each other are alike.
inline QImage Slope(QSize Size, int Turn) {
    QImage P(Size, QImage::Format_RGB32);
    for (int Y = 0; Y < Size.height(); ++Y)
        for (int X = 0; X < Size.width(); ++X)
            P.setPixel(X, Y, qRgb((X * Turn) & 255, (Y * 3) & 255, ((X ^ Y) + Turn) & 255));
    return P;
}

inline std::atomic<int> gReads = 0;
inline std::atomic<bool> gReadElsewhere = false;

// A name says the picture: "red 40x20", "slope3 40x20" with its turn. "bad" cannot be read.
inline QImage ReadByName(const QString& File) {
    ++gReads;
    gReadElsewhere = QThread::currentThread() != QCoreApplication::instance()->thread();
    const QStringList Parts = File.split(u' ');
    if (Parts[0] == QStringLiteral("bad")) throw Fault(QStringLiteral("Not a picture."), File);
    const QStringList Sides = Parts.value(1, QStringLiteral("100x60")).split(u'x');
    const QSize Size(Sides[0].toInt(), Sides[1].toInt());
    if (Parts[0].startsWith(QStringLiteral("slope"))) return Slope(Size, Parts[0].mid(5).toInt());
    const QRgb Colour = Parts[0] == QStringLiteral("red")    ? kRed
                        : Parts[0] == QStringLiteral("blue") ? kBlue
                                                             : kGreen;
    return Filled(Size, Colour);
}

// A clock that stands until it is put on.
class HandClock : public Clock {
  public:
    HandClock() : mBefore(TheServices().Time) { TheServices().Time = this; }
    ~HandClock() override { TheServices().Time = mBefore; }
    QDateTime Now() const override { return mBefore->Now(); }
    double Ticks() const override { return mTicks; }
    void PutOn(double Milliseconds) { mTicks += Milliseconds; }

  private:
    Clock* mBefore;
    double mTicks = 5000;
};

inline void LetRun(int Milliseconds = 20) {
    QElapsedTimer Watch;
    Watch.start();
    do QCoreApplication::processEvents(QEventLoop::AllEvents, 2);
    while (Watch.elapsed() < Milliseconds);
}

// The view with eyes on what it paints, on a screen of any scaling.
class WatchedShow : public XShow {
  public:
    void SetScaling(double NewScaling) {
        Scaling = NewScaling;
        update();
    }
    // What lies in the window after each painting.
    std::function<void(const QImage& Painted)> AfterPaint;
    std::function<void()> WhilePainting;
    double Rate = 60;  // refreshes of its screen a second

  protected:
    double RefreshRate() const override { return Rate; }
    void paintEvent(QPaintEvent* Event) override {
        if (WhilePainting) WhilePainting();
        XShow::paintEvent(Event);
        if (AfterPaint) AfterPaint(dynamic_cast<QImage&>(*backingStore()->paintDevice()).copy());
    }
    int metric(PaintDeviceMetric Metric) const override {
        if (Metric == PdmDevicePixelRatioScaled && Scaling != 1)
            return static_cast<int>(Scaling * devicePixelRatioFScale());
        return XShow::metric(Metric);
    }

  private:
    double Scaling = 1;
};

class XShowRig : public testing::Test {
  protected:
    XShowRig() {
        harness::GoByTheClock();
        XShow::SetReader(ReadByName);
        gReads = 0;
        View.SetPacing(XShow::Pacing::EveryStep);
        View.resize(100, 60);
        View.show();
    }
    ~XShowRig() override { XShow::SetReader({}); }

    void Put(const char* Name) {
        View.LoadPicture(QString::fromLatin1(Name));
        View.SetEffectStep(100);
        View.SetEffectDelay(0);
        View.RunEffect();
        WaitForEnd();
    }
    // Begins a transition from what is up; the delay in tenths of a millisecond.
    void Begin(const char* Name, int Step, int Delay = 0, int Number = 2) {
        View.LoadPicture(QString::fromLatin1(Name));
        View.SetEffectNumber(Number);
        View.SetEffectStep(Step);
        View.SetEffectDelay(Delay);
        View.RunEffect();
    }
    // Lets the transition take steps by a clock that stands otherwise.
    void StepOn(HandClock& Hand, int Count) {
        for (int I = 0; I < Count && View.IsRunning(); ++I) {
            const auto Before = Steps.size();
            Hand.PutOn(100);
            QElapsedTimer Watch;
            Watch.start();
            while (Steps.size() == Before && Watch.elapsed() < 5000) LetRun(1);
        }
    }
    void WaitForEnd() {
        QElapsedTimer Watch;
        Watch.start();
        while (View.IsRunning() && Watch.elapsed() < 5000) LetRun(2);
        ASSERT_FALSE(View.IsRunning());
    }
    QImage Screen() { return View.grab().toImage().convertToFormat(QImage::Format_RGB32); }
    QRgb At(int X, int Y) { return Screen().pixel(X, Y); }

    WatchedShow View;
    QSignalSpy Ended{&View, &XShow::EffectEnded};
    QSignalSpy Steps{&View, &XShow::EffectStepped};
};

}  // namespace neb::test
