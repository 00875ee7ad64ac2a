#include "program/opening/InstanceServer.h"

#include <QLocalSocket>
#include <QTimer>

#include "program/opening/InstanceSocket.h"

namespace neb {
namespace {

constexpr int SilenceMs = 5000;  // a start hands over at once, or not at all

void Send(QLocalSocket& To, HandOverAnswer Answer) {
    To.putChar(static_cast<char>(Answer));
    To.disconnectFromServer();  // once it is written
}

}  // namespace

InstanceServer::InstanceServer(const QString& Database, Take Taken) : mTake(std::move(Taken)) {
    const QString Path = InstanceSocketPath(Database);
    if (Path.isEmpty()) return;
    QLocalServer::removeServer(Path);
    mServer.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&mServer, &QLocalServer::newConnection, this, &InstanceServer::Accept);
    mServer.listen(Path);
}

void InstanceServer::Accept() {
    while (QLocalSocket* From = mServer.nextPendingConnection()) {
        connect(From, &QLocalSocket::disconnected, From, &QObject::deleteLater);
        if (!IsOfThisUser(From->socketDescriptor())) {
            From->abort();
            continue;
        }
        From->setReadBufferSize(MaxHandOver + 1);
        connect(From, &QLocalSocket::readyRead, this, [this, From] { Read(*From); });
        QTimer::singleShot(SilenceMs, From, [From] { From->abort(); });
        Read(*From);
    }
}

void InstanceServer::Read(QLocalSocket& From) {
    const qint64 There = From.bytesAvailable();
    const auto Length = HandOverLength(From.peek(HandOverHead));
    if (Length && (*Length == 0 || There < *Length)) return;
    From.disconnect(this);
    Answer(From, Length == There ? UnpackHandOver(From.read(There)) : std::nullopt);
}

// What cannot be taken gets no answer: the other end hears that nobody is there.
void InstanceServer::Answer(QLocalSocket& To, const std::optional<HandOver>& Asked) {
    if (!Asked) return Send(To, HandOverAnswer::NotUnderstood);
    if (!mTake(*Asked)) return To.abort();
    Send(To, HandOverAnswer::Taken);
}

}  // namespace neb
