#import "tests/Src/HXUI/GNUstep/WheelEvent.h"

/// Not in the headers.
@interface NSEvent (Wheel)
+ (NSEvent*)mouseEventWithType:(NSEventType)type
                      location:(NSPoint)location
                 modifierFlags:(NSUInteger)flags
                     timestamp:(NSTimeInterval)time
                  windowNumber:(NSInteger)windowNum
                       context:(NSGraphicsContext*)context
                   eventNumber:(NSInteger)eventNum
                    clickCount:(NSInteger)clickNum
                      pressure:(float)pressureValue
                  buttonNumber:(NSInteger)buttonNum
                        deltaX:(CGFloat)deltaX
                        deltaY:(CGFloat)deltaY
                        deltaZ:(CGFloat)deltaZ;
@end

NSEvent* WheelEvent(NSWindow* window, NSPoint location, double lines) {
  return [NSEvent mouseEventWithType:NSScrollWheel
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
                              deltaY:lines
                              deltaZ:0];
}
