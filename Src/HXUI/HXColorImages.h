#pragma once

#include <cstdint>

/// The two pictures of the colour dialog, computed into a buffer of four bytes
/// a pixel (red, green, blue, alpha 255), rows from the top, without padding.
/// Channels are cut, not rounded. Any thread.
namespace HXColorImages {

/// Width and height of the square, and height of the hue bar.
inline constexpr std::int32_t kSide = 256;
inline constexpr std::int32_t kBarWidth = 20;

/// 256 by 256 pixels: saturation grows to the right, value upward.
void FillSquare(unsigned char* pixels, float hue);
/// 20 by 256 pixels: hue 360 at the top, 0 at the bottom.
void FillHueBar(unsigned char* pixels);

}  // namespace HXColorImages
