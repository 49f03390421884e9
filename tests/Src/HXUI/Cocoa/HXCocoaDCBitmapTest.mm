#include "Src/HXUI/Cocoa/HXCocoaDC.h"
#include "resources/Pictures.h"
#include "tests/Src/HXUI/Cocoa/BitmapFixture.h"

namespace {

class HXCocoaDCBitmapTest : public BitmapFixture {};

TEST_F(HXCocoaDCBitmapTest, ScalingPixelArtRepeatsItsPixels) {
  HXBitmap bitmap;
  MakeCorners(bitmap);
  const auto drawn = PaintBitmap(bitmap, {12, 12}, {2, 1}, {8, 6});
  const auto isColor = [](HXColor wanted) { return [wanted](HXColor c) { return c == wanted; }; };
  EXPECT_EQ(drawn->Count({2, 1, 4, 3}, isColor(kRed)), 12);
  EXPECT_EQ(drawn->Count({6, 1, 4, 3}, isColor(kWhite)), 12);
  EXPECT_EQ(drawn->Count({2, 4, 4, 3}, isColor(kBlue)), 12);
  EXPECT_EQ(drawn->Count({6, 4, 4, 3}, isColor(kGrey)), 12);
  EXPECT_EQ(drawn->Ink({0, 0, 12, 12}, kBlack), 48);
}

TEST_F(HXCocoaDCBitmapTest, SizesThatAreHalfEmptyOrNegativeDrawNothing) {
  HXBitmap bitmap;
  MakeCorners(bitmap);
  for (const HXSize size : {HXSize{8, 0}, HXSize{0, 8}, HXSize{-8, 8}, HXSize{8, -8}}) {
    EXPECT_EQ(PaintBitmap(bitmap, {20, 20}, {9, 9}, size)->Ink({0, 0, 20, 20}, kBlack), 0);
  }
}

TEST_F(HXCocoaDCBitmapTest, PartsCountFromTheTopLeft) {
  const HXBitmap bitmap(kBannerPng.bytes, kBannerPng.length);
  NSBitmapImageRep* file = Decoded(kBannerPng);
  const HXRect part{30, 40, 50, 60};
  const auto drawn = Paint({100, 100}, [&](HXCocoaDC& dc) {
    dc.DrawBitmapPart(bitmap, {7, 9}, part);
  });
  int differences = 0;
  for (int y = 0; y < part.height; ++y) {
    for (int x = 0; x < part.width; ++x) {
      if (drawn->At(7 + x, 9 + y) != FilePixel(file, part.x + x, part.y + y)) ++differences;
    }
  }
  EXPECT_EQ(differences, 0);
  EXPECT_EQ(drawn->Ink({0, 0, 100, 9}, kBlack), 0);
  EXPECT_EQ(drawn->Ink({57, 0, 43, 100}, kBlack), 0);
  EXPECT_EQ(drawn->Ink({0, 69, 100, 31}, kBlack), 0);
}

TEST_F(HXCocoaDCBitmapTest, BothCheckBoxFacesAreTheirHalfOfThePicture) {
  const HXBitmap faces(kCheckBoxPng.bytes, kCheckBoxPng.length);
  const auto whole = PaintBitmap(faces, {40, 20});
  for (const int face : {0, 14}) {
    const auto drawn = Paint({40, 20}, [&faces, face](HXCocoaDC& dc) {
      dc.DrawBitmapPart(faces, {0, 0}, {face, 0, 14, 14});
    });
    int differences = 0;
    for (int y = 0; y < 14; ++y) {
      for (int x = 0; x < 14; ++x) differences += drawn->At(x, y) == whole->At(x + face, y) ? 0 : 1;
    }
    EXPECT_EQ(differences, 0) << "from " << face;
    EXPECT_EQ(drawn->Ink({14, 0, 26, 20}, kBlack), 0);
  }
}

TEST_F(HXCocoaDCBitmapTest, PartsBeyondTheEdgeAreNotStretched) {
  HXBitmap bitmap;
  MakeCorners(bitmap);
  const auto drawn = Paint({20, 20}, [&bitmap](HXCocoaDC& dc) {
    dc.DrawBitmapPart(bitmap, {2, 2}, {-3, -2, 8, 8});
    dc.DrawBitmapPart(bitmap, {12, 12}, {1, 1, 8, 8});
  });
  EXPECT_EQ(drawn->At(5, 4), kRed);
  EXPECT_EQ(drawn->At(6, 5), kGrey);
  EXPECT_EQ(drawn->At(12, 12), kGrey);
  EXPECT_EQ(drawn->Ink({0, 0, 20, 20}, kBlack), 5);
}

TEST_F(HXCocoaDCBitmapTest, EmptyPartsDrawNothing) {
  HXBitmap bitmap;
  MakeCorners(bitmap);
  for (const HXRect part :
       {HXRect{}, HXRect{1, 1, 0, 1}, HXRect{5, 5, 2, 2}, HXRect{1, 1, -1, -1}}) {
    const auto drawn = Paint({20, 20}, [&](HXCocoaDC& dc) {
      dc.DrawBitmapPart(bitmap, {4, 4}, part);
    });
    EXPECT_EQ(drawn->Ink({0, 0, 20, 20}, kBlack), 0);
  }
}

}  // namespace
