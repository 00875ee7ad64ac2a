// The sound of a slide, heard in the slide manager: a button plays it, and then stops it. It ends
// by itself, and with its window.
#pragma once

#include <QTimer>
#include <functional>
#include <memory>

#include "support/Answer.h"

QT_BEGIN_NAMESPACE
class QPushButton;
QT_END_NAMESPACE

namespace neb {

class clsDirectSound;

class ClipPlayer : public QObject {
    Q_OBJECT

  public:
    using Sound = std::shared_ptr<clsDirectSound>;

    explicit ClipPlayer(QPushButton& Button);  // its child
    ~ClipPlayer() override;

    // Opens a sound file, on any thread, which may take its time. Throws Fault for what cannot be
    // played.
    static Answer<Sound> Open(const QString& Path);
    // In place of what plays.
    void Play(Sound Opened);
    void Stop();
    bool IsPlaying() const { return mPlaying != nullptr; }
    // The button says what it would do: also when the colours of the window change.
    void ShowButton();

  private:
    void Tick();

    QPushButton& mButton;
    QTimer mWatch;
    Sound mPlaying;  // null: none; so that the loudspeakers are let go of
};

}  // namespace neb
