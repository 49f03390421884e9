#import "Src/HXUI/Cocoa/HXTopWindow.h"

#include "Src/HXUI/Cocoa/PointerTrail.h"

@implementation HXTopWindow

- (void)setWorksInModal:(BOOL)works {
  worksInModal = works;
}

- (BOOL)worksWhenModal {
  return worksInModal;
}

- (void)close {
  hasClosed = YES;
  [super close];
}

- (BOOL)canBecomeKeyWindow {
  return !hasClosed;
}

// GNUstep learns from the window manager which windows are left, and that
// still names one that was closed a moment ago. The application would then not
// notice that its last window has gone.
- (BOOL)canBecomeMainWindow {
  return !hasClosed;
}

- (void)resetCursorRects {
  // GNUstep looks where the pointer is and takes that for the last event's place. The pointer
  // may be inside of a widget by then, which the event that brings it there would no longer enter.
  const NSPoint place = LastSeenPointer(self);
  [super resetCursorRects];
  SetLastSeenPointer(self, place);
}

- (void)sendEvent:(NSEvent*)event {
  // What the event leads to may delete the window, even within a modal run of
  // another one, whose pools are drained before this event has ended.
  [[self retain] autorelease];
  [super sendEvent:event];
}

- (BOOL)performKeyEquivalent:(NSEvent*)event {
  // GNUstep asks for every key that is typed.
  if (([event modifierFlags] & NSCommandKeyMask) == 0) return NO;
  return [super performKeyEquivalent:event];
}

- (void)keyDown:(NSEvent*)event {
  // GNUstep would take this for an equivalent too, and leave a modal run on
  // Escape by throwing.
  (void)event;
}

@end
