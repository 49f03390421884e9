#pragma once

#include "Src/HXUI/Cocoa/NativeTypes.h"
#include "Src/HXUI/HXTypes.h"

/// Access to the pixels of an `HXBitmap`, made by `HXBitmap::LockPixels` and
/// owned by its caller, who keeps it no longer than the bitmap and not beyond
/// its next load. Four bytes a pixel (red, green, blue, alpha, premultiplied),
/// rows from the top, without padding; `HXBitmap::LockPixels` names the
/// exception. Main thread only.
class HXBitmapPixels {
 public:
  explicit HXBitmapPixels(NSBitmapImageRep* representation) : rep(representation) {}

  /// False for an empty bitmap; the accessors then must not be used.
  bool HasPixels() const { return rep != nullptr; }
  /// The first byte of the top row.
  unsigned char* GetData() const;
  int GetBytesPerRow() const;
  int GetBitsPerPixel() const;
  /// In pixels.
  HXSize GetPixelSize() const;

 private:
  NSBitmapImageRep* rep;
};
