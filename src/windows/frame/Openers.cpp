#include "windows/frame/Openers.h"

namespace neb {

Openers& TheOpeners() {
    static Openers Table;
    return Table;
}

}  // namespace neb
