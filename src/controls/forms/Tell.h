// Windows show here what the routines below them have answered.
#pragma once

#include "support/Answer.h"

namespace neb {

// Shows a box and gives the answer; without boxes there is none to wait for, and it is OK.
BoxAnswer ShowBox(const BoxRequest& Request);

// Whether it was done; a refusal is told in its box.
template <class Value>
bool Tell(const Answer<Value>& Given) {
    if (!Given) ShowBox(Given.Refusal());
    return static_cast<bool>(Given);
}

}  // namespace neb
