// A message bus of a test's own, and a connection to it for the services that a test stands in for.
#pragma once

#include <QDBusConnection>
#include <QProcess>

namespace neb::test {

class MessageBus {
  public:
    // Name: of the connection, another one for each bus.
    explicit MessageBus(const QString& Name) : mName(Name) {
        mDaemon.start(QStringLiteral("dbus-daemon"),
                      {QStringLiteral("--session"), QStringLiteral("--nofork"),
                       QStringLiteral("--print-address")});
        if (!mDaemon.waitForReadyRead(2000)) return;
        mAddress = QString::fromLatin1(mDaemon.readLine()).trimmed();
        mService = QDBusConnection::connectToBus(mAddress, mName);
    }
    ~MessageBus() { End(); }
    MessageBus(const MessageBus&) = delete;
    MessageBus& operator=(const MessageBus&) = delete;

    void End() {
        QDBusConnection::disconnectFromBus(mName);
        mDaemon.kill();
        mDaemon.waitForFinished();
    }
    const QString& Address() const { return mAddress; }
    QDBusConnection& Service() { return mService; }

  private:
    const QString mName;
    QProcess mDaemon;
    QString mAddress;
    QDBusConnection mService{QString()};
};

}  // namespace neb::test
