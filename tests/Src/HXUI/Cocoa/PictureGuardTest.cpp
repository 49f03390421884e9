#include <gtest/gtest.h>

#include <vector>

#include "Src/HXUI/Cocoa/PictureGuard.h"

namespace {

using Bytes = std::vector<unsigned char>;

/// The beginning of a PNG of this size.
Bytes Png(unsigned width, unsigned height) {
  Bytes file{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 0, 0, 0, 13, 'I', 'H', 'D', 'R'};
  for (const unsigned number : {width, height}) {
    for (const int shift : {24, 16, 8, 0}) {
      file.push_back(static_cast<unsigned char>(number >> shift & 0xFFU));
    }
  }
  return file;
}

TEST(PictureGuardTest, PicturesUpToTheLargestSideAreSafe) {
  EXPECT_TRUE(IsSafePicture(Png(1, 1)));
  EXPECT_TRUE(IsSafePicture(Png(16383, 16383)));
}

#ifdef GNUSTEP
TEST(PictureGuardTest, LargerOnesAreNot) {
  EXPECT_FALSE(IsSafePicture(Png(16384, 1)));
  EXPECT_FALSE(IsSafePicture(Png(1, 16384)));
  EXPECT_FALSE(IsSafePicture(Png(0x7FFFFFFF, 0x7FFFFFFF)));
}

TEST(PictureGuardTest, WhatSaysNoSizeIsNot) {
  EXPECT_FALSE(IsSafePicture(Bytes{}));
  EXPECT_FALSE(IsSafePicture(Bytes{'G', 'I', 'F', '8', '9', 'a', 1, 0, 1, 0}));
  EXPECT_FALSE(IsSafePicture(Png(0x80000000, 1)));
}
#endif

}  // namespace
