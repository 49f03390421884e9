#include <algorithm>
#include <deque>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include "bench/Pairs.h"
#include "bench/Results.h"
#include "bench/Rows.h"
#include "support/Clock.h"
#include "support/Profiler.h"

namespace {

constexpr int kPairs = 101;
constexpr std::size_t kEntryCount = 100;
constexpr int kRounds = 200;

using Order = std::vector<ProfilerEntry*>;

/// Milliseconds of one begin and end.
double TimeProfiler(const Order& order) {
  Profiler& profiler = Profiler::Instance();
  const double total = MillisecondsOf([&] {
    for (int round = 0; round < kRounds; ++round) {
      for (ProfilerEntry* entry : order) {
        profiler.Begin(entry);
        profiler.End();
      }
    }
  });
  return total / (kRounds * static_cast<double>(order.size()));
}

double TimeClock(const Order& order) {
  const double total = MillisecondsOf([&] {
    for (int round = 0; round < kRounds; ++round) {
      for (ProfilerEntry* entry : order) {
        entry->start = GetTimeMs();
        entry->total += GetTimeMs() - entry->start;
      }
    }
  });
  return total / (kRounds * static_cast<double>(order.size()));
}

}  // namespace

bool MeasureProfiler() {
  // A deque, so that entries keep their place.
  std::deque<ProfilerEntry> entries(kEntryCount);
  std::deque<ProfilerEntry> others(kEntryCount);
  Order inOrder;
  Order otherOrder;
  for (std::size_t i = 0; i < kEntryCount; ++i) {
    entries[i].name = "entry " + std::to_string(i);
    inOrder.push_back(&entries[i]);
    otherOrder.push_back(&others[i]);
  }
  // Known from here on, in this order of first use.
  TimeProfiler(inOrder);

  PairMedians medians = MeasurePairs(
      kPairs, [&] { return TimeProfiler(inOrder); }, [&] { return TimeClock(otherOrder); });
  PrintRatio("Profiler begin and end, 100 entries in turn", "two clock readings", medians, 2);

  Order mixed = inOrder;
  std::mt19937 random(1);
  std::shuffle(mixed.begin(), mixed.end(), random);
  medians = MeasurePairs(
      kPairs, [&] { return TimeProfiler(mixed); }, [&] { return TimeClock(otherOrder); });
  PrintRatio("Profiler begin and end, 100 entries in random order", "two clock readings", medians,
             2);
  Profiler::Instance().Reset();
  return true;
}
