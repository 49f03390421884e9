#include "Src/HXUI/Cocoa/TextLayouts.h"

#include <map>

#include "Src/HXUI/Cocoa/Conversions.h"

namespace {

/// More than any window shows. All go at once, so that what is drawn now is soon there again.
constexpr std::size_t kMostKept = 200;
/// Stands for "no bound", as the platform has it.
constexpr CGFloat kUnbounded = 1.0e7;

/// One text, ready to be drawn as the platform itself would.
struct Layout {
  /// Retained; owns the manager.
  NSTextStorage* storage = nil;
  NSLayoutManager* manager = nil;
  NSRange shown = NSMakeRange(0, 0);
  bool isCut = false;
};

bool IsUnbounded(NSSize size) { return NSEqualSizes(size, NSZeroSize); }

Layout MakeLayout(NSString* text, const TextLook& look, NSSize size) {
  Layout made;
  made.storage = [[[NSTextStorage alloc] initWithString:text
                                             attributes:look.Attributes()] autorelease];
  made.manager = [[[NSLayoutManager alloc] init] autorelease];
  [made.storage addLayoutManager:made.manager];
  const NSSize bounds = IsUnbounded(size) ? NSMakeSize(kUnbounded, kUnbounded) : size;
  NSTextContainer* container = [[[NSTextContainer alloc] initWithContainerSize:bounds] autorelease];
  [container setLineFragmentPadding:0];
  [made.manager addTextContainer:container];
  // Lays out all of it.
  made.shown = [made.manager glyphRangeForTextContainer:container];
  if (!IsUnbounded(size)) {
    const NSRect used = [made.manager usedRectForTextContainer:container];
    made.isCut = NSMinX(used) < 0 || NSMinY(used) > 0 || NSMaxX(used) > size.width ||
                 NSMaxY(used) > size.height;
    const NSRect box{NSZeroPoint, size};
    made.shown = [made.manager glyphRangeForBoundingRect:box inTextContainer:container];
  }
  // Only now that nothing has been raised.
  [made.storage retain];
  return made;
}

const Layout& FindLayout(const std::string& text, const TextLook& look, NSSize size) {
  static std::map<TextLook::Key, Layout> kept;
  const TextLook::Key key = look.KeyOf(text, size);
  const auto found = kept.find(key);
  if (found != kept.end()) return found->second;
  const Layout made = MakeLayout(ToNative(text), look, size);
  if (kept.size() >= kMostKept) {
    for (const auto& [each, layout] : kept) [layout.storage release];
    kept.clear();
  }
  return kept.emplace(key, made).first->second;
}

}  // namespace

// As the platform does it, less its search: it writes each text into a scratch layout and compares
// that with its latest sixteen, which takes longer than drawing it.
void TextLayouts::Draw(const std::string& text, const TextLook& look, NSRect box) {
  const Layout& layout = FindLayout(text, look, box.size);
  if (layout.isCut) {
    [NSGraphicsContext saveGraphicsState];
    NSRectClip(box);
  }
  [layout.manager drawGlyphsForGlyphRange:layout.shown atPoint:box.origin];
  if (layout.isCut) [NSGraphicsContext restoreGraphicsState];
}
