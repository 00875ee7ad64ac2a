#include "program/ScreenBlanking.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>
#include <QLibrary>

#include "program/desktop/Portal.h"
#include "program/desktop/SessionBus.h"

namespace neb {
namespace {

constexpr int MostWait = 50;  // ms; the end of a show must not hang on a service that does

// A connection of our own: the service drops what we asked for when it ends, whatever happens.
QString ConnectionName() {
    return QStringLiteral("neb-screen-blanking");
}

QDBusMessage ServiceCall(const QString& Method) {
    QDBusMessage Call =
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.ScreenSaver"),
                                       QStringLiteral("/org/freedesktop/ScreenSaver"),
                                       QStringLiteral("org.freedesktop.ScreenSaver"), Method);
    Call.setAutoStartService(false);
    return Call;
}

// The portal starts when it is asked. What it gives is a request that lasts until it is closed.
QDBusMessage PortalCall(const QString& Reason) {
    constexpr uint KeepFromIdling = 8;
    QDBusMessage Call = QDBusMessage::createMethodCall(
        portal::Service, portal::Object, QStringLiteral("org.freedesktop.portal.Inhibit"),
        QStringLiteral("Inhibit"));
    Call << QString() << KeepFromIdling << QVariantMap{{QStringLiteral("reason"), Reason}};
    return Call;
}

QDBusMessage CloseCall(const QDBusObjectPath& Request) {
    return QDBusMessage::createMethodCall(portal::Service, Request.path(),
                                          QStringLiteral("org.freedesktop.portal.Request"),
                                          QStringLiteral("Close"));
}

#if QT_CONFIG(xcb)
// The library is looked up when a show starts, so that the program runs where it is not there.
void SuspendServerSaver(bool Suspended) {
    const auto* X11 =
        qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    if (!X11 || !X11->display()) return;
    using SuspendFunction = void (*)(Display*, int);
    using FlushFunction = int (*)(Display*);
    const auto Suspend = reinterpret_cast<SuspendFunction>(
        QLibrary::resolve(QStringLiteral("Xss"), 1, "XScreenSaverSuspend"));
    const auto Flush =
        reinterpret_cast<FlushFunction>(QLibrary::resolve(QStringLiteral("X11"), 6, "XFlush"));
    if (!Suspend || !Flush) return;
    Suspend(X11->display(), Suspended ? 1 : 0);
    Flush(X11->display());
}
#else
void SuspendServerSaver(bool) {}
#endif

}  // namespace

DesktopScreenBlanking::DesktopScreenBlanking() = default;

DesktopScreenBlanking::~DesktopScreenBlanking() {
    if (mHolders > 0) LetGo();
}

void DesktopScreenBlanking::Inhibit(const QString& Reason) {
    if (++mHolders > 1) return;
    SuspendServerSaver(true);
    AskService(Reason);
}

void DesktopScreenBlanking::Release() {
    if (mHolders > 0 && --mHolders == 0) LetGo();
}

void DesktopScreenBlanking::LetGo() {
    LeaveService();
    SuspendServerSaver(false);
}

void DesktopScreenBlanking::AskService(const QString& Reason) {
    if (!HasSessionBus()) return;
    const QDBusConnection Bus =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, ConnectionName());
    mConnected = true;
    if (!Bus.isConnected()) return;
    QDBusMessage Call = ServiceCall(QStringLiteral("Inhibit"));
    Call << QGuiApplication::applicationDisplayName() << Reason;
    mReason = Reason;
    Send(Call, &DesktopScreenBlanking::ServiceAnswered);
}

void DesktopScreenBlanking::Send(const QDBusMessage& Call, Reader Answered) {
    mCall = new QDBusPendingCallWatcher(QDBusConnection(ConnectionName()).asyncCall(Call));
    QObject::connect(mCall, &QDBusPendingCallWatcher::finished, mCall,
                     [this, Answered](QDBusPendingCallWatcher* Done) {
                         Done->deleteLater();
                         (this->*Answered)(*Done);
                     });
}

// Desktops without the service, and places that programs are locked into, have the portal.
void DesktopScreenBlanking::ServiceAnswered(const QDBusPendingCall& Done) {
    const QDBusPendingReply<quint32> Reply = Done;
    if (Reply.isError()) return Send(PortalCall(mReason), &DesktopScreenBlanking::PortalAnswered);
    mGoodbye = std::make_unique<QDBusMessage>(ServiceCall(QStringLiteral("UnInhibit")));
    *mGoodbye << Reply.value();
}

void DesktopScreenBlanking::PortalAnswered(const QDBusPendingCall& Done) {
    const QDBusPendingReply<QDBusObjectPath> Reply = Done;
    if (!Reply.isError()) mGoodbye = std::make_unique<QDBusMessage>(CloseCall(Reply.value()));
}

// A request that has not been answered yet is not waited for: the end of the connection ends it.
void DesktopScreenBlanking::LeaveService() {
    delete mCall;
    if (!mConnected) return;
    if (const auto Goodbye = std::exchange(mGoodbye, nullptr))
        QDBusConnection(ConnectionName()).call(*Goodbye, QDBus::Block, MostWait);
    QDBusConnection::disconnectFromBus(ConnectionName());
    mConnected = false;
}

}  // namespace neb
