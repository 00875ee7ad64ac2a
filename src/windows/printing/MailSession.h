// A message with a document attached, and the session in which it goes to whoever carries mail
// here. Used by the print preview, whose automatic save lies in the same place as what it mails.
#pragma once

#include <QDateTime>

#include "support/MailTransport.h"

namespace neb {

struct PreviewSettings;

// The directory for the attachment and for the automatic save, with closing separator: the given
// one, else the user's documents. May take a moment.
QString AutoSaveDir(const QString& AutoSavePath);
// The name of the attachment: the given one, else one of the time, in seconds.
QString AttachmentNameFor(const QString& AutoSaveName, const QDateTime& Now);

// The message as it goes out, with the texts that stand for those that the caller left empty.
MailMessage ComposeMail(const PreviewSettings& Settings, const QString& Address,
                        const QString& AttachmentPathName);

// Signed on from its making to its end.
class MailSession {
  public:
    // Carrier: nullptr where nothing carries mail.
    MailSession(MailTransport* Carrier, const PreviewSettings& Settings);
    ~MailSession();
    MailSession(const MailSession&) = delete;
    MailSession& operator=(const MailSession&) = delete;

    // False when nobody takes the message.
    bool Send(const MailMessage& Message);

  private:
    MailTransport* const mCarrier;
    std::int32_t mSessionID = 0;
};

}  // namespace neb
