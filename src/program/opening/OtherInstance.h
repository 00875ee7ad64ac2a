// The program once more, in a process of its own, on another database than the one that is open:
// for a folder of albums that is dropped on the main window. The program's entry says how it is
// started; until then nothing is.
#pragma once

#include <QStringList>
#include <functional>

namespace neb {

// False when nothing could be started.
using InstanceStarter = std::function<bool(const QStringList& Arguments)>;
InstanceStarter& TheInstanceStarter();

// The program's own file, which goes on when this one ends.
bool StartOwnProgram(const QStringList& Arguments);

// Opens a database directory there; false when nothing could be started.
bool OpenInOtherInstance(const QString& Database);

}  // namespace neb
