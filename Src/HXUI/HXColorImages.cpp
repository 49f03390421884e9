#include "Src/HXUI/HXColorImages.h"

#include <array>

#include "Src/HXUI/HXHsv.h"

namespace {

constexpr auto kLast = static_cast<float>(HXColorImages::kSide - 1);

/// Within one row, one channel is the value itself and the others are the
/// value times one of three factors that depend on the column alone.
using Factors = std::array<float, HXColorImages::kSide>;

unsigned char ToByte(float channel) {
  return static_cast<unsigned char>(static_cast<int>(channel * 255.0F));
}

void FillChannel(unsigned char* row, int channel, const Factors& factors, float value) {
  for (std::size_t x = 0; x < factors.size(); ++x) {
    row[x * 4 + static_cast<std::size_t>(channel)] = ToByte(factors[x] * value);
  }
}

}  // namespace

void HXColorImages::FillSquare(unsigned char* pixels, float hue) {
  const float sector = hue / 60.0F;
  const int whole = static_cast<int>(sector);
  const float f = sector - static_cast<float>(whole);
  Factors one;
  Factors p;
  Factors q;
  Factors t;
  for (std::size_t x = 0; x < p.size(); ++x) {
    const float saturation = static_cast<float>(x) / kLast;
    one[x] = 1.0F;
    p[x] = 1.0F - saturation;
    q[x] = 1.0F - saturation * f;
    t[x] = 1.0F - (1.0F - f) * saturation;
  }
  // Which factor each channel takes, by sixth of the circle.
  const Factors* const table[6][3] = {{&one, &t, &p}, {&q, &one, &p}, {&p, &one, &t},
                                      {&p, &q, &one}, {&t, &p, &one}, {&one, &p, &q}};
  const auto& channels = table[whole % 6];
  for (std::int32_t y = 0; y < kSide; ++y) {
    const float value = 1.0F - static_cast<float>(y) / kLast;
    unsigned char* row = pixels + static_cast<std::ptrdiff_t>(y) * kSide * 4;
    for (int channel = 0; channel < 3; ++channel) {
      FillChannel(row, channel, *channels[channel], value);
    }
    for (std::int32_t x = 0; x < kSide; ++x) row[x * 4 + 3] = 255;
  }
}

void HXColorImages::FillHueBar(unsigned char* pixels) {
  for (std::int32_t y = 0; y < kSide; ++y) {
    const HXRgb rgb = ToRgb({360.0F - static_cast<float>(y) / kLast * 360.0F, 1, 1});
    for (std::int32_t x = 0; x < kBarWidth; ++x) {
      *pixels++ = ToByte(rgb.red);
      *pixels++ = ToByte(rgb.green);
      *pixels++ = ToByte(rgb.blue);
      *pixels++ = 255;
    }
  }
}
