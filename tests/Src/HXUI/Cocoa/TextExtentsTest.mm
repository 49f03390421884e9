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

  static NSSize Fresh(const std::string& text, NSFont* font, std::uint32_t flags, NSSize bounds) {
    return TextExtents::MeasureOnce(ToNative(text), bounds, TextExtents::Attributes(flags, font));
  }

  static void ExpectEqual(NSSize measured, NSSize expected) {
    EXPECT_EQ(measured.width, expected.width);
    EXPECT_EQ(measured.height, expected.height);
  }

 private:
  NSAutoreleasePool* pool;
};

TEST_F(TextExtentsTest, ARememberedMeasurementIsThatOfThePlatform) {
  NSFont* font = FontLookup::Find("Verdana", false, false, 11);
  const NSSize bounds = NSMakeSize(120, 1000);
  const NSSize expected = Fresh(kText, font, 0, bounds);
  ExpectEqual(TextExtents::Measure(kText, font, 0, bounds), expected);
  ExpectEqual(TextExtents::Measure(kText, font, 0, bounds), expected);
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
          ExpectEqual(TextExtents::Measure(text, font, 0, bounds), Fresh(text, font, 0, bounds));
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
    ExpectEqual(TextExtents::Measure(text, font, flags, bounds), Fresh(text, font, flags, bounds));
  }
}

TEST_F(TextExtentsTest, ManyTextsAreMeasuredRightly) {
  NSFont* font = FontLookup::Find("Verdana", false, false, 11);
  for (int pass = 0; pass < 2; ++pass) {
    for (int i = 0; i < 600; ++i) {
      const std::string text = std::to_string(i * i);
      ExpectEqual(TextExtents::Measure(text, font, 0, NSZeroSize),
                  Fresh(text, font, 0, NSZeroSize));
    }
  }
}

}  // namespace
