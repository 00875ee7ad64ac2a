#include "support/files/HostNames.h"

#include <QStringDecoder>
#include <QUrl>
#include <algorithm>

#include "support/modText.h"

namespace neb {
namespace {

bool IsPlain(QByteArrayView Bytes) {
    return std::all_of(Bytes.begin(), Bytes.end(),
                       [](char Each) { return static_cast<unsigned char>(Each) < 0x80; });
}

std::optional<QString> AsText(QByteArrayView Bytes) {
    using Flag = QStringDecoder::Flag;
    QStringDecoder Decoder(QStringDecoder::Utf8, Flag::ConvertInitialBom | Flag::Stateless);
    QString Text = Decoder.decode(Bytes);
    return Decoder.hasError() ? std::nullopt : std::optional(std::move(Text));
}

// How many bytes the letter that begins here takes, by its first one; 1 for what begins none.
qsizetype LetterLength(char First) {
    const auto Code = static_cast<unsigned char>(First);
    return Code < 0xC0 ? 1 : Code < 0xE0 ? 2 : Code < 0xF0 ? 3 : 4;
}

template <class TakeText, class TakeByte>
void ForEachPart(const QString& Name, TakeText Text, TakeByte Byte) {
    qsizetype Start = 0;
    for (qsizetype I = 0; I < Name.size(); ++I) {
        if (!IsStrayByte(Name, I)) continue;
        Text(Name.sliced(Start, I - Start));
        Byte(Name[I]);
        Start = I + 1;
    }
    Text(Start == 0 ? Name : Name.sliced(Start));
}

}  // namespace

QString HostName(QByteArrayView Bytes) {
    if (IsPlain(Bytes)) return QString::fromLatin1(Bytes);
    if (const auto Whole = AsText(Bytes)) return *Whole;
    QString Name;
    for (qsizetype At = 0; At < Bytes.size();) {
        const qsizetype Length = std::min(LetterLength(Bytes[At]), Bytes.size() - At);
        const auto Letter = AsText(Bytes.sliced(At, Length));
        Name += Letter ? *Letter : QString(StrayByte(Bytes[At]));
        At += Letter ? Length : 1;
    }
    return Name;
}

QByteArray HostBytes(const QString& Name) {
    QByteArray Bytes;
    ForEachPart(
        Name, [&](const QString& Text) { Bytes += Text.toUtf8(); },
        [&](QChar Byte) { Bytes += static_cast<char>(Byte.unicode()); });
    return Bytes;
}

QString UpperName(const QString& Name) {
    QString Upper;
    ForEachPart(
        Name, [&](const QString& Text) { Upper += Text.toUpper(); },
        [&](QChar Byte) { Upper += Byte; });
    return Upper;
}

QString FileOfUrl(const QUrl& Url) {
    if (!Url.isLocalFile() || !Url.host().isEmpty()) return Url.toLocalFile();
    return HostName(QByteArray::fromPercentEncoding(Url.path(QUrl::FullyEncoded).toLatin1()));
}

QUrl UrlOfFile(const QString& Path) {
    return QUrl::fromEncoded("file://" + HostBytes(Path).toPercentEncoding("/"));
}

}  // namespace neb
