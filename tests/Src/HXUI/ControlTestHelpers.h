#pragma once

#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <vector>

#include "Src/HXUI/HXControl.h"
#include "resources/EmbeddedFile.h"
#include "tests/Src/HXUI/ToolkitFixture.h"

inline constexpr HXColor kWhite{255, 255, 255, 255};

/// One call of a change handler.
struct Change {
  std::uint32_t commandId;
  HXControl* sender;
  int notification;

  friend bool operator==(const Change&, const Change&) = default;
};

/// The owner of value controls: records their changes.
class ChangeRecorder : public RecordingOwner {
 public:
  static void OnChange(HXObject* target, std::uint32_t commandId, HXControl* sender,
                       int notification) {
    auto* self = static_cast<ChangeRecorder*>(target);
    self->changes.push_back({commandId, sender, notification});
    if (self->onChange) self->onChange(notification);
  }

  std::vector<Change> changes;
  /// Run at each change.
  std::function<void(int)> onChange;
};

/// Whether the widget has asked to be drawn since it was drawn last.
inline bool NeedsDisplay(const HXObject& widget) { return [widget.GetNativeView() needsDisplay]; }

inline bool IsNear(int first, int second, int tolerance = 2) {
  return first - second <= tolerance && second - first <= tolerance;
}

inline bool IsNear(HXColor first, HXColor second, int tolerance = 2) {
  return IsNear(first.red, second.red, tolerance) && IsNear(first.green, second.green, tolerance) &&
         IsNear(first.blue, second.blue, tolerance);
}

/// The strongest red, green and blue in the rectangle: of text on a darker
/// ground, nearly the colour of the text.
inline HXColor Brightest(const DrawnPixels& pixels, HXRect rect) {
  HXColor brightest{0, 0, 0, 255};
  for (int y = rect.y; y < rect.y + rect.height; ++y) {
    for (int x = rect.x; x < rect.x + rect.width; ++x) {
      const HXColor color = pixels.At(x, y);
      brightest.red = std::max(brightest.red, color.red);
      brightest.green = std::max(brightest.green, color.green);
      brightest.blue = std::max(brightest.blue, color.blue);
    }
  }
  return brightest;
}

/// How many pixels of the rectangle differ from `expected`.
inline int CountOther(const DrawnPixels& pixels, HXRect rect, HXColor expected) {
  return pixels.Ink(rect, expected);
}

/// How many pixels of the outermost ring of a picture of `size` are white.
inline int CountWhiteInRing(const DrawnPixels& pixels, HXSize size) {
  const auto isWhite = [](HXColor color) { return color == kWhite; };
  return pixels.Count({0, 0, size.width, 1}, isWhite) +
         pixels.Count({0, size.height - 1, size.width, 1}, isWhite) +
         pixels.Count({0, 1, 1, size.height - 2}, isWhite) +
         pixels.Count({size.width - 1, 1, 1, size.height - 2}, isWhite);
}

inline int RingLength(HXSize size) { return 2 * (size.width + size.height) - 4; }

/// How many pixels of the drawn `size`, inside a ring of `inset`, differ from
/// the part of the embedded picture that starts at column `left`. Only where
/// the picture is opaque, since elsewhere the ground shows through.
inline int CountUnlikePicture(const DrawnPixels& pixels, const EmbeddedFile& picture, int left,
                              HXSize size, int inset) {
  NSBitmapImageRep* source = [NSBitmapImageRep
      imageRepWithData:[NSData dataWithBytes:picture.bytes length:picture.length]];
  int unlike = 0;
  int opaque = 0;
  for (int y = inset; y < size.height - inset; ++y) {
    for (int x = inset; x < size.width - inset; ++x) {
      const unsigned char* pixel =
          [source bitmapData] + y * [source bytesPerRow] + [source samplesPerPixel] * (x + left);
      if ([source samplesPerPixel] == 4 && pixel[3] != 255) continue;
      ++opaque;
      if (!IsNear(pixels.At(x, y), {pixel[0], pixel[1], pixel[2], 255})) ++unlike;
    }
  }
  EXPECT_GT(opaque, 0) << "the picture has nothing to compare";
  return unlike;
}
