#pragma once

#import <AppKit/AppKit.h>

/// Known to GNUstep only; it is how its own back-end makes wheel events.
@interface NSEvent (WheelEvents)
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
