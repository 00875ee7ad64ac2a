// Has the libraries of the decoders load all that they load at their first use, while files can
// still be opened. For the processes that read pictures, before their door falls shut.
#pragma once

namespace neb {

void WarmDecoders();
// Of metafiles, with the fonts of the system.
void WarmDrawings();

}  // namespace neb
