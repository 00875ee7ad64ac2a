#include "program/opening/HandOver.h"

#include <QDataStream>
#include <QtEndian>
#include <algorithm>

#include "support/files/HostNames.h"

namespace neb {
namespace {

// The last of it is the version: who changes anything below counts it up.
constexpr char Mark[] = "NEBOPEN1";
constexpr qsizetype MarkLength = sizeof Mark - 1;
static_assert(MarkLength + qsizetype(sizeof(quint32)) == HandOverHead);

constexpr qsizetype LongestPath = 4096;  // bytes
constexpr qsizetype LongestToken = 512;

bool IsToken(const QByteArray& Token) {
    return Token.size() <= LongestToken && std::all_of(Token.begin(), Token.end(), [](char Each) {
               return Each > ' ' && Each < 127;
           });
}

void SetUp(QDataStream& Stream) {
    Stream.setVersion(QDataStream::Qt_6_0);
}

QByteArray BodyOf(const HandOver& What) {
    QByteArray Body;
    QDataStream Out(&Body, QIODevice::WriteOnly);
    SetUp(Out);
    Out << (IsToken(What.Token) ? What.Token : QByteArray()) << quint32(What.Paths.size());
    for (const QString& Path : What.Paths) Out << HostBytes(Path);
    return Body;
}

}  // namespace

bool IsWholePath(const QByteArray& Path) {
    return Path.startsWith('/') && Path.size() <= LongestPath && !Path.contains('\0');
}

std::optional<QByteArray> PackHandOver(const HandOver& What) {
    const QByteArray Body = BodyOf(What);
    if (What.Paths.size() > MaxHandOverPaths || HandOverHead + Body.size() > MaxHandOver)
        return std::nullopt;
    QByteArray Length(sizeof(quint32), '\0');
    qToBigEndian(static_cast<quint32>(Body.size()), Length.data());
    return Mark + Length + Body;
}

std::optional<qsizetype> HandOverLength(const QByteArray& Begin) {
    const qsizetype Seen = std::min(MarkLength, Begin.size());
    if (Begin.first(Seen) != QByteArrayView(Mark, Seen)) return std::nullopt;
    if (Begin.size() < HandOverHead) return 0;
    const auto Length =
        HandOverHead + qsizetype(qFromBigEndian<quint32>(Begin.constData() + MarkLength));
    return Length <= MaxHandOver ? std::optional(Length) : std::nullopt;
}

std::optional<HandOver> UnpackHandOver(const QByteArray& Message) {
    if (HandOverLength(Message) != Message.size()) return std::nullopt;
    QDataStream In(Message.sliced(HandOverHead));
    SetUp(In);
    HandOver What;
    quint32 Count = 0;
    In >> What.Token >> Count;
    if (!IsToken(What.Token) || Count > MaxHandOverPaths) return std::nullopt;
    for (quint32 I = 0; I < Count && In.status() == QDataStream::Ok; ++I) {
        QByteArray Path;
        In >> Path;
        if (!IsWholePath(Path)) return std::nullopt;
        What.Paths << HostName(Path);
    }
    return In.status() == QDataStream::Ok && In.atEnd() ? std::optional(What) : std::nullopt;
}

}  // namespace neb
