#pragma once

#import <AppKit/AppKit.h>

// What a test does with the platform's own pointer and wheel; the two platforms do it differently.

/// Moves the real pointer, in screen coordinates (y upward).
void MoveRealPointer(NSPoint onScreen);

/// Turns the wheel over `view`, at a point of its window; `lines` is positive away from the user.
void TurnWheel(NSView* view, NSPoint inWindow, double lines);
