// Whether this build keeps freed memory to find its misuse: figures of memory say nothing then.
#pragma once

namespace neb::harness {

#if defined(__has_feature)
inline constexpr bool RunsUnderSanitizer = __has_feature(address_sanitizer);
#elif defined(__SANITIZE_ADDRESS__)
inline constexpr bool RunsUnderSanitizer = true;
#else
inline constexpr bool RunsUnderSanitizer = false;
#endif

}  // namespace neb::harness
