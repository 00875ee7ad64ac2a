// Files opened and looked at under whatever name the host has for them: for the host file routines
// alone. The toolkit's own classes know names that are text, and lose any other.
#pragma once

#include <sys/stat.h>

#include <QDateTime>
#include <QFile>
#include <optional>

namespace neb {

// A file to read or write by a path that may hold any bytes.
class HostFile : public QFile {
  public:
    explicit HostFile(const QString& Path = {}) : mPath(Path) {}

    void setFileName(const QString& Path) { mPath = Path; }
    QString fileName() const override { return mPath; }

    // The error text tells why not.
    bool open(OpenMode Mode) override;
    bool Delete();
    // Gives and takes the rights named here, all others stay.
    bool ChangeRights(mode_t Give, mode_t Take);

  private:
    bool Fail();  // false

    QString mPath;
};

// What the host has under a path, as it is written; one question to the host.
class HostInfo {
  public:
    explicit HostInfo(const QString& Path);

    const QString& Path() const { return mPath; }
    bool Exists() const { return mIs.has_value(); }  // a link: what it leads to
    bool IsFolder() const { return mIs && S_ISDIR(mIs->st_mode); }
    bool IsFile() const { return mIs && S_ISREG(mIs->st_mode); }
    bool IsLink() const;  // whatever it leads to
    qint64 Size() const { return mIs ? mIs->st_size : 0; }
    mode_t Rights() const { return mIs ? mIs->st_mode : 0; }
    QDateTime Changed() const;  // none where there is nothing

  private:
    QString mPath;
    std::optional<struct stat> mIs;
};

}  // namespace neb
