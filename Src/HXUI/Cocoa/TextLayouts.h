#pragma once

#import <AppKit/AppKit.h>

#include <string>

#include "Src/HXUI/Cocoa/TextLook.h"

/// Draws texts into the current graphics context. Widgets draw the same few
/// texts again and again, and one of the two AppKits lays each out anew or
/// spends as long on finding out that it need not; there the latest ones stay
/// laid out. For Objective-C++ only; main thread only.
namespace TextLayouts {

/// UTF-8, wrapped within `box` and cut at its edges; in a box of 0 by 0 neither,
/// from its origin on. May change colours and font of the graphics context.
void Draw(const std::string& text, const TextLook& look, NSRect box);

}  // namespace TextLayouts
