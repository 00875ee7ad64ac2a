// A directory that lives as long as a test's object, with paths ending in a separator.
#pragma once

#include <QString>
#include <QTemporaryDir>

namespace neb::harness {

class TempFolder {
  public:
    QString Path() const { return mDir.path() + u'/'; }
    QString operator/(const QString& Name) const { return Path() + Name; }

  private:
    QTemporaryDir mDir;
};

// The folder of data files that lie with the tests.
inline QString DataFile(const char* Name) {
    return QStringLiteral(NEB_SOURCE_DIR "/tests/data/") + QString::fromLatin1(Name);
}

}  // namespace neb::harness
