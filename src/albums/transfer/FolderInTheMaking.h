// A folder while it is being filled: unless it is kept, all that was made of it goes, with the
// folders above that were not there either. For DiscFolder alone.
#pragma once

#include <QString>

namespace neb {

class FolderInTheMaking {
  public:
    // Dir, with closing separator, is empty, was not finished, or is not there; it is made, or
    // emptied. Throws Fault.
    explicit FolderInTheMaking(const QString& Dir);
    // Whether the program was cut off while it filled the folder. The mark is the list of check
    // sums, which comes last, under the name that it has while it is being made.
    static bool IsUnfinished(const QString& Dir);
    ~FolderInTheMaking();
    FolderInTheMaking(const FolderInTheMaking&) = delete;
    FolderInTheMaking& operator=(const FolderInTheMaking&) = delete;
    void Keep() { mKept = true; }

  private:
    void TakeBack() const noexcept;

    const QString mDir;
    const QString mMade;  // the uppermost directory that had to be made; empty: all were there
    bool mKept = false;
};

}  // namespace neb
