#include "tests/endurance/EventHand.h"

#import <GNUstepGUI/GSDisplayServer.h>

#include "Src/HXUI/Cocoa/Conversions.h"
#import "tests/Src/HXUI/GNUstep/WheelEvent.h"
#import "tests/Src/HXUI/NativeEvents.h"

namespace {

void Deliver(NSEvent* event) {
  if (EventHand::IsTracking()) {
    // Whoever follows the pointer takes it from the queue.
    [NSApp postEvent:event atStart:NO];
    return;
  }
  [NSApp postEvent:event atStart:YES];
  NSEvent* next = [NSApp nextEventMatchingMask:NSAnyEventMask
                                     untilDate:[NSDate distantPast]
                                        inMode:NSDefaultRunLoopMode
                                       dequeue:YES];
  if (next != nil) [NSApp sendEvent:next];
}

NSPoint InWindow(const HXObject& widget, HXPoint point) {
  return [widget.GetNativeView() convertPoint:ToNative(point) toView:nil];
}

}  // namespace

bool EventHand::IsTracking() {
  return [[[NSRunLoop currentRunLoop] currentMode] isEqualToString:NSEventTrackingRunLoopMode];
}

void EventHand::Point(const HXObject& widget, HXPoint point) {
  NSWindow* window = [widget.GetNativeView() window];
  // By AppKit's own connection, so that whoever asks for the pointer next finds it there.
  [GSCurrentServer() setMouseLocation:[window convertBaseToScreen:InWindow(widget, point)]
                             onScreen:0];
}

void EventHand::Mouse(NSEventType type, const HXObject& widget, HXPoint point, int clickCount,
                      NSUInteger modifiers) {
  NSWindow* window = [widget.GetNativeView() window];
  Deliver(MouseEvent(type, window, InWindow(widget, point), clickCount, modifiers));
}

void EventHand::Wheel(const HXObject& widget, HXPoint point, double deltaY) {
  NSWindow* window = [widget.GetNativeView() window];
  Deliver(WheelEvent(window, InWindow(widget, point), deltaY));
}

void EventHand::Cross(NSEventType type, const HXObject& widget, HXPoint point) {
  CrossEdge(type, widget.GetNativeView(), InWindow(widget, point));
}

void EventHand::Key(NSEventType type, NSWindow* window, NSString* characters,
                    NSUInteger modifiers) {
  Deliver(KeyEvent(type, window, characters, modifiers));
}
