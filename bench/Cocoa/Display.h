#pragma once

#import <AppKit/AppKit.h>

#include <functional>

/// Windows that are being measured. For Objective-C++ only; main thread.
namespace Display {

/// Serves events until the condition holds; false when it does not within half a minute.
bool ServeUntil(const std::function<bool()>& condition);

/// Serves what has come and returns when nothing more does.
void ServeAll();

/// Shows the window with its left edge at `x`, and waits until it is the key one.
bool Show(NSWindow* window, CGFloat x);

/// Draws all of the window; returns when it is on the screen.
void DrawAll(NSWindow* window);

/// The view's pixels as they stand in its window. Autoreleased.
NSBitmapImageRep* Pixels(NSView* view);

/// Whether both show the same; says on standard error where they first differ.
bool AreIdentical(NSBitmapImageRep* first, NSBitmapImageRep* second);

}  // namespace Display
