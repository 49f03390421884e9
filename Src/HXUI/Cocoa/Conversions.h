#pragma once

#import <AppKit/AppKit.h>

#include <string>

#include "Src/HXUI/HXTypes.h"

// Conversions between the platform's types and the toolkit's, in pairs. This
// is the only place that knows how one becomes the other. For Objective-C++ only.

inline NSPoint ToNative(HXPoint p) { return NSMakePoint(p.x, p.y); }
inline NSSize ToNative(HXSize s) { return NSMakeSize(s.width, s.height); }
inline NSRect ToNative(HXRect r) { return NSMakeRect(r.x, r.y, r.width, r.height); }

inline HXPoint FromNative(NSPoint p) {
  return {static_cast<std::int32_t>(p.x), static_cast<std::int32_t>(p.y)};
}
inline HXSize FromNative(NSSize s) {
  return {static_cast<std::int32_t>(s.width), static_cast<std::int32_t>(s.height)};
}

/// Autoreleased. For text, and for what the platform calls calibrated colours.
inline NSColor* ToCalibratedColor(HXColor c) {
  return [NSColor colorWithCalibratedRed:c.red / 255.0
                                   green:c.green / 255.0
                                    blue:c.blue / 255.0
                                   alpha:c.alpha / 255.0];
}

/// Autoreleased. For fills, strokes and backgrounds.
inline NSColor* ToDeviceColor(HXColor c) {
  return [NSColor colorWithDeviceRed:static_cast<float>(c.red) / 255.0F
                               green:static_cast<float>(c.green) / 255.0F
                                blue:static_cast<float>(c.blue) / 255.0F
                               alpha:static_cast<float>(c.alpha) / 255.0F];
}

/// Autoreleased; nil when the text is not valid UTF-8.
inline NSString* ToNative(const std::string& utf8) {
  return [[[NSString alloc] initWithBytes:utf8.data()
                                   length:utf8.size()
                                 encoding:NSUTF8StringEncoding] autorelease];
}

/// nil gives an empty string.
inline std::string FromNative(NSString* text) {
  const char* utf8 = [text UTF8String];
  return utf8 == nullptr ? std::string() : std::string(utf8);
}
