// How a command that writes opens its database: looked at first, locked, read, its counters above
// all that is there. A damaged one is refused, unless the user has said which way out to take; the
// words are those of the program's own window. Used by every such command.
#pragma once

#include <QStringList>
#include <memory>
#include <optional>

#include "db/clsDBEngine.h"
#include "support/files/InstanceLock.h"
#include "tools/words/ToolIO.h"

namespace neb {

// What is to become of a database that turns out to be damaged.
enum class Mend { Not, GoOn, Restore };

// What the user has said about a database that cannot be opened without a word.
struct OpenWays {
    Mend How = Mend::Not;
    FromElsewhere Other = FromElsewhere::Counts;  // a lock of another computer
};

// Takes --go-on, --restore and --take-over out of the words; nothing after a line on Err when the
// first two are both there.
std::optional<OpenWays> TakeWays(QStringList& Words, ToolIO& IO);

// Mends a damaged database as Ways say; false after lines on Err, also where it may not be written.
// The caller has no lock on it. Throws Fault.
bool IsSoundOrMended(const QString& Dir, OpenWays Ways, ToolIO& IO);

// Says on Err what the opening of a database made of what a session or a write had left there: who
// is not told of changes that were put aside never looks for them.
void TellLeftBehind(ToolIO& IO, const LeftBehind& Found);

class ToolDatabase {
  public:
    // Nothing after lines on Err: it is damaged, read-only or in use. Throws Fault.
    static std::unique_ptr<ToolDatabase> Open(const QString& Dir, OpenWays Ways, ToolIO& IO);
    clsDBEngine& Engine() { return mEngine; }

  private:
    explicit ToolDatabase(const QString& Dir);

    InstanceLock mLock;
    clsDBEngine mEngine;
};

}  // namespace neb
