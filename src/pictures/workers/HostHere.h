// What decoding asks for, given in this very process, but for metafiles: these are converted behind
// the door as ever. For who decodes without a door: tests, and what looks for faults in decoders.
#pragma once

#include "pictures/formats/DecodeHost.h"
#include "pictures/workers/ReadingLocked.h"

namespace neb {

class HostHere : public DecodeHost {
  public:
    void Acquire(QSize Size, qint64 Bytes) override { AcquireMemory(Size, Bytes); }
    void Release(QSize, qint64 Bytes) override { ReleaseMemory(Bytes); }
    QByteArray SvgOf(const QByteArray& Emf) override { return TheLockedReading().SvgOf(Emf); }
};

}  // namespace neb
