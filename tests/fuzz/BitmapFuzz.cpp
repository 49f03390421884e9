// Pictures in whatever format their bytes claim to be.

#include <cstdint>

#include "Src/HXUI/Cocoa/HXBitmap.h"
#include "Src/HXUI/Cocoa/HXBitmapPixels.h"
#include "Src/HXUI/PictureSize.h"
#include "tests/fuzz/FuzzApplication.h"
#include "tests/fuzz/Require.h"

namespace {

/// Larger pictures take seconds each, and tell nothing more.
constexpr std::int64_t kMostPixels = 1 << 20;

/// Touches every byte, so that a buffer that is too short is noticed.
std::uint64_t SumOf(const HXBitmapPixels& pixels, HXSize size) {
  std::uint64_t sum = 0;
  const auto count =
      static_cast<std::size_t>(pixels.GetBytesPerRow()) * static_cast<std::size_t>(size.height);
  for (std::size_t i = 0; i < count; ++i) sum += pixels.GetData()[i];
  return sum;
}

void RequirePixels(HXBitmap& bitmap, HXSize size) {
  const auto pixels = bitmap.LockPixels();
  Require(pixels->GetData() != nullptr, "a picture with a size has pixels");
  Require(pixels->GetPixelSize() == size, "there are as many as the picture has");
  Require(pixels->GetBytesPerRow() == 4 * size.width, "rows lie next to each other");
  Require(pixels->GetBitsPerPixel() == 32, "there are four bytes to a pixel");
  const std::uint64_t sum = SumOf(*pixels, size);
  pixels->GetData()[0] ^= 0xFF;
  Require(SumOf(*bitmap.LockPixels(), size) != sum, "the second lock sees what the first wrote");
  Require(bitmap.GetPixelSize() == size, "locking keeps the size");
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  FuzzApplication::Start();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::optional<HXSize> claimed = ClaimedPictureSize({data, size});
  if (claimed && std::int64_t{claimed->width} * claimed->height > kMostPixels) return 0;
  FuzzApplication::WithPool([&] {
    HXBitmap bitmap(data, static_cast<std::uint32_t>(size));
    const HXSize pixelSize = bitmap.GetPixelSize();
    Require(pixelSize.width >= 0 && pixelSize.height >= 0, "no size is negative");
    Require(pixelSize == HXSize{} || pixelSize == claimed, "it is as large as its file says");
    if (pixelSize.width > 0 && pixelSize.height > 0) RequirePixels(bitmap, pixelSize);
  });
  return 0;
}
