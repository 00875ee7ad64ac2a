#include "support/files/SpoolFile.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>

namespace neb {
namespace {

// On many systems /tmp lies in memory, which is what is to be spared here; whoever names a folder
// for temporary files in the environment knows why. Empty: there is none.
QString Folder() {
    const QString OnDisk = QStringLiteral("/var/tmp");
    const bool Named = !qEnvironmentVariableIsEmpty("TMPDIR");
    return !Named && QFileInfo(OnDisk).isWritable() ? OnDisk : QDir::tempPath();
}

}  // namespace

SpoolFile::SpoolFile() = default;
SpoolFile::~SpoolFile() = default;

// Where the system can, the toolkit makes a file that never had a name; elsewhere it deletes it.
// Without a buffer: what found no room would stay there, and stand in the way of all that follows.
bool SpoolFile::Open() {
    if (mFile) return mFile->isOpen();
    const QString Place = Folder();
    if (Place.isEmpty()) return false;
    mFile = std::make_unique<QTemporaryFile>(Place + QStringLiteral("/neb-XXXXXX"));
    return static_cast<QFile&>(*mFile).open(QIODevice::ReadWrite | QIODevice::Unbuffered);
}

std::optional<qint64> SpoolFile::Append(const QByteArray& Bytes) {
    if (!Open() || !mFile->seek(mEnd)) return std::nullopt;
    if (mFile->write(Bytes) != Bytes.size()) return std::nullopt;
    const qint64 Place = mEnd;
    mEnd += Bytes.size();
    return Place;
}

QByteArray SpoolFile::Read(qint64 Place, qsizetype Length) {
    if (!mFile || !mFile->seek(Place)) return {};
    return mFile->read(Length);
}

}  // namespace neb
