// Has pictures read by locked processes. The reader of the program. Safe on any thread.
#pragma once

#include "pictures/workers/CrashBook.h"
#include "pictures/workers/PictureReading.h"
#include "support/locked/LockedPool.h"

namespace neb {

class ReadingLocked : public PictureReader {
  public:
    ReadingLocked();
    // Others in their place; for tests.
    ReadingLocked(const LockedProgram& Pictures, const LockedProgram& Drawings,
                  const LockedProgram& Metafiles);

    DecodedPicture Decode(const QByteArray& Bytes, const NeededSize& Needed) override;
    std::optional<QByteArray> Turned(const QByteArray& Jpeg, PictureTurn Turn) override;
    QByteArray NotesFor(QSize Pixels, const QByteArray& Source, bool KeepsPlace) override;
    QByteArray WithoutPlace(const QByteArray& Jpeg) override;

    // An enhanced metafile as SVG: for who draws it, wherever that is. Throws Fault.
    QByteArray SvgOf(const QByteArray& Emf);

    // One is made ready beside the caller, for the first picture.
    void WarmUp() { mPictures.WarmUp(); }
    // How far the processes are locked. Throws Fault where none can be started.
    LockReport Report() { return mPictures.Report(); }

  private:
    class Reading;

    LockedPool mPictures;   // from bytes to pixels and to other bytes
    LockedPool mDrawings;   // WMF and EMF, with all fonts of the system
    LockedPool mMetafiles;  // EMF to SVG
    CrashBook mCrashes;
};

// The one of the program.
ReadingLocked& TheLockedReading();

}  // namespace neb
