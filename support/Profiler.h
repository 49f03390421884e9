#pragma once

#include <deque>
#include <string>

#include "support/ProfilerEntry.h"

/// Measures wall-clock time under names. Intervals nest: each `End` ends the
/// entry begun last. The profiler owns none of its entries.
///
/// There is one profiler in the process, made at its first use (from any
/// thread) and destroyed at exit. Its operations take no lock: one thread at a
/// time.
class Profiler {
 public:
  static Profiler& Instance();
  Profiler(const Profiler&) = delete;
  Profiler& operator=(const Profiler&) = delete;

  /// Starts an interval of `entry`. An entry that is begun again before its end
  /// starts anew and needs one `End` more.
  void Begin(ProfilerEntry* entry);

  /// Ends the interval begun last and returns its entry's new total in
  /// milliseconds; 0.0 when none is under way.
  double End();

  /// Prints a heading, then each entry's name and total in the order of first use.
  void Print() const;

  /// Sets the totals of all known entries to 0, and forgets the entries and
  /// whatever is under way.
  void Reset();

  /// A name that carries a place in the source: "name (file:line)".
  static std::string MakeLabel(const std::string& name, const std::string& file, int line);

 private:
  Profiler() = default;
  ~Profiler() = default;

  /// A linear search by pointer, unless the entry is where it was put.
  bool IsKnown(const ProfilerEntry* entry) const;

  /// Every entry begun so far, each once, in the order of first use.
  std::deque<ProfilerEntry*> entries;
  /// Begun and not yet ended, the latest at the back.
  std::deque<ProfilerEntry*> active;
};
