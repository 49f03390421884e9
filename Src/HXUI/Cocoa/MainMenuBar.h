#pragma once

#include <string>

#include "Src/HXUI/Cocoa/NativeTypes.h"

/// An empty menu that serves as the application's main menu. Where the desktop
/// has no place of its own for an application's menu it is never shown; its
/// keys work all the same. Autoreleased. Main thread only.
NSMenu* MakeMainMenuBar(const std::string& title);
