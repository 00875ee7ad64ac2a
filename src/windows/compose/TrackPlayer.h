// Lets a sound track be heard in the slide show manager: one at a time, without holding the window
// up. It stops where a modal window stands over its list. Used by TrackList.
#pragma once

#include <QTimer>
#include <QWidget>

#include "sound/clsDirectSound.h"
#include "support/work/Job.h"

namespace neb {

class TrackPlayer : public QObject {
    Q_OBJECT

  public:
    explicit TrackPlayer(QWidget* Owner);

    // What it plays, or is about to; empty for nothing.
    const QString& Playing() const { return mPath; }
    void Play(const QString& Path);  // what played before stops
    void Stop();

  Q_SIGNALS:
    void Changed();                   // another one plays, or none
    void Failed(const QString& Why);  // it cannot be played

  private:
    void Look();
    void Begin();

    QWidget& mOwner;
    clsDirectSound mSound;
    QString mPath;
    // Why the file cannot be opened, or nothing: until it has been looked at.
    std::unique_ptr<Job<QString>> mOpening;
    QTimer mLook;
};

}  // namespace neb
