#include "Src/HXUI/Cocoa/TextExtents.h"

#include <map>
#include <optional>

#include "Src/HXUI/Cocoa/Conversions.h"

namespace {

/// Lay out from the line-fragment origin, without screen-font substitution.
constexpr auto kMeasureOptions = static_cast<NSStringDrawingOptions>(5);
/// Stands for "no bound".
constexpr CGFloat kUnbounded = 1.0e6;
/// More than any window shows. All go at once, so that what is drawn now is soon there again.
constexpr std::size_t kMostRemembered = 500;

/// Of one text within one size.
struct Findings {
  std::optional<NSSize> extent;
  std::optional<std::string> shortened;
};

/// Until the next call.
Findings& FindingsFor(const std::string& text, const TextLook& look, NSSize size) {
  static std::map<TextLook::Key, Findings> remembered;
  const TextLook shape{look.font, look.flags, {}, false};
  const TextLook::Key key = shape.KeyOf(text, size);
  const auto found = remembered.find(key);
  if (found != remembered.end()) return found->second;
  if (remembered.size() >= kMostRemembered) remembered.clear();
  return remembered[key];
}

std::string Shorten(NSString* text, NSSize box, NSDictionary* attributes) {
  const NSSize column = NSMakeSize(box.width, kUnbounded);
  NSString* fitting = nil;
  NSUInteger shortest = 0;
  NSUInteger longest = [text length];
  while (shortest < longest) {
    const NSUInteger middle = (shortest + longest) / 2;
    const NSUInteger end = [text rangeOfComposedCharacterSequenceAtIndex:middle].location;
    NSString* candidate = [[text substringToIndex:end] stringByAppendingString:@"\u2026"];
    if (TextExtents::MeasureOnce(candidate, column, attributes).height <= box.height) {
      fitting = candidate;
      shortest = middle + 1;
    } else {
      longest = middle;
    }
  }
  return FromNative(fitting);
}

}  // namespace

NSSize TextExtents::Measure(const std::string& text, const TextLook& look, NSSize bounds) {
  std::optional<NSSize>& extent = FindingsFor(text, look, bounds).extent;
  if (!extent) extent = MeasureOnce(ToNative(text), bounds, look.Attributes());
  return *extent;
}

NSSize TextExtents::MeasureOnce(NSString* text, NSSize bounds, NSDictionary* attributes) {
  if (NSEqualSizes(bounds, NSZeroSize)) return [text sizeWithAttributes:attributes];
  return [text boundingRectWithSize:bounds options:kMeasureOptions attributes:attributes].size;
}

std::string TextExtents::Shortened(const std::string& text, const TextLook& look, NSSize box) {
  std::optional<std::string>& shortened = FindingsFor(text, look, box).shortened;
  if (!shortened) shortened = Shorten(ToNative(text), box, look.Attributes());
  return *shortened;
}
