#pragma once

#import <AppKit/AppKit.h>

#include <cstdint>
#include <optional>
#include <string>
#include <tuple>

#include "Src/HXUI/HXTypes.h"

/// How a text looks, whatever it says and wherever it stands. For Objective-C++
/// only; main thread only.
struct TextLook {
  /// One of `FontLookup`'s, which never go away; nil for the platform's own.
  NSFont* font = nil;
  /// The alignment among the flags of `HXCocoaDC::DrawText`; the others change nothing.
  std::uint32_t flags = 0;
  /// Without one, the platform's own.
  std::optional<HXColor> color;
  bool underline = false;

  /// Wrapped at words. Autoreleased.
  NSDictionary* Attributes() const;

  /// Tells apart what is remembered about texts.
  using Key = std::tuple<std::string, NSFont*, std::uint32_t, std::int64_t, bool, CGFloat, CGFloat>;
  /// Of `text` laid out within `size`.
  Key KeyOf(const std::string& text, NSSize size) const;
};
