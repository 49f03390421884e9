#include <cstdio>
#include <cstring>
#include <vector>

#include "Src/HXUI/HXColorImages.h"
#include "Src/HXUI/HXHsv.h"
#include "bench/Pairs.h"
#include "bench/Results.h"
#include "bench/Rows.h"

namespace {

constexpr int kPairs = 101;
constexpr std::size_t kBytes = std::size_t{HXColorImages::kSide} * HXColorImages::kSide * 4;

/// The formula as it is written down, for one pixel after the other.
void FillPlainly(unsigned char* pixel, float hue) {
  for (int y = 0; y < HXColorImages::kSide; ++y) {
    for (int x = 0; x < HXColorImages::kSide; ++x) {
      const HXRgb rgb =
          ToRgb({hue, static_cast<float>(x) / 255.0F, 1.0F - static_cast<float>(y) / 255.0F});
      *pixel++ = static_cast<unsigned char>(static_cast<int>(rgb.red * 255.0F));
      *pixel++ = static_cast<unsigned char>(static_cast<int>(rgb.green * 255.0F));
      *pixel++ = static_cast<unsigned char>(static_cast<int>(rgb.blue * 255.0F));
      *pixel++ = 255;
    }
  }
}

bool AreIdentical(std::vector<unsigned char>& first, std::vector<unsigned char>& second) {
  // All sectors of the circle, their borders, and hues between the degrees.
  for (float hue = 0; hue <= 360.0F; hue += 0.375F) {
    HXColorImages::FillSquare(first.data(), hue);
    FillPlainly(second.data(), hue);
    if (std::memcmp(first.data(), second.data(), kBytes) == 0) continue;
    std::fprintf(stderr, "The colour square differs from the formula at hue %g.\n", hue);
    return false;
  }
  return true;
}

}  // namespace

bool MeasureColorSquare() {
  std::vector<unsigned char> first(kBytes);
  std::vector<unsigned char> second(kBytes);
  if (!AreIdentical(first, second)) return false;

  // Another hue for every run, the same for both of a pair.
  float workHue = 0;
  float referenceHue = 0;
  const PairMedians medians = MeasurePairs(
      kPairs,
      [&] {
        workHue += 3.3F;
        return MillisecondsOf([&] { HXColorImages::FillSquare(first.data(), workHue); });
      },
      [&] {
        referenceHue += 3.3F;
        return MillisecondsOf([&] {
          FillPlainly(second.data(), referenceHue);
          KeepResult(second.data());
        });
      });
  PrintRatio("refill of the colour square, bit-identical", "the plain formula for each pixel",
             medians, 0.15);
  return true;
}
