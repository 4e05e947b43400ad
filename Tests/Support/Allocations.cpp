#include "Tests/Support/Allocations.h"

#include <atomic>
#include <cerrno>
#include <cstddef>

namespace {

std::atomic<std::uint64_t> asked{0};
std::atomic<std::int64_t> live{0};

} // namespace

std::uint64_t Test::Allocations() { return asked.load(std::memory_order_relaxed); }
std::int64_t Test::LiveAllocations() { return live.load(std::memory_order_relaxed); }

#ifdef QDV12_SANITIZED

// The sanitizer replaces the allocator and reports leaked blocks itself.

extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*allocated)(const volatile void*, std::size_t),
                                                         void (*released)(const volatile void*));

namespace {

[[maybe_unused]] const int installed = __sanitizer_install_malloc_and_free_hooks(
    [](const volatile void* /*block*/, std::size_t /*size*/) { asked.fetch_add(1, std::memory_order_relaxed); },
    [](const volatile void* /*block*/) {});

} // namespace

#else

// Definitions of the program take precedence for everything loaded into it, including the plug-in. operator new of the
// C++ run-time library calls these, too.

// The C library defines the names.
// NOLINTBEGIN(bugprone-reserved-identifier,readability-inconsistent-declaration-parameter-name)
extern "C" {
void* __libc_malloc(std::size_t size) noexcept;
void* __libc_calloc(std::size_t count, std::size_t size) noexcept;
void* __libc_realloc(void* block, std::size_t size) noexcept;
void* __libc_memalign(std::size_t alignment, std::size_t size) noexcept;
void __libc_free(void* block) noexcept;

static void* Counted(void* block) {
    asked.fetch_add(1, std::memory_order_relaxed);
    live.fetch_add(block != nullptr ? 1 : 0, std::memory_order_relaxed);
    return block;
}

void* malloc(std::size_t size) noexcept { return Counted(__libc_malloc(size)); }
void* calloc(std::size_t count, std::size_t size) noexcept { return Counted(__libc_calloc(count, size)); }
void* memalign(std::size_t alignment, std::size_t size) noexcept { return Counted(__libc_memalign(alignment, size)); }
void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept { return memalign(alignment, size); }

int posix_memalign(void** block, std::size_t alignment, std::size_t size) noexcept {
    *block = memalign(alignment, size);
    return *block == nullptr ? ENOMEM : 0;
}

void free(void* block) noexcept {
    live.fetch_sub(block != nullptr ? 1 : 0, std::memory_order_relaxed);
    __libc_free(block);
}

void* realloc(void* block, std::size_t size) noexcept {
    if (block == nullptr) {
        return malloc(size);
    }
    if (size != 0) {
        asked.fetch_add(1, std::memory_order_relaxed);
        return __libc_realloc(block, size);
    }
    free(block);
    return nullptr;
}
}
// NOLINTEND(bugprone-reserved-identifier,readability-inconsistent-declaration-parameter-name)

#endif
