#include "Src/HXUI/Cocoa/FontLookup.h"

#include <gtest/gtest.h>

namespace {

CGFloat WidthOf(NSString* text, NSFont* font) {
  return [text sizeWithAttributes:[NSDictionary dictionaryWithObject:font
                                                              forKey:NSFontAttributeName]]
      .width;
}

bool IsBold(NSFont* font) {
  return ([[NSFontManager sharedFontManager] traitsOfFont:font] & NSBoldFontMask) != 0;
}

bool IsItalic(NSFont* font) {
  return ([[NSFontManager sharedFontManager] traitsOfFont:font] & NSItalicFontMask) != 0;
}

bool HasFace(NSString* family, NSString* style) {
  NSArray* faces = [[NSFontManager sharedFontManager] availableMembersOfFontFamily:family];
  for (NSArray* face in faces) {
    if ([[face objectAtIndex:1] isEqual:style]) return true;
  }
  return false;
}

class FontLookupTest : public ::testing::Test {
 protected:
  FontLookupTest() : pool([[NSAutoreleasePool alloc] init]) {}
  ~FontLookupTest() override { [pool drain]; }

 private:
  NSAutoreleasePool* pool;
};

TEST_F(FontLookupTest, AnInstalledFamilyIsItself) {
  EXPECT_TRUE([[FontLookup::Find("DejaVu Sans Mono", false, false, 12) familyName]
      isEqual:@"DejaVu Sans Mono"]);
  EXPECT_TRUE([FontLookup::InstalledFamily(@"DejaVu Sans Mono") isEqual:@"DejaVu Sans Mono"]);
}

TEST_F(FontLookupTest, VerdanaIsTheNormalFaceOfItsSubstitute) {
  EXPECT_TRUE([[FontLookup::Find("Verdana", false, false, 11) fontName] isEqual:@"DejaVuSans"]);
  EXPECT_TRUE([FontLookup::InstalledFamily(@"Verdana") isEqual:@"DejaVu Sans"]);
}

TEST_F(FontLookupTest, TahomaIsNarrowerWhereThereIsACondensedFace) {
  NSString* text = @"Installation complete";
  const CGFloat tahoma = WidthOf(text, FontLookup::Find("Tahoma", false, false, 12));
  const CGFloat verdana = WidthOf(text, FontLookup::Find("Verdana", false, false, 12));
  EXPECT_EQ(tahoma < 0.95 * verdana, HasFace(@"DejaVu Sans", @"Condensed"));
  EXPECT_LE(tahoma, verdana);
  EXPECT_TRUE([FontLookup::InstalledFamily(@"Tahoma") isEqual:@"DejaVu Sans"]);
}

TEST_F(FontLookupTest, CondensedFacesStandInForTahomaOnly) {
  for (const bool bold : {false, true}) {
    for (const bool italic : {false, true}) {
      NSString* name = [FontLookup::Find("Verdana", bold, italic, 12) fontName];
      EXPECT_EQ([name rangeOfString:@"Condensed"].location, static_cast<NSUInteger>(NSNotFound))
          << [name UTF8String];
    }
  }
}

TEST_F(FontLookupTest, BoldIsBoldAndWider) {
  NSString* text = @"Installation complete";
  for (const char* family : {"Verdana", "Tahoma", "DejaVu Sans Mono", "No Such Family"}) {
    NSFont* regular = FontLookup::Find(family, false, false, 12);
    NSFont* bold = FontLookup::Find(family, true, false, 12);
    EXPECT_FALSE(IsBold(regular)) << family;
    EXPECT_TRUE(IsBold(bold)) << family;
    EXPECT_FALSE([[regular fontName] isEqual:[bold fontName]]) << family;
    EXPECT_GE(WidthOf(text, bold), WidthOf(text, regular)) << family;
  }
  EXPECT_GT(WidthOf(text, FontLookup::Find("Verdana", true, false, 12)),
            1.05 * WidthOf(text, FontLookup::Find("Verdana", false, false, 12)));
}

TEST_F(FontLookupTest, ItalicIsItalicWhereThereIsSuchAFace) {
  EXPECT_EQ(IsItalic(FontLookup::Find("Verdana", false, true, 12)),
            HasFace(@"DejaVu Sans", @"Oblique"));
  EXPECT_FALSE(IsBold(FontLookup::Find("Verdana", false, true, 12)));
  EXPECT_TRUE(IsBold(FontLookup::Find("Verdana", true, true, 12)));
}

TEST_F(FontLookupTest, SizeIsInPoints) {
  for (const float size : {7.5F, 11.0F, 40.0F}) {
    EXPECT_FLOAT_EQ([FontLookup::Find("Verdana", false, false, size) pointSize], size);
  }
}

TEST_F(FontLookupTest, UnknownFamiliesGetASansSerifOne) {
  for (const char* family : {"No Such Family", "", "\xFF\xFE", "Ünbekannt"}) {
    NSFont* font = FontLookup::Find(family, false, false, 12);
    ASSERT_NE(font, nil) << family;
    EXPECT_TRUE([[font familyName] isEqual:@"DejaVu Sans"]) << family;
  }
  EXPECT_TRUE([FontLookup::InstalledFamily(@"No Such Family") isEqual:@"DejaVu Sans"]);
}

TEST_F(FontLookupTest, AskingAgainGivesTheSameFont) {
  NSFont* font = FontLookup::Find("Tahoma", true, false, 13);
  EXPECT_EQ(font, FontLookup::Find("Tahoma", true, false, 13));
  EXPECT_NE(font, FontLookup::Find("Tahoma", false, false, 13));
  EXPECT_NE(font, FontLookup::Find("Tahoma", true, false, 14));
}

TEST_F(FontLookupTest, AFontOutlivesThePoolInWhichItWasFound) {
  NSAutoreleasePool* inner = [[NSAutoreleasePool alloc] init];
  NSFont* font = FontLookup::Find("Verdana", false, false, 23);
  [inner drain];
  EXPECT_TRUE([[font fontName] isEqual:@"DejaVuSans"]);
  EXPECT_EQ(font, FontLookup::Find("Verdana", false, false, 23));
}

}  // namespace
