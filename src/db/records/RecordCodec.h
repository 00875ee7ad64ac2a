// Records to and from bytes, as the layouts of modRecordFiles.h say. Used by the engine's loader
// and writer and by the command-line companion's check. No bytes make the readers fail.
#pragma once

#include "db/records/PackedRecords.h"
#include "db/records/RecordSource.h"

namespace neb {

// How many records a file of this length holds: the quotient rounded to the nearest integer, ties
// to the even one, so that a longer half of a record at the end counts.
qint64 RecordCount(qint64 FileLength, qint64 RecordLength);

namespace codec {

void Decode(const char* Bytes, FieldKind Kind, int Width, std::int32_t& Value);
void Decode(const char* Bytes, FieldKind Kind, int Width, std::int16_t& Value);
void Decode(const char* Bytes, FieldKind Kind, int Width, bool& Value);
void Decode(const char* Bytes, FieldKind Kind, int Width, double& Value);
void Decode(const char* Bytes, FieldKind Kind, int Width, QString& Value);
void Encode(PackedRecords& Out, FieldKind Kind, int Width, std::int32_t Value);
void Encode(PackedRecords& Out, FieldKind Kind, int Width, std::int16_t Value);
void Encode(PackedRecords& Out, FieldKind Kind, int Width, bool Value);
void Encode(PackedRecords& Out, FieldKind Kind, int Width, double Value);
void Encode(PackedRecords& Out, FieldKind Kind, int Width, const QString& Value);

// What a field holds of a text: its bytes before the NUL and the blanks.
QByteArray Stored(FieldKind Kind, int Width, const QString& Value);

// The bytes, and zeros behind them up to Length.
QByteArray ZeroFilled(const char* Bytes, qint64 Count, qint64 Length);

}  // namespace codec

// From WidthOf<Record> bytes.
template <class Record>
Record DecodeRecord(const char* Bytes) {
    Record Result;
    std::apply(
        [&](const auto&... Fields) {
            ((codec::Decode(Bytes, Fields.Kind, Fields.Width, Result.*Fields.Member),
              Bytes += Fields.Width),
             ...);
        },
        LayoutOf<Record>::Fields);
    return Result;
}

template <class Record>
void EncodeRecord(PackedRecords& Out, const Record& Source) {
    Out.BeginRecord(WidthOf<Record>);
    std::apply(
        [&](const auto&... Fields) {
            (codec::Encode(Out, Fields.Kind, Fields.Width, Source.*Fields.Member), ...);
        },
        LayoutOf<Record>::Fields);
}

// From fewer bytes than a record has: those that are not there are 0.
template <class Record>
Record DecodeTail(const char* Bytes, qint64 Count) {
    return DecodeRecord<Record>(codec::ZeroFilled(Bytes, Count, WidthOf<Record>).constData());
}

// The first record of a file, whatever the file's length.
template <class Record>
Record DecodeFirst(const RecordBytes& File) {
    char Bytes[WidthOf<Record>];
    const qint64 Count = File.Read(Bytes, WidthOf<Record>);
    return DecodeTail<Record>(Bytes, Count);
}

// Calls Visit(Record&&) for each record, deleted ones too, in file order. Many records are read
// at a time, into the same room, which stays in the processor's cache.
template <class Record, class Visitor>
void ForEachRecordAtAll(const RecordBytes& File, Visitor Visit) {
    constexpr qint64 Width = WidthOf<Record>;
    constexpr qint64 Room = qint64{256} * 1024 / Width * Width;
    QByteArray Buffer(std::min(Room, File.Length + Width), Qt::Uninitialized);
    qint64 Whole = 0, Rest = 0;
    do {
        const qint64 Count = File.Read(Buffer.data(), Buffer.size() / Width * Width);
        const char* Bytes = Buffer.constData();
        for (Rest = Count; Rest >= Width; Rest -= Width, Bytes += Width, ++Whole)
            Visit(DecodeRecord<Record>(Bytes));
        if (Rest > 0 && RecordCount(Whole * Width + Rest, Width) > Whole)
            Visit(DecodeTail<Record>(Bytes, Rest));
        if (Count == 0) break;
    } while (Rest == 0);
}

// The same without those marked as deleted.
template <class Record, class Visitor>
void ForEachRecord(const RecordBytes& File, Visitor Visit) {
    ForEachRecordAtAll<Record>(File, [&](Record&& Row) {
        if (Row.Deleted == 0) Visit(std::move(Row));
    });
}

}  // namespace neb
