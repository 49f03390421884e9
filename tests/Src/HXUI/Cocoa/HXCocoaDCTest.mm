#include "Src/HXUI/Cocoa/HXCocoaDC.h"

#include "tests/Src/HXUI/Cocoa/DrawingFixture.h"

namespace {

class HXCocoaDCTest : public DrawingFixture {
 protected:
  static void SetUpText(HXCocoaDC& dc) {
    dc.SetFont("Verdana", 0, 11);
    dc.SetTextColor(kWhite);
  }
};

// Rectangles

TEST_F(HXCocoaDCTest, RectIsFilledAndItsOutlineLiesOnTheOutermostPixels) {
  constexpr HXColor kOutline{160, 240, 252, 255};
  const HXRect rect{3, 2, 10, 6};
  const auto pixels = Paint({20, 12}, [=](HXCocoaDC& dc) {
    dc.SetFillColor(kRed);
    dc.SetStroke(kOutline, 1);
    dc.DrawRect(rect);
  });
  for (int y = 0; y < 12; ++y) {
    for (int x = 0; x < 20; ++x) {
      const bool inside = x >= 3 && x < 13 && y >= 2 && y < 8;
      const bool inner = x >= 4 && x < 12 && y >= 3 && y < 7;
      EXPECT_EQ(pixels->At(x, y), inner ? kRed : inside ? kOutline : kBlack) << x << ", " << y;
    }
  }
}

TEST_F(HXCocoaDCTest, AFreshContextHasATransparentOutlineAndNoFill) {
  const auto pixels = Paint({20, 12}, [](HXCocoaDC& dc) {
    dc.DrawRect({2, 2, 10, 6});
    dc.DrawLine({0, 5}, {10, 5});
    dc.DrawPixel({1, 1});
    dc.DrawCircle({8, 6}, 3, 1);
  });
  EXPECT_EQ(pixels->Ink(AllOf(*pixels), kBlack), 0);
}

TEST_F(HXCocoaDCTest, RectOfOnePixelsWidthOrHeightShowsOnlyItsFill) {
  for (const HXRect rect : {HXRect{2, 1, 1, 6}, HXRect{2, 1, 6, 1}, HXRect{2, 1, 1, 1}}) {
    const auto pixels = Paint({12, 10}, [=](HXCocoaDC& dc) {
      dc.SetFillColor(kRed);
      dc.SetStroke(kWhite, 1);
      dc.DrawRect(rect);
    });
    const auto isFill = [](HXColor color) { return color == kRed; };
    EXPECT_EQ(pixels->Count(rect, isFill), rect.width * rect.height);
    EXPECT_EQ(pixels->Ink(AllOf(*pixels), kBlack), rect.width * rect.height);
  }
}

TEST_F(HXCocoaDCTest, EmptyAndNegativeRectsDrawNothing) {
  for (const HXRect rect : {HXRect{5, 5, 0, 4}, HXRect{5, 5, 4, 0}, HXRect{5, 5, -3, 4},
                            HXRect{5, 5, 4, -3}, HXRect{8, 8, -4, -4}, HXRect{}}) {
    const auto pixels = Paint({12, 12}, [=](HXCocoaDC& dc) {
      dc.SetFillColor(kRed);
      dc.SetStroke(kWhite, 1);
      dc.DrawRect(rect);
      dc.FillGradient(rect, kRed, kWhite, true);
    });
    EXPECT_EQ(pixels->Ink(AllOf(*pixels), kBlack), 0) << rect.width << " by " << rect.height;
  }
}

TEST_F(HXCocoaDCTest, WideOutlinesAreCentredOnTheOutermostPixels) {
  const auto pixels = Paint({16, 16}, [](HXCocoaDC& dc) {
    dc.SetStroke(kWhite, 3);
    dc.DrawRect({4, 4, 8, 8});
  });
  EXPECT_EQ(pixels->InkBounds(AllOf(*pixels), kBlack), (HXRect{3, 3, 10, 10}));
  EXPECT_EQ(pixels->Ink({6, 6, 4, 4}, kBlack), 0);
  EXPECT_EQ(pixels->Ink({3, 3, 10, 3}, kBlack), 30);
}

TEST_F(HXCocoaDCTest, FillsBlendByTheirAlpha) {
  const auto pixels = Paint({8, 8}, [](HXCocoaDC& dc) {
    dc.SetFillColor({255, 0, 0, 255});
    dc.DrawRect({0, 0, 4, 8});
    dc.SetFillColor({0, 0, 255, 128});
    dc.DrawRect({0, 0, 8, 4});
    dc.SetFillColor({255, 255, 255, 0});
    dc.DrawRect({0, 0, 8, 8});
  });
  EXPECT_TRUE(IsNear(pixels->At(1, 1), {127, 0, 128, 255}, 1));
  EXPECT_TRUE(IsNear(pixels->At(6, 1), {0, 0, 128, 255}, 1));
  EXPECT_EQ(pixels->At(1, 6), kRed);
  EXPECT_EQ(pixels->At(6, 6), kBlack);
}

TEST_F(HXCocoaDCTest, EveryColourComponentIsExact) {
  const auto pixels = Paint({256, 3}, [](HXCocoaDC& dc) {
    for (int i = 0; i < 256; ++i) {
      const auto level = static_cast<std::uint8_t>(i);
      dc.SetFillColor({level, 0, static_cast<std::uint8_t>(255 - i), 255});
      dc.DrawPixel({i, 0});
      dc.SetStroke({0, level, 0, 255}, 1);
      dc.DrawLine({i, 1}, {i, 1});
      dc.DrawPixel({i, 2});
    }
  });
  for (int i = 0; i < 256; ++i) {
    const auto level = static_cast<std::uint8_t>(i);
    const HXColor fill{level, 0, static_cast<std::uint8_t>(255 - i), 255};
    EXPECT_EQ(pixels->At(i, 0), fill);
    EXPECT_EQ(pixels->At(i, 1), (HXColor{0, level, 0, 255}));
    EXPECT_EQ(pixels->At(i, 2), fill);
  }
}

TEST_F(HXCocoaDCTest, PixelIsOnePixel) {
  const auto pixels = Paint({8, 8}, [](HXCocoaDC& dc) {
    dc.SetStroke(kWhite, 1);
    dc.SetFillColor(kRed);
    dc.DrawPixel({3, 5});
  });
  EXPECT_EQ(pixels->At(3, 5), kRed);
  EXPECT_EQ(pixels->Ink(AllOf(*pixels), kBlack), 1);
}

TEST_F(HXCocoaDCTest, DotsAreEveryOtherPixel) {
  for (const HXColor color : {kRed, HXColor{255, 255, 255, 100}}) {
    for (const std::int32_t length : {-1, 0, 1, 2, 9}) {
      const auto pixels = Paint({16, 8}, [=](HXCocoaDC& dc) {
        dc.SetStroke(kWhite, 3);
        dc.SetFillColor(color);
        dc.DrawDots({3, 5}, length);
      });
      const auto expected = Paint({16, 8}, [=](HXCocoaDC& dc) {
        dc.SetFillColor(color);
        for (std::int32_t x = 0; x < length; x += 2) dc.DrawPixel({3 + x, 5});
      });
      EXPECT_EQ(CountDifferences(*pixels, *expected), 0) << length;
    }
  }
}

// Gradients

TEST_F(HXCocoaDCTest, VerticalGradientGoesFromTopToBottomWithinItsRect) {
  const HXColor first{10, 200, 0, 255};
  const HXColor second{210, 100, 50, 255};
  const HXRect rect{2, 3, 5, 20};
  const auto pixels =
      Paint({12, 30}, [=](HXCocoaDC& dc) { dc.FillGradient(rect, first, second, true); });
  for (int row = 0; row < rect.height; ++row) {
    const double part = (row + 0.5) / rect.height;
    const HXColor expected{static_cast<std::uint8_t>(10 + 200 * part),
                           static_cast<std::uint8_t>(200 - 100 * part),
                           static_cast<std::uint8_t>(50 * part), 255};
    for (int x = rect.x; x < rect.x + rect.width; ++x) {
      EXPECT_TRUE(IsNear(pixels->At(x, rect.y + row), expected, 1)) << "row " << row;
    }
  }
  EXPECT_EQ(pixels->InkBounds(AllOf(*pixels), kBlack), rect);
}

TEST_F(HXCocoaDCTest, HorizontalGradientGoesFromLeftToRightWithinItsRect) {
  const HXRect rect{3, 2, 20, 5};
  const auto pixels = Paint({30, 12}, [=](HXCocoaDC& dc) {
    dc.FillGradient(rect, {40, 0, 0, 255}, kRed, false);
  });
  for (int column = 0; column < rect.width; ++column) {
    const double level = 40 + 215 * (column + 0.5) / rect.width;
    const HXColor expected{static_cast<std::uint8_t>(level), 0, 0, 255};
    EXPECT_TRUE(IsNear(pixels->At(rect.x + column, 4), expected, 1)) << "column " << column;
  }
  EXPECT_EQ(pixels->InkBounds(AllOf(*pixels), kBlack), rect);
}

TEST_F(HXCocoaDCTest, GradientOfOneColourIsExact) {
  const HXColor color{160, 240, 252, 255};
  const auto pixels = Paint({9, 9}, [=](HXCocoaDC& dc) {
    dc.FillGradient({0, 0, 9, 9}, color, color, true);
  });
  EXPECT_EQ(pixels->Ink(AllOf(*pixels), color), 0);
}

TEST_F(HXCocoaDCTest, GradientLeavesColoursAndClipAsTheyWere) {
  const auto pixels = Paint({20, 20}, [](HXCocoaDC& dc) {
    dc.SetFillColor(kRed);
    dc.SetStroke(kBlue, 1);
    dc.FillGradient({0, 0, 5, 5}, kWhite, kWhite, true);
    dc.DrawRect({8, 8, 8, 8});
  });
  EXPECT_EQ(pixels->At(8, 8), kBlue);
  EXPECT_EQ(pixels->At(10, 10), kRed);
}

// Lines

TEST_F(HXCocoaDCTest, HorizontalLineCoversBothEndPixels) {
  const auto pixels = Paint({16, 12}, [](HXCocoaDC& dc) {
    dc.SetStroke(kWhite, 1);
    dc.DrawLine({0, 5}, {10, 5});
  });
  EXPECT_EQ(pixels->InkBounds(AllOf(*pixels), kBlack), (HXRect{0, 5, 11, 1}));
  EXPECT_EQ(pixels->Count({0, 5, 11, 1}, [](HXColor color) { return color == kWhite; }), 11);
}

TEST_F(HXCocoaDCTest, HorizontalLineFromTheRightLosesAPixelAtEachEnd) {
  const auto pixels = Paint({16, 12}, [](HXCocoaDC& dc) {
    dc.SetStroke(kWhite, 1);
    dc.DrawLine({10, 5}, {2, 5});
  });
  EXPECT_EQ(pixels->InkBounds(AllOf(*pixels), kBlack), (HXRect{3, 5, 7, 1}));
}

TEST_F(HXCocoaDCTest, VerticalLineGainsNothingAtItsEndAndRunsOnThePixelEdge) {
  const auto pixels = Paint({12, 16}, [](HXCocoaDC& dc) {
    dc.SetStroke(kWhite, 1);
    dc.DrawLine({5, 0}, {5, 10});
  });
  const HXRect ink = pixels->InkBounds(AllOf(*pixels), kBlack);
  EXPECT_EQ(ink.width, 1);
  EXPECT_TRUE(ink.x == 4 || ink.x == 5) << ink.x;
  EXPECT_EQ(ink.y, 0);
  EXPECT_EQ(ink.height, 10);
  EXPECT_EQ(pixels->Count(ink, [](HXColor color) { return color == kWhite; }), 10);
}

TEST_F(HXCocoaDCTest, LineWidthIsInPixels) {
  const auto pixels = Paint({16, 16}, [](HXCocoaDC& dc) {
    dc.SetStroke(kWhite, 5);
    dc.DrawLine({2, 8}, {9, 8});
  });
  EXPECT_EQ(pixels->InkBounds(AllOf(*pixels), kBlack), (HXRect{2, 6, 8, 5}));
}

TEST_F(HXCocoaDCTest, SlantedLinesAreNotSmoothed) {
  const auto pixels = Paint({24, 24}, [](HXCocoaDC& dc) {
    dc.SetStroke(kWhite, 1);
    dc.DrawLine({2, 2}, {20, 9});
  });
  const auto isSmooth = [](HXColor color) { return color != kWhite && color != kBlack; };
  EXPECT_GT(pixels->Ink(AllOf(*pixels), kBlack), 10);
  EXPECT_EQ(pixels->Count(AllOf(*pixels), isSmooth), 0);
}

// Circles

TEST_F(HXCocoaDCTest, CrispCircleIsARingAroundItsCentre) {
  const auto pixels = Paint({24, 24}, [](HXCocoaDC& dc) {
    dc.SetStroke(kWhite, 1);
    dc.DrawCircle({10, 10}, 5, 0);
  });
  const HXRect ink = pixels->InkBounds(AllOf(*pixels), kBlack);
  // The line's outer half lies outside of the square from 5 to 15.
  EXPECT_GE(ink.x, 4);
  EXPECT_GE(ink.y, 4);
  EXPECT_LE(ink.x + ink.width, 17);
  EXPECT_LE(ink.y + ink.height, 17);
  EXPECT_GE(ink.width, 11);
  EXPECT_GE(ink.height, 11);
  EXPECT_EQ(pixels->Ink({7, 7, 7, 7}, kBlack), 0);
  const auto isSmooth = [](HXColor color) { return color != kWhite && color != kBlack; };
  EXPECT_EQ(pixels->Count(AllOf(*pixels), isSmooth), 0);
}

TEST_F(HXCocoaDCTest, SmoothCircleIsSymmetricalAroundItsCentre) {
  const auto pixels = Paint({24, 24}, [](HXCocoaDC& dc) {
    dc.SetStroke(kWhite, 1);
    dc.DrawCircle({10, 10}, 5, 1);
  });
  const auto isSmooth = [](HXColor color) { return color != kWhite && color != kBlack; };
  EXPECT_GT(pixels->Count(AllOf(*pixels), isSmooth), 20);
  for (int y = 0; y <= 20; ++y) {
    for (int x = 0; x <= 20; ++x) {
      EXPECT_TRUE(IsNear(pixels->At(x, y), pixels->At(20 - x, y), 32)) << x << ", " << y;
      EXPECT_TRUE(IsNear(pixels->At(x, y), pixels->At(x, 20 - y), 32)) << x << ", " << y;
    }
  }
}

TEST_F(HXCocoaDCTest, CircleOfRadiusZeroIsADot) {
  for (const int mode : {0, 1}) {
    const auto pixels = Paint({12, 12}, [=](HXCocoaDC& dc) {
      dc.SetStroke(kWhite, 1);
      dc.DrawCircle({5, 5}, 0, mode);
    });
    EXPECT_EQ(pixels->At(5, 5), kWhite) << "mode " << mode;
    EXPECT_EQ(pixels->Ink(AllOf(*pixels), kBlack), pixels->Ink({4, 4, 3, 3}, kBlack));
  }
}

TEST_F(HXCocoaDCTest, SmoothModeOfACircleLasts) {
  const auto slanted = [](HXCocoaDC& dc) { dc.DrawLine({2, 2}, {20, 9}); };
  const auto pixels = Paint({24, 24}, [=](HXCocoaDC& dc) {
    dc.SetStroke(kWhite, 1);
    dc.DrawCircle({-50, -50}, 2, 1);
    slanted(dc);
  });
  const auto crisp = Paint({24, 24}, [=](HXCocoaDC& dc) {
    dc.SetStroke(kWhite, 1);
    dc.DrawCircle({-50, -50}, 2, 1);
    dc.DrawCircle({-50, -50}, 2, 0);
    slanted(dc);
  });
  const auto isSmooth = [](HXColor color) { return color != kWhite && color != kBlack; };
  EXPECT_GT(pixels->Count(AllOf(*pixels), isSmooth), 5);
  EXPECT_EQ(crisp->Count(AllOf(*crisp), isSmooth), 0);
}

TEST_F(HXCocoaDCTest, AnyOtherSmoothModeStopsTheProgram) {
  const char* message = "Unknown smooth mode!.*DrawCircle.*Src/HXUI/Cocoa/HXCocoaDC, line 119";
  EXPECT_DEATH(HXCocoaDC(nullptr).DrawCircle({5, 5}, 2, 2), message);
  EXPECT_DEATH(HXCocoaDC(nullptr).DrawCircle({5, 5}, 2, -1), message);
}

// Clip

TEST_F(HXCocoaDCTest, ClipsIntersect) {
  const auto pixels = Paint({20, 20}, [](HXCocoaDC& dc) {
    dc.SetClipRect({2, 3, 10, 10});
    dc.SetClipRect({6, 0, 10, 8});
    dc.SetFillColor(kWhite);
    dc.DrawRect({0, 0, 20, 20});
    dc.SetClipRect({0, 0, 20, 20});
    dc.SetFillColor(kRed);
    dc.DrawRect({0, 0, 20, 20});
  });
  EXPECT_EQ(pixels->InkBounds(AllOf(*pixels), kBlack), (HXRect{6, 3, 6, 5}));
  EXPECT_EQ(pixels->Count({6, 3, 6, 5}, [](HXColor color) { return color == kRed; }), 30);
}

TEST_F(HXCocoaDCTest, EmptyClipHidesEverything) {
  for (const HXRect rect : {HXRect{}, HXRect{5, 5, -3, -3}, HXRect{2, 2, 0, 9}}) {
    const auto pixels = Paint({20, 20}, [=](HXCocoaDC& dc) {
      SetUpText(dc);
      dc.SetClipRect(rect);
      dc.SetFillColor(kWhite);
      dc.DrawRect({0, 0, 20, 20});
      dc.FillGradient({0, 0, 20, 20}, kRed, kRed, true);
      dc.DrawText("Mmmm", {0, 0, 0, 0}, 0);
    });
    EXPECT_EQ(pixels->Ink(AllOf(*pixels), kBlack), 0);
  }
}

TEST_F(HXCocoaDCTest, DisjointClipsHideEverything) {
  const auto pixels = Paint({60, 20}, [](HXCocoaDC& dc) {
    SetUpText(dc);
    dc.SetClipRect({0, 0, 20, 20});
    dc.SetClipRect({20, 0, 40, 20});
    dc.FillGradient({0, 0, 60, 20}, kRed, kRed, true);
    dc.DrawText("Mmmmmmmmmm", {0, 0, 60, 20}, 0);
  });
  EXPECT_EQ(pixels->Ink(AllOf(*pixels), kBlack), 0);
}

TEST_F(HXCocoaDCTest, ClipOutsideOfWhatIsRedrawnHidesEverything) {
  bool clip = false;
  PaintedPanel panel(window.get(), {60, 40}, [&clip](HXCocoaDC& dc) {
    if (!clip) return;
    SetUpText(dc);
    dc.SetClipRect({0, 0, 60, 20});
    dc.DrawText("Mmmmm", {0, 5, 0, 0}, 0);
  });
  panel.SetColor(kBlack);
  Draw(panel);
  clip = true;
  NSView* view = panel.GetNativeView();
  [view displayRect:NSMakeRect(0, 30, 60, 10)];
  [view lockFocus];
  const DrawnPixels pixels(
      [[[NSBitmapImageRep alloc] initWithFocusedViewRect:[view bounds]] autorelease]);
  [view unlockFocus];
  EXPECT_EQ(pixels.Ink({0, 0, 60, 40}, kBlack), 0);
}

TEST_F(HXCocoaDCTest, ClipEndsWithTheDrawingPass) {
  bool clip = true;
  PaintedPanel panel(window.get(), {20, 20}, [&clip](HXCocoaDC& dc) {
    if (clip) dc.SetClipRect({0, 0, 5, 5});
    dc.SetFillColor(kWhite);
    dc.DrawRect({0, 0, 20, 20});
  });
  panel.SetColor(kBlack);
  EXPECT_EQ(Draw(panel)->Ink({0, 0, 20, 20}, kBlack), 25);
  clip = false;
  EXPECT_EQ(Draw(panel)->Ink({0, 0, 20, 20}, kBlack), 400);
}

// Contexts

TEST_F(HXCocoaDCTest, AContextWithoutAWidgetDrawsNothing) {
  const auto pixels = Paint({40, 40}, [](HXCocoaDC&) {
    HXCocoaDC dc(nullptr);
    SetUpText(dc);
    dc.SetFillColor(kWhite);
    dc.SetStroke(kWhite, 2);
    dc.DrawRect({0, 0, 40, 40});
    dc.DrawPixel({1, 1});
    dc.DrawLine({0, 0}, {40, 0});
    dc.DrawCircle({20, 20}, 5, 1);
    dc.FillGradient({0, 0, 40, 40}, kRed, kRed, true);
    dc.DrawText("Hxg", {0, 0, 0, 0}, 0);
    dc.SetClipRect({0, 0, 1, 1});
  });
  EXPECT_EQ(pixels->Ink(AllOf(*pixels), kBlack), 0);
}

TEST_F(HXCocoaDCTest, TheThirdArgumentOfOldCallersIsIgnored) {
  for (const bool ignored : {false, true}) {
    PaintedPanel panel(window.get(), {8, 8}, [](HXCocoaDC&) {});
    PaintedPanel outer(window.get(), {8, 8}, [&panel, ignored](HXCocoaDC&) {
      HXCocoaDC dc(&panel, ignored);
      dc.SetFillColor(kRed);
      dc.DrawRect({0, 0, 8, 8});
    });
    EXPECT_EQ(Draw(outer)->Ink({0, 0, 8, 8}, kRed), 0);
  }
}

TEST_F(HXCocoaDCTest, WhatLiesFarOutsideDoesNotShow) {
  const auto pixels = Paint({20, 20}, [](HXCocoaDC& dc) {
    SetUpText(dc);
    dc.SetFillColor(kRed);
    dc.SetStroke(kRed, 1);
    for (const int far : {-1'000'000, 1'000'000}) {
      dc.DrawPixel({far, far});
      dc.DrawRect({far, far, 10, 10});
      dc.FillGradient({far, far, 10, 10}, kRed, kRed, false);
      dc.DrawCircle({far, far}, 10, 0);
      dc.DrawText("Hxg", {far, far, 10, 10}, 0);
    }
  });
  EXPECT_EQ(pixels->Ink(AllOf(*pixels), kBlack), 0);
}

}  // namespace
