#include "tests/Src/HXUI/ToolkitFixture.h"

#include <chrono>

#include "Src/HXUI/Cocoa/Conversions.h"
#import "tests/Src/HXUI/NativeEvents.h"
#import "tests/Src/HXUI/PlatformInput.h"

@interface LaterAction : NSObject {
 @public
  std::function<void()>* action;
}
- (void)run;
@end

@implementation LaterAction
- (void)run {
  (*action)();
}
- (void)dealloc {
  delete action;
  [super dealloc];
}
@end

namespace {

/// Far longer than anything takes, so that a busy machine fails no test.
constexpr auto kPatience = std::chrono::seconds(30);

NSPoint InWindow(const HXObject& widget, HXPoint point) {
  return [widget.GetNativeView() convertPoint:ToNative(point) toView:nil];
}

}  // namespace

DrawnPixels::DrawnPixels(NSBitmapImageRep* representation) : rep([representation retain]) {}
DrawnPixels::~DrawnPixels() { [rep release]; }

HXSize DrawnPixels::GetSize() const {
  return {static_cast<std::int32_t>([rep pixelsWide]), static_cast<std::int32_t>([rep pixelsHigh])};
}

HXColor DrawnPixels::At(int x, int y) const {
  const HXSize size = GetSize();
  if (x < 0 || y < 0 || x >= size.width || y >= size.height) return {0, 0, 0, 0};
  const unsigned char* pixel = [rep bitmapData] + y * [rep bytesPerRow] + x * [rep samplesPerPixel];
  return {pixel[0], pixel[1], pixel[2], 255};
}

int DrawnPixels::Count(HXRect rect, const std::function<bool(HXColor)>& test) const {
  int count = 0;
  for (int y = rect.y; y < rect.y + rect.height; ++y) {
    for (int x = rect.x; x < rect.x + rect.width; ++x) count += test(At(x, y)) ? 1 : 0;
  }
  return count;
}

int DrawnPixels::Ink(HXRect rect, HXColor background) const {
  return Count(rect, [background](HXColor color) { return color != background; });
}

HXRect DrawnPixels::InkBounds(HXRect rect, HXColor background) const {
  int left = rect.x + rect.width;
  int top = rect.y + rect.height;
  int right = rect.x - 1;
  int bottom = rect.y - 1;
  for (int y = rect.y; y < rect.y + rect.height; ++y) {
    for (int x = rect.x; x < rect.x + rect.width; ++x) {
      if (At(x, y) == background) continue;
      left = std::min(left, x);
      right = std::max(right, x);
      top = std::min(top, y);
      bottom = std::max(bottom, y);
    }
  }
  if (right < left) return {};
  return {left, top, right - left + 1, bottom - top + 1};
}

ToolkitFixture::ToolkitFixture() : pool([[NSAutoreleasePool alloc] init]) {
  window = std::make_unique<HXWindow>(nullptr, HXPoint{0, 0}, HXSize{400, 300}, "Toolkit", 0);
  window->Center();
  // On a busy machine the window manager may still be busy with the last
  // window when this one asks for the keyboard, and forget about it.
  auto askAgain = std::chrono::steady_clock::now();
  PumpUntil(
      [&] {
        if (window->IsKeyWindow()) return true;
        if (std::chrono::steady_clock::now() >= askAgain) {
          window->SetVisible(true);
          askAgain = std::chrono::steady_clock::now() + std::chrono::seconds(1);
        }
        return false;
      },
      "the window to become key");
}

ToolkitFixture::~ToolkitFixture() {
  window.reset();
  Pump();
  [pool drain];
}

void ToolkitFixture::Pump() {
  NSEvent* event;
  while ((event = [NSApp nextEventMatchingMask:NSAnyEventMask
                                     untilDate:[NSDate distantPast]
                                        inMode:NSDefaultRunLoopMode
                                       dequeue:YES]) != nil) {
    [NSApp sendEvent:event];
  }
}

void ToolkitFixture::PumpUntil(const std::function<bool()>& condition, const char* what) {
  const auto end = std::chrono::steady_clock::now() + kPatience;
  while (!condition()) {
    ASSERT_LT(std::chrono::steady_clock::now(), end) << "waited in vain for " << what;
    NSAutoreleasePool* pass = [[NSAutoreleasePool alloc] init];
    NSEvent* event = [NSApp nextEventMatchingMask:NSAnyEventMask
                                        untilDate:[NSDate dateWithTimeIntervalSinceNow:0.01]
                                           inMode:NSDefaultRunLoopMode
                                          dequeue:YES];
    if (event != nil) [NSApp sendEvent:event];
    [pass drain];
  }
}

void ToolkitFixture::WarpPointer(const HXObject& widget, HXPoint point) {
  const HXPoint screen = widget.ClientToScreen(point);
  MoveRealPointer(NSMakePoint(screen.x, screen.y));
}

void ToolkitFixture::SendMouse(NSEventType type, HXObject& widget, HXPoint point, int clickCount,
                               NSUInteger modifiers) {
  WarpPointer(widget, point);
  NSWindow* native = [widget.GetNativeView() window];
  const NSPoint location = InWindow(widget, point);
  if (type == NSMouseEntered || type == NSMouseExited) {
    CrossEdge(type, widget.GetNativeView(), location, modifiers);
    return;
  }
  [native sendEvent:MouseEvent(type, native, location, clickCount, modifiers)];
}

void ToolkitFixture::Click(HXObject& widget, HXPoint point) {
  SendMouse(NSLeftMouseDown, widget, point);
  SendMouse(NSLeftMouseUp, widget, point);
}

void ToolkitFixture::SendWheel(HXObject& widget, HXPoint point, double deltaY) {
  WarpPointer(widget, point);
  TurnWheel(widget.GetNativeView(), InWindow(widget, point), deltaY);
}

NSEvent* ToolkitFixture::KeyDownEvent(const HXWindow& target, NSString* characters) {
  return KeyEvent(NSKeyDown, [target.GetNativeView() window], characters, 0);
}

void ToolkitFixture::SendKey(HXWindow& target, NSString* characters, NSUInteger modifiers) {
  NSWindow* native = [target.GetNativeView() window];
  [native sendEvent:KeyEvent(NSKeyDown, native, characters, modifiers)];
}

void ToolkitFixture::SendKeyUp(HXWindow& target, NSString* characters) {
  NSWindow* native = [target.GetNativeView() window];
  [native sendEvent:KeyEvent(NSKeyUp, native, characters, 0)];
}

std::unique_ptr<DrawnPixels> ToolkitFixture::Draw(HXObject& widget) {
  [widget.GetNativeView() display];
  return ReadBack(widget);
}

std::unique_ptr<DrawnPixels> ToolkitFixture::ReadBack(HXObject& widget) {
  NSView* view = widget.GetNativeView();
  [view lockFocus];
  NSBitmapImageRep* rep =
      [[[NSBitmapImageRep alloc] initWithFocusedViewRect:[view bounds]] autorelease];
  [view unlockFocus];
  return std::make_unique<DrawnPixels>(rep);
}

void ToolkitFixture::Later(std::function<void()> action, double seconds) {
  LaterAction* later = [[[LaterAction alloc] init] autorelease];
  later->action = new std::function<void()>(std::move(action));
  [later performSelector:@selector(run) withObject:nil afterDelay:seconds];
}
