// A small database with one album and one show, the settings beside it, and stand-ins for the
// clock, the sound, the power saving and the boxes: what a test of the projector runs on.
#pragma once

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QMutex>

#include "controls/picture/XShow.h"
#include "db/clsDBEngine.h"
#include "harness/ScriptedBoxes.h"
#include "harness/TempFolder.h"
#include "show/ShowWorld.h"
#include "support/Services.h"
#include "windows/show/CaptionLabel.h"
#include "windows/show/frmSlideShowProjector.h"
#include "windows/show/modSlideShows.h"

namespace neb::test {

// A clock that a test sets; seconds since midnight of a fixed day. Ticks are the real ones.
class SetClock : public Clock {
  public:
    SetClock() { mReal.start(); }
    QDateTime Now() const override {
        return QDate(2004, 5, 6).startOfDay().addMSecs(qRound64(Seconds * 1000));
    }
    double Ticks() const override { return static_cast<double>(mReal.nsecsElapsed()) / 1e6; }
    double Seconds = 40000;

  private:
    QElapsedTimer mReal;
};

class CountedBlanking : public ScreenBlanking {
  public:
    void Inhibit(const QString&) override { ++Held, ++Asked; }
    void Release() override { --Held; }
    int Held = 0, Asked = 0;
};

// What the sound was asked for, in order, and what a sound step answers.
struct SoundLog {
    QStringList Calls;
    std::function<bool(const SlideSound&, ShowSoundFields&)> OnStep;
    std::function<void()> OnRelease;
    std::vector<std::int32_t> Ahead;  // places whose sound was opened ahead

    // What was asked since the last call.
    std::string Taken() { return std::exchange(Calls, {}).join(u'|').toStdString(); }
};

class ProjectorRig : public ::testing::Test {
  protected:
    ProjectorRig();
    ~ProjectorRig() override;

    void Put(const char* Key, const QString& Value, const QString& Section = {});
    QString Setting(const char* Key) const;
    void MakeActive();  // the preferences name the show
    // Adds slides with pictures; captions "Slide N".
    void AddSlides(int Count);
    clsNEBSlide& Slide(int Seq);
    clsNEBSlideShowDetail& Detail(int Seq);
    QString PicturePath(int Seq) const;
    void MakePicture(const QString& Path, QColor Colour, QSize Size = {64, 48});

    // Runs the show; Action is called once it has started, and the window is unloaded after it.
    using Action = std::function<void(frmSlideShowProjector& Window)>;
    void Run(Action Do);
    void RunThroughModule(Action Do);  // as RunSlideShow does
    // Calls Do with the next projector that has started.
    void WhenStarted(Action Do);

    std::string Caption() const { return Label->ShownText().toStdString(); }
    // "on off": Timer1 and Timer2.
    std::string Timers() const;
    std::string Words(const frmSlideShowProjector& Window) const;
    void Spin(int Milliseconds);  // lets events run
    std::vector<QString> Read();  // the pictures that were read so far

    harness::TempFolder Folder;
    harness::ScriptedBoxes Boxes;
    SetClock Time;
    CountedBlanking Blanking;
    SoundLog Sound;
    clsDBEngine Engine;
    // What the shows of the test run in: the desktop's, but for the sound, which is logged.
    ShowWorld World() const;
    ShowSoundMaker Maker;
    std::int32_t Album = 0, Show = 0;
    clsNEBSlideShow* SlideShow = nullptr;
    // Of the running window.
    XShow* Picture = nullptr;
    CaptionLabel* Label = nullptr;
    QTimer* Timer1 = nullptr;
    QTimer* Timer2 = nullptr;

    Services mBefore;  // the machine's own, for tests that want them

  private:
    void Attach(frmSlideShowProjector& Window);

    QMutex mReadLock;
    std::vector<QString> mRead;
};

}  // namespace neb::test
