#pragma once

#import <AppKit/AppKit.h>

#include "Src/HXUI/HXObject.h"

/// Makes the platform's events and hands them over as the platform would: by way
/// of the application's queue.
namespace EventHand {

/// Whether the platform is following the pointer in a loop of its own, as it does
/// for menus and text selections.
bool IsTracking();

/// Moves the real pointer, of which the X server then tells as well.
void Point(const HXObject& widget, HXPoint point);
/// A press, a release or a movement at a point of the widget.
void Mouse(NSEventType type, const HXObject& widget, HXPoint point, int clickCount,
           NSUInteger modifiers);
/// `deltaY` in lines.
void Wheel(const HXObject& widget, HXPoint point, double deltaY);
/// The pointer has come into the widget, or left it.
void Cross(NSEventType type, const HXObject& widget, HXPoint point);
/// A key going down or up, for whoever has the keyboard in the window.
void Key(NSEventType type, NSWindow* window, NSString* characters, NSUInteger modifiers);

}  // namespace EventHand
