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
    // What is found where a path leads.
    struct Place {
        QString Dir;  // of the database that is meant: for a documents folder the one below it
        bool IsOpen = false;         // here
        bool IsOpenBeside = false;   // in one of the other windows
        bool IsOwn = false;          // the program's
        bool HoldsDatabase = false;  // no matter whose
        QStringList NotThere = {};   // the folders that opening will make, the innermost first
    };
    // Looks beside the caller, whose window goes on painting: a stick that sleeps takes seconds.
    // Beside: the directories that other windows have open. Throws Fault.
    Place LookAt(const QString& Path, const QStringList& Beside) const;

    // Lets go of what was open and opens what was found. Refused or a Fault: none is open.
    Answer<> Open(const Place& Found, OtherDatabase::Use For);
    // Folders that were made for the opening, and in which there is nothing, go again.
    void Close();
    void KeepFolders() { mMadeFolders.clear(); }

    clsDBEngine* Engine() const;  // null: none is open
    // Set when it is not the program's own.
    const std::shared_ptr<OtherDatabase>& Foreign() const { return mForeign; }
    bool IsOwn() const { return mIsOwn; }
    const QString& Dir() const { return mDir; }  // as it was opened; empty: none is open

    // Those that still look at an album of it are filled anew.
    void Remember(const std::shared_ptr<ViewerForm>& Viewer) { mViewers.push_back(Viewer); }
    void RefillViewers(std::int32_t AlbumID);

  private:
    void TakeBackFolders();

    std::shared_ptr<OtherDatabase> mForeign;
    bool mIsOwn = false;
    QString mDir;
    QStringList mMadeFolders;  // the innermost first
    std::vector<std::weak_ptr<ViewerForm>> mViewers;
};

}  // namespace neb
