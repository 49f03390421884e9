#pragma once

#import <AppKit/AppKit.h>

#include <string>

#include "Src/HXUI/Cocoa/TextLook.h"

/// How much room texts take. Widgets draw the same few texts again and again,
/// and laying one out to measure it costs the platform as much as drawing it;
/// so the latest measurements are remembered. Texts are valid UTF-8; colour and
/// underline of a look change nothing. For Objective-C++ only; main thread only.
namespace TextExtents {

/// Laid out within `bounds`, or in one line when those are 0 by 0.
NSSize Measure(const std::string& text, const TextLook& look, NSSize bounds);

/// The same without remembering it, for texts that are only tried.
NSSize MeasureOnce(NSString* text, NSSize bounds, NSDictionary* attributes);

/// As much of the beginning of `text` as fits into `box` with an ellipsis after
/// it. Not every AppKit heeds the option that asks for this. Empty when not even
/// one line fits.
std::string Shortened(const std::string& text, const TextLook& look, NSSize box);

}  // namespace TextExtents
