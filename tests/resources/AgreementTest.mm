#include "resources/Agreement.h"

#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

namespace {

/// The agreement's RTF, naming a family that is installed. GNUstep gives the text
/// of a family that is not there the user's font and drops its bold, which would
/// tell nothing about the document.
NSData* RtfForInstalledFonts() {
  NSString* rtf =
      [NSString stringWithUTF8String:reinterpret_cast<const char*>(kAgreementRtf.bytes)];
  NSFontManager* manager = [NSFontManager sharedFontManager];
  if ([manager fontWithFamily:@"Verdana" traits:0 weight:5 size:10] == nil) {
    rtf = [rtf stringByReplacingOccurrencesOfString:@"Verdana" withString:@"DejaVu Sans"];
  }
  return [rtf dataUsingEncoding:NSASCIIStringEncoding];
}

/// The agreement as AppKit reads it, and as the licence page shows it.
class AgreementTest : public testing::Test {
 protected:
  void SetUp() override {
    pool = [[NSAutoreleasePool alloc] init];
    [NSApplication sharedApplication];
    text = [[NSAttributedString alloc] initWithRTF:RtfForInstalledFonts() documentAttributes:NULL];
  }

  void TearDown() override {
    [text release];
    [pool release];
  }

  std::string Text() const { return [[text string] UTF8String]; }

  NSFont* FontAt(NSUInteger index) const {
    return [text attribute:NSFontAttributeName atIndex:index effectiveRange:NULL];
  }

  bool IsBoldAt(NSUInteger index) const {
    return ([[NSFontManager sharedFontManager] traitsOfFont:FontAt(index)] & NSBoldFontMask) != 0;
  }

  NSAutoreleasePool* pool = nil;
  NSAttributedString* text = nil;
};

TEST_F(AgreementTest, IsPlainAsciiAndEndsAtItsZeroByte) {
  const auto* begin = kAgreementRtf.bytes;
  EXPECT_TRUE(std::all_of(begin, begin + kAgreementRtf.length,
                          [](unsigned char byte) { return byte != 0 && byte < 0x80; }));
  EXPECT_EQ(std::strlen(reinterpret_cast<const char*>(begin)), kAgreementRtf.length);
}

TEST_F(AgreementTest, ReadsFromTheFirstSentenceToTheLast) {
  ASSERT_NE(text, nil);
  const std::string all = Text();
  EXPECT_EQ(all.rfind("Ostrel 3D for After Effects\nEnd User Licence Agreement\n\n"
                      "Please read this agreement carefully. It is a contract",
                      0),
            0U);
  const std::string last = "Thank you for using Ostrel 3D.\n";
  ASSERT_GE(all.size(), last.size());
  EXPECT_EQ(all.substr(all.size() - last.size()), last);
}

TEST_F(AgreementTest, LeavesNoMarkupInTheText) {
  ASSERT_NE(text, nil);
  EXPECT_EQ(Text().find_first_of("\\{}"), std::string::npos);
}

TEST_F(AgreementTest, KeepsTheWordsApartWhereItsSourceBreaksLines) {
  ASSERT_NE(text, nil);
  const std::string all = Text();
  EXPECT_NE(all.find("a contract between you and Halvorix about the plug-in"), std::string::npos);
  EXPECT_EQ(all.find("  "), std::string::npos);
}

TEST_F(AgreementTest, SetsOnlyItsTitlesInBold) {
  ASSERT_NE(text, nil);
  std::vector<std::string> titles;
  NSUInteger start = 0;
  for (NSString* line in [[text string] componentsSeparatedByString:@"\n"]) {
    if ([line length] != 0 && IsBoldAt(start)) {
      EXPECT_TRUE(IsBoldAt(start + [line length] - 1)) << [line UTF8String];
      titles.push_back([line UTF8String]);
    }
    start += [line length] + 1;
  }
  const std::vector<std::string> expected = {"Ostrel 3D for After Effects",
                                             "End User Licence Agreement",
                                             "1. Words used here",
                                             "2. What you may do",
                                             "3. What you may not do",
                                             "4. Ownership",
                                             "5. Installing",
                                             "6. Data folder",
                                             "7. Updates and support",
                                             "8. No warranty",
                                             "9. Limit of liability",
                                             "10. Duration and end",
                                             "11. Governing terms",
                                             "12. Contact"};
  EXPECT_EQ(titles, expected);
}

TEST_F(AgreementTest, IsBlackTextOfTenPoints) {
  ASSERT_NE(text, nil);
  const NSUInteger index = [[text string] rangeOfString:@"Please read"].location;
  EXPECT_EQ([FontAt(index) pointSize], 10.0);
  NSColor* color = [text attribute:NSForegroundColorAttributeName
                           atIndex:index
                    effectiveRange:NULL];
  color = [color colorUsingColorSpaceName:NSCalibratedRGBColorSpace];
  ASSERT_NE(color, nil);
  EXPECT_EQ([color redComponent] + [color greenComponent] + [color blueComponent], 0.0);
}

}  // namespace
