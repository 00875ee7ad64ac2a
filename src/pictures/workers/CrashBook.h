// Files that have brought down the process that read them, by their content. Three times are
// enough: then a file is not tried again before the program is started anew. Safe on any thread.
#pragma once

#include <QByteArray>
#include <map>
#include <mutex>

namespace neb {

class CrashBook {
  public:
    static constexpr int MostCrashes = 3;

    bool IsGivenUp(const QByteArray& Bytes) const;
    void Note(const QByteArray& Bytes);

  private:
    bool IsLengthKnown(qint64 Length) const;

    mutable std::mutex mLock;
    // Sums are made for files of these lengths alone.
    std::map<qint64, std::map<QByteArray, int>> mBySize;
};

}  // namespace neb
