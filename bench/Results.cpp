#include "bench/Results.h"

#include <cstdio>

namespace {

constexpr double kKibPerMib = 1024;

/// Milliseconds, with three digits that say something.
void PrintTime(double ms) {
  if (ms >= 1000) {
    std::printf("\t%.2f s", ms / 1000);
  } else if (ms >= 1) {
    std::printf("\t%.3g ms", ms);
  } else if (ms >= 0.001) {
    std::printf("\t%.3g us", ms * 1000);
  } else {
    std::printf("\t%.3g ns", ms * 1000000);
  }
}

}  // namespace

void PrintRatio(const char* work, const char* reference, const PairMedians& medians, double bound) {
  std::printf("%s\t%s\tratio\t%.3f\t%g", work, reference, medians.ratio, bound);
  PrintTime(medians.work);
  PrintTime(medians.reference);
  std::printf("\n");
  std::fflush(stdout);
}

void PrintMemory(const char* work, const char* reference, const PairMedians& medians,
                 double bound) {
  std::printf("%s\t%s\tMiB more\t%.2f\t%g\t%.1f MiB\t%.1f MiB\n", work, reference,
              (medians.work - medians.reference) / kKibPerMib, bound, medians.work / kKibPerMib,
              medians.reference / kKibPerMib);
  std::fflush(stdout);
}
