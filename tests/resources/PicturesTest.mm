#include "resources/Pictures.h"

#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <ostream>

namespace {

/// What a PNG file says of itself in its first chunk, IHDR.
struct PngHeader {
  std::uint32_t width;
  std::uint32_t height;
  int bitsPerSample;
  int colorType;
  bool operator==(const PngHeader&) const = default;
};

std::ostream& operator<<(std::ostream& out, const PngHeader& header) {
  return out << header.width << " by " << header.height << ", " << header.bitsPerSample
             << " bits, colour type " << header.colorType;
}

std::uint32_t BigEndian(const unsigned char* bytes) {
  return std::uint32_t{bytes[0]} << 24U | std::uint32_t{bytes[1]} << 16U |
         std::uint32_t{bytes[2]} << 8U | std::uint32_t{bytes[3]};
}

/// All zero when the file does not begin as a PNG does.
PngHeader ReadHeader(const EmbeddedFile& file) {
  const char signature[] = "\x89PNG\r\n\x1a\n\0\0\0\rIHDR";
  if (file.length < 26 || std::memcmp(file.bytes, signature, 16) != 0) {
    return {};
  }
  return {BigEndian(file.bytes + 16), BigEndian(file.bytes + 20), file.bytes[24], file.bytes[25]};
}

constexpr int kRgb = 2;
constexpr int kRgba = 6;

/// A picture decoded by AppKit, for looking at single pixels.
class Decoded {
 public:
  explicit Decoded(const EmbeddedFile& file)
      : pool([[NSAutoreleasePool alloc] init]),
        rep([[NSBitmapImageRep alloc] initWithData:[NSData dataWithBytes:file.bytes
                                                                  length:file.length]]) {}
  ~Decoded() {
    [rep release];
    [pool release];
  }
  Decoded(const Decoded&) = delete;
  Decoded& operator=(const Decoded&) = delete;

  double AlphaAt(NSInteger x, NSInteger y) const { return [[rep colorAtX:x y:y] alphaComponent]; }

  /// 0 is black or nothing, 1 opaque white.
  double LightAt(NSInteger x, NSInteger y) const {
    NSColor* color = [rep colorAtX:x y:y];
    return ([color redComponent] + [color greenComponent] + [color blueComponent]) / 3 *
           [color alphaComponent];
  }

  /// Counts the pixels of the rectangle that are lighter than `limit`.
  int CountLighter(double limit, NSInteger x, NSInteger y, NSInteger width,
                   NSInteger height) const {
    int count = 0;
    for (NSInteger row = y; row < y + height; ++row) {
      for (NSInteger column = x; column < x + width; ++column) {
        count += LightAt(column, row) > limit ? 1 : 0;
      }
    }
    return count;
  }

 private:
  NSAutoreleasePool* pool;
  NSBitmapImageRep* rep;
};

TEST(PicturesTest, HaveTheSizesThatTheControlsCountOn) {
  EXPECT_EQ(ReadHeader(kBannerPng), (PngHeader{160, 310, 8, kRgb}));
  EXPECT_EQ(ReadHeader(kCheckBoxPng), (PngHeader{28, 14, 8, kRgba}));
  EXPECT_EQ(ReadHeader(kComboLightTextPng), (PngHeader{110, 17, 8, kRgba}));
  EXPECT_EQ(ReadHeader(kComboBlackTextPng), (PngHeader{110, 17, 8, kRgba}));
  EXPECT_EQ(ReadHeader(kSearchPng), (PngHeader{16, 16, 8, kRgba}));
  EXPECT_EQ(ReadHeader(kClearPng), (PngHeader{16, 15, 8, kRgba}));
}

TEST(PicturesTest, OnlyTheRightCheckBoxCarriesALightMark) {
  const Decoded boxes(kCheckBoxPng);
  EXPECT_EQ(boxes.CountLighter(0.5, 0, 0, 14, 14), 0);
  EXPECT_GT(boxes.CountLighter(0.8, 14, 0, 14, 14), 8);
}

TEST(PicturesTest, BothCheckBoxesHaveTheSameLighterFrame) {
  const Decoded boxes(kCheckBoxPng);
  for (NSInteger i = 0; i < 14; ++i) {
    for (const NSInteger x : {NSInteger{0}, NSInteger{13}}) {
      EXPECT_GT(boxes.LightAt(x, i), boxes.LightAt(2, 2));
      EXPECT_EQ(boxes.LightAt(x, i), boxes.LightAt(x + 14, i));
    }
  }
}

TEST(PicturesTest, TheFaceIsDarkUnderLightTextAndLightUnderBlackText) {
  const NSInteger textWidth = 86;
  const NSInteger textHeight = 13;
  const Decoded dark(kComboLightTextPng);
  EXPECT_EQ(dark.CountLighter(0.4, 4, 1, textWidth, textHeight), 0);
  const Decoded light(kComboBlackTextPng);
  EXPECT_EQ(light.CountLighter(0.7, 4, 1, textWidth, textHeight), textWidth * textHeight);
}

TEST(PicturesTest, TheArrowStandsRightOfTheText) {
  const Decoded dark(kComboLightTextPng);
  EXPECT_EQ(dark.CountLighter(0.7, 0, 0, 90, 17), 0);
  EXPECT_GT(dark.CountLighter(0.7, 90, 0, 20, 17), 8);
}

TEST(PicturesTest, TheSearchBoxIconsAreLightShapesOnNothing) {
  for (const EmbeddedFile* file : {&kSearchPng, &kClearPng}) {
    const Decoded icon(*file);
    EXPECT_GT(icon.CountLighter(0.5, 0, 0, 16, 15), 15);
    EXPECT_EQ(icon.AlphaAt(0, 0), 0.0);
    EXPECT_EQ(icon.AlphaAt(15, 0), 0.0);
  }
}

}  // namespace
