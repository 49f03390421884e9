#include "Src/HXUI/Cocoa/PointerTrail.h"

@interface NSWindow (HXPointerTrail)
- (NSPoint)lastSeenPointer;
- (void)setLastSeenPointer:(NSPoint)place;
@end

@implementation NSWindow (HXPointerTrail)

- (NSPoint)lastSeenPointer {
  return _lastPoint;
}

- (void)setLastSeenPointer:(NSPoint)place {
  _lastPoint = place;
}

@end

NSPoint LastSeenPointer(NSWindow* window) { return [window lastSeenPointer]; }

void SetLastSeenPointer(NSWindow* window, NSPoint place) { [window setLastSeenPointer:place]; }
