// Whether the user's desktop has its animations switched off: its portal says so, else the settings
// file of the other toolkit. The program's start puts it where IsStillWanted asks.
#pragma once

#include <QMap>

#include "effects/MotionWish.h"
#include "program/desktop/DesktopSettings.h"

namespace neb {

class DesktopMotion : public QObject, public MotionWish {
    Q_OBJECT

  public:
    // Asks, and waits for nothing. Settings outlive it; ConfigFolder: of the user's settings files.
    DesktopMotion(DesktopSettings& Settings, const QString& ConfigFolder);
    bool IsStill() const override;

  private:
    void Told(const QString& Group, const QString& Key, const QVariant& Value);

    QMap<QString, bool> mTold;  // by key, what the portal says
    const bool mIsStillByFile;
};

}  // namespace neb
