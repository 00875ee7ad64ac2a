// Stands in for whoever carries mail: notes what is asked of it, in order, and the message.
#pragma once

#include <QStringList>

#include "support/MailTransport.h"
#include "support/Services.h"

namespace neb::harness {

class ScriptedMail : public MailTransport {
  public:
    ScriptedMail() : mBefore(TheServices().Mail) { TheServices().Mail = this; }
    ~ScriptedMail() override { TheServices().Mail = mBefore; }

    std::int32_t Session = 7;  // 0: nothing takes mail
    bool Takes = true;

    QStringList Calls;
    MailMessage Message;

    std::int32_t SignOn(const QString& UserName, const QString& Password) override {
        Calls << QStringLiteral("SignOn %1 %2").arg(UserName, Password);
        return Session;
    }
    bool Send(std::int32_t SessionID, const MailMessage& Sent) override {
        Calls << QStringLiteral("Send %1").arg(SessionID);
        Message = Sent;
        return Takes;
    }
    void SignOff(std::int32_t SessionID) override {
        Calls << QStringLiteral("SignOff %1").arg(SessionID);
    }

  private:
    MailTransport* mBefore;
};

}  // namespace neb::harness
