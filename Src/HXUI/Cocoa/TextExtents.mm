#include "Src/HXUI/Cocoa/TextExtents.h"

#include <map>
#include <tuple>

#include "Src/HXUI/Cocoa/Conversions.h"
#include "Src/HXUI/Cocoa/HXCocoaDC.h"

namespace {

/// Lay out from the line-fragment origin, without screen-font substitution.
constexpr auto kMeasureOptions = static_cast<NSStringDrawingOptions>(5);
/// More than any window shows. All go at once, so that what is drawn now is soon there again.
constexpr std::size_t kMostRemembered = 500;

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

NSTextAlignment AlignmentOf(std::uint32_t flags) {
  if ((flags & HXCocoaDC::kRight) != 0) return NSRightTextAlignment;
  return (flags & HXCocoaDC::kCentre) != 0 ? NSCenterTextAlignment : NSLeftTextAlignment;
}

}  // namespace

NSMutableDictionary* TextExtents::Attributes(std::uint32_t flags, NSFont* font) {
  NSMutableDictionary* attributes = [NSMutableDictionary dictionary];
  [attributes setObject:WrappingStyle(AlignmentOf(flags)) forKey:NSParagraphStyleAttributeName];
  if (font != nil) [attributes setObject:font forKey:NSFontAttributeName];
  return attributes;
}

NSSize TextExtents::Measure(const std::string& text, NSFont* font, std::uint32_t flags,
                            NSSize bounds) {
  using Key = std::tuple<std::string, NSFont*, std::uint32_t, CGFloat, CGFloat>;
  static std::map<Key, NSSize> remembered;
  const Key key(text, font, flags & (HXCocoaDC::kCentre | HXCocoaDC::kRight), bounds.width,
                bounds.height);
  const auto found = remembered.find(key);
  if (found != remembered.end()) return found->second;
  const NSSize size = MeasureOnce(ToNative(text), bounds, Attributes(flags, font));
  if (remembered.size() >= kMostRemembered) remembered.clear();
  remembered.emplace(key, size);
  return size;
}

NSSize TextExtents::MeasureOnce(NSString* text, NSSize bounds, NSDictionary* attributes) {
  if (NSEqualSizes(bounds, NSZeroSize)) return [text sizeWithAttributes:attributes];
  return [text boundingRectWithSize:bounds options:kMeasureOptions attributes:attributes].size;
}
