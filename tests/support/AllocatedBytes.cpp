#include "tests/support/AllocatedBytes.h"

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define HAS_SANITIZER_ALLOCATOR 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define HAS_SANITIZER_ALLOCATOR 1
#endif
#endif

// A sanitizer brings its own free store, of which the C library knows nothing.
#if defined(HAS_SANITIZER_ALLOCATOR)

#include <sanitizer/allocator_interface.h>

std::uint64_t AllocatedBytes() { return __sanitizer_get_current_allocated_bytes(); }

#elif defined(__APPLE__)

#include <malloc/malloc.h>

std::uint64_t AllocatedBytes() {
  malloc_statistics_t statistics{};
  malloc_zone_statistics(nullptr, &statistics);
  return statistics.size_in_use;
}

#else

#include <malloc.h>

std::uint64_t AllocatedBytes() {
  const struct mallinfo2 info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

#endif
