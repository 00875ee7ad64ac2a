#include "harness/HostileReading.h"

#include <QFile>
#include <memory>
#include <vector>

#include "pictures/workers/ReadingLocked.h"
#include "support/files/modHostFiles.h"

namespace neb::harness {
namespace {

// Kept to the end of the process: threads of windows that are gone may still be reading.
ReadingLocked& Made(const ReadingCosts& Costs, const QString& Log) {
    static auto* const All = new std::vector<std::unique_ptr<ReadingLocked>>;
    qputenv("NEB_HOSTILE_LOG", QFile::encodeName(Log));
    const LockedProgram Program = HostileReading::Program();
    All->push_back(std::make_unique<ReadingLocked>(Program, Program, Program, Costs));
    return *All->back();
}

}  // namespace

HostileReading::HostileReading(const ReadingCosts& Costs)
    : mLog(mDir / QStringLiteral("log")), mReader(Made(Costs, mLog)) {}

HostileReading::~HostileReading() {
    SetPictureReader(nullptr);
    qunsetenv("NEB_HOSTILE_LOG");
}

LockedProgram HostileReading::Program() {
    return ReadingLocked::ProgramAt(QStringLiteral(NEB_BINARY_DIR "/tests/hostile/neb-hostile"),
                                    "hostile");
}

void HostileReading::TakeOver() {
    SetPictureReader(&mReader);
}

int HostileReading::Started() const {
    return FileExists(mLog) ? static_cast<int>(ReadFile(mLog).count('\n')) : 0;
}

}  // namespace neb::harness
