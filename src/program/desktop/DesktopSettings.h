// What the user has chosen for the whole desktop (dark or light, still or moving): read from the
// desktop's portal on the session's message bus, which also tells when it changes.
#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>
#include <QVariant>
#include <optional>

namespace neb {

class DesktopSettings : public QObject {
    Q_OBJECT

  public:
    DesktopSettings();  // on the session's bus, where there is one
    explicit DesktopSettings(const QDBusConnection& Bus);

    // Group and Key as the portal names them ("org.freedesktop.appearance", "color-scheme").
    // Nothing where there is no portal, or none that knows the key. Waits at most a quarter of a
    // second; the answer of a portal that needs longer comes as Changed.
    std::optional<QVariant> Read(const QString& Group, const QString& Key);
    // The same without waiting: the answer, where there is one, comes as Changed.
    void Ask(const QString& Group, const QString& Key);

  Q_SIGNALS:
    void Changed(const QString& Group, const QString& Key, const QVariant& Value);

  private Q_SLOTS:
    void SettingChanged(const QString& Group, const QString& Key, const QDBusVariant& Value);

  private:
    QDBusConnection mBus;
    bool mIsSlow = false;  // waited for once, and not again
};

}  // namespace neb
