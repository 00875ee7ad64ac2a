// The window of the sound recorder on the machine of RecorderRig.h, with a user in it.
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QSlider>
#include <QTest>
#include <QTimer>

#include "harness/AwaitActive.h"
#include "sound/RecorderRig.h"
#include "support/files/modHostFiles.h"
#include "windows/recorder/LevelMeter.h"
#include "windows/recorder/frmSoundRecorder.h"

namespace neb::test {

class SoundRecorderWindow : public RecorderRig {
  protected:
    ~SoundRecorderWindow() override {
        SetHostWatcher({});
        mWindow.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    // Shows the window modally, as a slide window does; User is at it once it stands there.
    void Open(const std::function<void()>& User) {
        mWindow = NewForm<frmSoundRecorder>();
        mWindow->SetSoundSavePath(SavePath());
        QTimer::singleShot(0, mWindow.get(), [this, User] {
            (void)neb::harness::AwaitActive(*mWindow);  // else it has no shortcuts yet
            if (mSound.Delay.count() == 0) AwaitDevices();
            User();
            const harness::LettingGo Answers;
            mWindow->Unload();
        });
        mWindow->ShowModal();
        EXPECT_FALSE(mWindow->isVisible());
        EXPECT_FALSE(Timer1().isActive());
        FakeSound::Settle();
    }
    // Devices that are open and closed at once may need a moment on a busy machine all the same.
    void AwaitDevices() const {
        EXPECT_TRUE(
            QTest::qWaitFor([this] { return !mWindow->IsLoaded() || !On().empty(); }, 20000));
    }
    void ExpectGone() const {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !mWindow->IsLoaded(); }));
    }

    template <class Control>
    Control& In(const char* Name) const {
        return *mWindow->findChild<Control*>(QString::fromLatin1(Name));
    }
    QAbstractButton& Button(const char* Name) const { return In<QAbstractButton>(Name); }
    QTimer& Timer1() const { return In<QTimer>("Timer1"); }
    void Click(const char* Name) const { QTest::mouseClick(&Button(Name), Qt::LeftButton); }
    void Press(const char* Name) const {
        Click(Name);
        AwaitDevices();
    }
    void Key(Qt::Key Pressed, Qt::KeyboardModifiers With = {}) const {
        QTest::keyClick(mWindow->focusWidget(), Pressed, With);
        AwaitDevices();
    }
    std::string Focus() const { return mWindow->focusWidget()->objectName().toStdString(); }
    std::string Mode() const { return mWindow->RecorderMode().toStdString(); }
    std::string Status() const { return In<QLabel>("lblStatus").text().toStdString(); }
    std::string Time() const { return In<QLabel>("lblTime").text().toStdString(); }
    // Which buttons are on, as "Record Stop".
    std::string On() const {
        QStringList Names;
        for (const char* Name : {"cmdRecord", "cmdPlay", "cmdStop", "cmdSave"})
            if (Button(Name).isEnabled()) Names << QString::fromLatin1(Name).mid(3);
        return Names.join(u' ').toStdString();
    }
    void Record(const QByteArray& Bytes) {
        Press("cmdRecord");
        mSound.Buffer->Feed(Bytes);
        Press("cmdStop");
    }
    void ExpectAsk(BoxAnswer Answer) {
        mBoxes.Expect("Are you sure you want to discard the recording?",
                      "Discard Changes Confirmation", BoxIcon::Question, Answer);
    }
    bool Told(const char* What) const {
        FakeSound::Settle();
        return std::count(mSound.Told.begin(), mSound.Told.end(), What) > 0;
    }

    std::shared_ptr<frmSoundRecorder> mWindow;
};

}  // namespace neb::test
