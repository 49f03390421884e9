#pragma once

#include "Src/HXUI/Cocoa/NativeTypes.h"

/// Keeps `dialog` in front of `owner` from now on, wherever the user clicks.
/// Either may be nil, which leaves things as they are. Main thread only.
void KeepInFront(NSWindow* dialog, NSWindow* owner);
