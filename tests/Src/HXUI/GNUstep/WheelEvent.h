#pragma once

#import <AppKit/AppKit.h>

/// A turn of the wheel as GNUstep's own back-end makes it, at a point of the window; `lines`
/// is positive away from the user.
NSEvent* WheelEvent(NSWindow* window, NSPoint location, double lines);
