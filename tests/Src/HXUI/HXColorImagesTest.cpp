#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "Src/HXUI/HXColorImages.h"
#include "Src/HXUI/HXHsv.h"

namespace {

constexpr int kSide = HXColorImages::kSide;

unsigned char ToByte(float channel) {
  return static_cast<unsigned char>(static_cast<int>(channel * 255.0F));
}

unsigned char* Store(unsigned char* pixel, HXHsv hsv) {
  const HXRgb rgb = ToRgb(hsv);
  *pixel++ = ToByte(rgb.red);
  *pixel++ = ToByte(rgb.green);
  *pixel++ = ToByte(rgb.blue);
  *pixel++ = 255;
  return pixel;
}

/// One row of the square by its definition, pixel by pixel.
void FillRowSlowly(unsigned char* pixel, float hue, int y) {
  const float value = 1.0F - static_cast<float>(y) / 255.0F;
  for (int x = 0; x < kSide; ++x) {
    pixel = Store(pixel, {hue, static_cast<float>(x) / 255.0F, value});
  }
}

class HXColorImagesTest : public ::testing::Test {
 protected:
  static constexpr std::size_t kRowBytes = 4U * kSide;
  static constexpr std::size_t kSquareBytes = 4U * kSide * kSide;
  static constexpr std::size_t kBarBytes = 4U * HXColorImages::kBarWidth * kSide;

  /// Compares every `rowStep`th row, from the top.
  bool IsSquareExact(float hue, int rowStep) {
    HXColorImages::FillSquare(fast.data(), hue);
    for (int y = 0; y < kSide; y += rowStep) {
      FillRowSlowly(slow.data(), hue, y);
      if (std::memcmp(fast.data() + static_cast<std::size_t>(y) * kRowBytes, slow.data(),
                      kRowBytes) != 0)
        return false;
    }
    return true;
  }

  std::vector<unsigned char> fast = std::vector<unsigned char>(kSquareBytes);
  std::vector<unsigned char> slow = std::vector<unsigned char>(kRowBytes);
};

TEST_F(HXColorImagesTest, TheSquareIsExactInEveryPixel) {
  for (int hue = 0; hue <= 360; hue += 20) {
    EXPECT_TRUE(IsSquareExact(static_cast<float>(hue), 1)) << hue;
  }
}

TEST_F(HXColorImagesTest, TheSquareIsExactForEveryWholeHue) {
  for (int hue = 0; hue <= 360; ++hue) {
    EXPECT_TRUE(IsSquareExact(static_cast<float>(hue), 17)) << hue;
  }
}

TEST_F(HXColorImagesTest, TheSquareIsExactForTheHuesOfTheBar) {
  for (int y = 0; y < kSide; ++y) {
    EXPECT_TRUE(IsSquareExact((1.0F - static_cast<float>(y) / 255.0F) * 360.0F, 51)) << y;
  }
}

TEST_F(HXColorImagesTest, TheSquareHasWhiteAndBlackAndTheHueInItsCorners) {
  HXColorImages::FillSquare(fast.data(), 120);
  const auto expectPixel = [this](int x, int y, const std::vector<int>& expected) {
    const unsigned char* pixel = fast.data() + 4 * (y * kSide + x);
    EXPECT_EQ(std::vector<int>(pixel, pixel + 4), expected) << x << ", " << y;
  };
  expectPixel(0, 0, {255, 255, 255, 255});
  expectPixel(255, 0, {0, 255, 0, 255});
  expectPixel(0, 255, {0, 0, 0, 255});
  expectPixel(255, 255, {0, 0, 0, 255});
}

TEST_F(HXColorImagesTest, TheSquareStaysWithinItsBuffer) {
  std::vector<unsigned char> guarded(kSquareBytes + 64, 7);
  HXColorImages::FillSquare(guarded.data(), 200);
  for (std::size_t i = kSquareBytes; i < guarded.size(); ++i) ASSERT_EQ(guarded[i], 7);
}

TEST_F(HXColorImagesTest, TheBarRunsFromHue360DownToHue0) {
  std::vector<unsigned char> bar(kBarBytes + 64, 7);
  HXColorImages::FillHueBar(bar.data());
  for (int y = 0; y < kSide; ++y) {
    unsigned char expected[4];
    Store(expected, {360.0F - static_cast<float>(y) / 255.0F * 360.0F, 1, 1});
    for (int x = 0; x < HXColorImages::kBarWidth; ++x) {
      const unsigned char* pixel = bar.data() + 4 * (y * HXColorImages::kBarWidth + x);
      ASSERT_EQ(std::memcmp(pixel, expected, 4), 0) << x << ", " << y;
    }
  }
  for (std::size_t i = kBarBytes; i < bar.size(); ++i) ASSERT_EQ(bar[i], 7);
  const std::vector<int> red{255, 0, 0, 255};
  EXPECT_EQ(std::vector<int>(bar.data(), bar.data() + 4), red);
  EXPECT_EQ(std::vector<int>(bar.data() + kBarBytes - 4, bar.data() + kBarBytes), red);
}

}  // namespace
