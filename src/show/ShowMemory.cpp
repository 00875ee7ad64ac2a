#include "show/ShowMemory.h"

namespace neb {

ShowMemory TheShowMemory;

}  // namespace neb
