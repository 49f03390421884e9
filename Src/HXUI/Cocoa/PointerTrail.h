#pragma once

#import <AppKit/AppKit.h>

// For Objective-C++ only; main thread only.

/// The place, in its own coordinates, at which `window` has last seen the pointer in an
/// event. From there to the next event's place the platform tells what the pointer has
/// entered and left. The origin where the platform keeps that to itself.
NSPoint LastSeenPointer(NSWindow* window);

/// Makes `window` go on from `place`; nothing where the platform keeps that to itself.
void SetLastSeenPointer(NSWindow* window, NSPoint place);
