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

    static QString Place() {
        const QFileInfo Memory(QStringLiteral("/dev/shm"));
        const bool Usable = Memory.isDir() && Memory.isWritable();
        return Usable ? Memory.filePath() : QDir::tempPath();
    }

  private:
    QTemporaryDir mDir{Place() + QStringLiteral("/nebtest-XXXXXX")};
};

// While it lives all new folders of tests lie there: the first base of a rig that has several.
class TempInMemory {
  protected:
    TempInMemory() { qputenv("TMPDIR", MemoryFolder::Place().toUtf8()); }
    ~TempInMemory() { mHad ? qputenv("TMPDIR", mBefore) : qunsetenv("TMPDIR"); }
    Q_DISABLE_COPY_MOVE(TempInMemory)

  private:
    const bool mHad = qEnvironmentVariableIsSet("TMPDIR");
    const QByteArray mBefore = qgetenv("TMPDIR");
};

}  // namespace neb::harness
