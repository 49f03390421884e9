#include "support/Clock.h"

#include <sys/time.h>

#include <chrono>
#include <thread>

double GetTimeMs() {
  timeval now{};
  gettimeofday(&now, nullptr);
  return static_cast<double>(now.tv_sec) * 1000.0 + static_cast<double>(now.tv_usec) / 1000.0;
}

std::int64_t GetUnixTime() {
  // Not time(): on Linux it reads a coarser clock, which lags behind GetTimeMs at the turn of a
  // second.
  timeval now{};
  gettimeofday(&now, nullptr);
  return now.tv_sec;
}

void SleepMs(std::uint32_t ms) { std::this_thread::sleep_for(std::chrono::milliseconds(ms)); }
