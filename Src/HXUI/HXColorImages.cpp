#include "Src/HXUI/HXColorImages.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstring>

#include "Src/HXUI/HXHsv.h"

namespace {

constexpr auto kLast = static_cast<float>(HXColorImages::kSide - 1);

/// Within one row, one channel is the value itself and the others are the
/// value times one of three factors that depend on the column alone.
using Factors = std::array<float, HXColorImages::kSide>;

unsigned char ToByte(float channel) {
  return static_cast<unsigned char>(static_cast<int>(channel * 255.0F));
}

/// As ToByte for what lies between 0 and 1, ready to be put beside other bytes.
std::uint32_t ToBits(float channel) {
  return static_cast<std::uint32_t>(static_cast<std::int32_t>(channel * 255.0F));
}

/// Whole pixels, and nothing between the columns that depends on each other: the compiler makes
/// several of them at a time.
void FillRow(unsigned char* row, const Factors& red, const Factors& green, const Factors& blue,
             float value) {
  std::array<std::uint32_t, HXColorImages::kSide> packed;
  for (std::size_t x = 0; x < packed.size(); ++x) {
    packed[x] = ToBits(red[x] * value) | ToBits(green[x] * value) << 8 |
                ToBits(blue[x] * value) << 16 | 0xFF000000U;
  }
  std::memcpy(row, packed.data(), sizeof(packed));
}

static_assert(std::endian::native == std::endian::little, "red is the first byte of a pixel");

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
    FillRow(row, *channels[0], *channels[1], *channels[2], value);
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
