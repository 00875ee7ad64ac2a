#include "support/files/modHostFilesWalk.h"

#include <unistd.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "support/files/HiddenNames.h"
#include "support/files/HostNames.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesListing.h"

namespace neb {
namespace {

class Walker {
  public:
    Walker(bool Recurse, const FileWalk& Walk) : mRecurse(Recurse), mWalk(Walk) {}

    // Path ends in a separator. False when the walk was ended.
    bool Enter(const std::string& Path) {
        std::vector<std::string> Below;
        {
            OpenDir Dir(Path);  // closed before the walk goes deeper: open ones are scarce
            if (!Dir || !GoDown(Dir)) return true;
            if (!List(Dir, Below)) return false;
        }
        const bool WentOn = std::all_of(Below.begin(), Below.end(), [&](const std::string& Name) {
            return Enter(Path + Name + '/');
        });
        mWayDown.pop_back();
        return WentOn;
    }

  private:
    // False when the directory stands on the way down already.
    bool GoDown(const OpenDir& Dir) {
        struct stat Real = {};
        if (fstat(Dir.Number(), &Real) != 0) return false;
        const std::pair Identity(Real.st_dev, Real.st_ino);
        if (std::find(mWayDown.begin(), mWayDown.end(), Identity) != mWayDown.end()) return false;
        mWayDown.push_back(Identity);
        return true;
    }
    bool List(OpenDir& Dir, std::vector<std::string>& Below) {
        while (const dirent* Entry = Dir.Next()) {
            const std::string_view Name = Entry->d_name;
            if (IsDots(Entry->d_name)) continue;
            if (mRecurse || mWalk.Wants(Name)) Take(Dir, *Entry, Below);
            if (!mWalk.GoOn()) return false;
        }
        return true;
    }
    void Take(const OpenDir& Dir, const dirent& Entry, std::vector<std::string>& Below) {
        const std::string_view Name = Entry.d_name;
        const Kind What = KindOf(Dir, Entry);
        if (What == Kind::Other) return;
        if (What == Kind::Folder && mRecurse && !IsHiddenFolder(Name)) Below.emplace_back(Name);
        if (What != Kind::File || IsHiddenFile(Name) || !mWalk.Wants(Name)) return;
        if (faccessat(Dir.Number(), Entry.d_name, R_OK, AT_EACCESS) == 0) mWalk.Found();
    }

    bool mRecurse;
    const FileWalk& mWalk;
    std::vector<std::pair<dev_t, ino_t>> mWayDown;  // the directories above, and the present one
};

}  // namespace

void WalkFiles(const QString& Dir, bool Recurse, const FileWalk& Walk) {
    if (!Dir.isEmpty())
        Walker(Recurse, Walk).Enter(HostBytes(ResolvePath(Dir)).toStdString() + '/');
}

std::optional<std::uint64_t> MediumOf(const QString& Dir) {
    struct stat Found = {};
    if (stat(HostBytes(Dir).constData(), &Found) != 0 || !S_ISDIR(Found.st_mode)) return {};
    return Found.st_dev;
}

bool FolderNameLess(const QString& A, const QString& B) {
    const int Order = A.compare(B, Qt::CaseInsensitive);
    return Order != 0 ? Order < 0 : A < B;
}

QStringList ListFolders(const QString& Dir) {
    QStringList Names;
    OpenDir Open(HostBytes(Dir).toStdString());
    const dirent* Entry = nullptr;
    while (Open && (Entry = Open.Next()))
        if (Entry->d_name[0] != '.' && KindOf(Open, *Entry) == Kind::Folder)
            Names.append(HostName(Entry->d_name));
    std::sort(Names.begin(), Names.end(), &FolderNameLess);
    return Names;
}

}  // namespace neb
