#include "program/desktop/MailPortal.h"

#include <unistd.h>

#include <QApplication>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingReply>
#include <QDBusUnixFileDescriptor>
#include <QWidget>

#include "program/desktop/AwaitAnswer.h"
#include "program/desktop/DesktopMail.h"
#include "program/desktop/Portal.h"
#include "support/Fault.h"
#include "support/files/modHostFilesAccess.h"

namespace neb {
namespace {

const QString MailInterface = QStringLiteral("org.freedesktop.portal.Email");

// A portal that has to be started takes its time; one that asks the user takes his.
constexpr int PatienceToBegin = 10000, PatienceToEnd = 3000;  // ms
constexpr uint Failed = 2;

using Descriptors = QList<QDBusUnixFileDescriptor>;

// The file itself is handed over: a portal may stand outside the place where its name means
// anything.
Descriptors Attached(const QString& Path) {
    const int Mine = OpenForOther(Path);
    const Descriptors All{QDBusUnixFileDescriptor(Mine)};
    ::close(Mine);
    return All;
}

// The desktop may still be asking about an earlier message, whose answer is none to this one.
QString NextToken() {
    static int Last = 0;
    return QStringLiteral("neb_mail_%1").arg(++Last);
}

QVariantMap OptionsFor(const MailMessage& Message, const QString& Token) {
    const QStringList To = Recipients(Message.RecipAddress);
    return {{QStringLiteral("handle_token"), Token},
            {QStringLiteral("address"), To.value(0)},
            {QStringLiteral("addresses"), To},
            {QStringLiteral("subject"), Message.MsgSubject},
            {QStringLiteral("body"), Message.MsgNoteText},
            {QStringLiteral("attachment_fds"),
             QVariant::fromValue(Attached(Message.AttachmentPathName))}};
}

QString WindowName() {
    const QWidget* Window = QApplication::activeWindow();
    if (!Window || QGuiApplication::platformName() != QStringLiteral("xcb")) return {};
    return QStringLiteral("x11:%1").arg(Window->winId(), 0, 16);
}

}  // namespace

MailPortal::MailPortal(const QDBusConnection& Bus) : mBus(Bus) {
    qDBusRegisterMetaType<Descriptors>();
}

QString MailPortal::RequestPath(const QString& OfToken) const {
    const QString Sender = mBus.baseService().mid(1).replace(u'.', u'_');
    return portal::Object + QStringLiteral("/request/") + Sender + u'/' + OfToken;
}

void MailPortal::Response(uint Result, const QVariantMap&) {
    mResult = Result;
}

bool MailPortal::Compose(const MailMessage& Message) {
    if (!(mBus.connectionCapabilities() & QDBusConnection::UnixFileDescriptorPassing)) return false;
    const QString Token = NextToken();
    const QString Path = RequestPath(Token);
    const QString Answers = QStringLiteral("org.freedesktop.portal.Request");
    const auto* Slot = SLOT(Response(uint, QVariantMap));
    mResult.reset();
    // before the question: the answer may be quicker than the call's return
    mBus.connect(portal::Service, Path, Answers, QStringLiteral("Response"), this, Slot);
    bool Taken = false;
    try {
        Taken = Ask(OptionsFor(Message, Token));
    } catch (const Fault&) {
        // without the attachment there is nothing to send
    }
    mBus.disconnect(portal::Service, Path, Answers, QStringLiteral("Response"), this, Slot);
    return Taken;
}

bool MailPortal::Ask(const QVariantMap& Options) {
    QDBusMessage Call = QDBusMessage::createMethodCall(
        portal::Service, portal::Object, MailInterface, QStringLiteral("ComposeEmail"));
    Call << WindowName() << Options;
    const QDBusPendingReply<QDBusObjectPath> Reply = mBus.asyncCall(Call, PatienceToBegin);
    AwaitAnswer(PatienceToBegin, [&] { return Reply.isFinished(); });
    if (!Reply.isFinished() || Reply.isError()) return false;
    return !AwaitAnswer(PatienceToEnd, [this] { return mResult.has_value(); }) || *mResult < Failed;
}

}  // namespace neb
