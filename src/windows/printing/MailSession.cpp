#include "windows/printing/MailSession.h"

#include "support/Texts.h"
#include "support/modFUFL.h"
#include "windows/printing/PrintFiles.h"
#include "windows/printing/frmPrintPreview.h"

namespace neb {
namespace {

QString OrStandard(const QString& Text) {
    const QString Given = Text.isEmpty() ? tr("Print Preview Document Attached.") : Text;
    return u' ' + Given + u' ';
}

}  // namespace

QString AutoSaveDir(const QString& AutoSavePath) {
    if (!AutoSavePath.isEmpty()) return WithSeparator(AutoSavePath);
    return UsersDocuments();
}

QString AttachmentNameFor(const QString& AutoSaveName, const QDateTime& Now) {
    if (!AutoSaveName.isEmpty()) return AutoSaveName;
    return QStringLiteral("AutoSave") + Now.toString(QStringLiteral("yyyyMMddHHmmss")) +
           QStringLiteral(".pdf");
}

MailMessage ComposeMail(const PreviewSettings& Settings, const QString& Address,
                        const QString& AttachmentPathName) {
    return {.RecipAddress = Address,
            .MsgSubject = OrStandard(Settings.EmailSubject),
            .MsgNoteText = OrStandard(Settings.EmailMsg),
            .AttachmentName = GetFileName(AttachmentPathName),
            .AttachmentPathName = AttachmentPathName};
}

MailSession::MailSession(MailTransport* Carrier, const PreviewSettings& Settings)
    : mCarrier(Carrier) {
    if (mCarrier) mSessionID = mCarrier->SignOn(Settings.UserName, Settings.UserPassword);
}

MailSession::~MailSession() {
    if (mSessionID != 0) mCarrier->SignOff(mSessionID);
}

bool MailSession::Send(const MailMessage& Message) {
    return mSessionID != 0 && mCarrier->Send(mSessionID, Message);
}

}  // namespace neb
