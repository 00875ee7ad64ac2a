// Records to and from bytes, as the layouts of modRecordFiles.h say. Used by the engine's loader
// and writer and by the command-line companion's check. No bytes make the readers fail.
#pragma once

#include "db/PackedRecords.h"
#include "db/modRecordFiles.h"

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

// Length bytes from Offset on; bytes that the file does not have are 0.
QByteArray ZeroFilled(const QByteArray& File, qint64 Offset, qint64 Length);

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

// The record at this place from 0 on, which may reach past the end of the file.
template <class Record>
Record DecodeRecordAt(const QByteArray& File, qint64 Place) {
    constexpr qint64 Width = WidthOf<Record>;
    if ((Place + 1) * Width <= File.size())
        return DecodeRecord<Record>(File.constData() + Place * Width);
    return DecodeRecord<Record>(codec::ZeroFilled(File, Place * Width, Width).constData());
}

// Calls Visit(Record&&) for each record that is not marked as deleted, in file order.
template <class Record, class Visitor>
void ForEachRecord(const QByteArray& File, Visitor Visit) {
    const qint64 Count = RecordCount(File.size(), WidthOf<Record>);
    for (qint64 Place = 0; Place < Count; ++Place) {
        Record Next = DecodeRecordAt<Record>(File, Place);
        if (Next.Deleted == 0) Visit(std::move(Next));
    }
}

}  // namespace neb
