// As TempFolder, but in the host's memory where it offers such a place: for tests that write and
// flush so often that a busy disk would take minutes.
#pragma once

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

namespace neb::harness {

class MemoryFolder {
  public:
    QString Path() const { return mDir.path() + u'/'; }
    QString operator/(const QString& Name) const { return Path() + Name; }

  private:
    static QString Place() {
        const QFileInfo Memory(QStringLiteral("/dev/shm"));
        const bool Usable = Memory.isDir() && Memory.isWritable();
        return (Usable ? Memory.filePath() : QDir::tempPath()) + QStringLiteral("/nebtest-XXXXXX");
    }
    QTemporaryDir mDir{Place()};
};

}  // namespace neb::harness
