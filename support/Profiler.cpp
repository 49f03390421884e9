#include "support/Profiler.h"

#include <algorithm>

#include "support/Clock.h"
#include "support/Strings.h"

Profiler& Profiler::Instance() {
  static Profiler profiler;
  return profiler;
}

bool Profiler::IsKnown(const ProfilerEntry* entry) {
  // Timings come in the same order again and again: the entry is mostly the latest one or its
  // successor, and then the search costs nothing beside the clock.
  for (std::size_t next = recent; next < entries.size() && next <= recent + 1; ++next) {
    if (entries[next] == entry) {
      recent = next;
      return true;
    }
  }
  const auto found = std::find(entries.begin(), entries.end(), entry);
  if (found == entries.end()) return false;
  recent = static_cast<std::size_t>(found - entries.begin());
  return true;
}

void Profiler::Begin(ProfilerEntry* entry) {
  if (!IsKnown(entry)) entries.push_back(entry);
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
  recent = 0;
}

std::string Profiler::MakeLabel(const std::string& name, const std::string& file, int line) {
  return name + " (" + file + ":" + std::to_string(line) + ")";
}
