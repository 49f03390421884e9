#pragma once

#include <cstdint>
#include <memory>

#include "Src/HXUI/Cocoa/HXBitmap.h"
#include "resources/EmbeddedFile.h"
#include "tests/Src/HXUI/Cocoa/DrawingFixture.h"

inline NSBitmapImageRep* Decoded(const EmbeddedFile& file) {
  return [NSBitmapImageRep imageRepWithData:[NSData dataWithBytes:file.bytes length:file.length]];
}

/// As the file holds it, not premultiplied.
inline HXColor FilePixel(NSBitmapImageRep* rep, int x, int y) {
  NSUInteger samples[5] = {0, 0, 0, 255, 0};
  [rep getPixel:samples atX:x y:y];
  return {static_cast<std::uint8_t>(samples[0]), static_cast<std::uint8_t>(samples[1]),
          static_cast<std::uint8_t>(samples[2]), static_cast<std::uint8_t>(samples[3])};
}

inline HXColor PixelAt(const HXBitmapPixels& pixels, int x, int y) {
  const unsigned char* p = pixels.GetData() + y * pixels.GetBytesPerRow() + 4 * x;
  return {p[0], p[1], p[2], p[3]};
}

inline void SetPixel(const HXBitmapPixels& pixels, int x, int y, HXColor color) {
  unsigned char* p = pixels.GetData() + y * pixels.GetBytesPerRow() + 4 * x;
  p[0] = color.red;
  p[1] = color.green;
  p[2] = color.blue;
  p[3] = color.alpha;
}

inline std::uint8_t Times(int component, int alpha) {
  return static_cast<std::uint8_t>((component * alpha + 127) / 255);
}

inline HXColor Premultiplied(HXColor c) {
  return {Times(c.red, c.alpha), Times(c.green, c.alpha), Times(c.blue, c.alpha), c.alpha};
}

inline HXColor Over(HXColor premultiplied, HXColor background) {
  const int rest = 255 - premultiplied.alpha;
  return {static_cast<std::uint8_t>(premultiplied.red + Times(background.red, rest)),
          static_cast<std::uint8_t>(premultiplied.green + Times(background.green, rest)),
          static_cast<std::uint8_t>(premultiplied.blue + Times(background.blue, rest)), 255};
}

/// Base of the tests of bitmaps.
class BitmapFixture : public DrawingFixture {
 protected:
  static constexpr HXColor kGrey{100, 120, 140, 255};

  std::unique_ptr<DrawnPixels> PaintBitmap(const HXBitmap& bitmap, HXSize area,
                                           HXPoint point = {0, 0}, HXSize size = {0, 0}) {
    return Paint(area, [=, &bitmap](HXCocoaDC& dc) { dc.DrawBitmap(bitmap, point, size); });
  }

  /// The four corners of a 2 by 2 picture: red, white, blue, grey.
  static void MakeCorners(HXBitmap& bitmap) {
    bitmap.CreateEmpty({2, 2});
    const auto pixels = bitmap.LockPixels();
    SetPixel(*pixels, 0, 0, kRed);
    SetPixel(*pixels, 1, 0, kWhite);
    SetPixel(*pixels, 0, 1, kBlue);
    SetPixel(*pixels, 1, 1, kGrey);
  }
};
