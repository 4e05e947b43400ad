#pragma once

#include <new>

namespace SDK4 {

/// Frees the storage of a list entry that was made with new, without running its destructor.
///
/// The lists hold their entries by interfaces without a virtual destructor, so deleting them is undefined behaviour.
/// What an entry has allocated (long names, name sets, subscriptions) leaks. In return, no destructor accesses an entry
/// of the other list that is already gone.
template <typename Interface> void ReleaseStorage(Interface* entry) { ::operator delete(dynamic_cast<void*>(entry)); }

} // namespace SDK4
