#pragma once

// IntentionalLeak: while one lives, the leak check of a sanitized build does not look for what is allocated. Elsewhere
// it is nothing. Told here, it costs nothing; found out by the names of functions, it costs seconds a process. Whatever
// can be reached from there passes as well, a control that is never deleted, for one: LoadTest notices that, as it
// holds what a control leaves to a number of bytes.

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
