#pragma once

#import <AppKit/AppKit.h>

#include <cstdint>
#include <string>

/// How much room texts take. Widgets draw the same few texts again and again,
/// and laying one out to measure it costs the platform as much as drawing it;
/// so the latest measurements are remembered. For Objective-C++ only; main
/// thread only.
namespace TextExtents {

/// The attributes that decide about it: the alignment of `HXCocoaDC`'s flags,
/// word wrapping, and the font, which may be nil. Autoreleased.
NSMutableDictionary* Attributes(std::uint32_t flags, NSFont* font);

/// Laid out within `bounds`, or in one line when those are 0 by 0. `font` is one
/// of `FontLookup`'s, which never go away.
NSSize Measure(const std::string& text, NSFont* font, std::uint32_t flags, NSSize bounds);

/// The same without remembering it, for texts that are only tried.
NSSize MeasureOnce(NSString* text, NSSize bounds, NSDictionary* attributes);

}  // namespace TextExtents
