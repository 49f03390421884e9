#pragma once

#include "Src/HXUI/Cocoa/NativeTypes.h"

/// Takes all subviews out of `view`, first to last, in time that grows with
/// their number. For a view that is in no window any more. Main thread only.
void RemoveSubviews(NSView* view);
