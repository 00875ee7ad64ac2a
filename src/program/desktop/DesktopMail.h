// The user's own mail program: a message is shown there with its attachment, ready to be sent. The
// desktop's portal knows the program; where there is no portal, xdg-email does.
#pragma once

#include <QStringList>

#include "support/MailTransport.h"

namespace neb {

class DesktopMail : public MailTransport {
  public:
    DesktopMail() = default;
    ~DesktopMail() override;
    DesktopMail(const DesktopMail&) = delete;
    DesktopMail& operator=(const DesktopMail&) = delete;

    // The name and the password are the mail program's own affair.
    std::int32_t SignOn(const QString& UserName, const QString& Password) override;
    // Returns when the message has been taken, or refused; after some seconds without an answer it
    // counts as taken: the desktop may be asking which program it shall be.
    bool Send(std::int32_t SessionID, const MailMessage& Message) override;
    void SignOff(std::int32_t SessionID) override;

  private:
    bool SendByPortal(const MailMessage& Message);

    std::int32_t mLastSession = 0;
    bool mConnected = false;
};

// A text of one or more addresses, parted by commas or semicolons.
QStringList Recipients(const QString& Addresses);

}  // namespace neb
