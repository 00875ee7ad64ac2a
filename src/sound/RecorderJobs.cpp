#include "sound/RecorderJobs.h"

#include <QThreadPool>

#include "sound/clsDirectSound.h"

namespace neb {
namespace {

constexpr std::chrono::milliseconds Twinkling{50};

// Never ended: at the program's end it may be waiting for a sound server that hangs.
QThreadPool& Aside() {
    static QThreadPool* const Pool = [] {
        auto* One = new QThreadPool;
        One->setMaxThreadCount(1);
        return One;
    }();
    return *Pool;
}

}  // namespace

RecorderJobs::RecorderJobs() : mRecorder(std::make_shared<clsDirectSound>()) {}

RecorderJobs::~RecorderJobs() {
    Aside().start([Gone = std::move(mRecorder)]() mutable { Gone.reset(); });
}

void RecorderJobs::Begin(Operation Do) {
    const auto Task = std::make_shared<std::packaged_task<bool()>>(
        [Its = mRecorder, Do = std::move(Do)] { return Do(*Its); });
    mAnswer = Task->get_future();
    Aside().start([Task] { (*Task)(); });
    IsOver(Twinkling);
}

bool RecorderJobs::IsOver(std::chrono::milliseconds Most) const {
    return !mAnswer.valid() || mAnswer.wait_for(Most) == std::future_status::ready;
}

bool RecorderJobs::Answer() {
    return mAnswer.get();
}

bool RecorderJobs::AwaitAll(std::chrono::milliseconds Most) {
    return Aside().waitForDone(static_cast<int>(Most.count()));
}

}  // namespace neb
