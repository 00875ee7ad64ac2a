// Reads pictures in this very process: what stands behind the door, and for tests that have no use
// for one. A program that links this brings all decoders along.
#pragma once

#include "pictures/workers/PictureReading.h"

namespace neb {

class ReadingHere : public PictureReader {
  public:
    DecodedPicture Decode(const QByteArray& Bytes, const NeededSize& Needed) override;
    std::optional<QByteArray> Turned(const QByteArray& Jpeg, PictureTurn Turn) override;
    QByteArray NotesFor(QSize Pixels, const QByteArray& Source, bool KeepsPlace) override;
    QByteArray WithoutPlace(const QByteArray& Jpeg) override;
    bool IsScreenProfile(const QByteArray& Profile) override;
};

}  // namespace neb
