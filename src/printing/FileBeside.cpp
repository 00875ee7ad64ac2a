#include "printing/FileBeside.h"

#include "support/Fault.h"

namespace neb {
namespace {

// The user hears of the file that he has named: of the one beside it he knows nothing.
template <class Step>
void TellingOf(const QString& Path, const QString& Beside, const Step& Do) try {
    Do();
} catch (const Fault& Problem) {
    if (Problem.File() != Beside) throw;
    throw Fault(Problem.What(), Path, Problem.Number());
}

}  // namespace

FileBeside::FileBeside(const QString& Path)
    : mPath(Path), mBeside(ResolvePath(Path) + QStringLiteral(".new")) {
    TellingOf(mPath, mBeside, [this] { mWriter.emplace(mBeside); });
}

FileBeside::~FileBeside() {
    mWriter.reset();
    try {
        if (!mKept) DeleteFile(mBeside);
    } catch (const Fault&) {
        return;  // the fault before is the one to tell
    }
}

void FileBeside::Write(const char* Data, qint64 Length) {
    TellingOf(mPath, mBeside, [&] { mWriter->Write(Data, Length); });
}

void FileBeside::TakePlace() {
    TellingOf(mPath, mBeside, [this] {
        mWriter->Sync();
        mWriter->Close();
        RenameFile(mBeside, mPath);
    });
    mKept = true;
}

}  // namespace neb
