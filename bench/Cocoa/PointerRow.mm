#include <algorithm>
#include <cstdio>
#include <memory>
#include <utility>
#include <vector>

#include "Src/HXUI/Cocoa/Conversions.h"
#include "Src/HXUI/HXPanel.h"
#include "Src/HXUI/HXWindow.h"
#include "bench/Cocoa/Display.h"
#include "bench/GNUstep/XServer.h"
#include "bench/Pairs.h"
#include "bench/Results.h"
#include "bench/Rows.h"

namespace {

constexpr int kPairs = 31;
constexpr int kMany = 1000;
constexpr int kFew = 100;
/// With few children each, so that as much memory is walked through as for many in one window:
/// what the processor's caches hold of it is not to be measured.
constexpr int kFewWindows = kMany / kFew;
constexpr int kEvents = 100;
constexpr int kColumns = 50;
constexpr HXSize kSize{500, 360};
constexpr HXSize kChild{10, 10};

/// Counts the movements that arrive.
class MovePanel : public HXPanel {
 public:
  MovePanel(HXObject* parent, HXPoint position, int* arrived)
      : HXPanel(parent, position, kChild), moves(arrived) {}
  void OnMouse(MouseKind kind) override {
    if (kind == kMouseMove) ++*moves;
  }

 private:
  int* moves;
};

/// A window with children in rows, and movements from one child to the next but some.
class MoveWindow {
 public:
  explicit MoveWindow(int count)
      : window(nullptr, {0, 0}, kSize, "Pointer", 0), native([window.GetNativeView() window]) {
    for (int i = 0; i < count; ++i) {
      new MovePanel(&window, PlaceOf(i), &moves);
    }
    for (int i = 0; i < kEvents; ++i) events.push_back(MoveOver((i * 37 + 5) % count));
  }

  NSWindow* GetNative() const { return native; }

  /// The platform looks more closely into the key window; all count as that.
  void CountAsKey() { [native becomeKeyWindow]; }
  void Send(int event) { [native sendEvent:events.at(static_cast<std::size_t>(event))]; }

  /// How many movements have arrived since the last time.
  int TakeMoves() { return std::exchange(moves, 0); }

 private:
  static HXPoint PlaceOf(int child) {
    return {child % kColumns * kChild.width, child / kColumns * kChild.height};
  }

  NSEvent* MoveOver(int child) {
    const HXPoint place = PlaceOf(child);
    const NSPoint location =
        [window.GetNativeView() convertPoint:NSMakePoint(place.x + 5, place.y + 5) toView:nil];
    return [NSEvent mouseEventWithType:NSMouseMoved
                              location:location
                         modifierFlags:0
                             timestamp:0
                          windowNumber:[native windowNumber]
                               context:nil
                           eventNumber:0
                            clickCount:0
                              pressure:0];
  }

  HXWindow window;
  NSWindow* native;
  std::vector<NSEvent*> events;
  int moves = 0;
};

using MoveWindows = std::vector<std::unique_ptr<MoveWindow>>;

/// Milliseconds of one event, when all the windows get theirs by turns.
double TimeOfEvent(const MoveWindows& windows) {
  for (const auto& window : windows) window->CountAsKey();
  const double all = MillisecondsOf([&windows] {
    NSAutoreleasePool* pass = [[NSAutoreleasePool alloc] init];
    for (int event = 0; event < kEvents; ++event) {
      for (const auto& window : windows) window->Send(event);
    }
    [pass drain];
  });
  return all / kEvents / static_cast<double>(windows.size());
}

bool ShowAll(const MoveWindows& windows, CGFloat x) {
  return std::all_of(windows.begin(), windows.end(),
                     [x](const auto& window) { return Display::Show(window->GetNative(), x); });
}

/// True when each window has got all of its movements.
bool HaveAllArrived(const MoveWindows& windows) {
  constexpr int kExpected = (kPairs + 1) * kEvents;
  return std::all_of(windows.begin(), windows.end(),
                     [](const auto& window) { return window->TakeMoves() == kExpected; });
}

}  // namespace

bool MeasurePointer() {
  // Out of the way: only the movements made here count.
  XServer::MovePointer({1023, 767});
  MoveWindows many;
  many.push_back(std::make_unique<MoveWindow>(kMany));
  MoveWindows few;
  for (int i = 0; i < kFewWindows; ++i) few.push_back(std::make_unique<MoveWindow>(kFew));
  if (!ShowAll(many, 0) || !ShowAll(few, 510)) return false;
  const PairMedians medians = MeasurePairs(
      kPairs, [&] { return TimeOfEvent(many); }, [&] { return TimeOfEvent(few); });
  if (!HaveAllArrived(many) || !HaveAllArrived(few)) {
    std::fputs("Not every movement arrived at its widget.\n", stderr);
    return false;
  }
  PrintRatio("pointer movement over 1,000 children, per event", "100 children", medians, 11);
  return true;
}
