// The entry of the program: refuses a second instance, makes the services and the main window,
// and runs the event loop.
#pragma once

namespace neb {

class InstanceLock;

// Takes the lock of the one running instance; false after a box when another one runs.
bool BecomeTheInstance(InstanceLock& Lock);

// The exit code of the program.
int Main(int argc, char** argv);

}  // namespace neb
