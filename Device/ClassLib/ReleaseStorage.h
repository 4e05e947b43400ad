#pragma once

#include <new>

namespace SDK4 {

/// Gives back the storage of a list entry that was made with new, without running its destructor.
///
/// The lists hold their entries by interfaces that have no virtual destructor, so they cannot destroy them; what an
/// entry holds beside its own storage (long names, name sets, subscriptions) stays allocated. In return no destructor
/// reaches into an entry of the other list that is gone already. Deleting through the interface would be undefined.
template <typename Interface> void ReleaseStorage(Interface* entry) { ::operator delete(dynamic_cast<void*>(entry)); }

} // namespace SDK4
