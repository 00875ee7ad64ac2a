#include "program/desktop/DesktopMedia.h"

#include <unistd.h>

#include <QDBusConnection>
#include <QDBusMessage>

#include "program/desktop/MediaFaces.h"
#include "program/desktop/SessionBus.h"

namespace neb {
namespace {

const QString BusPath = QStringLiteral("/org/mpris/MediaPlayer2");
const QString BusName = QStringLiteral("org.mpris.MediaPlayer2.neb_slide_show");

// A connection of our own: the player is gone with it, whatever happens.
const QString Connection = QStringLiteral("neb-media-player");

// Several instances of the program may show at a time, each its own albums.
void TakeName(QDBusConnection& On) {
    if (!On.registerService(BusName))
        On.registerService(BusName + QStringLiteral(".instance%1").arg(::getpid()));
}

QVariantMap WhatIsOther(const QVariantMap& Now, const QVariantMap& Before) {
    QVariantMap Other;
    for (auto Each = Now.begin(); Each != Now.end(); ++Each)
        if (Before.value(Each.key()) != Each.value()) Other.insert(Each.key(), Each.value());
    return Other;
}

}  // namespace

DesktopMedia::~DesktopMedia() {
    Leave();
}

void DesktopMedia::Offer(MediaPlayer& Player) {
    if (mPlayer) return;
    mPlayer = &Player;
    if (!mAddress.isEmpty() || HasSessionBus()) Enter();
}

void DesktopMedia::Withdraw(MediaPlayer& Player) {
    if (mPlayer != &Player) return;
    Leave();
    mPlayer = nullptr;
}

void DesktopMedia::Enter() {
    QDBusConnection On =
        mAddress.isEmpty() ? QDBusConnection::connectToBus(QDBusConnection::SessionBus, Connection)
                           : QDBusConnection::connectToBus(mAddress, Connection);
    mObject = std::make_unique<QObject>();
    new MediaRootFace(*mObject, *mPlayer);
    new MediaPlayerFace(*mObject, *mPlayer);
    mTold = MediaProperties(mPlayer->Status());
    if (On.isConnected() && On.registerObject(BusPath, mObject.get())) TakeName(On);
}

void DesktopMedia::Leave() {
    if (!mObject) return;
    QDBusConnection::disconnectFromBus(Connection);
    mObject.reset();
}

void DesktopMedia::Changed() {
    if (!mObject) return;
    const QVariantMap Now = MediaProperties(mPlayer->Status());
    const QVariantMap Other = WhatIsOther(Now, std::exchange(mTold, Now));
    if (Other.isEmpty()) return;
    QDBusMessage Told =
        QDBusMessage::createSignal(BusPath, QStringLiteral("org.freedesktop.DBus.Properties"),
                                   QStringLiteral("PropertiesChanged"));
    Told << QStringLiteral("org.mpris.MediaPlayer2.Player") << Other << QStringList();
    QDBusConnection(Connection).send(Told);
}

}  // namespace neb
