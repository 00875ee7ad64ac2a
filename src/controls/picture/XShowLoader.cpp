#include "controls/picture/XShowLoader.h"

#include <QDateTime>
#include <QMutex>
#include <optional>

#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

QMutex gReaderLock;

PictureReader& Reader() {
    static PictureReader Instance;
    return Instance;
}

LoadedPicture ReadAndFit(const PictureReader& Read, const QString& File,
                         const XShowLayout& Layout) {
    if (!Read) throw Fault(QStringLiteral("There is nothing that reads pictures."), File);
    LoadedPicture P;
    P.Source = AsOpaque(Read(File));
    if (P.Source.isNull()) throw Fault(QStringLiteral("The picture cannot be read."), File);
    P.Fitted = FitToView(P.Source, Layout);
    P.Layout = Layout;
    return P;
}

PictureReader ReaderNow() {
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

struct XShowLoader::Ahead {
    QString File;
    FileState State;
    std::shared_future<LoadedPicture> Result;
};

XShowLoader::XShowLoader() {
    mPool.setMaxThreadCount(2);
}

XShowLoader::~XShowLoader() {
    mPool.clear();
    mPool.waitForDone();
}

void XShowLoader::SetReader(PictureReader NewReader) {
    const QMutexLocker Lock(&gReaderLock);
    Reader() = std::move(NewReader);
}

void XShowLoader::Prefetch(const QString& File, const XShowLayout& Layout) {
    const FileState State = StateOf(File);
    if (mAhead && mAhead->File == File && mAhead->State == State) return;
    mPool.clear();
    const auto Task = std::make_shared<std::packaged_task<LoadedPicture()>>(
        [Read = ReaderNow(), File, Layout] { return ReadAndFit(Read, File, Layout); });
    mAhead = std::make_unique<Ahead>(Ahead{File, State, Task->get_future().share()});
    mPool.start([Task] { (*Task)(); });
}

LoadedPicture XShowLoader::Load(const QString& File, const XShowLayout& Layout) {
    const std::unique_ptr<Ahead> Ready = std::move(mAhead);
    if (Ready && Ready->File == File && Ready->State == StateOf(File)) return Ready->Result.get();
    return ReadAndFit(ReaderNow(), File, Layout);
}

}  // namespace neb
