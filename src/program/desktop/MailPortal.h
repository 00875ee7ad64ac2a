// The desktop's portal for mail, on the session's message bus: it shows a message in the user's own
// mail program. Used by DesktopMail.
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>
#include <optional>

#include "support/MailTransport.h"

namespace neb {

class MailPortal : public QObject {
    Q_OBJECT

  public:
    explicit MailPortal(const QDBusConnection& Bus);

    // False when there is no portal, when it has no way to mail, or when the attachment cannot be
    // read. True also when the user himself has said no there. Waits for some seconds.
    bool Compose(const MailMessage& Message);

  private Q_SLOTS:
    void Response(uint Result, const QVariantMap& Details);

  private:
    bool Ask(const QVariantMap& Options);
    QString RequestPath(const QString& Token) const;

    QDBusConnection mBus;
    std::optional<uint> mResult;  // of the message under way: 0 done, 1 not wanted, 2 failed
};

}  // namespace neb
