// The hostile program for tests, and what becomes of it.
#pragma once

#include <gtest/gtest.h>

#include <QtGlobal>
#include <cstring>

#include "harness/Sanitizer.h"
#include "support/locked/LockedPool.h"
#include "support/locked/hostile/HostileTalk.h"

namespace neb {

inline LockedProgram HostileProgram() {
    constexpr qint64 Bytes = 1 << 20;
    return {QStringLiteral(NEB_BINARY_DIR "/tests/neb-hostile-room"), "", Bytes, Bytes};
}

// What the hostile program is told by, for as long as this lives.
class Told {
  public:
    Told(const char* Name, const QByteArray& Value) : mName(Name) { qputenv(Name, Value); }
    ~Told() { qunsetenv(mName); }
    Told(const Told&) = delete;
    Told& operator=(const Told&) = delete;

  private:
    const char* mName;
};

constexpr LockedAllowance Plenty = {64 << 20, 20, 60};

struct Outcome {
    LockedEnd End = LockedEnd::None;
    bool Answered = false;
    qint64 Result = 0, Error = 0;
};

struct Task {
    Deed What = Deed::Greet;
    std::array<std::int64_t, 5> Arguments = {};
    QByteArray Text = {};
    LockedAllowance Allowance = Plenty;
};

inline Outcome OutcomeOf(LockedProcess& Process, const Task& Its) {
    std::memcpy(Process.In(), Its.Text.constData(), static_cast<size_t>(Its.Text.size()) + 1);
    const auto& [A, B, C, D, E] = Its.Arguments;
    Process.Allow(Its.Allowance);
    Process.Send(LockedMessage(HostileKind::Do, {std::int64_t(Its.What), A, B, C, D, E}));
    const auto Said = Process.Receive();
    if (!Said) return {Process.End()};
    return {Process.End(), true, Said->Numbers[0], Said->Numbers[1]};
}

inline Outcome OutcomeOf(const Task& Its) {
    LockedProcess Process(HostileProgram());
    return OutcomeOf(Process, Its);
}

// In a build that is watched there is no filter and no limit of memory.
#define SKIP_WHERE_WATCHED() \
    if (harness::RunsUnderSanitizer) GTEST_SKIP() << "no filter in a build with sanitizers"

}  // namespace neb

// For the messages of tests.
namespace neb {
inline void PrintTo(LockedEnd End, std::ostream* To) {
    constexpr const char* Names[] = {"None",   "Crashed", "Forbidden",
                                     "Killed", "TooLong", "Nonsense"};
    *To << Names[static_cast<int>(End)];
}
inline void PrintTo(const LockReport& Is, std::ostream* To) {
    *To << "calls " << Is.SystemCalls << ", Landlock " << Is.Landlock << ", root " << Is.EmptyRoot
        << ", network " << Is.OwnNetwork << ", privileges " << Is.NoNewPrivileges << ", limits "
        << Is.Limits;
}
}  // namespace neb
