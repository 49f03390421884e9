#pragma once

#include <bit>
#include <cstdint>

/// A colour of four bytes, each 0 to 255; red lies in the lowest byte of the
/// 32-bit word, alpha in the highest. Alpha 255 is opaque.
struct HXColor {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  std::uint8_t alpha = 255;

  /// True for (255, 0, 255) with any alpha: a widget of this colour paints no
  /// background of its own.
  constexpr bool IsTransparentKey() const { return red == 255 && green == 0 && blue == 255; }

  friend constexpr bool operator==(const HXColor&, const HXColor&) = default;
};
static_assert(sizeof(HXColor) == 4);
static_assert(std::bit_cast<std::uint32_t>(HXColor{.red = 1, .green = 2, .blue = 3, .alpha = 4}) ==
              0x04030201U);

/// A position in pixels; x grows to the right, y downward.
struct HXPoint {
  std::int32_t x = 0;
  std::int32_t y = 0;

  friend constexpr bool operator==(const HXPoint&, const HXPoint&) = default;
};

/// An extent in pixels.
struct HXSize {
  std::int32_t width = 0;
  std::int32_t height = 0;

  friend constexpr bool operator==(const HXSize&, const HXSize&) = default;
};

/// A rectangle in pixels, its origin at the top left.
struct HXRect {
  std::int32_t x = 0;
  std::int32_t y = 0;
  std::int32_t width = 0;
  std::int32_t height = 0;

  friend constexpr bool operator==(const HXRect&, const HXRect&) = default;
};
