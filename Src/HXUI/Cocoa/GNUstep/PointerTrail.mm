#include "Src/HXUI/Cocoa/PointerTrail.h"

#import <AppKit/AppKit.h>

@interface NSWindow (HXPointerTrail)
- (NSPoint)lastSeenPoint;
- (void)setLastSeenPoint:(NSPoint)point;
@end

@implementation NSWindow (HXPointerTrail)

- (NSPoint)lastSeenPoint {
  return _lastPoint;
}

- (void)setLastSeenPoint:(NSPoint)point {
  _lastPoint = point;
}

@end

PointerTrail::PointerTrail(NSWindow* keptWindow) : window(keptWindow) {
  const NSPoint point = [window lastSeenPoint];
  place = {point.x, point.y};
}

PointerTrail::~PointerTrail() { [window setLastSeenPoint:NSMakePoint(place.x, place.y)]; }
