// Has pictures read by locked processes. The reader of the program. Safe on any thread.
#pragma once

#include "pictures/workers/CrashBook.h"
#include "pictures/workers/OneReading.h"
#include "pictures/workers/PictureReading.h"
#include "support/locked/LockedPool.h"

namespace neb {

class ReadingLocked : public PictureReader {
  public:
    ReadingLocked();
    // Others in their place, and what a picture may cost there; for tests.
    ReadingLocked(const LockedProgram& Pictures, const LockedProgram& Drawings,
                  const LockedProgram& Metafiles, const ReadingCosts& Costs = {});
    // A program in the place of all three, with as much memory as the program's own; for tests.
    static LockedProgram ProgramAt(const QString& Path, const QByteArray& Role);

    DecodedPicture Decode(const QByteArray& Bytes, const NeededSize& Needed) override;
    std::optional<QByteArray> Turned(const QByteArray& Jpeg, PictureTurn Turn) override;
    QByteArray NotesFor(QSize Pixels, const QByteArray& Source, bool KeepsPlace) override;
    QByteArray WithoutPlace(const QByteArray& Jpeg) override;
    bool IsScreenProfile(const QByteArray& Profile) override;

    // An enhanced metafile as SVG: for who draws it, wherever that is. Throws Fault.
    QByteArray SvgOf(const QByteArray& Emf);

    // One is made ready beside the caller, for the first picture.
    void WarmUp() { mPictures.WarmUp(); }
    // How far the processes are locked, by what they read. Starts each. Throws Fault where one
    // cannot be started.
    std::vector<NamedLock> Reports();
    // Processes that wait for pictures; for tests.
    int Waiting() const { return mPictures.Waiting(); }

  private:
    template <class Take>
    auto Read(LockedPool& Pool, const OneReading::Task& Task, Take Result);
    std::optional<QByteArray> BytesOf(LockedPool& Pool, const OneReading::Task& Task);

    ReadingCosts mCosts;
    LockedPool mPictures;   // from bytes to pixels and to other bytes
    LockedPool mDrawings;   // WMF and EMF, with all fonts of the system
    LockedPool mMetafiles;  // EMF to SVG
    CrashBook mCrashes;
};

// The one of the program.
ReadingLocked& TheLockedReading();

}  // namespace neb
