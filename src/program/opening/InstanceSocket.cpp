#include "program/opening/InstanceSocket.h"

#include <QCryptographicHash>
#include <QStandardPaths>

#include "support/files/HostNames.h"
#include "support/files/modHostFiles.h"

#ifndef _WIN32
#include <sys/socket.h>
#include <unistd.h>
#endif

namespace neb {
namespace {

constexpr int SumLength = 32;  // a socket's path may have some hundred bytes alone

}  // namespace

QString InstanceSocketPath(const QString& Database) {
    const QString Folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (Folder.isEmpty()) return {};
    const QByteArray Sum =
        QCryptographicHash::hash(HostBytes(RealDir(Database)), QCryptographicHash::Sha256)
            .toHex()
            .first(SumLength);
    return Folder + QStringLiteral("/neb-slide-show-") + QString::fromLatin1(Sum);
}

bool IsOfThisUser([[maybe_unused]] qintptr Socket) {
#ifdef SO_PEERCRED
    ucred Peer = {};
    socklen_t Length = sizeof Peer;
    return ::getsockopt(static_cast<int>(Socket), SOL_SOCKET, SO_PEERCRED, &Peer, &Length) == 0 &&
           Peer.uid == ::getuid();
#else
    return true;
#endif
}

}  // namespace neb
