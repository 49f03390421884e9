#include "Src/HXUI/Cocoa/TextLayouts.h"

#include "Src/HXUI/Cocoa/Conversions.h"

namespace {

/// Lay out from the line-fragment origin, without screen-font substitution, and truncate the last
/// visible line.
constexpr auto kDrawOptions = static_cast<NSStringDrawingOptions>(37);

}  // namespace

// The platform keeps its latest layouts itself.
void TextLayouts::Draw(const std::string& text, const TextLook& look, NSRect box) {
  NSString* native = ToNative(text);
  NSDictionary* attributes = look.Attributes();
  [NSGraphicsContext saveGraphicsState];
  if (NSEqualSizes(box.size, NSZeroSize)) {
    [native drawAtPoint:box.origin withAttributes:attributes];
  } else {
    [native drawWithRect:box options:kDrawOptions attributes:attributes];
  }
  [NSGraphicsContext restoreGraphicsState];
}
