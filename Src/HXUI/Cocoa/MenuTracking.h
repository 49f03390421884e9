#pragma once

#include "Src/HXUI/HXTypes.h"

#ifdef __OBJC__
@class NSPopUpButtonCell;
@class NSView;
#else
struct NSPopUpButtonCell;
struct NSView;
#endif

/// What the two AppKits do differently when a popup menu is run from code.
namespace MenuTracking {

/// Opens the cell's menu at `frame` (in the view's coordinates) and returns
/// when the user has chosen an item, whose action has then been sent, or has
/// closed the menu. The view is in a window. Main thread only.
void Run(NSPopUpButtonCell* cell, HXRect frame, NSView* view);

}  // namespace MenuTracking
