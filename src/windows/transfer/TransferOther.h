// The database on the other side of a transfer window: another one, open as long as it is chosen,
// or the program's own under whatever path it was named. Knows the viewers that look into it.
#pragma once

#include <memory>
#include <vector>

#include "albums/transfer/OtherDatabase.h"

namespace neb {

class ViewerForm;

class TransferOther {
  public:
    // What a user means by what he has typed or pasted: a path, "~" for his home, an address of
    // "file:"; a documents folder is the database below it. With closing separator.
    static QString DirectoryMeant(const QString& Typed);

    // Lets go of what was open and opens the directory's database. Refused or a Fault: none is
    // open.
    Answer<> Open(const QString& Dir, OtherDatabase::Use For);
    void Close();

    clsDBEngine* Engine() const;  // null: none is open
    // Set when it is not the program's own.
    const std::shared_ptr<OtherDatabase>& Foreign() const { return mForeign; }
    bool IsOwn() const { return mIsOwn; }
    const QString& Dir() const { return mDir; }  // as it was opened; empty: none is open
    bool Is(const QString& Dir) const;           // whether it is this directory's that is open

    // Those that still look at an album of it are filled anew.
    void Remember(const std::shared_ptr<ViewerForm>& Viewer) { mViewers.push_back(Viewer); }
    void RefillViewers(std::int32_t AlbumID);

  private:
    std::shared_ptr<OtherDatabase> mForeign;
    bool mIsOwn = false;
    QString mDir;
    std::vector<std::weak_ptr<ViewerForm>> mViewers;
};

}  // namespace neb
