#include "Src/HXUI/HXSemaphore.h"

#include <condition_variable>
#include <cstdint>
#include <mutex>

/// Tickets keep the waiters in order: the n-th wait is over with the n-th signal.
struct HXSemaphore::Native {
  std::mutex mutex;
  std::condition_variable changed;
  std::uint64_t waited = 0;
  std::uint64_t signalled = 0;
};

HXSemaphore::HXSemaphore() : native(std::make_unique<Native>()) {}
HXSemaphore::~HXSemaphore() = default;

void HXSemaphore::Signal() {
  const std::lock_guard lock(native->mutex);
  ++native->signalled;
  native->changed.notify_all();
}

int HXSemaphore::Wait() {
  std::unique_lock lock(native->mutex);
  const std::uint64_t ticket = native->waited++;
  native->changed.wait(lock, [&] { return native->signalled > ticket; });
  return 0;
}
