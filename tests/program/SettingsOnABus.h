// The settings portal of a desktop, as far as the program asks it, on a bus of the test's own. It
// answers from a thread of its own, while the program waits for it.
#pragma once

#include <gtest/gtest.h>

#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QMap>
#include <QThread>
#include <atomic>

#include "MessageBus.h"

namespace neb::test {

class FakeSettingsPortal : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

  public:
    std::atomic<int> DelayMs = 0;
    QMap<QString, QVariant> Known;  // by "group/key"; as it is before anybody asks

  public Q_SLOTS:
    QDBusVariant Read(const QString& Group, const QString& Key) {
        QThread::msleep(static_cast<unsigned long>(DelayMs.load()));
        const auto Found = Known.constFind(Group + u'/' + Key);
        if (Found != Known.constEnd())
            return QDBusVariant(QVariant::fromValue(QDBusVariant(*Found)));
        sendErrorReply(QStringLiteral("org.freedesktop.portal.Error.NotFound"),
                       QStringLiteral("no such setting"));
        return {};
    }
};

class SettingsOnABus : public ::testing::Test {
  protected:
    SettingsOnABus() {
        Bus.Service().registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), &Portal,
                                     QDBusConnection::ExportAllSlots);
        Portal.moveToThread(&Thread);
        Thread.start();
    }
    ~SettingsOnABus() override {
        Thread.quit();
        Thread.wait();
        QDBusConnection::disconnectFromBus(Client.name());
    }
    void OpenPortal() {
        Bus.Service().registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }
    // As the portal tells of what the user has just changed.
    void Tell(const QString& Group, const QString& Key, const QVariant& Value) {
        QDBusMessage Signal = QDBusMessage::createSignal(
            QStringLiteral("/org/freedesktop/portal/desktop"),
            QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("SettingChanged"));
        Bus.Service().send(Signal << Group << Key << QVariant::fromValue(QDBusVariant(Value)));
    }

    MessageBus Bus{QStringLiteral("test-settings")};
    QDBusConnection Client =
        QDBusConnection::connectToBus(Bus.Address(), QStringLiteral("test-settings-client"));
    QThread Thread;
    FakeSettingsPortal Portal;
};

}  // namespace neb::test
