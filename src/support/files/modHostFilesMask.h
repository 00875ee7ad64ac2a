// What walks over many files ask of each: whether its name matches, and its size and date at little
// cost. Used by the listing of modHostFiles and by the search for pictures.
#pragma once

#include <QString>
#include <optional>

namespace neb {

// A wild-card mask for names, case-blind: "*" is any run of characters, "?" one; "*.*" matches
// every name.
class NameMask {
  public:
    explicit NameMask(const QString& Mask);
    bool Matches(const QString& Name) const;
    // How every name that matches begins, upper-cased; empty when they differ.
    QString Start() const;

  private:
    QString mUpper;
};

struct FileFacts {
    qint64 Size = 0;     // bytes
    qint64 Changed = 0;  // seconds since the start of 1970, universal time
};
// For walks over many files: the path is taken as it is written. None when this is no ordinary
// file or may not be read.
std::optional<FileFacts> ReadableFileFacts(const QString& Path);

}  // namespace neb
