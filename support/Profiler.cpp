#include "support/Profiler.h"

#include <algorithm>

#include "support/Clock.h"
#include "support/Strings.h"

Profiler& Profiler::Instance() {
  static Profiler profiler;
  return profiler;
}

bool Profiler::IsKnown(const ProfilerEntry* entry) const {
  // The place that was noted is right for all but new entries, and then the search costs nothing
  // beside the clock.
  if (entry->place < entries.size() && entries[entry->place] == entry) return true;
  return std::find(entries.begin(), entries.end(), entry) != entries.end();
}

void Profiler::Begin(ProfilerEntry* entry) {
  if (!IsKnown(entry)) {
    entry->place = entries.size();
    entries.push_back(entry);
  }
  entry->start = GetTimeMs();
  active.push_back(entry);
}

double Profiler::End() {
  if (active.empty()) return 0.0;
  ProfilerEntry* entry = active.back();
  entry->total += GetTimeMs() - entry->start;
  active.pop_back();
  return entry->total;
}

void Profiler::Print() const {
  PrintLine("# Profiler:");
  for (const ProfilerEntry* entry : entries) {
    PrintLine("%s - %.2fms", entry->name.c_str(), entry->total);
  }
}

void Profiler::Reset() {
  for (ProfilerEntry* entry : entries) entry->total = 0.0;
  entries.clear();
  active.clear();
}

std::string Profiler::MakeLabel(const std::string& name, const std::string& file, int line) {
  return name + " (" + file + ":" + std::to_string(line) + ")";
}
