#include "Src/HXUI/Cocoa/CursorShape.h"

#import <AppKit/AppKit.h>

namespace {

/// nil for a value without a shape.
NSCursor* CursorOf(int shape) {
  switch (shape) {
    case kCursorArrow:
      return [NSCursor arrowCursor];
    case kCursorResizeLeftRight:
      return [NSCursor resizeLeftRightCursor];
    case kCursorResizeUpDown:
      return [NSCursor resizeUpDownCursor];
    case kCursorClosedHand:
      return [NSCursor closedHandCursor];
    case kCursorIBeam:
      return [NSCursor IBeamCursor];
    case kCursorPointingHand:
      return [NSCursor pointingHandCursor];
    default:
      return nil;
  }
}

}  // namespace

void SetCursorShape(int shape) { [CursorOf(shape) set]; }
