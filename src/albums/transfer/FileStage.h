// The files of a transfer: looked for in the source, copied below the destination's Temp at full
// speed on a thread of their own, and gone again unless they are kept. For TransferRun, and
// DiscFolder, which looks at all of its transfers first.
#pragma once

#include <functional>
#include <optional>

#include "albums/transfer/TransferPlan.h"
#include "albums/transfer/TransferProgress.h"
#include "support/Fault.h"

namespace neb {

// Asked many times a second on the caller's thread; false stops.
using TransferGoOn = std::function<bool(const TransferProgress& Now)>;

struct FoundFile {
    QString From;  // as the host has it
    QString To;    // relative to the destination
    qint64 Bytes;
    bool IsPicture;
    QByteArray Sum = {};  // its check sum as the source's album has it; empty: none
};

struct FilesLookedFor {
    std::vector<FoundFile> Found;
    std::vector<size_t> Missing;    // of the files that were asked for; thumbnails are never missed
    QStringList Old;                // what the masks match, full paths
    std::optional<Fault> Obstacle;  // why a file cannot have its place at the destination
    qint64 Room = -1;               // bytes free where they are to go; -1 when it is not known
};
// What there is to do before anything is done.
TransferProgress AllOf(const std::vector<FoundFile>& Files);
// Looks in the source, and at the places in the destination, beside the caller. Nothing when it was
// stopped.
std::optional<FilesLookedFor> LookForFiles(const TransferPlan& Plan, const QString& DstDBPath,
                                           const TransferGoOn& GoOn);

// Refused where so many bytes are more than the room that was found; -1 for room: not known.
Answer<> CheckRoom(qint64 Needed, qint64 Room, const QString& DstDBPath);

class FileStage {
  public:
    FileStage(const QString& DBPath, const std::vector<FoundFile>& Files);
    ~FileStage();  // all that was made below Temp goes, unless it is kept
    FileStage(const FileStage&) = delete;
    FileStage& operator=(const FileStage&) = delete;

    // Copies all files, flushed; false when it was stopped. Throws Fault.
    bool Copy(const TransferGoOn& GoOn);
    // The check sum of one of them, once all are copied: that which the source's album has of it,
    // so that damage done before is not taken for the file itself; else that of the copy.
    const QByteArray& SumOf(size_t Which) const { return mSums[Which]; }
    // Of one of the files, in the staging folder.
    QString NameOf(size_t Which) const { return QString::number(Which); }
    void Keep() { mIsOurs = false; }  // what is staged belongs to a journal now

  private:
    const QString mDBPath;
    const std::vector<FoundFile>& mFiles;
    std::vector<QString> mMadeFolders;  // from the innermost
    std::vector<QByteArray> mSums;
    bool mIsOurs = false;
};

}  // namespace neb
