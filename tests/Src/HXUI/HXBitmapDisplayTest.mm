#include "Src/HXUI/HXBitmapDisplay.h"

#include "Src/HXUI/Cocoa/HXBitmap.h"
#include "resources/Pictures.h"
#include "tests/Src/HXUI/ControlTestHelpers.h"

namespace {

class HXBitmapDisplayTest : public ToolkitFixture {
 protected:
  HXBitmapDisplayTest() : banner(kBannerPng.bytes, kBannerPng.length) {}

  HXBitmap banner;
};

TEST_F(HXBitmapDisplayTest, ShowsTheBitmapPixelByPixelAtItsOwnSize) {
  auto* display = new HXBitmapDisplay(window.get(), &banner, {30, 0}, {160, 290});
  display->SetSize({160, 310});
  EXPECT_EQ(display->GetPosition(), (HXPoint{30, 0}));
  // The window cuts what is below 300.
  EXPECT_EQ(CountUnlikePicture(*Draw(*display), kBannerPng, 0, {160, 290}, 0), 0);
}

TEST_F(HXBitmapDisplayTest, StretchesTheBitmapOverThePanel) {
  auto* exact = new HXBitmapDisplay(window.get(), &banner, {0, 0}, {160, 310});
  auto* half = new HXBitmapDisplay(window.get(), &banner, {200, 0}, {80, 155});
  const auto large = Draw(*exact);
  const auto small = Draw(*half);
  EXPECT_EQ(small->GetSize(), (HXSize{80, 155}));
  int alike = 0;
  for (int y = 10; y < 140; y += 10) {
    for (int x = 10; x < 70; x += 10) {
      if (IsNear(small->At(x, y), large->At(2 * x, 2 * y), 40)) ++alike;
    }
  }
  EXPECT_GT(alike, 60) << "of 78 points";
}

TEST_F(HXBitmapDisplayTest, EmptyBitmapAndNoBitmapShowNothing) {
  HXBitmap empty;
  auto* first = new HXBitmapDisplay(window.get(), &empty, {0, 0}, {20, 20});
  auto* second = new HXBitmapDisplay(window.get(), nullptr, {30, 0}, {20, 20});
  EXPECT_EQ(CountOther(*Draw(*first), {0, 0, 20, 20}, {0, 0, 0, 255}), 0);
  EXPECT_EQ(CountOther(*Draw(*second), {0, 0, 20, 20}, {0, 0, 0, 255}), 0);
}

TEST_F(HXBitmapDisplayTest, BitmapOutlivesTheDisplay) {
  delete new HXBitmapDisplay(window.get(), &banner, {0, 0}, {160, 310});
  EXPECT_EQ(banner.GetPixelSize(), (HXSize{160, 310}));
}

}  // namespace
