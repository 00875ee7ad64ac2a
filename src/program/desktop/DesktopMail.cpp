#include "program/desktop/DesktopMail.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <memory>
#include <optional>

#include "program/desktop/AwaitAnswer.h"
#include "program/desktop/MailPortal.h"
#include "program/desktop/SessionBus.h"

namespace neb {
namespace {

constexpr int PatienceWithComposer = 5000;  // ms

// A connection of our own: when it ends the desktop takes back what it still asks the user.
QString ConnectionName() {
    return QStringLiteral("neb-mail");
}

QString Composer() {
    return QStandardPaths::findExecutable(QStringLiteral("xdg-email"));
}

QStringList ArgumentsFor(const MailMessage& Message) {
    return QStringList{QStringLiteral("--utf8"),  QStringLiteral("--subject"),
                       Message.MsgSubject,        QStringLiteral("--body"),
                       Message.MsgNoteText,       QStringLiteral("--attach"),
                       Message.AttachmentPathName} +
           Recipients(Message.RecipAddress);
}

bool LooksLikeOption(const QStringList& Addresses) {
    return std::ranges::any_of(Addresses,
                               [](const QString& Each) { return Each.startsWith(u'-'); });
}

using ExitCode = std::shared_ptr<std::optional<int>>;

// Nobody owns it: a mail program that was started by it stays up when this program ends.
ExitCode StartComposer(const QStringList& Arguments) {
    const auto Code = std::make_shared<std::optional<int>>();
    auto* Process = new QProcess;
    const auto End = [Code, Process](int Is) {
        *Code = Is;
        Process->deleteLater();
    };
    QObject::connect(
        Process, &QProcess::finished, Process,
        [End](int Is, QProcess::ExitStatus How) { End(How == QProcess::NormalExit ? Is : -1); });
    QObject::connect(Process, &QProcess::errorOccurred, Process, [End](QProcess::ProcessError Is) {
        if (Is == QProcess::FailedToStart) End(-1);
    });
    Process->setStandardOutputFile(QProcess::nullDevice());
    Process->setStandardErrorFile(QProcess::nullDevice());
    Process->start(Composer(), Arguments);
    return Code;
}

// A mail program that was not running yet may hold its starter up for as long as it runs.
bool SendByComposer(const MailMessage& Message) {
    if (Composer().isEmpty() || LooksLikeOption(Recipients(Message.RecipAddress))) return false;
    const ExitCode Code = StartComposer(ArgumentsFor(Message));
    AwaitAnswer(PatienceWithComposer, [&] { return Code->has_value(); });
    return Code->value_or(0) == 0;
}

}  // namespace

QStringList Recipients(const QString& Addresses) {
    static const QRegularExpression Between(QStringLiteral("\\s*[,;]\\s*"));
    return Addresses.trimmed().split(Between, Qt::SkipEmptyParts);
}

DesktopMail::~DesktopMail() {
    if (mConnected) QDBusConnection::disconnectFromBus(ConnectionName());
}

std::int32_t DesktopMail::SignOn(const QString&, const QString&) {
    return HasSessionBus() || !Composer().isEmpty() ? ++mLastSession : 0;
}

bool DesktopMail::Send(std::int32_t, const MailMessage& Message) {
    return SendByPortal(Message) || SendByComposer(Message);
}

void DesktopMail::SignOff(std::int32_t) {}

bool DesktopMail::SendByPortal(const MailMessage& Message) {
    if (!HasSessionBus()) return false;
    mConnected = true;
    const auto Bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, ConnectionName());
    return Bus.isConnected() && MailPortal(Bus).Compose(Message);
}

}  // namespace neb
