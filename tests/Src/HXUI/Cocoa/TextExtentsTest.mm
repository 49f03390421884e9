#include "Src/HXUI/Cocoa/TextExtents.h"

#include <gtest/gtest.h>

#include "Src/HXUI/Cocoa/Conversions.h"
#include "Src/HXUI/Cocoa/FontLookup.h"
#include "Src/HXUI/Cocoa/HXCocoaDC.h"

namespace {

const std::string kText = "It is recommended that you close all other applications";

class TextExtentsTest : public ::testing::Test {
 protected:
  TextExtentsTest() : pool([[NSAutoreleasePool alloc] init]) {}
  ~TextExtentsTest() override { [pool drain]; }

  static NSSize Fresh(const std::string& text, const TextLook& look, NSSize bounds) {
    return TextExtents::MeasureOnce(ToNative(text), bounds, look.Attributes());
  }

  static void ExpectEqual(NSSize measured, NSSize expected) {
    EXPECT_EQ(measured.width, expected.width);
    EXPECT_EQ(measured.height, expected.height);
  }

 private:
  NSAutoreleasePool* pool;
};

TEST_F(TextExtentsTest, ARememberedMeasurementIsThatOfThePlatform) {
  const TextLook look{.font = FontLookup::Find("Verdana", false, false, 11)};
  const NSSize bounds = NSMakeSize(120, 1000);
  const NSSize expected = Fresh(kText, look, bounds);
  ExpectEqual(TextExtents::Measure(kText, look, bounds), expected);
  ExpectEqual(TextExtents::Measure(kText, look, bounds), expected);
}

TEST_F(TextExtentsTest, TextsFontsAndWidthsAreToldApart) {
  NSFont* small = FontLookup::Find("Verdana", false, false, 11);
  NSFont* large = FontLookup::Find("Verdana", true, false, 15);
  const NSSize narrow = NSMakeSize(120, 1000);
  const NSSize wide = NSMakeSize(300, 1000);
  for (int pass = 0; pass < 2; ++pass) {
    for (NSFont* font : {small, large}) {
      for (const NSSize bounds : {narrow, wide, NSZeroSize}) {
        for (const std::string& text : {kText, std::string("Back")}) {
          const TextLook look{.font = font};
          ExpectEqual(TextExtents::Measure(text, look, bounds), Fresh(text, look, bounds));
        }
      }
    }
  }
}

TEST_F(TextExtentsTest, AlignmentsAreToldApart) {
  NSFont* font = FontLookup::Find("Verdana", false, false, 11);
  const std::string text = "Next\n";
  const NSSize bounds = NSMakeSize(120, 1000);
  for (const std::uint32_t flags : {0U, std::uint32_t{HXCocoaDC::kRight}}) {
    const TextLook look{.font = font, .flags = flags};
    ExpectEqual(TextExtents::Measure(text, look, bounds), Fresh(text, look, bounds));
  }
}

TEST_F(TextExtentsTest, ManyTextsAreMeasuredRightly) {
  const TextLook look{.font = FontLookup::Find("Verdana", false, false, 11)};
  for (int pass = 0; pass < 2; ++pass) {
    for (int i = 0; i < 600; ++i) {
      const std::string text = std::to_string(i * i);
      ExpectEqual(TextExtents::Measure(text, look, NSZeroSize), Fresh(text, look, NSZeroSize));
    }
  }
}

TEST_F(TextExtentsTest, ShortenedTextIsTheLongestBeginningThatFits) {
  const TextLook look{.font = FontLookup::Find("Verdana", false, false, 11)};
  const NSSize box = NSMakeSize(120, 31);
  const NSSize column = NSMakeSize(120, 1000);
  // Twice, as the second answer is the remembered one.
  for (int pass = 0; pass < 2; ++pass) {
    const std::string shortened = TextExtents::Shortened(kText, look, box);
    const std::string beginning = shortened.substr(0, shortened.size() - std::string("…").size());
    ASSERT_EQ(shortened, beginning + "…");
    EXPECT_EQ(kText.substr(0, beginning.size()), beginning);
    EXPECT_LE(Fresh(shortened, look, column).height, box.height);
    const std::string longer = kText.substr(0, beginning.size() + 1) + "…";
    EXPECT_GT(Fresh(longer, look, column).height, box.height);
  }
}

TEST_F(TextExtentsTest, ShortenedTextKeepsComposedCharactersWhole) {
  const TextLook look{.font = FontLookup::Find("Verdana", false, false, 11)};
  // The second one's mark takes room of its own: a box may have it for the letter alone.
  for (const std::string character : {"e\u0301", "e\u0489", "😀"}) {
    std::string text;
    for (int i = 0; i < 20; ++i) text += character;
    int cut = 0;
    for (int width = 20; width < 100; ++width) {
      const std::string shortened = TextExtents::Shortened(text, look, NSMakeSize(width, 16));
      std::string whole = "…";
      while (whole.size() < shortened.size()) whole.insert(0, character);
      EXPECT_EQ(shortened, whole) << width;
      if (shortened.size() > std::string("…").size()) ++cut;
    }
    EXPECT_GT(cut, 50) << character;
  }
}

TEST_F(TextExtentsTest, ABoxAsHighAsTheTextIsHighEnough) {
  const TextLook look{.font = FontLookup::Find("Verdana", false, false, 11)};
  const NSSize box = NSMakeSize(120, Fresh("…", look, NSMakeSize(120, 1000)).height);
  EXPECT_GT(TextExtents::Shortened(kText, look, box).size(), std::string("…").size());
}

TEST_F(TextExtentsTest, ABoxTooLowForOneLineLeavesNothing) {
  const TextLook look{.font = FontLookup::Find("Verdana", false, false, 11)};
  EXPECT_EQ(TextExtents::Shortened(kText, look, NSMakeSize(120, 4)), "");
}

}  // namespace
