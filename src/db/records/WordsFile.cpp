#include "db/records/WordsFile.h"

#include <QCryptographicHash>
#include <QStringDecoder>
#include <QtEndian>

namespace neb {
namespace {

// Magic and version; the count of texts; the texts, each with a head of fixed length, the bytes of
// the record and the text in UTF-8; the check sum of all that. Numbers have the lowest byte first.
constexpr QByteArrayView Magic = "NEBWORD1", AnyMagic = "NEBWORD";
constexpr auto Method = QCryptographicHash::Sha256;
constexpr qsizetype SumLength = 32;
constexpr qsizetype FileHead = 8 + 4;
constexpr qsizetype TextHead = 2 + 2 + 4 * qsizetype{std::tuple_size_v<RecordKey>} + 4;
constexpr qsizetype MostStored = 255;  // the widest field

template <class Number>
void Append(QByteArray& To, Number Value) {
    char Bytes[sizeof(Number)];
    qToLittleEndian(Value, Bytes);
    To.append(Bytes, sizeof Bytes);
}

QByteArray SumOf(QByteArrayView Bytes) {
    QCryptographicHash Sum(Method);
    Sum.addData(Bytes);
    return Sum.result();
}

void Append(QByteArray& To, const WholeText& Each) {
    const QByteArray Text = Each.Text.toUtf8();
    Append(To, static_cast<quint8>(Each.File));
    Append(To, static_cast<quint8>(Each.Field));
    Append(To, static_cast<quint16>(Each.Stored.size()));
    for (const std::int32_t Number : Each.Key) Append(To, Number);
    Append(To, static_cast<quint32>(Text.size()));
    To += Each.Stored + Text;
}

int TextsIn(RecordFile File) {
    return File == RecordFile::Slides ? 3 : 1;
}

bool IsSensible(const WholeText& Each) {
    return Each.File >= RecordFile::Albums && Each.File <= RecordFile::SlideShowSoundTracks &&
           Each.Field < TextsIn(Each.File) && Each.Stored.size() <= MostStored &&
           !Each.Stored.contains('\0') && !Each.Text.isEmpty() && !Each.Text.contains(QChar(0));
}

// Walks over the texts of a file whose check sum is right.
class Walk {
  public:
    explicit Walk(QByteArrayView Texts) : mBytes(Texts) {}

    // Nothing where they have come to their end, or what follows is none.
    std::optional<WholeText> Next() {
        const QByteArrayView Before = mBytes;
        auto Each = Read();
        if (!Each) mBytes = Before;
        return Each;
    }
    bool IsAtEnd() const { return mBytes.isEmpty(); }

  private:
    std::optional<WholeText> Read() {
        if (mBytes.size() < TextHead) return std::nullopt;
        WholeText Each{static_cast<RecordFile>(Number<quint8>()), Number<quint8>(), {}, {}, {}};
        const qsizetype Stored = Number<quint16>();
        for (std::int32_t& Key : Each.Key) Key = Number<std::int32_t>();
        const qsizetype Length = Number<quint32>();
        if (Length > mBytes.size() - Stored) return std::nullopt;
        Each.Stored = Take(Stored).toByteArray();
        using Flag = QStringDecoder::Flag;
        QStringDecoder Decode(QStringDecoder::Utf8, Flag::Stateless | Flag::ConvertInitialBom);
        Each.Text = Decode(Take(Length));
        if (Decode.hasError() || !IsSensible(Each)) return std::nullopt;
        return Each;
    }
    QByteArrayView Take(qsizetype Count) {
        const QByteArrayView Taken = mBytes.first(Count);
        mBytes = mBytes.sliced(Count);
        return Taken;
    }
    template <class Value>
    Value Number() {
        return qFromLittleEndian<Value>(Take(sizeof(Value)).data());
    }

    QByteArrayView mBytes;
};

bool IsSealed(const QByteArray& Bytes) {
    return Bytes.size() >= FileHead + SumLength &&
           SumOf(QByteArrayView(Bytes).chopped(SumLength)) == Bytes.last(SumLength);
}

}  // namespace

QByteArray WordsFileOf(const std::vector<WholeText>& Texts) {
    if (Texts.empty()) return {};
    QByteArray Bytes = Magic.toByteArray();
    Append(Bytes, static_cast<quint32>(Texts.size()));
    for (const WholeText& Each : Texts) Append(Bytes, Each);
    return Bytes + SumOf(Bytes);
}

WordsFound WordsIn(const QByteArray& Bytes) {
    using enum WordsFound::State;
    if (!Bytes.startsWith(Magic)) {
        const bool IsLater = Bytes.size() > Magic.size() && Bytes.startsWith(AnyMagic) &&
                             Bytes[AnyMagic.size()] > Magic.back() && Bytes[AnyMagic.size()] <= '9';
        return {IsLater ? Later : Damaged, {}};
    }
    if (!IsSealed(Bytes)) return {Damaged, {}};
    Walk Over(QByteArrayView(Bytes).chopped(SumLength).sliced(FileHead));
    WordsFound Found{Sound, {}};
    while (auto Each = Over.Next()) Found.Texts.push_back(std::move(*Each));
    const auto Count = qFromLittleEndian<quint32>(Bytes.constData() + Magic.size());
    if (!Over.IsAtEnd() || Found.Texts.size() != Count) return {Damaged, {}};
    return Found;
}

std::optional<QByteArray> WordBytesOf(const RecordSource& Source) {
    const std::optional<RecordBytes> File = Source(RecordFile::Words);
    if (!File) return std::nullopt;
    QByteArray Bytes, Room(1 << 18, Qt::Uninitialized);
    for (qint64 Got; (Got = File->Read(Room.data(), Room.size())) > 0;)
        Bytes.append(Room.constData(), Got);
    return Bytes;
}

WordsFound WordsOf(const RecordSource& Source) {
    const std::optional<QByteArray> Bytes = WordBytesOf(Source);
    return Bytes ? WordsIn(*Bytes) : WordsFound();
}

}  // namespace neb
