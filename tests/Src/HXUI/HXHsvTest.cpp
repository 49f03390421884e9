#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "Src/HXUI/HXHsv.h"

namespace {

/// Away from `expected` by more than floats are inexact.
bool Differs(double actual, double expected, double tolerance) {
  return !(actual - expected <= tolerance && expected - actual <= tolerance);
}

/// By whole numbers up to the last division: the hue as the distance from the
/// two other channels to the highest one, in sixths of the circle.
double ExpectedHue(int red, int green, int blue) {
  const int highest = std::max(red, std::max(green, blue));
  const int delta = highest - std::min(red, std::min(green, blue));
  if (delta == 0) return 0;
  int sixths = 0;
  if (highest == red) {
    sixths = green > blue ? green - blue : green - blue + 6 * delta;
  } else if (highest == green) {
    sixths = blue - red + 2 * delta;
  } else {
    sixths = red - green + 4 * delta;
  }
  return 60.0 * sixths / delta;
}

void ExpectRgb(HXHsv hsv, HXRgb expected) {
  const HXRgb rgb = ToRgb(hsv);
  EXPECT_NEAR(rgb.red, expected.red, 1e-6) << hsv.hue;
  EXPECT_NEAR(rgb.green, expected.green, 1e-6) << hsv.hue;
  EXPECT_NEAR(rgb.blue, expected.blue, 1e-6) << hsv.hue;
}

TEST(HXHsvTest, EveryColourHasTheHueSaturationAndValueOfTheModelAndComesBack) {
  float channel[256];
  for (int i = 0; i < 256; ++i) channel[i] = static_cast<float>(i) / 255.0F;
  int wrong = 0;
  int wrongWayBack = 0;
  for (int red = 0; red < 256; ++red) {
    for (int green = 0; green < 256; ++green) {
      for (int blue = 0; blue < 256; ++blue) {
        const HXHsv hsv = ToHsv({channel[red], channel[green], channel[blue]});
        const int highest = std::max(red, std::max(green, blue));
        const int lowest = std::min(red, std::min(green, blue));
        const double saturation =
            highest == 0 ? 0 : static_cast<double>(highest - lowest) / highest;
        wrong += Differs(hsv.hue, ExpectedHue(red, green, blue), 2e-2) ||
                 Differs(hsv.saturation, saturation, 1e-6) ||
                 Differs(hsv.brightness, highest / 255.0, 1e-7);
        const HXRgb rgb = ToRgb(hsv);
        wrongWayBack += Differs(rgb.red, channel[red], 1e-5) ||
                        Differs(rgb.green, channel[green], 1e-5) ||
                        Differs(rgb.blue, channel[blue], 1e-5);
      }
    }
  }
  EXPECT_EQ(wrong, 0);
  EXPECT_EQ(wrongWayBack, 0);
}

TEST(HXHsvTest, PureRedHasTheHue360) {
  EXPECT_EQ(ToHsv({1, 0, 0}).hue, 360.0F);
  EXPECT_EQ(ToHsv({0.2F, 0, 0}).hue, 360.0F);
  EXPECT_EQ(ToHsv({1, 0.5F, 0.5F}).hue, 360.0F);
}

TEST(HXHsvTest, GreysHaveNoHueAndNoSaturation) {
  for (const float level : {0.0F, 0.25F, 1.0F}) {
    const HXHsv hsv = ToHsv({level, level, level});
    EXPECT_EQ(hsv.hue, 0.0F);
    EXPECT_EQ(hsv.saturation, 0.0F);
    EXPECT_EQ(hsv.brightness, level);
  }
}

TEST(HXHsvTest, AlmostGreyCountsAsGreyForTheHueOnly) {
  const HXHsv hsv = ToHsv({0.5F, 0.500005F, 0.5F});
  EXPECT_EQ(hsv.hue, 0.0F);
  EXPECT_GT(hsv.saturation, 0.0F);
  EXPECT_EQ(ToHsv({0.000009F, 0, 0}).saturation, 0.0F);
  EXPECT_EQ(ToHsv({0.00002F, 0, 0}).saturation, 1.0F);
}

TEST(HXHsvTest, EachSixthOfTheCircleMixesItsTwoChannels) {
  ExpectRgb({0, 1, 1}, {1, 0, 0});
  ExpectRgb({30, 1, 1}, {1, 0.5F, 0});
  ExpectRgb({60, 1, 1}, {1, 1, 0});
  ExpectRgb({90, 1, 1}, {0.5F, 1, 0});
  ExpectRgb({120, 1, 1}, {0, 1, 0});
  ExpectRgb({150, 1, 1}, {0, 1, 0.5F});
  ExpectRgb({180, 1, 1}, {0, 1, 1});
  ExpectRgb({210, 1, 1}, {0, 0.5F, 1});
  ExpectRgb({240, 1, 1}, {0, 0, 1});
  ExpectRgb({270, 1, 1}, {0.5F, 0, 1});
  ExpectRgb({300, 1, 1}, {1, 0, 1});
  ExpectRgb({330, 1, 1}, {1, 0, 0.5F});
  ExpectRgb({360, 1, 1}, {1, 0, 0});
}

TEST(HXHsvTest, SaturationAndValueScaleTheColour) {
  ExpectRgb({120, 0.5F, 0.8F}, {0.4F, 0.8F, 0.4F});
  ExpectRgb({200, 0, 0.3F}, {0.3F, 0.3F, 0.3F});
  ExpectRgb({200, 1, 0}, {0, 0, 0});
}

}  // namespace
