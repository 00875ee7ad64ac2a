// What the decoding of a picture asks of the place where it is done: memory, and the help of
// another process. In a program of our own that is the program itself; behind a locked door it is
// whoever stands before it. Used by the decoders.
#pragma once

#include <QByteArray>
#include <QSize>

namespace neb {

class DecodeHost {
  public:
    virtual ~DecodeHost() = default;
    // Room for so many bytes, from here to the call of Release. Waits while others have too much.
    // Throws FaultTooLarge where a picture of that size is beyond all limits.
    virtual void Acquire(QSize Size, qint64 Bytes) = 0;
    virtual void Release(QSize Size, qint64 Bytes) = 0;
    // Where the pixels of a large picture may be put at once, instead of into memory of its own,
    // until its decoding is done; null: nowhere. One at a time.
    virtual uchar* PlaceFor(qint64) { return nullptr; }
    // An enhanced metafile as SVG. Throws Fault when it is damaged.
    virtual QByteArray SvgOf(const QByteArray& Emf) = 0;
};

// Outlives all decoding. Set once, before the first picture; without it memory is shared among the
// threads of this process, and there is no help with metafiles.
void SetDecodeHost(DecodeHost& Host);
DecodeHost& TheDecodeHost();

// Bytes of memory that all decoding together may take, shared among the threads of this process.
// Throws FaultTooLarge when the picture alone is beyond it.
void AcquireMemory(QSize Size, qint64 Bytes);
void ReleaseMemory(qint64 Bytes);

}  // namespace neb
