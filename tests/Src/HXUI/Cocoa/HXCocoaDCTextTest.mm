#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "Src/HXUI/Cocoa/Conversions.h"
#include "Src/HXUI/Cocoa/FontLookup.h"
#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "tests/Src/HXUI/Cocoa/DrawingFixture.h"

namespace {

constexpr float kFontSize = 11;
constexpr const char* kWords = "aaa bbb ccc ddd eee fff ggg hhh iii jjj";

class HXCocoaDCTextTest : public DrawingFixture {
 protected:
  static void SetUpText(HXCocoaDC& dc) {
    dc.SetFont("Verdana", 0, kFontSize);
    dc.SetTextColor(kWhite);
  }

  /// White text of the usual font.
  std::unique_ptr<DrawnPixels> PaintText(HXSize size, const std::string& text, HXRect rect,
                                         std::uint32_t flags) {
    return Paint(size, [=](HXCocoaDC& dc) {
      SetUpText(dc);
      dc.DrawText(text, rect, flags);
    });
  }

  HXRect TextInk(const std::string& text, HXRect rect, std::uint32_t flags) {
    const auto pixels = PaintText({300, 200}, text, rect, flags);
    return pixels->InkBounds(AllOf(*pixels), kBlack);
  }

  /// What the platform itself draws, with smooth edges.
  std::unique_ptr<DrawnPixels> PaintNativeText(HXSize size, NSString* text, NSPoint point,
                                               NSFont* font) {
    return Paint(size, [=](HXCocoaDC&) {
      [[NSGraphicsContext currentContext] setShouldAntialias:YES];
      NSDictionary* attributes = [NSDictionary
          dictionaryWithObjectsAndKeys:font, NSFontAttributeName, [NSColor whiteColor],
                                       NSForegroundColorAttributeName, nil];
      [text drawAtPoint:point withAttributes:attributes];
    });
  }

