#include "bench/Pairs.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <vector>

namespace {

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const std::size_t middle = values.size() / 2;
  if (values.size() % 2 != 0) return values[middle];
  return (values[middle - 1] + values[middle]) / 2;
}

}  // namespace

PairMedians MeasurePairs(int pairs, const std::function<double()>& work,
                         const std::function<double()>& reference) {
  reference();
  work();
  std::vector<double> works;
  std::vector<double> references;
  std::vector<double> ratios;
  for (int pair = 0; pair < pairs; ++pair) {
    // Whoever comes second may find warmer caches, so they take turns at that too.
    const bool workFirst = pair % 2 == 0;
    if (workFirst) works.push_back(work());
    references.push_back(reference());
    if (!workFirst) works.push_back(work());
    ratios.push_back(works.back() / references.back());
  }
  return {Median(works), Median(references), Median(ratios)};
}

double MillisecondsOf(const std::function<void()>& action) {
  const auto start = std::chrono::steady_clock::now();
  action();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
      .count();
}
