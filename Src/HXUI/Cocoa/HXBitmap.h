#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "Src/HXUI/Cocoa/HXBitmapPixels.h"
#include "Src/HXUI/Cocoa/NativeTypes.h"
#include "Src/HXUI/HXTypes.h"

class HXObject;

/// One image: artwork from bytes, a file's picture, an empty picture, or a
/// snapshot of a widget. Usually a member of the widget that draws it, with
/// `HXCocoaDC::DrawBitmap`. Nothing reports a failure. Main thread only.
class HXBitmap {
 public:
  HXBitmap() = default;
  /// As `LoadFromBytes`.
  HXBitmap(const unsigned char* bytes, std::uint32_t length);
  ~HXBitmap();
  HXBitmap(const HXBitmap&) = delete;
  HXBitmap& operator=(const HXBitmap&) = delete;

  /// Decodes a PNG, or any format that the platform reads and that does no harm:
  /// under GNUstep only JPEG beside it, both up to 16383 pixels a side. The bytes
  /// are copied. Anything else leaves the bitmap empty: drawing it draws nothing.
  void LoadFromBytes(const unsigned char* bytes, std::uint32_t length);
  /// `path` is UTF-8. A file that cannot be read or decoded gives an empty
  /// picture of 1 by 1.
  void LoadFromFile(const std::string& path);
  /// An empty (transparent) picture, its size in points.
  void CreateEmpty(HXSize size);
  /// The largest width and height in pixels among the image's
  /// representations, or its size in points when those give 0.
  HXSize GetPixelSize() const;
  /// Gives access to the pixels as red, green, blue, alpha bytes, the colours
  /// premultiplied by alpha; later drawings of the bitmap show what is written
  /// there. The first call makes its point size equal to its pixel size; further
  /// calls give the same bytes. The access object is short-lived; the buffer
  /// stays with the bitmap until its next load. An empty bitmap, or one too
  /// large for memory, gives an object without pixels. A bitmap that was locked
  /// and then loaded or copied anew gives the new picture's bytes in their own
  /// layout: see `GetBitsPerPixel`.
  std::unique_ptr<HXBitmapPixels> LockPixels();

  /// What the platform draws, up to date with the locked pixels; null when
  /// empty. To be asked for before each drawing.
  NSImage* GetImage() const;

  /// A snapshot of `widget` as it stands on the screen; brings its window to
  /// the front and makes it key. Without a window the bitmap stays as it was.
  static void CopyViewToBitmap(HXObject& widget, HXBitmap& bitmap);

 private:
  void Replace(NSImage* newImage);
  bool HasChanged() const;

  NSImage* image = nullptr;
  std::unique_ptr<unsigned char[]> pixels;
  /// The image's bytes as it was made to show them last.
  mutable std::vector<unsigned char> shown;
};
