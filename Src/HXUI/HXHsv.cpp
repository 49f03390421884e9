#include "Src/HXUI/HXHsv.h"

#include <algorithm>

namespace {

/// In degrees, from 60 to 420: the distance from the two other channels to the highest one.
float UnwrappedHue(HXRgb rgb, float highest, float delta) {
  if (rgb.red == highest) return (rgb.green - rgb.blue) * 60.0F / delta + 360.0F;
  if (rgb.green == highest) return (rgb.blue - rgb.red) * 60.0F / delta + 120.0F;
  return (rgb.red - rgb.green) * 60.0F / delta + 240.0F;
}

}  // namespace

HXRgb ToRgb(HXHsv hsv) {
  const float sector = hsv.hue / 60.0F;
  const int whole = static_cast<int>(sector);
  const float f = sector - static_cast<float>(whole);
  const float v = hsv.brightness;
  const float p = (1.0F - hsv.saturation) * v;
  const float q = (1.0F - hsv.saturation * f) * v;
  const float t = (1.0F - (1.0F - f) * hsv.saturation) * v;
  switch (whole % 6) {
    case 0:
      return {v, t, p};
    case 1:
      return {q, v, p};
    case 2:
      return {p, v, t};
    case 3:
      return {p, q, v};
    case 4:
      return {t, p, v};
    default:
      return {v, p, q};
  }
}

HXHsv ToHsv(HXRgb rgb) {
  constexpr float kSmall = 0.00001F;
  const float highest = std::max({rgb.red, rgb.green, rgb.blue});
  const float lowest = std::min({rgb.red, rgb.green, rgb.blue});
  const float delta = highest - lowest;
  const float saturation = highest < kSmall ? 0.0F : delta / highest;
  if (delta < kSmall) return {0, saturation, highest};

  const float hue = UnwrappedHue(rgb, highest, delta);
  return {hue > 360.0F ? hue - 360.0F : hue, saturation, highest};
}
