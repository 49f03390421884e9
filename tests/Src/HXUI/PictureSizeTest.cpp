#include <gtest/gtest.h>

#include <vector>

#include "Src/HXUI/PictureSize.h"

namespace {

using Bytes = std::vector<unsigned char>;

Bytes Png(Bytes size) {
  Bytes file{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 0, 0, 0, 13, 'I', 'H', 'D', 'R'};
  file.insert(file.end(), size.begin(), size.end());
  return file;
}

/// What begins every JPEG, then `rest`.
Bytes Jpeg(Bytes rest) {
  Bytes file{0xFF, 0xD8, 0xFF, 0xE0, 0, 4, 'J', 'F'};
  file.insert(file.end(), rest.begin(), rest.end());
  return file;
}

TEST(PictureSizeTest, PngNamesItsSizeAtTheBeginning) {
  EXPECT_EQ(ClaimedPictureSize(Png({0, 0, 1, 2, 0, 0, 0, 7})), (HXSize{258, 7}));
}

TEST(PictureSizeTest, JpegNamesItsSizeInItsFrame) {
  EXPECT_EQ(ClaimedPictureSize(Jpeg({0xFF, 0xC0, 0, 7, 8, 0, 7, 1, 2})), (HXSize{258, 7}));
  EXPECT_EQ(ClaimedPictureSize(Jpeg({0xFF, 0xC2, 0, 7, 8, 0, 7, 1, 2})), (HXSize{258, 7}));
}

TEST(PictureSizeTest, OnlyFramesOfAJpegNameASize) {
  for (unsigned marker = 0xC0; marker <= 0xFE; ++marker) {
    const bool isFrame = marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
    // Neither these nor the scan and the end of the picture are followed by a segment.
    if (marker >= 0xD0 && marker <= 0xDA) continue;
    const auto size =
        ClaimedPictureSize(Jpeg({0xFF, static_cast<unsigned char>(marker), 0, 7, 8, 0, 7, 1, 2}));
    EXPECT_EQ(size.has_value(), isFrame) << marker;
  }
}

TEST(PictureSizeTest, MarkersWithoutContentAreSteppedOver) {
  for (const int marker : {0x01, 0xD0, 0xD4, 0xD8}) {
    EXPECT_EQ(ClaimedPictureSize(Jpeg(
                  {0xFF, static_cast<unsigned char>(marker), 0xFF, 0xC0, 0, 7, 8, 0, 7, 1, 2})),
              (HXSize{258, 7}))
        << marker;
  }
}

TEST(PictureSizeTest, AJpegHasOneFrameOfAtLeastItsSize) {
  const Bytes frame{0xFF, 0xC0, 0, 7, 8, 0, 7, 1, 2};
  Bytes two = frame;
  two.insert(two.end(), frame.begin(), frame.end());
  EXPECT_EQ(ClaimedPictureSize(Jpeg(two)), std::nullopt);
  EXPECT_EQ(ClaimedPictureSize(Jpeg({0xFF, 0xC0, 0, 6, 8, 0, 7, 1, 2})), std::nullopt);
  EXPECT_EQ(ClaimedPictureSize(Jpeg({0xFF, 0xC0, 0, 2, 0xFF, 0xFE, 0, 2})), std::nullopt);
}

TEST(PictureSizeTest, SizesAreReadUpTo31Bits) {
  EXPECT_EQ(ClaimedPictureSize(Png({0x7F, 0xFF, 0xFF, 0xFF, 0x12, 0x34, 0x56, 0x78})),
            (HXSize{0x7FFFFFFF, 0x12345678}));
  EXPECT_EQ(ClaimedPictureSize(Png({0, 0, 0, 7, 0x80, 0, 0, 0})), std::nullopt);
}

TEST(PictureSizeTest, TablesAndFillingOfAJpegAreNoFrames) {
  EXPECT_EQ(ClaimedPictureSize(Jpeg({0xFF, 0xC4, 0,    9,    8,    0, 1, 0, 1, 9, 9, 0xFF,
                                     0xD0, 0xFF, 0xFF, 0xFF, 0xC1, 0, 7, 8, 0, 7, 1, 2})),
            (HXSize{258, 7}));
}

TEST(PictureSizeTest, FilesCutShortAnywhereHaveNone) {
  const Bytes png = Png({0, 0, 1, 2, 0, 0, 0, 7});
  const Bytes jpeg = Jpeg({0xFF, 0xC0, 0, 7, 8, 0, 7, 1, 2});
  for (const Bytes& file : {png, jpeg}) {
    for (std::size_t length = 0; length < file.size(); ++length) {
      EXPECT_EQ(ClaimedPictureSize(std::span(file).first(length)), std::nullopt) << length;
    }
  }
}

TEST(PictureSizeTest, OtherFormatsAndDamagedFilesHaveNone) {
  EXPECT_EQ(ClaimedPictureSize(Bytes{'G', 'I', 'F', '8', '9', 'a', 1, 0, 1, 0}), std::nullopt);
  EXPECT_EQ(ClaimedPictureSize(Png({0x80, 0, 0, 0, 0, 0, 0, 7})), std::nullopt);
  EXPECT_EQ(ClaimedPictureSize(Jpeg({0x12, 0xC0, 0, 7, 8, 0, 7, 1, 2})), std::nullopt);
}

TEST(PictureSizeTest, JpegSegmentsThatLeaveTheFileAreNoticedUpToItsEnd) {
  Bytes frame{0xFF, 0xC0, 0, 7, 8, 0, 7, 1, 2};
  const auto after = [&frame](const Bytes& rest) {
    Bytes all = frame;
    all.insert(all.end(), rest.begin(), rest.end());
    return ClaimedPictureSize(Jpeg(all));
  };
  const std::optional<HXSize> size = HXSize{258, 7};
  EXPECT_EQ(ClaimedPictureSize(Jpeg({0xFF, 0xE1, 0xFF, 0xFF, 1, 2, 3, 4})), std::nullopt);
  EXPECT_EQ(after({0xFF, 0xFE, 0, 5, 1, 2}), std::nullopt);
  EXPECT_EQ(after({0xFF, 0xFE, 0, 1}), std::nullopt);
  EXPECT_EQ(after({0xFF, 0xFE, 0, 4, 1, 2}), size);
  // Behind the pixels of a scan as well, but not within them or behind the end.
  EXPECT_EQ(after({0xFF, 0xDA, 0, 2, 1, 0xFF, 0x00, 0xFF, 0xD3, 9, 0xFF, 0xFE, 9, 9}),
            std::nullopt);
  EXPECT_EQ(after({0xFF, 0xDA, 0, 2, 1, 0xFF, 0x00, 0xFF, 0xD3, 0xFE, 9, 9}), size);
  EXPECT_EQ(after({0xFF, 0xD9, 0xFF, 0xFE, 9, 9}), size);
}

}  // namespace
