#pragma once

#ifdef __OBJC__
#import <Foundation/NSGeometry.h>
#endif

#include "CoreTypes.h"

using CGContextRef = struct CGContext*;
using CGKeyCode = std::uint16_t;
using CGEventSourceStateID = std::int32_t;
constexpr CGEventSourceStateID kCGEventSourceStateCombinedSessionState = 0;

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
}
