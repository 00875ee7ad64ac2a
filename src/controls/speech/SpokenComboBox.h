// How lists to choose from are told to screen readers: by what they are called, and what is chosen
// as their text. The toolkit of this system would have the choice stand for the name. The
// application object asks for it once.
#pragma once

namespace neb {

void NameComboBoxes();

}  // namespace neb
