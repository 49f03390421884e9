#include "Src/HXUI/Cocoa/FontLookup.h"
#include "Src/HXUI/HXTextControl.h"
#include "tests/Src/HXUI/TextFixture.h"

namespace {

constexpr std::uint32_t kRichText = 49;

constexpr char kShortRtf[] = "{\\rtf1\\ansi{\\fonttbl{\\f0\\fnil Verdana;}}\\f0\\fs20 One line}";

class HXTextControlRichTextTest : public TextFixture {
 protected:
  HXTextControl* Make(std::uint32_t flags, const std::string& text) {
    return new HXTextControl(window.get(), {20, 30}, {200, 24}, text, flags);
  }
};

TEST_F(HXTextControlRichTextTest, RichTextLosesItsMarkup) {
  HXTextControl* control = Make(kRichText, "");
  control->SetText(
      "{\\rtf1\\ansi{\\fonttbl{\\f0\\fnil Verdana;}}\\f0 Plain \\b bold\\b0\\par gr\\'f6\\'dfer}");
  EXPECT_EQ(control->GetText(), "Plain bold\ngr\xC3\xB6\xC3\x9F"
                                "er");
}

TEST_F(HXTextControlRichTextTest, RichTextFitsTheHeightAndKeepsTheWidth) {
  HXTextControl* control = Make(kRichText, kShortRtf);
  const HXSize one = control->GetSize();
  EXPECT_EQ(one.width, 200);
  EXPECT_GT(one.height, 8);
  EXPECT_LT(one.height, 24);

  std::string rtf(kShortRtf, sizeof(kShortRtf) - 2);
  for (int line = 0; line < 50; ++line) rtf += "\\par next line";
  control->SetText(rtf + "}");
  EXPECT_EQ(control->GetSize().width, 200);
  EXPECT_NEAR(control->GetSize().height, 51 * one.height, 51);

  control->SetText(kShortRtf);
  EXPECT_EQ(control->GetSize(), one);
}

TEST_F(HXTextControlRichTextTest, RichTextWrapsAtTheControlsWidth) {
  std::string rtf(kShortRtf, sizeof(kShortRtf) - 2);
  for (int word = 0; word < 60; ++word) rtf += " words";
  HXTextControl* narrow = Make(kRichText, rtf + "}");
  HXTextControl* wide = new HXTextControl(window.get(), {0, 0}, {400, 20}, rtf + "}", kRichText);
  EXPECT_GT(narrow->GetSize().height, wide->GetSize().height * 3 / 2);
}

TEST_F(HXTextControlRichTextTest, AllOfTheRichTextIsDrawn) {
  HXTextControl* control = Make(kRichText, kShortRtf);
  control->SetColor({255, 255, 255});
  std::string rtf(kShortRtf, sizeof(kShortRtf) - 2);
  control->SetText(rtf + "\\par\\par last}");
  const HXSize size = control->GetSize();
  const HXRect ink = Draw(*control)->InkBounds({0, 0, size.width, size.height}, {255, 255, 255});
  EXPECT_LT(ink.y, size.height / 3);
  EXPECT_GT(ink.y + ink.height, size.height * 2 / 3);
}

TEST_F(HXTextControlRichTextTest, TheSizeIsTheWidgetsBusinessAlone) {
  HXTextControl* control = Make(HXTextControl::kMultiLine, kShortRtf);
  control->SetSize({150, 77});
  [TextViewOf(*control) insertText:@"a\nb\nc\nd\ne\nf\ng\nh\ni\nj"];
  Pump();
  EXPECT_EQ(control->GetSize(), (HXSize{150, 77}));
}

TEST_F(HXTextControlRichTextTest, BoldStaysBoldInAFamilyThatIsNotThere) {
  HXTextControl* control =
      Make(kRichText, "{\\rtf1\\ansi{\\fonttbl{\\f0\\fnil No Such Family;}}\\f0\\fs30 a\\b b\\b0}");
  NSTextStorage* storage = [TextViewOf(*control) textStorage];
  ASSERT_EQ([storage length], 2U);
  NSFont* plain = [storage attribute:NSFontAttributeName atIndex:0 effectiveRange:nullptr];
  NSFont* bold = [storage attribute:NSFontAttributeName atIndex:1 effectiveRange:nullptr];
  NSFontManager* manager = [NSFontManager sharedFontManager];
  EXPECT_EQ([manager traitsOfFont:plain] & NSBoldFontMask, 0U);
  EXPECT_NE([manager traitsOfFont:bold] & NSBoldFontMask, 0U);
  EXPECT_EQ([bold pointSize], 15.0);
  EXPECT_TRUE([[bold familyName] isEqualToString:FontLookup::InstalledFamily(@"No Such Family")]);
}

TEST_F(HXTextControlRichTextTest, WhatIsNoRichTextGivesAnEmptyText) {
  HXTextControl* control = Make(kRichText, kShortRtf);
  const std::string noRtf[] = {"",        "plain words",           "}}}",
                               "{{{{{{{", std::string("\0\0", 2),  "\xFF\xFE\x80",
                               "{\\rtf1", std::string(100000, '{')};
  for (const std::string& text : noRtf) {
    control->SetText(kShortRtf);
    control->SetText(text);
    EXPECT_EQ(control->GetText(), "") << text.substr(0, 20);
    EXPECT_EQ(control->GetSize().width, 200);
    EXPECT_LT(control->GetSize().height, 24);
  }
}

TEST_F(HXTextControlRichTextTest, ADamagedFieldLeavesTheTextAroundIt) {
  HXTextControl* control = Make(kRichText, "");
  control->SetText("{\\rtf1\\ansi before{\\field{\\*\\fldedit x}{\\fldrslt y}} after}");
  EXPECT_TRUE(control->GetText().starts_with("before")) << control->GetText();
  EXPECT_TRUE(control->GetText().ends_with(" after")) << control->GetText();
}

TEST_F(HXTextControlRichTextTest, FontsAreKeptBetweenOneAnd1638Points) {
  HXTextControl* control = Make(kRichText, "");
  // In half points, as the document has them.
  const std::pair<int, double> sizes[] = {{-7, 1},      {1, 1},       {2, 1},
                                          {3, 1.5},     {24, 12},     {3275, 1637.5},
                                          {3276, 1638}, {3277, 1638}, {100000, 1638}};
  for (const auto& [halves, points] : sizes) {
    control->SetText("{\\rtf1\\ansi{\\fonttbl{\\f0\\fnil Verdana;}}\\f0\\fs40 a\\fs" +
                     std::to_string(halves) + " b}");
    NSTextStorage* storage = [TextViewOf(*control) textStorage];
    ASSERT_EQ([storage length], 2U);
    NSFont* before = [storage attribute:NSFontAttributeName atIndex:0 effectiveRange:nullptr];
    NSFont* bounded = [storage attribute:NSFontAttributeName atIndex:1 effectiveRange:nullptr];
    EXPECT_EQ([before pointSize], 20.0) << halves;
    EXPECT_EQ([bounded pointSize], points) << halves;
  }
}

TEST_F(HXTextControlRichTextTest, ParagraphStylesOfTheDocumentStay) {
  HXTextControl* control = Make(
      kRichText,
      "{\\rtf1\\ansi{\\fonttbl{\\f0\\fnil Verdana;}}\\f0 a\\par\\pard\\qc b\\par\\pard\\qr c}");
  NSTextStorage* storage = [TextViewOf(*control) textStorage];
  const auto alignment = [&](NSUInteger i) {
    return [[storage attribute:NSParagraphStyleAttributeName atIndex:i
                effectiveRange:nullptr] alignment];
  };
  ASSERT_EQ([storage length], 5U);
  EXPECT_EQ(alignment(2), NSCenterTextAlignment);
  EXPECT_EQ(alignment(4), NSRightTextAlignment);
}

TEST_F(HXTextControlRichTextTest, RichTextCutShortAnywhereLeavesTheControlUsable) {
  const std::string rtf = "{\\rtf1\\ansi{\\fonttbl{\\f0\\fnil "
                          "Verdana;}}{\\colortbl;\\red1;}\\f0\\cf1 a\\'e9\\u8364? b}";
  HXTextControl* control = Make(kRichText, "");
  for (std::size_t length = 0; length < rtf.size(); ++length) {
    control->SetText(rtf.substr(0, length));
  }
  control->SetText(kShortRtf);
  EXPECT_EQ(control->GetText(), "One line");
}

TEST_F(HXTextControlRichTextTest, EveryLetterHasAParagraphStyle) {
  const std::string rtf = "{\\rtf1\\ansi{\\fonttbl{\\f0\\fnil Verdana;}}\\f0 One\\par two}";
  HXTextControl* control = Make(kRichText, rtf);
  NSTextStorage* storage = [TextViewOf(*control) textStorage];
  ASSERT_GT([storage length], 0U);
  for (NSUInteger i = 0; i < [storage length]; ++i) {
    EXPECT_NE([storage attribute:NSParagraphStyleAttributeName atIndex:i effectiveRange:nullptr],
              nil)
        << i;
  }
}

TEST_F(HXTextControlRichTextTest, AFontIsStillThereAfterAnAbsurdSize) {
  HXTextControl* control = Make(kRichText, "");
  for (const char* size : {"0", "-7", "99999999", "2147483647", "-2147483648"}) {
    SCOPED_TRACE(size);
    control->SetText(std::string("{\\rtf1\\ansi{\\fonttbl{\\f0\\fnil Verdana;}}\\f0\\fs") + size +
                     " One \\fs24 two\\par three}");
    EXPECT_EQ(control->GetText(), "One two\nthree");
    EXPECT_GT(control->GetSize().height, 8);
    NSTextStorage* storage = [TextViewOf(*control) textStorage];
    NSFont* font = [storage attribute:NSFontAttributeName atIndex:5 effectiveRange:nullptr];
    EXPECT_EQ([font pointSize], 12.0);
    NSDictionary* attributes = [NSDictionary dictionaryWithObject:font forKey:NSFontAttributeName];
    EXPECT_GT([@"two" sizeWithAttributes:attributes].width, 10);
  }
}

}  // namespace
