#include "tests/endtoend/Waiting.h"

#include <thread>

bool WaitUntil(const std::function<bool()>& condition, std::chrono::milliseconds patience) {
  const auto end = std::chrono::steady_clock::now() + patience;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return true;
}
