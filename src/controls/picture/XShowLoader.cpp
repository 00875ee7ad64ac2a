#include "controls/picture/XShowLoader.h"

#include <QDateTime>
#include <QMutex>
#include <optional>
#include <utility>

#include "support/Fault.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

constexpr int WaitForReadersMs = 1000;

QMutex gReaderLock;

ShownReader& Reader() {
    static ShownReader Instance;
    return Instance;
}

LoadedPicture ReadAndFit(const ShownReader& Read, const QString& File, const XShowLayout& Layout) {
    if (!Read) throw Fault(tr("There is nothing that reads pictures."), File);
    LoadedPicture P;
    P.Source = AsOpaque(Read(File));
    if (P.Source.isNull()) throw Fault(tr("The picture cannot be read."), File);
    P.Fitted = FitToView(P.Source, Layout);
    P.Layout = Layout;
    return P;
}

ShownReader ReaderNow() {
    const QMutexLocker Lock(&gReaderLock);
    return Reader();
}

// What tells that a file is still the one that was read ahead.
struct FileState {
    std::optional<QDateTime> Time;
    qint64 Size;
    bool operator==(const FileState&) const = default;
};

FileState StateOf(const QString& File) {
    return {FileTime(File), FileSize(File)};
}

}  // namespace

struct XShowLoader::Reading {
    FileState State;
    LoadedPicture Picture;
    std::exception_ptr Problem;
};

void XShowLoader::SetReader(ShownReader NewReader) {
    const QMutexLocker Lock(&gReaderLock);
    ReadThreads::AwaitAll(WaitForReadersMs);
    Reader() = std::move(NewReader);
}

// Even the look at what has become of a file may hang, and is taken on the thread.
XShowLoader::Result XShowLoader::Put(ReadThreads::Kind Of, const QString& File,
                                     const XShowLayout& Layout, Result Before) {
    using Shared = std::shared_ptr<const Reading>;
    const auto Work = [Read = ReaderNow(), File, Layout, Before]() -> Shared {
        if (Before.valid() && Before.get()->State == StateOf(File)) return Before.get();
        Reading R{StateOf(File), {}, {}};
        try {
            R.Picture = ReadAndFit(Read, File, Layout);
        } catch (const Fault&) {
            R.Problem = std::current_exception();
        }
        return std::make_shared<const Reading>(std::move(R));
    };
    const auto Task = std::make_shared<std::packaged_task<Shared()>>(Work);
    Result Coming = Task->get_future().share();
    mThreads.Put(Of, File, [Task] { (*Task)(); });
    return Coming;
}

void XShowLoader::Prefetch(const QString& File, const XShowLayout& Layout) {
    using namespace std::chrono_literals;
    const bool Same = mAhead.valid() && mAheadFile == File;
    if (Same && mAhead.wait_for(0s) != std::future_status::ready) return;
    mAhead = Put(ReadThreads::Kind::Ahead, File, Layout, Same ? mAhead : Result());
    mAheadFile = File;
}

void XShowLoader::Begin(const QString& File, const XShowLayout& Layout) {
    const bool HasBegun = !mThreads.Withdraw(ReadThreads::Kind::Ahead);
    const Result Ahead = std::exchange(mAhead, {});
    const bool Useful = HasBegun && mAheadFile == File;
    mBegun = Put(ReadThreads::Kind::Wanted, File, Layout, Useful ? Ahead : Result());
}

bool XShowLoader::Wait(int Milliseconds) {
    mThreads.GoOn();
    return mBegun.wait_for(std::chrono::milliseconds(Milliseconds)) == std::future_status::ready;
}

LoadedPicture XShowLoader::Take() {
    const Result Came = std::exchange(mBegun, {});
    if (Came.get()->Problem) std::rethrow_exception(Came.get()->Problem);
    return Came.get()->Picture;
}

}  // namespace neb
