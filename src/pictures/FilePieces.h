// A foreign file of which single pieces are wanted: no more of it is read than those, and never
// much. Used by what learns a picture's proportions.
#pragma once

#include <QByteArray>
#include <functional>

namespace neb {

class FilePieces {
  public:
    // So many bytes from a place of the file; fewer at its end. May throw Fault.
    using ReadBytes = std::function<QByteArray(qint64 At, qint64 Length)>;
    explicit FilePieces(ReadBytes Read, qint64 Start = 0) : mRead(std::move(Read)), mStart(Start) {}

    // As much of the piece as there is; nothing any more once a file has led us to so many places
    // that it makes no sense.
    QByteArray Piece(qint64 At, qint64 Length);
    // What begins at that place, as a file of its own.
    FilePieces From(qint64 At) const { return FilePieces(mRead, mStart + At); }

  private:
    bool IsHeld(qint64 At, qint64 Length) const;

    ReadBytes mRead;
    qint64 mStart;
    QByteArray mHeld;  // what was read last
    qint64 mHeldAt = 0, mHeldTo = 0;
    int mReads = 0;
    qint64 mBytes = 0;
};

}  // namespace neb
