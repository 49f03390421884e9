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

/// All below one parent, where a list that is searched for each would show.
void BuildAndDestroy(HXWindow& window, int count) {
  NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
  auto parent = std::make_unique<HXPanel>(&window, HXPoint{0, 0}, HXSize{500, 360});
  for (int i = 0; i < count; ++i) {
    new HXPanel(parent.get(), {i % 50 * 10, i / 50 % 36 * 10}, {10, 10});
  }
  parent.reset();
  [pool drain];
}

}  // namespace

bool MeasureWidgets() {
  HXWindow window(nullptr, {0, 0}, {500, 360}, "Widgets", 0);
  if (!Display::Show([window.GetNativeView() window], 0)) return false;
  const PairMedians medians = MeasurePairs(
      kPairs, [&] { return MillisecondsOf([&] { BuildAndDestroy(window, kMany); }); },
      [&] { return MillisecondsOf([&] { BuildAndDestroy(window, kFew); }); });
  PrintRatio("build and destroy 10,000 widgets", "1,000 widgets", medians, 11);
  return true;
}
