#include "show/ShowMemory.h"

namespace neb {

std::int32_t CurrentSlideSeq = 0;
std::int32_t CurrentSlideShowID = 0;
double SlideTimeout = 20;

}  // namespace neb
