#include "program/opening/InstanceCall.h"

#include <QElapsedTimer>
#include <QLocalSocket>

#include "program/opening/InstanceSocket.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

constexpr int ConnectMs = 1000;

bool Written(QLocalSocket& To, const QByteArray& Message, int PatienceMs) {
    QElapsedTimer Since;
    Since.start();
    To.write(Message);
    while (To.bytesToWrite() > 0)
        if (Since.hasExpired(PatienceMs) || !To.waitForBytesWritten(PatienceMs)) return false;
    return true;
}

HandedOver AnswerOf(QLocalSocket& From, int PatienceMs) {
    const bool Answered = From.bytesAvailable() > 0 || From.waitForReadyRead(PatienceMs);
    char Answer = 0;
    if (Answered && From.getChar(&Answer))
        return Answer == static_cast<char>(HandOverAnswer::Taken) ? HandedOver::Taken
                                                                  : HandedOver::NotTaken;
    return From.state() == QLocalSocket::ConnectedState ? HandedOver::NotTaken
                                                        : HandedOver::NotThere;
}

}  // namespace

HandedOver HandOverTo(const QString& Database, const HandOver& What, int PatienceMs) {
    const std::optional<QByteArray> Message = PackHandOver(What);
    const QString Path = InstanceSocketPath(Database);
    if (!Message || Path.isEmpty()) return HandedOver::NotTaken;
    QLocalSocket Socket;
    Socket.connectToServer(Path);
    if (!Socket.waitForConnected(ConnectMs)) return HandedOver::NotThere;
    if (!IsOfThisUser(Socket.socketDescriptor())) return HandedOver::NotTaken;
    const bool Sent = Written(Socket, *Message, PatienceMs);
    if (!Sent && Socket.state() == QLocalSocket::ConnectedState) return HandedOver::NotTaken;
    return AnswerOf(Socket, PatienceMs);
}

QByteArray TokenOfStart() {
    const QByteArray Token = qgetenv("XDG_ACTIVATION_TOKEN");
    return Token.isEmpty() ? qgetenv("DESKTOP_STARTUP_ID") : Token;
}

QStringList SeenFromHere(const QStringList& Paths) {
    QStringList Whole;
    for (const QString& Each : Paths) Whole << AbsolutePath(Each);
    return Whole;
}

}  // namespace neb
