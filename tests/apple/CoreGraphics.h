#pragma once

#ifdef __OBJC__
#import <AppKit/NSEvent.h>
#endif

#include "CoreTypes.h"

using CGContextRef = struct CGContext*;
using CGKeyCode = std::uint16_t;
using CGEventSourceStateID = std::int32_t;
constexpr CGEventSourceStateID kCGEventSourceStateCombinedSessionState = 0;

using CGEventRef = struct __CGEvent*;
using CGEventSourceRef = struct __CGEventSource*;
using CGScrollEventUnit = std::uint32_t;
constexpr CGScrollEventUnit kCGScrollEventUnitLine = 1;

#ifdef __OBJC__
using CGPoint = NSPoint;
#endif

struct CGAffineTransform {
  double a, b, c, d, tx, ty;
};

extern "C" {
CGAffineTransform CGAffineTransformMakeScale(double sx, double sy);
void CGContextSetTextMatrix(CGContextRef context, CGAffineTransform matrix);
void CGContextSetShouldSmoothFonts(CGContextRef context, bool shouldSmoothFonts);
void CGContextSetShouldSubpixelPositionFonts(CGContextRef context, bool shouldPosition);
void CGContextSetShouldSubpixelQuantizeFonts(CGContextRef context, bool shouldQuantize);
bool CGEventSourceKeyState(CGEventSourceStateID state, CGKeyCode key);
CGEventRef CGEventCreateScrollWheelEvent(CGEventSourceRef source, CGScrollEventUnit units,
                                         std::uint32_t wheelCount, std::int32_t wheel1, ...);
#ifdef __OBJC__
CGPoint CGPointMake(CGFloat x, CGFloat y);
std::int32_t CGWarpMouseCursorPosition(CGPoint position);
#endif
}

#ifdef __OBJC__
@interface NSEvent (CoreGraphics)
+ (NSEvent*)eventWithCGEvent:(CGEventRef)event;
@end
#endif
