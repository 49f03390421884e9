#pragma once

#import <AppKit/AppKit.h>

#include <string>

#include "Src/HXUI/Cocoa/NativeTypes.h"

/// Finds fonts by family name. For Objective-C++ only; main thread.
namespace FontLookup {

/// The font of the given family (UTF-8), or the nearest face of the nearest
/// sans-serif family that is installed, or the system's own font; so italics
/// may be missing. Size in points. Autoreleased, never nil. What was found once
/// is kept for the life of the program.
NSFont* Find(const std::string& family, bool bold, bool italic, float size);

/// The family of this system that stands in for `family`: itself when it is
/// installed. A family holds its condensed faces too, so this says nothing
/// about widths. Nil when neither it nor a substitute is installed.
NSString* InstalledFamily(NSString* family);

}  // namespace FontLookup
