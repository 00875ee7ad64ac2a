// The fonts of the system for a process that can open no file any more: FreeType opens a font when
// the first letter of it is drawn, long after the door has fallen shut. Used by the processes that
// draw metafiles and convert them; the standard library and the two of fonts alone.
#pragma once

namespace neb {

// Has fontconfig read all that it reads, and all fonts that it knows brought into view. From here
// on FT_New_Face, whoever calls it, finds these and no others.
void MapFonts();

}  // namespace neb
