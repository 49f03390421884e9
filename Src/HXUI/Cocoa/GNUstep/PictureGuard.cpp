#include "Src/HXUI/Cocoa/PictureGuard.h"

#include "Src/HXUI/PictureSize.h"

// PNG and JPEG are decoded by libraries that bear any file, once the segments of a JPEG
// are known to lie within it: GNUstep skips them unseen. What it does by itself trusts
// the file: its GIF decoder falls over a picture without a palette and reads behind one
// that is too short, and those of TIFF, PNM and ICNS multiply sizes without looking at
// what comes out.
bool IsSafePicture(std::span<const unsigned char> file) {
  // Beyond this the row table or the byte count of the two overflows as well.
  constexpr std::int32_t kLargestSide = 16383;
  const std::optional<HXSize> size = ClaimedPictureSize(file);
  return size && size->width <= kLargestSide && size->height <= kLargestSide;
}
