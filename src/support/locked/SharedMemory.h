// Memory that the program and a locked process both see. Its length is fixed, so that neither can
// pull it from under the other. For LockedProcess alone.
#pragma once

#include <QByteArrayView>

#include "support/locked/Descriptor.h"

namespace neb {

class SharedMemory {
  public:
    // ForReading: the other writes it; else it can only read. Throws std::bad_alloc, or Fault where
    // the system has no such memory.
    SharedMemory(const char* Name, qint64 Bytes, bool ForReading);
    ~SharedMemory();
    SharedMemory(const SharedMemory&) = delete;
    SharedMemory& operator=(const SharedMemory&) = delete;

    int File() const { return *mFile; }
    uchar* At() const { return mAt; }
    qint64 Bytes() const { return mBytes; }
    // Both throw std::bad_alloc, where a plain look could end the program for want of memory.
    void Put(qint64 At, QByteArrayView Its);
    void Take(qint64 At, void* To, qint64 Length) const;
    // Where it lies, if every byte of it has been written; else null: a look at the others would
    // take memory.
    const uchar* Written(qint64 At, qint64 Length) const;
    // Takes from the system what a photograph needs, before one comes.
    void MakeRoom() const;
    // Gives back what one large picture has taken.
    void Trim();

  private:
    bool HasRoom(qint64 At, qint64 Length) const;

    Descriptor mFile;
    uchar* mAt = nullptr;
    qint64 mBytes;
};

}  // namespace neb
