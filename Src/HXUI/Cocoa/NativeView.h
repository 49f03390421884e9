#pragma once

#include "Src/HXUI/Cocoa/NativeTypes.h"
#include "Src/HXUI/HXTypes.h"

class HXObject;

/// What the plain C++ toolkit asks of a platform view. Every function takes a
/// null view, for which it does nothing or gives zeros. Main thread only,
/// except `MarkForRedraw`. Lengths in pixels, coordinates from the top left of
/// the parent's view; fractions are cut off.
namespace NativeView {

/// A new view for `widget`, in no window yet. The caller owns one reference and
/// ends it with `Destroy`.
NSView* Create(HXObject* widget, HXRect frame);
/// Cuts the view's link to its widget, takes it off the screen and gives the reference back.
void Destroy(NSView* view);

void AddSubview(NSView* parent, NSView* child);
void RemoveFromParent(NSView* view);

HXPoint GetPosition(NSView* view);
/// Both mark the view for redrawing.
void SetPosition(NSView* view, HXPoint position);
void SetSize(NSView* view, HXSize size);
HXSize GetSize(NSView* view);
/// True for a view that stands, at any depth, in `ancestor`.
bool IsInside(NSView* view, NSView* ancestor);
/// Where the origin of `view` lies in `ancestor`.
HXPoint GetOffset(NSView* view, NSView* ancestor);

void SetHidden(NSView* view, bool hidden);
/// Any thread; from another one than the main thread the view is marked a little later.
void MarkForRedraw(NSView* view);
void RedrawNow(NSView* view);

void Focus(NSView* view);
void Unfocus(NSView* view);
/// With the keyboard, in the key window.
bool IsFocused(NSView* view);
/// The widget whose view has the keyboard of the key window, or null.
HXObject* GetFocusedObject();

void SetCursorRectsEnabled(NSView* view, bool enable);
bool AreCursorRectsEnabled(NSView* view);

/// In the view's coordinates, or in the screen's with y growing upward.
HXPoint GetMousePosition(NSView* view, bool screen);
HXPoint ClientToScreen(NSView* view, HXPoint point);

void SetAcceptsFileDrops(NSView* view, bool accept);

}  // namespace NativeView
