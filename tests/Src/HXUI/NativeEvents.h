#pragma once

#import <AppKit/AppKit.h>

// The platform's own events, autoreleased, for a test to post or to send. Windows may be nil:
// the event then belongs to none. Points are in the window's coordinates.

/// A press, a release or a movement.
NSEvent* MouseEvent(NSEventType type, NSWindow* window, NSPoint location, int clickCount = 1,
                    NSUInteger modifiers = 0);
/// A key going down or up.
NSEvent* KeyEvent(NSEventType type, NSWindow* window, NSString* characters,
                  NSUInteger modifiers = 0);
/// Tells a view that the pointer has come in or gone out, as the platform tells whoever owns
/// the tracking rectangle.
void CrossEdge(NSEventType type, NSView* view, NSPoint location, NSUInteger modifiers = 0);
/// Posts an event that says nothing; whoever waits for one goes on.
void PostEmptyEvent();
