#pragma once

#include <functional>

/// Measuring one piece of work beside its reference. Other programs and the
/// machine's own moods disturb both alike, so each figure is a ratio of two
/// neighbours, and the median of many.

/// Medians of one measurement, in milliseconds; the ratio is the median of the
/// pairs' own ratios, not the quotient of the other two.
struct PairMedians {
  double work = 0;
  double reference = 0;
  double ratio = 0;
};

/// Runs both by turns, `pairs` times each, after one run of each that does not
/// count; every second pair runs the reference first. Each returns the
/// milliseconds it took.
PairMedians MeasurePairs(int pairs, const std::function<double()>& work,
                         const std::function<double()>& reference);

/// Wall-clock milliseconds of one call.
double MillisecondsOf(const std::function<void()>& action);

/// Keeps the compiler from leaving out work whose result nobody uses.
inline void KeepResult(const void* result) { asm volatile("" : : "r"(result) : "memory"); }
