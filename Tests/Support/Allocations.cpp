#include "Allocations.h"

#include <atomic>
#include <cstddef>

namespace {

std::atomic<std::uint64_t> count{0};

void Count() { count.fetch_add(1, std::memory_order_relaxed); }

} // namespace

std::uint64_t Test::Allocations() { return count.load(std::memory_order_relaxed); }

#ifdef QDV12_SANITIZED

// The sanitizer replaces the allocator itself, and tells of every block.

extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*allocated)(const volatile void*, std::size_t),
                                                         void (*released)(const volatile void*));

namespace {

[[maybe_unused]] const int installed = __sanitizer_install_malloc_and_free_hooks(
    [](const volatile void* /*block*/, std::size_t /*size*/) { Count(); }, [](const volatile void* /*block*/) {});

} // namespace

#else

// The program's definitions come first for everything that is loaded into it, the plug-in included. operator new of the
// C++ run-time library ends here too.

// The names are the C library's own.
// NOLINTBEGIN(bugprone-reserved-identifier,readability-inconsistent-declaration-parameter-name)
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);

void* malloc(std::size_t size) {
    Count();
    return __libc_malloc(size);
}

void* calloc(std::size_t elements, std::size_t size) {
    Count();
    return __libc_calloc(elements, size);
}

void* realloc(void* block, std::size_t size) {
    Count();
    return __libc_realloc(block, size);
}

void* aligned_alloc(std::size_t alignment, std::size_t size) {
    Count();
    return __libc_memalign(alignment, size);
}
}
// NOLINTEND(bugprone-reserved-identifier,readability-inconsistent-declaration-parameter-name)

#endif
