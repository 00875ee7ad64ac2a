// Keeps the desktop from blanking the screen: through the session's screen saver service, else the
// desktop portal, and on X11 through the server's own screen saver as well. The program's start
// puts it into Services.
#pragma once

#include <QPointer>
#include <memory>

#include "support/Services.h"

QT_BEGIN_NAMESPACE
class QDBusMessage;
class QDBusPendingCall;
class QDBusPendingCallWatcher;
QT_END_NAMESPACE

namespace neb {

class DesktopScreenBlanking : public ScreenBlanking {
  public:
    DesktopScreenBlanking();
    ~DesktopScreenBlanking() override;
    DesktopScreenBlanking(const DesktopScreenBlanking&) = delete;
    DesktopScreenBlanking& operator=(const DesktopScreenBlanking&) = delete;

    // Neither fails: a session without such a service simply blanks when it likes. Inhibit does
    // not wait for an answer, Release at most 50 ms.
    void Inhibit(const QString& Reason) override;
    void Release() override;

  private:
    void AskService(const QString& Reason);
    void LeaveService();
    void LetGo();
    using Reader = void (DesktopScreenBlanking::*)(const QDBusPendingCall& Done);
    void Send(const QDBusMessage& Call, Reader Answered);
    void ServiceAnswered(const QDBusPendingCall& Done);
    void PortalAnswered(const QDBusPendingCall& Done);

    int mHolders = 0;
    bool mConnected = false;
    QString mReason;
    std::unique_ptr<QDBusMessage> mGoodbye;  // takes back what was asked for
    QPointer<QDBusPendingCallWatcher> mCall;
};

}  // namespace neb
