// Tests that go by the real clock: how long something takes, or sound as it is played. A machine
// that works for others at that moment spoils them though nothing is wrong. What is wrong fails
// however often it is tried.
#pragma once

namespace neb::harness {

// Of the test that runs now.
void GoByTheClock();

// Milliseconds that this program has worked so far, all its threads together: for limits on work,
// which the work of other programs does not spoil.
double WorkedMs();

// Runs the tests. Where none failed but such that go by the clock, those are run again in a process
// of their own, twice at most, and said to be. The exit code: 0 where each has passed in the end.
int RunTests();

}  // namespace neb::harness
