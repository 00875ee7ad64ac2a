// The program's own icons and translations, compiled in. The entry of each program that shows
// windows calls this before the first of them is looked up: ":/neb/icons/light/save.svg",
// ":/neb/icons/dark/...", ":/neb/translations/neb_de.qm".
#pragma once

namespace neb {

// Makes the resources under ":/neb" known; a second call does nothing.
void InitAssets();

}  // namespace neb
