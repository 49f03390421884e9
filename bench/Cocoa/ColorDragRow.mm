#include <array>
#include <cstdio>
#include <functional>

#include "Src/HXUI/HXColorDialog.h"
#include "bench/Cocoa/Display.h"
#include "bench/GNUstep/XServer.h"
#include "bench/Pairs.h"
#include "bench/Results.h"
#include "bench/Rows.h"

/// Shows one finished picture after the other, the next with every movement of the pointer.
@interface FrameView : NSView {
 @public
  NSArray* frames;
  NSUInteger shown;
}
@end

@implementation FrameView
- (void)drawRect:(NSRect)dirty {
  (void)dirty;
  if (frames != nil)[[frames objectAtIndex:shown % [frames count]] draw]
    ;
}

- (void)mouseMoved:(NSEvent*)event {
  (void)event;
  ++shown;
  [self display];
}
@end

namespace {

constexpr int kPairs = 61;
constexpr double kBound = 1.5;
constexpr std::size_t kSteps = 8;
constexpr HXSize kSize{385, 270};

using Path = std::array<HXPoint, kSteps>;

/// Along the hue bar, which changes the whole square.
constexpr Path kHuePath = {
    {{282, 20}, {282, 50}, {282, 81}, {282, 112}, {282, 143}, {282, 174}, {282, 205}, {282, 236}}};
/// Across the square, which changes the marker and the colour.
constexpr Path kSquarePath = {
    {{30, 30}, {60, 90}, {90, 50}, {120, 130}, {150, 70}, {180, 170}, {210, 110}, {240, 210}}};

/// A dialog in the middle of a drag.
class Drag {
 public:
  explicit Drag(const Path& way) : path(way), dialog(nullptr, &color) {
    dialog.SetChangeHandler(&Drag::OnChange, &dialog, 0);
  }

  HXColorDialog& GetDialog() { return dialog; }

  void Begin() {
    GoTo(0);
    Display::ServeAll();
    dialog.OnMouse(kLeftDown);
  }

  /// Out of the measured time: the pointer is on the dialog already, and only moves on in it.
  void Approach() {
    GoTo(next + kSteps - 1);
    Display::ServeAll();
  }

  /// Moves the pointer by one step and waits until the frame for it is on the screen.
  double Step() {
    GoTo(next++);
    return MillisecondsOf([this] {
      const HXColor before = color;
      Display::ServeUntil([&] { return color != before; });
      XServer::Finish();
    });
  }

 private:
  static void OnChange(HXObject*, std::uint32_t, HXControl*, int) {}

  void GoTo(std::size_t step) {
    const HXPoint place = dialog.ClientToScreen(path[step % kSteps]);
    const auto height = static_cast<std::int32_t>([[NSScreen mainScreen] frame].size.height);
    XServer::MovePointer({place.x, height - place.y});
  }

  Path path;
  HXColor color{200, 100, 50, 255};
  HXColorDialog dialog;
  std::size_t next = 1;
};

/// The same frames, blitted.
class Blit {
 public:
  explicit Blit(NSArray* frames) {
    const NSRect content = NSMakeRect(0, 0, kSize.width, kSize.height);
    window = [[NSWindow alloc] initWithContentRect:content
                                         styleMask:NSTitledWindowMask | NSClosableWindowMask
                                           backing:NSBackingStoreBuffered
                                             defer:NO];
    view = [[[FrameView alloc] initWithFrame:content] autorelease];
    view->frames = [frames retain];
    [window setContentView:view];
    [window setAcceptsMouseMovedEvents:YES];
  }

  NSWindow* GetWindow() { return window; }
  FrameView* GetView() { return view; }

  void Approach() {
    Move();
    Display::ServeAll();
  }

  double Step() {
    Move();
    return MillisecondsOf([this] {
      const NSUInteger before = view->shown;
      Display::ServeUntil([&] { return view->shown != before; });
      XServer::Finish();
    });
  }

 private:
  void Move() {
    const NSRect frame = [window frame];
    place = place % 100 + 10;
    XServer::MovePointer({static_cast<std::int32_t>(NSMinX(frame)) + 50 + place, 384});
  }

  NSWindow* window;
  FrameView* view;
  std::int32_t place = 0;
};

/// One picture of the dialog after each step of the path.
NSArray* Record(Drag& drag) {
  NSMutableArray* frames = [NSMutableArray array];
  for (std::size_t i = 0; i < kSteps; ++i) {
    drag.Approach();
    drag.Step();
    [frames addObject:Display::Pixels(drag.GetDialog().GetNativeView())];
  }
  return frames;
}

bool Measure(const Path& path, const char* work) {
  Drag drag(path);
  if (!Display::Show([drag.GetDialog().GetNativeView() window], 0)) return false;
  drag.Begin();
  NSArray* frames = Record(drag);
  Blit blit(frames);
  if (!Display::Show(blit.GetWindow(), 510)) return false;
  Display::DrawAll(blit.GetWindow());
  if (!Display::AreIdentical(Display::Pixels(blit.GetView()), [frames objectAtIndex:0])) {
    return false;
  }
  const PairMedians medians = MeasurePairs(
      kPairs,
      [&] {
        drag.Approach();
        return drag.Step();
      },
      [&] {
        blit.Approach();
        return blit.Step();
      });
  PrintRatio(work, "blitting the same pixels by hand", medians, kBound);
  drag.GetDialog().OnMouse(kLeftUp);
  [blit.GetWindow() orderOut:nil];
  return true;
}

}  // namespace

bool MeasureColorDrag() {
  return Measure(kHuePath, "one drag step in the colour dialog, on the hue bar") &&
         Measure(kSquarePath, "one drag step in the colour dialog, in the square");
}
