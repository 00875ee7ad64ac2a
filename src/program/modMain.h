// The entry of the program: refuses a second instance, makes the services and the main window,
// and runs the event loop.
#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "program/opening/InstanceCall.h"

namespace neb {

class InstanceLock;
class frmNEBSlideShow;

// The database directory, made if need be; none after a box when the settings cannot be read, or
// when not even the folder above it is there: then nothing is made.
std::optional<QString> DatabaseToOpen();
// Closes the program as soon as no modal window is open any more; unloads those that are. For
// the event loop itself to call.
void CloseWhenIdle(frmNEBSlideShow& Window);

// Calls the program that runs on the database. Without one that can be called nobody is.
using CallRunning = std::function<HandedOver()>;
// Takes the lock of the one running instance. False when another one runs, which has taken over
// what was to be opened; after a box when it has not.
bool BecomeTheInstance(InstanceLock& Lock, const CallRunning& Call = {});
// The same for a database; any number may look at one that cannot be changed, and leave no lock.
bool BecomeTheInstanceOn(const QString& Database, InstanceLock& Lock, const CallRunning& Call = {});

// The exit code of the program.
int Main(int argc, char** argv);

}  // namespace neb
