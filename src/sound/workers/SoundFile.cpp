#include "sound/workers/SoundFile.h"

#include "support/Fault.h"

namespace neb {

qint64 SoundFile::ReadAt(qint64 At, char* Into, qint64 MaxLength) try {
    mReader.Seek(At);
    return mReader.Read(Into, MaxLength);
} catch (const Fault&) {
    return 0;
}

}  // namespace neb
