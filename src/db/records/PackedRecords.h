// The content of one record file in little space: most of a record is blanks, and runs of blanks
// are only counted. The journal holds all files in this form, and the files are written from it.
#pragma once

#include <QByteArray>
#include <functional>
#include <optional>

namespace neb {

class PackedRecords {
  public:
    // Makes room for a record of this many bytes; before the calls below.
    void BeginRecord(qsizetype Length);
    void Literal(const void* Bytes, size_t Count);  // at most 255 at a time
    void Blanks(int Count);                         // 0 to 255
    void Finish();                                  // after the last record; before anything below

    qint64 Length() const { return mLength; }           // bytes when unpacked
    const QByteArray& Bytes() const { return mBytes; }  // the packed form

    // Hands the content over in pieces of 1 MB, the last one shorter; nothing when it is empty.
    void Unpack(const std::function<void(const char* Data, qint64 Length)>& Take) const;
    QByteArray Unpack() const;

    // From a packed form; nothing when it does not unpack to exactly Length bytes.
    static std::optional<PackedRecords> FromBytes(QByteArray Packed, qint64 Length);

  private:
    // Each piece: two counts of 16 bits (bytes as they are, blanks), then the bytes.
    static constexpr qsizetype HeadLength = 4;
    static constexpr qsizetype MaxLiteral = 0xFFFF - 255;
    void OpenPiece();
    void ClosePiece(int BlankCount);

    QByteArray mBytes;
    qsizetype mUsed = 0;
    qsizetype mHead = -1;  // where the open piece begins, -1 when none is open
    qint64 mLength = 0;
};

}  // namespace neb
