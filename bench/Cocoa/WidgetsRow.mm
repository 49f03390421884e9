#include <memory>
#include <vector>

#include "Src/HXUI/HXPanel.h"
#include "Src/HXUI/HXWindow.h"
#include "bench/Cocoa/Display.h"
#include "bench/Pairs.h"
#include "bench/Results.h"
#include "bench/Rows.h"

namespace {

constexpr int kPairs = 21;
constexpr int kMany = 10000;
constexpr int kFew = 1000;

/// Milliseconds to build and destroy this many below one parent, where a list that is searched for
/// each would show. All parents stand at once: with few widgets each there are as many of them as
/// makes kMany in all, so that the processor's caches hold as little of the few as of the many.
double TimeOf(HXWindow& window, int count) {
  const int parentCount = kMany / count;
  const double all = MillisecondsOf([&window, count, parentCount] {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    std::vector<std::unique_ptr<HXPanel>> parents;
    for (int i = 0; i < parentCount; ++i) {
      parents.push_back(std::make_unique<HXPanel>(&window, HXPoint{0, 0}, HXSize{500, 360}));
      for (int j = 0; j < count; ++j) {
        new HXPanel(parents.back().get(), {j % 50 * 10, j / 50 % 36 * 10}, {10, 10});
      }
    }
    parents.clear();
    [pool drain];
  });
  return all / parentCount;
}

}  // namespace

bool MeasureWidgets() {
  HXWindow window(nullptr, {0, 0}, {500, 360}, "Widgets", 0);
  if (!Display::Show([window.GetNativeView() window], 0)) return false;
  const PairMedians medians = MeasurePairs(
      kPairs, [&window] { return TimeOf(window, kMany); },
      [&window] { return TimeOf(window, kFew); });
  PrintRatio("build and destroy 10,000 widgets", "1,000 widgets", medians, 11);
  return true;
}
