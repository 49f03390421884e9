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
      : window(nullptr, {0, 0}, kSize, "Pointer", 0),
        native([window.GetNativeView() window]),
        pool([[NSAutoreleasePool alloc] init]) {
    for (int i = 0; i < count; ++i) {
      new MovePanel(&window, PlaceOf(i), &moves);
    }
    for (int i = 0; i < kEvents; ++i) events.push_back(MoveOver((i * 37 + 5) % count));
  }
  ~MoveWindow() { [pool drain]; }
  MoveWindow(const MoveWindow&) = delete;
  MoveWindow& operator=(const MoveWindow&) = delete;

  NSWindow* GetNative() const { return native; }

  /// Milliseconds of one event.
  double Time() {
    // The platform looks more closely into the key window; both count as that.
    [native becomeKeyWindow];
    return MillisecondsOf([this] {
             NSAutoreleasePool* pass = [[NSAutoreleasePool alloc] init];
             for (NSEvent* event : events) [native sendEvent:event];
             [pass drain];
           }) /
           kEvents;
  }

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
  NSAutoreleasePool* pool;
  std::vector<NSEvent*> events;
  int moves = 0;
};

}  // namespace

bool MeasurePointer() {
  // Out of the way: only the movements made here count.
  XServer::MovePointer({1023, 767});
  MoveWindow many(kMany);
  MoveWindow few(kFew);
  if (!Display::Show(many.GetNative(), 0) || !Display::Show(few.GetNative(), 510)) return false;
  const PairMedians medians = MeasurePairs(
      kPairs, [&] { return many.Time(); }, [&] { return few.Time(); });
  constexpr int kExpected = (kPairs + 1) * kEvents;
  if (many.TakeMoves() != kExpected || few.TakeMoves() != kExpected) {
    std::fputs("Not every movement arrived at its widget.\n", stderr);
    return false;
  }
  PrintRatio("pointer movement over 1,000 children, per event", "100 children", medians, 11);
  return true;
}
