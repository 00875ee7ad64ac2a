// The entry of the program: refuses a second instance, makes the services and the main window,
// and runs the event loop.
#pragma once

#include <QString>
#include <optional>

namespace neb {

class InstanceLock;
class frmNEBSlideShow;

// The database directory, made if need be; none after a box when the settings cannot be read, or
// when not even the folder above it is there: then nothing is made.
std::optional<QString> DatabaseToOpen();
// Closes the program as soon as no modal window is open any more; unloads those that are. For
// the event loop itself to call.
void CloseWhenIdle(frmNEBSlideShow& Window);

// Takes the lock of the one running instance; false after a box when another one runs.
bool BecomeTheInstance(InstanceLock& Lock);
// The same for a database; any number may look at one that cannot be changed, and leave no lock.
bool BecomeTheInstanceOn(const QString& Database, InstanceLock& Lock);

// The exit code of the program.
int Main(int argc, char** argv);

}  // namespace neb
