#pragma once

#include <cstdint>

/// The time of day and waiting. All calls may be made on any thread.

/// The time of day in milliseconds since 1970 (UTC), with the microseconds as
/// its fraction. Follows the system's clock, so it may jump when that is set.
double GetTimeMs();

/// Whole seconds since 1970 (UTC), the fraction cut off.
std::int64_t GetUnixTime();

/// Blocks the calling thread for at least `ms` milliseconds; a signal that
/// arrives meanwhile does not shorten the wait.
void SleepMs(std::uint32_t ms);
