#include "Src/HXUI/Cocoa/TextLook.h"

#include <bit>
#include <map>

#include "Src/HXUI/Cocoa/Conversions.h"
#include "Src/HXUI/Cocoa/HXCocoaDC.h"

namespace {

NSTextAlignment AlignmentOf(std::uint32_t flags) {
  if ((flags & HXCocoaDC::kRight) != 0) return NSRightTextAlignment;
  return (flags & HXCocoaDC::kCentre) != 0 ? NSCenterTextAlignment : NSLeftTextAlignment;
}

/// One for each alignment, for good: styles are made again and again otherwise.
NSParagraphStyle* WrappingStyle(NSTextAlignment alignment) {
  static std::map<NSTextAlignment, NSParagraphStyle*> styles;
  NSParagraphStyle*& style = styles[alignment];
  if (style == nil) {
    NSMutableParagraphStyle* made = [[NSParagraphStyle defaultParagraphStyle] mutableCopy];
    [made setLineBreakMode:NSLineBreakByWordWrapping];
    [made setAlignment:alignment];
    style = made;
  }
  return style;
}

}  // namespace

NSDictionary* TextLook::Attributes() const {
  NSMutableDictionary* attributes = [NSMutableDictionary dictionary];
  [attributes setObject:WrappingStyle(AlignmentOf(flags)) forKey:NSParagraphStyleAttributeName];
  if (font != nil) [attributes setObject:font forKey:NSFontAttributeName];
  if (color) {
    [attributes setObject:ToCalibratedColor(*color) forKey:NSForegroundColorAttributeName];
  }
  if (underline) {
    [attributes setObject:[NSNumber numberWithInt:1] forKey:NSUnderlineStyleAttributeName];
  }
  return attributes;
}

TextLook::Key TextLook::KeyOf(const std::string& text, NSSize size) const {
  const std::uint32_t alignment = flags & (HXCocoaDC::kCentre | HXCocoaDC::kRight);
  // In the wide type, where none has the bits of white.
  const std::int64_t colorBits = color ? std::int64_t{std::bit_cast<std::uint32_t>(*color)} : -1;
  return {text, font, alignment, colorBits, underline, size.width, size.height};
}
