#pragma once

#include "bench/Pairs.h"

/// One line of the table, printed to standard output as fields with tabs
/// between them: work, reference, unit of the value, value, bound, and the two
/// medians as they are shown.

/// A ratio of times.
void PrintRatio(const char* work, const char* reference, const PairMedians& medians, double bound);

/// How many MiB the work needs more than the reference; both given in KiB.
void PrintMemory(const char* work, const char* reference, const PairMedians& medians, double bound);
