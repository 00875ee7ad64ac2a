// A sound file, or the part of it that is the sound, for libraries that ask for a few bytes at a
// time. Used by the decoders alone. Once open it never throws: what cannot be read is the end.
#pragma once

#include <QByteArray>
#include <memory>
#include <vector>

#include "sound/decoding/SoundBytes.h"

namespace neb {

struct SoundPiece {
    qint64 First = 0, Length = 0;  // bytes
};

class SoundSource {
  public:
    explicit SoundSource(std::unique_ptr<SoundBytes> Bytes);

    qint64 Length() const { return mLength; }  // bytes
    qint64 Place() const { return mPlace; }    // bytes, 0 to Length()

    // From now on only these bytes are there, at most; the place is their start.
    void Narrow(qint64 First, qint64 Length);
    // Of what Narrow left, these pieces alone, one behind the other, in place of those kept before;
    // none: all of it. The place is the start.
    void Keep(const std::vector<SoundPiece>& Pieces);
    // Bytes that are to be read in place of those in the file, at a place.
    void Correct(qint64 At, const QByteArray& Bytes);
    qint64 Read(void* Into, qint64 MaxLength);  // bytes read: fewer at the end alone, then 0
    // As fseek does it: SEEK_SET, SEEK_CUR, SEEK_END. The new place, or -1 and all as before for
    // one that is not in the file.
    qint64 Seek(qint64 Offset, int Whence);
    // The bytes at a place, fewer at the end; the place stays.
    QByteArray Peek(qint64 At, qint64 MaxLength);

  private:
    struct Part {
        qint64 Start;       // in what is there
        SoundPiece InFile;  // in the whole file
    };
    const Part& PartAt(qint64 Place) const;
    qint64 ReadFile(char* Into, qint64 At, qint64 MaxLength);
    bool LoadBlock(qint64 At);

    std::unique_ptr<SoundBytes> mBytes;
    SoundPiece mWindow;  // what Narrow left
    std::vector<Part> mParts;
    qint64 mCorrectAt = 0;  // in the whole file
    QByteArray mCorrect;
    qint64 mLength = 0;
    qint64 mPlace = 0;
    QByteArray mBlock;  // what was read last, from mBlockAt of the whole file
    qint64 mBlockAt = 0;
};

}  // namespace neb
