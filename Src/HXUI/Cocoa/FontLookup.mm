#include "Src/HXUI/Cocoa/FontLookup.h"

#include <cstdlib>
#include <map>
#include <tuple>

#include "Src/HXUI/Cocoa/Conversions.h"

namespace {

constexpr int kRegularWeight = 5;
constexpr int kBoldWeight = 8;

/// A family of nearly the same widths, or only its condensed faces.
struct Substitute {
  NSString* family;
  bool condensed;
};

/// Takes the place of "Tahoma", which is narrower than the others.
const Substitute kNarrowSubstitute = {@"DejaVu Sans", true};
/// Nearest first.
const Substitute kSubstitutes[] = {{@"DejaVu Sans", false},
                                   {@"Liberation Sans", false},
                                   {@"FreeSans", false},
                                   {@"Helvetica", false}};

NSFont* FindInFamily(NSString* family, bool bold, bool italic, float size) {
  NSFontManager* manager = [NSFontManager sharedFontManager];
  const NSFontTraitMask traits = italic ? NSItalicFontMask : 0;
  NSFont* font = [manager fontWithFamily:family
                                  traits:traits
                                  weight:bold ? kBoldWeight : kRegularWeight
                                    size:size];
  if (font != nil || !bold) return font;
  // Asked by weight alone, some families have their bold face at another weight.
  return [manager fontWithFamily:family
                          traits:traits | NSBoldFontMask
                          weight:kBoldWeight
                            size:size];
}

/// Not through the font manager's own choice: fontconfig puts the condensed faces into the family
/// of the normal ones, with the same traits, and only the name of the face tells them apart.
NSFont* FindSubstitute(const Substitute& substitute, bool bold, bool italic, float size) {
  NSString* best = nil;
  int leastDistance = 0;
  NSArray* faces =
      [[NSFontManager sharedFontManager] availableMembersOfFontFamily:substitute.family];
  for (NSArray* face in faces) {
    NSString* style = [face objectAtIndex:1];
    const bool condensed = [style rangeOfString:@"Condensed"].location != NSNotFound;
    if (condensed != substitute.condensed) continue;
    const int weight = [[face objectAtIndex:2] intValue];
    const bool slanted = ([[face objectAtIndex:3] unsignedIntValue] & NSItalicFontMask) != 0;
    // An upright face of the right weight is nearer than an italic one of the wrong weight.
    const int distance =
        2 * std::abs(weight - (bold ? kBoldWeight : kRegularWeight)) + (slanted != italic ? 3 : 0);
    if (best != nil && distance >= leastDistance) continue;
    best = [face objectAtIndex:0];
    leastDistance = distance;
  }
  return best == nil ? nil : [NSFont fontWithName:best size:size];
}

NSFont* FindAnywhere(NSString* family, bool bold, bool italic, float size) {
  NSFont* font = family == nil ? nil : FindInFamily(family, bold, italic, size);
  if (font == nil && [family isEqualToString:@"Tahoma"]) {
    font = FindSubstitute(kNarrowSubstitute, bold, italic, size);
  }
  if (font != nil) return font;
  for (const Substitute& substitute : kSubstitutes) {
    font = FindSubstitute(substitute, bold, italic, size);
    if (font != nil) return font;
  }
  return bold ? [NSFont boldSystemFontOfSize:size] : [NSFont systemFontOfSize:size];
}

}  // namespace

NSFont* FontLookup::Find(const std::string& family, bool bold, bool italic, float size) {
  // Widgets ask again in every drawing pass, and asking the platform costs as much as drawing a
  // short text. There are few fonts; they stay, as they do in the platform's own cache.
  static std::map<std::tuple<std::string, bool, bool, float>, NSFont*> found;
  NSFont*& font = found[{family, bold, italic, size}];
  if (font == nil) font = [FindAnywhere(ToNative(family), bold, italic, size) retain];
  return [[font retain] autorelease];
}

NSString* FontLookup::InstalledFamily(NSString* family) {
  NSArray* installed = [[NSFontManager sharedFontManager] availableFontFamilies];
  if ([installed containsObject:family]) return family;
  for (const Substitute& substitute : kSubstitutes) {
    if ([installed containsObject:substitute.family]) return substitute.family;
  }
  return nil;
}
