#include "InitAssets.h"

#include <QtGlobal>

// The macro names a function outside all namespaces.
static void RegisterResources() {
    Q_INIT_RESOURCE(neb);
    Q_INIT_RESOURCE(translations);
}

namespace neb {

void InitAssets() {
    RegisterResources();
}

}  // namespace neb