  static HXSize Measure(const std::string& text, HXSize bounds, std::uint32_t flags = 0) {
    HXCocoaDC dc(nullptr);
    dc.SetFont("Verdana", 0, kFontSize);
    return dc.MeasureText(text, bounds, flags);
  }
};

// Text

TEST_F(HXCocoaDCTextTest, TextIsBlackUntilItHasAColourEvenWhenItWasWhiteBefore) {
  const HXRect all{0, 0, 120, 40};
  for (const std::string text : {"black first", "white first"}) {
    const auto paintBlack = [&] {
      return Paint({120, 40}, [&](HXCocoaDC& dc) {
        dc.SetFont("Verdana", 0, kFontSize);
        dc.DrawText(text, {10, 10, 0, 0}, 0);
      });
    };
    if (text == "black first") EXPECT_EQ(paintBlack()->Ink(all, kBlack), 0);
    EXPECT_GT(PaintText({120, 40}, text, {10, 10, 0, 0}, 0)->Ink(all, kBlack), 0) << text;
    EXPECT_EQ(paintBlack()->Ink(all, kBlack), 0) << text;
  }
}

TEST_F(HXCocoaDCTextTest, TextAtAPointStandsOneToTheRightAndTwoAbove) {
  const auto pixels = PaintText({120, 40}, "Hxg Ölpreis", {10, 9, 0, 0}, 0);
  const auto expected = PaintNativeText({120, 40}, @"Hxg Ölpreis", NSMakePoint(11, 7),
                                        FontLookup::Find("Verdana", false, false, kFontSize));
  EXPECT_GT(pixels->Ink(AllOf(*pixels), kBlack), 100);
  EXPECT_EQ(CountDifferences(*pixels, *expected), 0);
}

TEST_F(HXCocoaDCTextTest, TextInARectStandsOneToTheRightAndTwoAbove) {
  const auto pixels = PaintText({120, 40}, "Hxg Ölpreis", {10, 9, 100, 20}, 0);
  const auto expected = PaintNativeText({120, 40}, @"Hxg Ölpreis", NSMakePoint(11, 7),
                                        FontLookup::Find("Verdana", false, false, kFontSize));
  EXPECT_EQ(CountDifferences(*pixels, *expected), 0);
}

TEST_F(HXCocoaDCTextTest, TextHasItsColour) {
  const auto pixels = Paint({60, 40}, [](HXCocoaDC& dc) {
    dc.SetFont("Verdana", HXCocoaDC::kBold, 30);
    dc.SetTextColor({160, 240, 252, 255});
    dc.DrawText("HH", {0, 0, 0, 0}, 0);
  });
  const auto isColour = [](HXColor color) { return color == HXColor{160, 240, 252, 255}; };
  EXPECT_GT(pixels->Count(AllOf(*pixels), isColour), 50);
}

TEST_F(HXCocoaDCTextTest, TextIsSmoothAndLeavesTheRestCrisp) {
  const auto pixels = Paint({60, 60}, [](HXCocoaDC& dc) {
    SetUpText(dc);
    dc.DrawText("ooo", {0, 0, 0, 0}, 0);
    dc.SetStroke(kWhite, 1);
    dc.DrawLine({2, 30}, {40, 45});
  });
  const auto isSmooth = [](HXColor color) { return color != kWhite && color != kBlack; };
  EXPECT_GT(pixels->Count({0, 0, 60, 20}, isSmooth), 10);
  EXPECT_GT(pixels->Ink({0, 25, 60, 35}, kBlack), 20);
  EXPECT_EQ(pixels->Count({0, 25, 60, 35}, isSmooth), 0);
}

TEST_F(HXCocoaDCTextTest, TextAtAPointIsNotWrapped) {
  const HXRect ink = TextInk(kWords, {0, 10, 0, 0}, 0);
  EXPECT_GT(ink.width, 200);
  EXPECT_LT(ink.height, 16);
}

TEST_F(HXCocoaDCTextTest, CentreAloneDoesNothingAtAPoint) {
  EXPECT_EQ(TextInk("Hxg", {50, 20, 0, 0}, HXCocoaDC::kCentre), TextInk("Hxg", {50, 20, 0, 0}, 0));
  EXPECT_EQ(TextInk("Hxg", {50, 20, 0, 0}, HXCocoaDC::kCentreVertically),
            TextInk("Hxg", {50, 20, 0, 0}, 0));
}

TEST_F(HXCocoaDCTextTest, RightAlignedTextEndsAtThePoint) {
  for (const char* text : {"Hxg", "Installation complete", "1"}) {
    const HXRect ink = TextInk(text, {200, 20, 0, 0}, HXCocoaDC::kRight);
    EXPECT_LE(ink.x + ink.width, 200) << text;
    EXPECT_GE(ink.x + ink.width, 196) << text;
    EXPECT_EQ(ink.y, TextInk(text, {200, 20, 0, 0}, 0).y) << text;
  }
}

TEST_F(HXCocoaDCTextTest, RectAlignsLeftCentreAndRight) {
  const HXRect rect{20, 10, 200, 30};
  const HXRect left = TextInk("HxH", rect, 0);
  const HXRect centre = TextInk("HxH", rect, HXCocoaDC::kCentre);
  const HXRect right = TextInk("HxH", rect, HXCocoaDC::kRight);
  EXPECT_NEAR(left.x, 21, 2);
  EXPECT_NEAR(centre.x + centre.width / 2.0, 121, 1.5);
  EXPECT_NEAR(right.x + right.width, 221, 2);
  EXPECT_EQ(left.y, centre.y);
  EXPECT_EQ(left.y, right.y);
}

TEST_F(HXCocoaDCTextTest, RightWinsOverCentre) {
  const HXRect rect{20, 10, 200, 30};
  EXPECT_EQ(TextInk("HxH", rect, HXCocoaDC::kCentre | HXCocoaDC::kRight),
            TextInk("HxH", rect, HXCocoaDC::kRight));
}

TEST_F(HXCocoaDCTextTest, CentreVerticallyMovesDownByHalfOfWhatIsLeft) {
  const int lineHeight = Measure("Hxg", {0, 0}).height;
  const HXRect rect{20, 10, 200, 80};
  const HXRect top = TextInk("HxH", rect, 0);
  const HXRect middle = TextInk("HxH", rect, HXCocoaDC::kCentreVertically);
  EXPECT_EQ(middle.x, top.x);
  EXPECT_EQ(middle.height, top.height);
  EXPECT_NEAR(middle.y - top.y, (rect.height - lineHeight) / 2.0, 1);
}

TEST_F(HXCocoaDCTextTest, RectWrapsAtWordsAndLineEnds) {
  const int lineHeight = Measure("Hxg", {0, 0}).height;
  const HXRect wrapped = TextInk("aaaa aaaa", {10, 10, 40, 100}, 0);
  EXPECT_LE(wrapped.x + wrapped.width, 51);
  EXPECT_NEAR(wrapped.height, lineHeight + TextInk("aaaa", {10, 10, 40, 100}, 0).height, 2);
  EXPECT_EQ(TextInk("aaaa\naaaa", {10, 10, 100, 100}, 0).height, wrapped.height);
}

TEST_F(HXCocoaDCTextTest, AWordWiderThanTheRectIsBroken) {
  const HXRect ink = TextInk(std::string(30, 'm'), {10, 10, 60, 100}, 0);
  EXPECT_GE(ink.x, 10);
  EXPECT_LE(ink.x + ink.width, 72);
  EXPECT_GT(ink.height, 20);
}

TEST_F(HXCocoaDCTextTest, TextThatDoesNotFitEndsInAnEllipsis) {
  const HXRect rect{5, 5, 60, 26};
  const HXSize size{80, 80};
  const auto pixels = PaintText(size, kWords, rect, 0);
  const std::string words = kWords;
  int matches = 0;
  for (std::size_t length = 1; length < words.size(); ++length) {
    const std::string shortened = words.substr(0, length) + "…";
    if (CountDifferences(*pixels, *PaintText(size, shortened, {5, 5, 60, 100}, 0)) == 0) ++matches;
  }
  EXPECT_GE(matches, 1);
}

TEST_F(HXCocoaDCTextTest, TextNeverLeavesItsRectDownward) {
  for (int height = 1; height < 60; ++height) {
    for (const std::uint32_t flags : {std::uint32_t{0}, std::uint32_t{HXCocoaDC::kCentre}}) {
      const HXRect ink = TextInk("Ägjy gjpq gjpq gjpq gjpq gjpq", {5, 10, 60, height}, flags);
      EXPECT_LE(ink.y + ink.height, 10 + height) << "height " << height;
    }
  }
}

TEST_F(HXCocoaDCTextTest, OnlyWholeLinesShow) {
  const int lineHeight = Measure("Hxg", {0, 0}).height;
  const HXRect one = TextInk("HHH", {5, 10, 30, lineHeight}, 0);
  const std::string text = "HHH HHH HHH HHH";
  for (int height = lineHeight; height < 2 * lineHeight - 3; ++height) {
    EXPECT_EQ(TextInk(text, {5, 10, 30, height}, 0).height, one.height) << "height " << height;
  }
}

TEST_F(HXCocoaDCTextTest, AFirstLineThatIsTooHighIsCut) {
  const HXRect whole = TextInk("HHH", {5, 10, 60, 40}, 0);
  const HXRect cut = TextInk("HHH", {5, 10, 60, 4}, 0);
  EXPECT_EQ(cut.y, whole.y);
  EXPECT_EQ(cut.y + cut.height, 14);
}

TEST_F(HXCocoaDCTextTest, InvalidAndEmptyTextDrawNothing) {
  for (const char* text : {"", "\xFF\xFE", "abc\xC3"}) {
    EXPECT_EQ(TextInk(text, {10, 10, 0, 0}, 0), HXRect{}) << text;
    EXPECT_EQ(TextInk(text, {10, 10, 80, 30}, HXCocoaDC::kCentre), HXRect{}) << text;
    EXPECT_EQ(TextInk(text, {100, 10, 0, 0}, HXCocoaDC::kRight), HXRect{}) << text;
  }
}

TEST_F(HXCocoaDCTextTest, TextWithoutAFontOrColourIsStillDrawn) {
  const auto pixels = Paint({60, 30}, [](HXCocoaDC& dc) {
    dc.SetFillColor(kWhite);
    dc.DrawRect({0, 0, 60, 30});
    dc.DrawText("Hxg", {5, 5, 0, 0}, 0);
  });
  EXPECT_GT(pixels->Count(AllOf(*pixels), [](HXColor color) { return color.red < 128; }), 15);
}

/// The same place, text and size, drawn again and again in all looks: none may be taken for
/// another.
TEST_F(HXCocoaDCTextTest, LooksAreToldApartWhenDrawnAgain) {
  std::vector<std::unique_ptr<DrawnPixels>> first;
  for (int pass = 0; pass < 2; ++pass) {
    std::size_t index = 0;
    for (const HXColor color : {kWhite, kRed}) {
      for (const std::uint32_t style : {0U, 1U, 2U, 4U}) {
        for (const std::uint32_t flags : {0U, 1U, 2U}) {
          auto pixels = Paint({120, 40}, [=](HXCocoaDC& dc) {
            dc.SetFont("Verdana", style, kFontSize);
            dc.SetTextColor(color);
            dc.DrawText("Hxg Öl", {5, 8, 110, 20}, flags);
          });
          if (pass == 0) {
            for (const auto& other : first) EXPECT_GT(CountDifferences(*pixels, *other), 0);
            first.push_back(std::move(pixels));
          } else {
            EXPECT_EQ(CountDifferences(*pixels, *first.at(index++)), 0);
          }
        }
      }
    }
  }
}

TEST_F(HXCocoaDCTextTest, ManyTextsAreDrawnRightly) {
  const auto early = PaintText({120, 40}, "early", {5, 5, 0, 0}, 0);
  Paint({120, 40}, [](HXCocoaDC& dc) {
    SetUpText(dc);
    for (int i = 0; i < 1000; ++i) dc.DrawText(std::to_string(i * i), {5, 5, 0, 0}, 0);
  });
  EXPECT_EQ(CountDifferences(*PaintText({120, 40}, "early", {5, 5, 0, 0}, 0), *early), 0);
}

TEST_F(HXCocoaDCTextTest, BoldTextHasMoreInkAndUnderlineAddsALine) {
  const auto ink = [this](std::uint32_t style) {
    const auto pixels = Paint({120, 30}, [style](HXCocoaDC& dc) {
      dc.SetFont("Verdana", style, kFontSize);
      dc.SetTextColor(kWhite);
      dc.DrawText("nnnnnnnn", {5, 5, 0, 0}, 0);
    });
    return pixels->InkBounds(AllOf(*pixels), kBlack);
  };
  const HXRect plain = ink(0);
  EXPECT_GT(ink(HXCocoaDC::kBold).width, plain.width);
  EXPECT_EQ(ink(HXCocoaDC::kUnderline).y, plain.y);
  EXPECT_GT(ink(HXCocoaDC::kUnderline).height, plain.height);
}

TEST_F(HXCocoaDCTextTest, ItalicTextHasTheItalicFace) {
  const auto pixels = Paint({120, 40}, [](HXCocoaDC& dc) {
    dc.SetFont("Verdana", HXCocoaDC::kItalic, kFontSize);
    dc.SetTextColor(kWhite);
    dc.DrawText("Hxg Ölpreis", {10, 9, 0, 0}, 0);
  });
  const auto expected = PaintNativeText({120, 40}, @"Hxg Ölpreis", NSMakePoint(11, 7),
                                        FontLookup::Find("Verdana", false, true, kFontSize));
  EXPECT_EQ(CountDifferences(*pixels, *expected), 0);
  EXPECT_GT(CountDifferences(*pixels, *PaintText({120, 40}, "Hxg Ölpreis", {10, 9, 0, 0}, 0)), 0);
}

// Measuring

TEST_F(HXCocoaDCTextTest, MeasureAddsOnePixelToTheWidthOnly) {
  NSDictionary* attributes =
      [NSDictionary dictionaryWithObject:FontLookup::Find("Verdana", false, false, kFontSize)
                                  forKey:NSFontAttributeName];
  for (const char* text : {"a", "Installation complete", "two\nlines", "Ölpreis"}) {
    const NSSize size = [ToNative(std::string(text)) sizeWithAttributes:attributes];
    EXPECT_EQ(Measure(text, {0, 0}), (HXSize{static_cast<std::int32_t>(size.width) + 1,
                                             static_cast<std::int32_t>(size.height)}))
        << text;
  }
}

TEST_F(HXCocoaDCTextTest, MeasureNeedsNoWidgetAndNoColour) {
  HXSize drawn;
  Paint({10, 10}, [&drawn](HXCocoaDC& dc) {
    dc.SetFont("Verdana", 0, kFontSize);
    drawn = dc.MeasureText(kWords, {90, 0}, 0);
  });
  EXPECT_EQ(Measure(kWords, {90, 0}), drawn);
  EXPECT_GT(drawn.width, 50);
  EXPECT_LE(drawn.width, 91);
}

TEST_F(HXCocoaDCTextTest, MeasureOfEmptyTextIsOneLineHigh) {
  EXPECT_EQ(Measure("", {0, 0}), (HXSize{1, Measure("x", {0, 0}).height}));
  EXPECT_EQ(Measure("", {50, 20}), (HXSize{1, Measure("x", {0, 0}).height}));
}

TEST_F(HXCocoaDCTextTest, MeasureOfInvalidTextIsNothing) {
  EXPECT_EQ(Measure("\xFF\xFE", {0, 0}), HXSize{});
  EXPECT_EQ(Measure("abc\xC3", {100, 100}), HXSize{});
}

TEST_F(HXCocoaDCTextTest, ZeroBoundsAreUnbounded) {
  const HXSize line = Measure(kWords, {0, 0});
  EXPECT_GT(line.width, 150);
  EXPECT_EQ(line.height, Measure("x", {0, 0}).height);
  EXPECT_EQ(Measure(kWords, {0, 20}), line);
  EXPECT_GT(Measure(kWords, {60, 0}).height, 3 * line.height);
}

TEST_F(HXCocoaDCTextTest, MeasureWrapsWithinTheWidth) {
  const int lineHeight = Measure("x", {0, 0}).height;
  const HXSize wrapped = Measure("aaaa aaaa", {40, 0});
  EXPECT_NEAR(wrapped.height, 2 * lineHeight, 1);
  EXPECT_LT(wrapped.width, Measure("aaaa aaaa", {0, 0}).width);
  const HXSize broken = Measure(std::string(30, 'm'), {60, 0});
  EXPECT_LE(broken.width, 61);
  EXPECT_GT(broken.height, 3 * lineHeight);
}

TEST_F(HXCocoaDCTextTest, MeasureCountsLineEnds) {
  const HXSize one = Measure("aaa", {0, 0});
  EXPECT_NEAR(Measure("aaa\na\na", {0, 0}).height, 3 * one.height, 1);
  EXPECT_EQ(Measure("aaa\na\na", {0, 0}).width, one.width);
}

TEST_F(HXCocoaDCTextTest, AlignmentDoesNotChangeWhatTextTakes) {
  for (const char* text : {"aaa", "aaa\n", "aaa\nb", "\n", "aaa\n\n", kWords}) {
    for (const HXSize bounds : {HXSize{0, 0}, HXSize{60, 0}, HXSize{60, 1000}}) {
      const HXSize left = Measure(text, bounds, 0);
      EXPECT_EQ(Measure(text, bounds, HXCocoaDC::kCentre), left) << text;
      EXPECT_EQ(Measure(text, bounds, HXCocoaDC::kRight), left) << text;
      EXPECT_LE(left.width, Measure(text, {0, 0}).width + 1) << text;
    }
  }
}

TEST_F(HXCocoaDCTextTest, TextFitsIntoWhatItMeasures) {
  for (const std::string text : {"Installation complete", "two\nlines", kWords}) {
    const HXSize size = Measure(text, {100, 0});
    const HXRect ink = TextInk(text, {10, 10, size.width, size.height}, 0);
    EXPECT_EQ(ink, TextInk(text, {10, 10, size.width, 180}, 0)) << text;
  }
}

}  // namespace
