#include "Src/HXUI/Cocoa/HXBitmapPixels.h"

#include <cstring>

#include "resources/Pictures.h"
#include "tests/Src/HXUI/Cocoa/BitmapFixture.h"

namespace {

class HXBitmapPixelsTest : public BitmapFixture {};

TEST_F(HXBitmapPixelsTest, LockedPixelsAreRgbaRowsWithoutPadding) {
  HXBitmap bitmap;
  bitmap.CreateEmpty({7, 3});
  const auto pixels = bitmap.LockPixels();
  ASSERT_TRUE(pixels->HasPixels());
  EXPECT_EQ(pixels->GetPixelSize(), (HXSize{7, 3}));
  EXPECT_EQ(pixels->GetBytesPerRow(), 28);
  EXPECT_EQ(pixels->GetBitsPerPixel(), 32);
  for (int i = 0; i < 7 * 3 * 4; ++i) EXPECT_EQ(pixels->GetData()[i], 0);
}

TEST_F(HXBitmapPixelsTest, LockingAnOpaquePngGivesItsExactBytes) {
  HXBitmap bitmap(kBannerPng.bytes, kBannerPng.length);
  NSBitmapImageRep* file = Decoded(kBannerPng);
  const auto pixels = bitmap.LockPixels();
  ASSERT_EQ(pixels->GetPixelSize(), (HXSize{160, 310}));
  int differences = 0;
  for (int y = 0; y < 310; ++y) {
    for (int x = 0; x < 160; ++x) {
      if (PixelAt(*pixels, x, y) != FilePixel(file, x, y)) ++differences;
    }
  }
  EXPECT_EQ(differences, 0);
}

TEST_F(HXBitmapPixelsTest, LockedColoursArePremultipliedWhetherDrawnBeforeOrNot) {
  for (const bool drawFirst : {false, true}) {
    HXBitmap bitmap(kSearchPng.bytes, kSearchPng.length);
    NSBitmapImageRep* file = Decoded(kSearchPng);
    if (drawFirst) PaintBitmap(bitmap, {20, 20});
    const auto pixels = bitmap.LockPixels();
    int differences = 0;
    int halfTransparent = 0;
    for (int y = 0; y < 16; ++y) {
      for (int x = 0; x < 16; ++x) {
        const HXColor expected = Premultiplied(FilePixel(file, x, y));
        if (PixelAt(*pixels, x, y) != expected) ++differences;
        if (expected.alpha > 0 && expected.alpha < 255) ++halfTransparent;
      }
    }
    EXPECT_EQ(differences, 0) << drawFirst;
    EXPECT_GT(halfTransparent, 10);
  }
}

TEST_F(HXBitmapPixelsTest, LockingAGreyPictureGivesRgba) {
  NSBitmapImageRep* grey =
      [[[NSBitmapImageRep alloc] initWithBitmapDataPlanes:nullptr
                                               pixelsWide:3
                                               pixelsHigh:2
                                            bitsPerSample:8
                                          samplesPerPixel:1
                                                 hasAlpha:NO
                                                 isPlanar:NO
                                           colorSpaceName:NSCalibratedWhiteColorSpace
                                              bytesPerRow:3
                                             bitsPerPixel:8] autorelease];
  const unsigned char levels[] = {0, 1, 128, 200, 254, 255};
  std::memcpy([grey bitmapData], levels, sizeof levels);
  NSData* png = [grey representationUsingType:NSPNGFileType properties:[NSDictionary dictionary]];
  HXBitmap bitmap(static_cast<const unsigned char*>([png bytes]),
                  static_cast<std::uint32_t>([png length]));
  const auto pixels = bitmap.LockPixels();
  ASSERT_TRUE(pixels->HasPixels());
  for (int i = 0; i < 6; ++i) {
    const unsigned char level = levels[i];
    EXPECT_EQ(PixelAt(*pixels, i % 3, i / 3), (HXColor{level, level, level, 255}));
  }
}

TEST_F(HXBitmapPixelsTest, LockingTwiceGivesTheSameBytes) {
  HXBitmap bitmap(kSearchPng.bytes, kSearchPng.length);
  const auto first = bitmap.LockPixels();
  SetPixel(*first, 3, 3, {1, 2, 3, 255});
  const auto second = bitmap.LockPixels();
  EXPECT_EQ(first->GetData(), second->GetData());
  EXPECT_EQ(PixelAt(*second, 3, 3), (HXColor{1, 2, 3, 255}));
}

TEST_F(HXBitmapPixelsTest, TheBytesStayWhenTheAccessGoes) {
  HXBitmap bitmap;
  MakeCorners(bitmap);
  EXPECT_EQ(PixelAt(*bitmap.LockPixels(), 1, 1), kGrey);
  EXPECT_EQ(PaintBitmap(bitmap, {4, 4})->At(1, 1), kGrey);
}

TEST_F(HXBitmapPixelsTest, LockingDoesNotChangeWhatIsDrawn) {
  for (const EmbeddedFile* picture : {&kSearchPng, &kCheckBoxPng, &kComboBlackTextPng}) {
    HXBitmap bitmap(picture->bytes, picture->length);
    const auto before = PaintBitmap(bitmap, {120, 30}, {2, 3});
    bitmap.LockPixels();
    EXPECT_EQ(CountDifferences(*before, *PaintBitmap(bitmap, {120, 30}, {2, 3})), 0);
  }
}

TEST_F(HXBitmapPixelsTest, DrawingsShowWhatWasWrittenSinceTheLastOne) {
  HXBitmap bitmap(kBannerPng.bytes, kBannerPng.length);
  const auto pixels = bitmap.LockPixels();
  for (int round = 0; round < 5; ++round) {
    for (int y = 0; y < 100; ++y) {
      for (int x = 0; x < 160; ++x) {
        SetPixel(*pixels, x, y,
                 {static_cast<std::uint8_t>(x + round), static_cast<std::uint8_t>(y),
                  static_cast<std::uint8_t>(round * 50), 255});
      }
    }
    const auto drawn = PaintBitmap(bitmap, {200, 100});
    int differences = 0;
    for (int y = 0; y < 100; ++y) {
      for (int x = 0; x < 160; ++x) {
        if (drawn->At(x, y) != PixelAt(*pixels, x, y)) ++differences;
      }
    }
    EXPECT_EQ(differences, 0) << "round " << round;
  }
}

TEST_F(HXBitmapPixelsTest, WrittenAlphaBlends) {
  HXBitmap bitmap;
  bitmap.CreateEmpty({1, 1});
  SetPixel(*bitmap.LockPixels(), 0, 0, {64, 32, 16, 128});
  const auto drawn = Paint({4, 4}, [&bitmap](HXCocoaDC& dc) {
    dc.SetFillColor(kGrey);
    dc.DrawRect({0, 0, 4, 4});
    dc.DrawBitmap(bitmap, {1, 1}, {0, 0});
  });
  EXPECT_TRUE(IsNear(drawn->At(1, 1), Over({64, 32, 16, 128}, kGrey), 1));
  EXPECT_EQ(drawn->At(0, 0), kGrey);
}

TEST_F(HXBitmapPixelsTest, ABitmapLockedBeforeShowsTheBytesOfWhatItLoadsNext) {
  HXBitmap bitmap;
  bitmap.CreateEmpty({4, 4});
  bitmap.LockPixels();
  bitmap.LoadFromBytes(kBannerPng.bytes, kBannerPng.length);
  PaintBitmap(bitmap, {170, 290});
  const auto pixels = bitmap.LockPixels();
  // Its own layout: the banner has no alpha.
  EXPECT_EQ(pixels->GetPixelSize(), (HXSize{160, 310}));
  EXPECT_EQ(pixels->GetBitsPerPixel(), 24);
  EXPECT_EQ(pixels->GetBytesPerRow(), 3 * 160);
  std::memcpy(pixels->GetData(), "\x01\x02\x03", 3);
  EXPECT_EQ(PaintBitmap(bitmap, {170, 290})->At(0, 0), (HXColor{1, 2, 3, 255}));
}

TEST_F(HXBitmapPixelsTest, ABitmapLockedBeforeGetsNewBytesForAnEmptyPicture) {
  HXBitmap bitmap;
  MakeCorners(bitmap);
  bitmap.CreateEmpty({5, 6});
  const auto pixels = bitmap.LockPixels();
  EXPECT_EQ(pixels->GetPixelSize(), (HXSize{5, 6}));
  EXPECT_EQ(PixelAt(*pixels, 0, 0), (HXColor{0, 0, 0, 0}));
}

}  // namespace
