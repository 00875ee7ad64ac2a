// The program's own icons, compiled in. The entry of each program that shows windows calls this
// once, before the first icon is looked up: ":/neb/icons/light/save.svg", ":/neb/icons/dark/...".
#pragma once

namespace neb {

// Makes the resources under ":/neb" known; a second call does nothing.
void InitAssets();

}  // namespace neb
