#pragma once

#include "Src/HXUI/Cocoa/NativeTypes.h"

/// Keeps `dialog` in front of `owner` from now on, wherever the user clicks.
/// Either may be nil, which leaves things as they are. Main thread only.
void KeepInFront(NSWindow* dialog, NSWindow* owner);

/// Lets keys go to `dialog`, which stands in front and answers something that the
/// user has just done, even where that was done to the title bar of another window.
/// May be nil. Main thread only.
void FocusDialog(NSWindow* dialog);
