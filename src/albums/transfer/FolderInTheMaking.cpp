#include "albums/transfer/FolderInTheMaking.h"

#include "support/Fault.h"
#include "support/files/CheckSums.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"
#include "support/work/WorkAside.h"

namespace neb {
namespace {

QString TopOfMissing(const QString& Dir) {
    QString Top;
    for (QString Each = Dir; !Each.isEmpty() && !FolderExists(Each); Each = GetParentDir(Each))
        Top = Each;
    return Top;
}

QString MarkOf(const QString& Dir) {
    return Dir + QLatin1String(SumsName) + QStringLiteral(".new");
}

void Empty(const QString& Dir, const QString& Made) {
    if (!Made.isEmpty()) return DeleteTree(Made);
    for (const DirEntry& Each : ListDir(Dir))
        if (Each.IsFolder && !Each.IsLink) DeleteTree(Dir + Each.Name);
    DeleteFilesIn(Dir);
}

}  // namespace

FolderInTheMaking::FolderInTheMaking(const QString& Dir) : mDir(Dir), mMade(TopOfMissing(Dir)) {
    try {
        MakeDirs(mDir);
        if (IsUnfinished(mDir)) FinishAside([Dir] { Empty(Dir, {}); }).get();
        WriteFile(MarkOf(mDir), {});
    } catch (const Fault&) {
        TakeBack();
        throw;
    }
}

bool FolderInTheMaking::IsUnfinished(const QString& Dir) {
    return FileExists(MarkOf(Dir)) && !FileExists(Dir + QLatin1String(SumsName));
}

FolderInTheMaking::~FolderInTheMaking() {
    if (!mKept) TakeBack();
}

// Thousands of files on a slow stick take their time.
void FolderInTheMaking::TakeBack() const noexcept {
    try {
        FinishAside([Dir = mDir, Made = mMade] { Empty(Dir, Made); }).get();
    } catch (const std::exception&) {
        return;  // what has brought us here is what there is to tell
    }
}

}  // namespace neb
