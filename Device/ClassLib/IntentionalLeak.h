#pragma once

// IntentionalLeak: while one exists, the leak check of a sanitized build ignores allocations. In other builds it is
// empty. This is much faster than suppressions by function name, which cost seconds per process. The leak check also
// ignores everything reachable from such an allocation, even a control that is never deleted. LoadTest finds that: it
// limits the bytes that a control may leak.

#if defined(__SANITIZE_ADDRESS__) // GCC
#define SDK4_LEAKS_CHECKED
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define SDK4_LEAKS_CHECKED
#endif
#endif

#ifdef SDK4_LEAKS_CHECKED
#include <sanitizer/lsan_interface.h>
#endif

namespace SDK4 {

#ifdef SDK4_LEAKS_CHECKED
using IntentionalLeak = __lsan::ScopedDisabler;
#else
struct IntentionalLeak {};
#endif

} // namespace SDK4
