#include "tests/endurance/EventHand.h"

#import <GNUstepGUI/GSDisplayServer.h>

#include "Src/HXUI/Cocoa/Conversions.h"
#import "tests/Src/HXUI/WheelEvents.h"

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
  const NSPoint location = InWindow(widget, point);
  Deliver([NSEvent mouseEventWithType:type
                             location:location
                        modifierFlags:modifiers
                            timestamp:0
                         windowNumber:[window windowNumber]
                              context:nil
                          eventNumber:0
                           clickCount:clickCount
                             pressure:1]);
}

void EventHand::Wheel(const HXObject& widget, HXPoint point, double deltaY) {
  NSWindow* window = [widget.GetNativeView() window];
  const NSPoint location = InWindow(widget, point);
  Deliver([NSEvent mouseEventWithType:NSScrollWheel
                             location:location
                        modifierFlags:0
                            timestamp:0
                         windowNumber:[window windowNumber]
                              context:nil
                          eventNumber:0
                           clickCount:1
                             pressure:0
                         buttonNumber:0
                               deltaX:0
                               deltaY:deltaY
                               deltaZ:0]);
}

void EventHand::Cross(NSEventType type, const HXObject& widget, HXPoint point) {
  NSView* view = widget.GetNativeView();
  const NSPoint location = InWindow(widget, point);
  NSEvent* event = [NSEvent enterExitEventWithType:type
                                          location:location
                                     modifierFlags:0
                                         timestamp:0
                                      windowNumber:[[view window] windowNumber]
                                           context:nil
                                       eventNumber:0
                                    trackingNumber:0
                                          userData:nullptr];
  // The platform hands these to the owner of the tracking rectangle.
  if (type == NSMouseEntered) {
    [view mouseEntered:event];
  } else {
    [view mouseExited:event];
  }
}

void EventHand::Key(NSEventType type, NSWindow* window, NSString* characters,
                    NSUInteger modifiers) {
  Deliver([NSEvent keyEventWithType:type
                           location:NSZeroPoint
                      modifierFlags:modifiers
                          timestamp:0
                       windowNumber:[window windowNumber]
                            context:nil
                         characters:characters
        charactersIgnoringModifiers:characters
                          isARepeat:NO
                            keyCode:0]);
}
