// A file without a name that takes what need not lie in memory, and that goes with the object, with
// the program too when that is ended: the import keeps the thumbnails of thousands of pictures
// there.
#pragma once

#include <QByteArray>
#include <memory>
#include <optional>

QT_BEGIN_NAMESPACE
class QTemporaryFile;
QT_END_NAMESPACE

namespace neb {

class SpoolFile {
  public:
    SpoolFile();
    ~SpoolFile();
    SpoolFile(const SpoolFile&) = delete;
    SpoolFile& operator=(const SpoolFile&) = delete;

    // Where the bytes lie from now on; nothing when there is no room for them.
    std::optional<qint64> Append(const QByteArray& Bytes);
    // So many bytes from there; fewer when they cannot be read.
    QByteArray Read(qint64 Place, qsizetype Length);

  private:
    bool Open();

    std::unique_ptr<QTemporaryFile> mFile;  // null before the first bytes
    qint64 mEnd = 0;
};

}  // namespace neb
