#pragma once

#import <AppKit/AppKit.h>

#include <cstdint>

#include "Src/HXUI/MouseKind.h"

class HXObject;

/// The platform view of a panel, and the content view of a window. Translates
/// the platform's callbacks into the toolkit's codes and hands them on; keeps
/// nothing but the link to its widget, which cuts it when it goes. Retained by
/// its widget and by its superview. Flipped: y grows downward.
@interface HXView : NSView {
  HXObject* win;
  NSTrackingRectTag trackTag;
}

/// The widget, which is not owned; null after the widget has gone.
- (HXObject*)getObject;
- (void)setWindow:(HXObject*)object;

/// Ends the tracking of size and pointer.
- (void)removeTags;

/// The size has changed: tracks the new bounds, lets the widget lay out its
/// content and tells it.
- (void)onSize:(NSNotification*)notification;

- (void)handleMouseEvent:(MouseKind)kind;
/// Hands a movement to the deepest visible child under the pointer.
- (void)handleMouseMoved:(NSEvent*)event;
- (void)sendToMouseHook:(HXObject*)widget event:(MouseKind)kind;
/// NO when a sink stopped the event.
- (BOOL)sendToEventSink:(std::uint32_t)kind param:(std::int64_t)parameter;

@end
