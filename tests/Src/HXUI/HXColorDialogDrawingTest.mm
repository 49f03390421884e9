#include <vector>

#include "Src/HXUI/HXColorImages.h"
#include "tests/Src/HXUI/ColorDialogFixture.h"
#include "tests/Src/HXUI/PaintedPanel.h"

namespace {

constexpr HXColor kGreen{0, 255, 0, 255};
constexpr HXColor kRed{255, 0, 0, 255};
constexpr HXColor kBlack{0, 0, 0, 255};
constexpr HXPoint kHueTop{280, 7};

/// How the colour dialog looks.
class HXColorDialogDrawingTest : public ColorDialogFixture {};

TEST_F(HXColorDialogDrawingTest, DrawsTheSquareAndTheBarOfTheHue) {
  Open({60, 120, 200, 255});
  const auto pixels = Draw(*dialog);
  std::vector<unsigned char> square(4 * 256 * 256);
  HXColorImages::FillSquare(square.data(), 214.28572F);
  int unlike = 0;
  for (int y = 100; y < 256; ++y) {
    for (int x = 0; x < 256; ++x) {
      const unsigned char* pixel = square.data() + 4 * (y * 256 + x);
      unlike += !IsNear(pixels->At(x + 7, y + 7), {pixel[0], pixel[1], pixel[2], 255}, 1);
    }
  }
  EXPECT_EQ(unlike, 0);
  EXPECT_EQ(pixels->At(275, 7), kRed);
  EXPECT_EQ(pixels->At(275, 262), kRed);
  EXPECT_TRUE(IsNear(pixels->At(275, 7 + 170), kGreen, 3));
}

TEST_F(HXColorDialogDrawingTest, DrawsTheSwatchesTheFrameAndTheMarkers) {
  Press(kHueTop);
  Release(kHueTop);
  ASSERT_EQ(color, kRed);
  const auto pixels = Draw(*dialog);
  EXPECT_EQ(CountOther(*pixels, {302, 7, 76, 35}, kRed), 0);
  EXPECT_EQ(CountOther(*pixels, {302, 42, 76, 35}, kGreen), 0);
  const HXColor frame{160, 240, 252, 255};
  EXPECT_EQ(CountOther(*pixels, {318, 158, 54, 1}, frame), 0);
  EXPECT_EQ(CountOther(*pixels, {318, 177, 54, 1}, frame), 0);
  EXPECT_EQ(CountOther(*pixels, {318, 158, 1, 20}, frame), 0);
  EXPECT_EQ(CountOther(*pixels, {371, 158, 1, 20}, frame), 0);
  // The hue marker is two black lines across the bar, here at its top.
  EXPECT_EQ(pixels->At(275, 11), kBlack);
  // The bar is seen between them.
  EXPECT_TRUE(IsNear(pixels->At(275, 8), kRed, 12));
  // The ring in the square's corner is black on a bright colour.
  EXPECT_EQ(pixels->At(257, 7), kBlack);
  EXPECT_NE(pixels->At(262, 7), kBlack);
}

TEST_F(HXColorDialogDrawingTest, TheFieldsHaveWhiteLabelsInVerdanaOfTenPoints) {
  const HXSize size = dialog->GetSize();
  const auto drawn = Draw(*dialog);
  PaintedPanel expected(window.get(), size, [&](HXCocoaDC& dc) {
    dc.SetFillColor(dialog->GetColor());
    dc.DrawRect({0, 0, size.width, size.height});
    dc.SetFont("Verdana", 0, 10);
    dc.SetTextColor(kWhite);
    dc.DrawText("R:", {310, 92, 0, 0}, 0);
    dc.DrawText("G:", {310, 112, 0, 0}, 0);
    dc.DrawText("B:", {310, 132, 0, 0}, 0);
    dc.DrawText("#", {308, 160, 0, 0}, 0);
  });
  // From below the swatches to above the buttons, left of the hex entry's frame.
  EXPECT_EQ(CountUnlike(*drawn, *Draw(expected), {300, 80, 18, 105}), 0);
}

TEST_F(HXColorDialogDrawingTest, TheRingIsWhiteOnDarkColours) {
  Open({0, 100, 0, 255});
  const auto isWhite = [](HXColor pixel) { return pixel == kWhite; };
  // Saturation 1, value 100 / 255.
  EXPECT_GT(Draw(*dialog)->Count({250, 155, 13, 14}, isWhite), 8);
}

TEST_F(HXColorDialogDrawingTest, TheSwatchesTheSquareAndTheBarHaveBlackFrames) {
  // The window's own colour is black as well.
  constexpr HXColor kGround{90, 60, 120, 255};
  dialog->SetColor(kGround);
  const auto drawn = Draw(*dialog);
  for (const auto& [x, y, width, height] :
       {HXRect{300, 5, 80, 74}, {5, 5, 260, 260}, {270, 5, 24, 260}}) {
    SCOPED_TRACE(x);
    EXPECT_EQ(CountOther(*drawn, {x, y, width, 2}, kBlack), 0);
    EXPECT_EQ(CountOther(*drawn, {x, y + height - 2, width, 2}, kBlack), 0);
    EXPECT_EQ(CountOther(*drawn, {x, y, 2, height}, kBlack), 0);
    EXPECT_EQ(CountOther(*drawn, {x + width - 2, y, 2, height}, kBlack), 0);
    EXPECT_EQ(drawn->At(x - 1, y - 1), kGround);
    EXPECT_EQ(drawn->At(x + width, y + height), kGround);
  }
}

}  // namespace
