#pragma once

#include <cstddef>
#include <string>

/// One named timing of the profiler. Its owner keeps it alive, and at the same
/// address, for as long as the profiler knows it: until `Profiler::Reset` or the
/// end of the program.
struct ProfilerEntry {
  std::string name;
  /// When the entry was begun last: time of day in milliseconds.
  double start = 0.0;
  /// Milliseconds accumulated over all intervals that have ended.
  double total = 0.0;
  /// Where the profiler has put the entry; the profiler's own business.
  std::size_t place = 0;
};
