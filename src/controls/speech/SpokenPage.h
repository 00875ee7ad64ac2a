// How pages that are read, such as those of the help, are told to screen readers: as documents with
// their text. The toolkit of this system would have them for labels. The application object asks
// for it once.
#pragma once

namespace neb {

void TellPagesAsDocuments();

}  // namespace neb
