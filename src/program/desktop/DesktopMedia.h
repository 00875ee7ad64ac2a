// The desktop's media keys, panels and phones: while a show runs it is a media player on the
// session's message bus, as they look for one. The program's start puts it into Services.
#pragma once

#include <QObject>
#include <QVariantMap>
#include <memory>

#include "support/MediaControls.h"

namespace neb {

class DesktopMedia : public QObject, public MediaControls {
    Q_OBJECT
  public:
    // Address: of another bus than the session's.
    explicit DesktopMedia(QString Address = {}) : mAddress(std::move(Address)) {}
    ~DesktopMedia() override;

    void Offer(MediaPlayer& Player) override;
    void Withdraw(MediaPlayer& Player) override;
    void Changed() override;

  private:
    void Enter();
    void Leave();

    const QString mAddress;
    MediaPlayer* mPlayer = nullptr;
    std::unique_ptr<QObject> mObject;  // stands on the bus, with the two faces of a player
    QVariantMap mTold;                 // what the bus has heard last
};

}  // namespace neb
