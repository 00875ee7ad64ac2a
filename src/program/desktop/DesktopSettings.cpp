#include "program/desktop/DesktopSettings.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include "program/desktop/Portal.h"
#include "program/desktop/SessionBus.h"

namespace neb {
namespace {

const QString SettingsInterface = QStringLiteral("org.freedesktop.portal.Settings");

// A portal that has to be started takes its time, which the program's start must not take as well.
constexpr int PatienceNow = 250, PatienceLater = 20000;  // ms

QDBusMessage ReadCall(const QString& Group, const QString& Key) {
    return QDBusMessage::createMethodCall(portal::Service, portal::Object, SettingsInterface,
                                          QStringLiteral("Read"))
           << Group << Key;
}

// Portals wrap the value once or twice.
QVariant Unwrapped(QVariant Value) {
    while (Value.canConvert<QDBusVariant>()) Value = Value.value<QDBusVariant>().variant();
    return Value;
}

QDBusConnection SessionsBus() {
    return HasSessionBus() ? QDBusConnection::sessionBus() : QDBusConnection(QString());
}

}  // namespace

DesktopSettings::DesktopSettings() : DesktopSettings(SessionsBus()) {}

DesktopSettings::DesktopSettings(const QDBusConnection& Bus) : mBus(Bus) {
    // the slot takes one, which the bus must know by name before it is connected
    qRegisterMetaType<QDBusVariant>("QDBusVariant");
    if (mBus.isConnected())
        mBus.connect(portal::Service, portal::Object, SettingsInterface,
                     QStringLiteral("SettingChanged"), this,
                     SLOT(SettingChanged(QString, QString, QDBusVariant)));
}

std::optional<QVariant> DesktopSettings::Read(const QString& Group, const QString& Key) {
    if (!mBus.isConnected()) return {};
    if (mIsSlow) return Ask(Group, Key), std::nullopt;
    const QDBusMessage Answer = mBus.call(ReadCall(Group, Key), QDBus::Block, PatienceNow);
    if (Answer.type() == QDBusMessage::ReplyMessage) return Unwrapped(Answer.arguments().value(0));
    mIsSlow = QDBusError(Answer).type() == QDBusError::NoReply;
    if (mIsSlow) Ask(Group, Key);
    return {};
}

void DesktopSettings::Ask(const QString& Group, const QString& Key) {
    if (!mBus.isConnected()) return;
    auto* Answer =
        new QDBusPendingCallWatcher(mBus.asyncCall(ReadCall(Group, Key), PatienceLater), this);
    connect(Answer, &QDBusPendingCallWatcher::finished, this, [this, Answer, Group, Key] {
        Answer->deleteLater();
        const QDBusPendingReply<QDBusVariant> Reply = *Answer;
        if (Reply.isValid()) SettingChanged(Group, Key, Reply.value());
    });
}

void DesktopSettings::SettingChanged(const QString& Group, const QString& Key,
                                     const QDBusVariant& Value) {
    Q_EMIT Changed(Group, Key, Unwrapped(Value.variant()));
}

}  // namespace neb
