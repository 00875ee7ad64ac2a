#include "tools/words/modLocking.h"

namespace neb {
namespace {

QString WhyNot(const LockAnswer& Is, const QString& Dir) {
    if (Is.Is == LockAnswer::State::CannotLock)
        return QStringLiteral("The database in %1 cannot be locked: %2.").arg(Dir, Is.Reason);
    if (Is.Is == LockAnswer::State::HeldHere)
        return QStringLiteral("The database in %1 is in use by the program.").arg(Dir);
    return QStringLiteral(
               "The database in %1 is in use on the computer \"%2\", or a program that "
               "crashed there has left it so. Only when none is running there, go on "
               "with --take-over.")
        .arg(Dir, Is.Machine);
}

}  // namespace

FromElsewhere TakeOver(QStringList& Words) {
    return Words.removeAll(QStringLiteral("--take-over")) > 0 ? FromElsewhere::IsTakenOver
                                                              : FromElsewhere::Counts;
}

bool TakeLock(InstanceLock& Lock, const QString& Dir, FromElsewhere Other, ToolIO& IO) {
    const LockAnswer Is = Lock.TryLock(Other);
    if (!Is) Fail(IO, WhyNot(Is, Dir));
    return static_cast<bool>(Is);
}

}  // namespace neb
