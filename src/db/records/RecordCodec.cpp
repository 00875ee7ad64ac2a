#include "db/records/RecordCodec.h"

#include <QtEndian>
#include <cstring>

#include "support/modText.h"

namespace neb {
namespace {

constexpr int MaxWidth = 255;
#ifdef Q_OS_WIN
constexpr char16_t HostSeparator = u'\\';
#else
constexpr char16_t HostSeparator = u'/';
#endif

template <class Integer>
void PutInteger(PackedRecords& Out, Integer Value) {
    char Bytes[sizeof(Integer)];
    qToLittleEndian(Value, Bytes);
    Out.Literal(Bytes, sizeof Bytes);
}

// Plain letters, which nearly all texts are made of, without a detour; false at any other.
bool NarrowPlain(const QString& Text, int Length, char* Out) {
    const char16_t* Units = reinterpret_cast<const char16_t*>(Text.constData());
    char16_t All = 0;
    for (int I = 0; I < Length; ++I) {
        All = static_cast<char16_t>(All | Units[I]);
        Out[I] = static_cast<char>(Units[I]);
    }
    return All < 0x80;
}

// Enough bytes of a text for a field. To turn all of a long one, in another script say, would take
// its time; where its letters need few bytes, or none, it must be.
QByteArray Beginning(const QString& Text, int Width) {
    const qsizetype Ample = 2 * Width;
    if (Text.size() > Ample)
        if (QByteArray Bytes = ToAnsi(QStringView(Text).first(Ample));
            Bytes.size() >= Width + Width / 2)
            return Bytes;
    return ToAnsi(Text);
}

// At most Width bytes into Out; returns how many. A text that is cut may have a combining mark
// behind the cut, so only one that fits, or is plain, goes the short way.
int Narrow(const QString& Text, int Width, char* Out) {
    const bool Fits = Text.size() <= Width;
    if (Fits && NarrowPlain(Text, static_cast<int>(Text.size()), Out))
        return static_cast<int>(Text.size());
    const QByteArray Bytes = Beginning(Text, Width).left(Width);
    std::memcpy(Out, Bytes.constData(), static_cast<size_t>(Bytes.size()));
    return static_cast<int>(Bytes.size());
}

// The same as the field has it.
int NarrowField(FieldKind Kind, int Width, const QString& Text, char* Out) {
    const int Count = Narrow(Text, Width, Out);
    if (Kind == FieldKind::Path) std::replace(Out, Out + Count, '/', '\\');
    return Count;
}

}  // namespace

qint64 RecordCount(qint64 FileLength, qint64 RecordLength) {
    const qint64 Whole = FileLength / RecordLength;
    const qint64 TwiceTail = FileLength % RecordLength * 2;
    const bool Up = TwiceTail > RecordLength || (TwiceTail == RecordLength && Whole % 2 == 1);
    return Up ? Whole + 1 : Whole;
}

namespace codec {

void Decode(const char* Bytes, FieldKind Kind, int, std::int32_t& Value) {
    Value = Kind == FieldKind::Narrow ? qFromLittleEndian<qint16>(Bytes)
                                      : qFromLittleEndian<qint32>(Bytes);
}

void Decode(const char* Bytes, FieldKind, int, std::int16_t& Value) {
    Value = qFromLittleEndian<qint16>(Bytes);
}

void Decode(const char* Bytes, FieldKind, int, bool& Value) {
    Value = qFromLittleEndian<qint16>(Bytes) != 0;
}

void Decode(const char* Bytes, FieldKind, int, double& Value) {
    Value = qFromLittleEndian<double>(Bytes);
}

void Decode(const char* Bytes, FieldKind Kind, int Width, QString& Value) {
    qsizetype Length = Width;
    if (Kind != FieldKind::Padded) {
        const void* End = std::memchr(Bytes, 0, static_cast<size_t>(Width));
        if (End) Length = static_cast<const char*>(End) - Bytes;
    }
    if (Length == 0) return;
    Value = FromAnsi(Bytes, Length);
    if (Kind == FieldKind::Path && std::memchr(Bytes, '\\', static_cast<size_t>(Length)))
        Value.replace(u'\\', HostSeparator);
}

void Encode(PackedRecords& Out, FieldKind Kind, int, std::int32_t Value) {
    if (Kind == FieldKind::Narrow)
        PutInteger(Out, static_cast<qint16>(Value));
    else
        PutInteger(Out, Value);
}

void Encode(PackedRecords& Out, FieldKind, int, std::int16_t Value) {
    PutInteger(Out, Value);
}

void Encode(PackedRecords& Out, FieldKind, int, bool Value) {
    PutInteger(Out, static_cast<qint16>(Value ? -1 : 0));
}

void Encode(PackedRecords& Out, FieldKind, int, double Value) {
    PutInteger(Out, Value);
}

void Encode(PackedRecords& Out, FieldKind Kind, int Width, const QString& Value) {
    char Bytes[MaxWidth];
    int Count = NarrowField(Kind, Width, Value, Bytes);
    if (Kind != FieldKind::Padded && Count < Width) Bytes[Count++] = 0;
    Out.Literal(Bytes, static_cast<size_t>(Count));
    if (Count < Width) Out.Blanks(Width - Count);
}

QByteArray Stored(FieldKind Kind, int Width, const QString& Value) {
    char Bytes[MaxWidth];
    const QByteArray All(Bytes, NarrowField(Kind, Width, Value, Bytes));
    const qsizetype End = Kind == FieldKind::Padded ? -1 : All.indexOf('\0');
    return End < 0 ? All : All.first(End);
}

QByteArray ZeroFilled(const char* Bytes, qint64 Count, qint64 Length) {
    return QByteArray(Bytes, Count).leftJustified(Length, '\0');
}

}  // namespace codec
}  // namespace neb
