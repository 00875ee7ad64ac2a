// How loud a volume from 0 to 100 is. The player sets by it, a rehearsal reads it back.
#pragma once

namespace neb {

// Hundredths of a decibel, by a quarter of a decibel a step. So it goes down to a third; from there
// the level itself falls in a straight line, as steeply as it did before, to silence (-10000): what
// fades out does not break off at a level that is still heard.
int HundredthsOfVolume(int Value);
// The volume that comes nearest.
int VolumeOfHundredths(int Hundredths);

}  // namespace neb
