// The up and down keys in a line of text that holds a number. The print dialogs use it.
#pragma once

class QLineEdit;

namespace neb {

// To the next multiple of Step above or below what is typed, never below Least.
void StepByKeys(QLineEdit& Field, double Step, double Least);

}  // namespace neb
