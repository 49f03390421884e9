#import "tests/Src/HXUI/NativeEvents.h"

NSEvent* MouseEvent(NSEventType type, NSWindow* window, NSPoint location, int clickCount,
                    NSUInteger modifiers) {
  return [NSEvent mouseEventWithType:type
                            location:location
                       modifierFlags:modifiers
                           timestamp:0
                        windowNumber:[window windowNumber]
                             context:nil
                         eventNumber:0
                          clickCount:clickCount
                            pressure:1];
}

NSEvent* KeyEvent(NSEventType type, NSWindow* window, NSString* characters, NSUInteger modifiers) {
  return [NSEvent keyEventWithType:type
                          location:NSZeroPoint
                     modifierFlags:modifiers
                         timestamp:0
                      windowNumber:[window windowNumber]
                           context:nil
                        characters:characters
       charactersIgnoringModifiers:characters
                         isARepeat:NO
                           keyCode:0];
}

void CrossEdge(NSEventType type, NSView* view, NSPoint location, NSUInteger modifiers) {
  NSEvent* event = [NSEvent enterExitEventWithType:type
                                          location:location
                                     modifierFlags:modifiers
                                         timestamp:0
                                      windowNumber:[[view window] windowNumber]
                                           context:nil
                                       eventNumber:0
                                    trackingNumber:0
                                          userData:nullptr];
  if (type == NSMouseEntered) {
    [view mouseEntered:event];
  } else {
    [view mouseExited:event];
  }
}

void PostEmptyEvent() {
  [NSApp postEvent:[NSEvent otherEventWithType:NSApplicationDefined
                                      location:NSZeroPoint
                                 modifierFlags:0
                                     timestamp:0
                                  windowNumber:0
                                       context:nil
                                       subtype:0
                                         data1:0
                                         data2:0]
           atStart:NO];
}
