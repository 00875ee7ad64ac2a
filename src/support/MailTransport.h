// What carries a message to other people: the desktop's own mail program in the program, a scripted
// one in tests. Used by the print preview.
#pragma once

#include <QString>
#include <cstdint>

namespace neb {

struct MailMessage {
    QString RecipAddress;
    QString MsgSubject;
    QString MsgNoteText;
    QString AttachmentName;  // as the receiver sees it
    QString
        AttachmentPathName;  // the file itself; it must stay for as long as somebody may send it
};

class MailTransport {
  public:
    virtual ~MailTransport() = default;
    // Opens a session; its number, or 0 when nothing here takes mail.
    virtual std::int32_t SignOn(const QString& UserName, const QString& Password) = 0;
    // Hands the message to where the user sends it from; false when nobody takes it.
    virtual bool Send(std::int32_t SessionID, const MailMessage& Message) = 0;
    virtual void SignOff(std::int32_t SessionID) = 0;
};

}  // namespace neb
