#include "printing/FileBeside.h"

#include "support/Fault.h"

namespace neb {

FileBeside::FileBeside(const QString& Path)
    : mPath(Path), mBeside(ResolvePath(Path) + QStringLiteral(".new")) {
    mWriter.emplace(mBeside);
}

FileBeside::~FileBeside() {
    mWriter.reset();
    try {
        if (!mKept) DeleteFile(mBeside);
    } catch (const Fault&) {
        return;  // the fault before is the one to tell
    }
}

void FileBeside::TakePlace() {
    mWriter->Sync();
    mWriter->Close();
    RenameFile(mBeside, mPath);
    mKept = true;
}

}  // namespace neb
