#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Src/HXUI/FileTypeFilter.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(FileTypeFilterTest, EachKnownExtensionAllowsBothItsSpellings) {
  const std::vector<std::pair<std::string, std::string>> known = {
      {"c4d", "C4D"}, {"obj", "OBJ"}, {"e3d", "E3D"}, {"png", "PNG"}, {"jpg", "JPG"},
      {"exr", "EXR"}, {"hdr", "HDR"}, {"pic", "PIC"}, {"dds", "DDS"}};
  for (const auto& [lower, upper] : known) {
    EXPECT_THAT(FileTypeFilter::TypesToOpen("." + lower), ElementsAre(lower, upper));
  }
}

TEST(FileTypeFilterTest, TheOrderIsTheTablesNotTheFilters) {
  EXPECT_THAT(FileTypeFilter::TypesToOpen(".dds;.pic;.hdr;.exr;.jpg;.png;.e3d;.obj;.c4d"),
              ElementsAre("c4d", "C4D", "obj", "OBJ", "e3d", "E3D", "png", "PNG", "jpg", "JPG",
                          "exr", "EXR", "hdr", "HDR", "pic", "PIC", "dds", "DDS"));
}

TEST(FileTypeFilterTest, TheTextAroundTheExtensionsDoesNotMatter) {
  EXPECT_THAT(FileTypeFilter::TypesToOpen("Pictures (*.png, *.jpg) and more"),
              ElementsAre("png", "PNG", "jpg", "JPG"));
  EXPECT_THAT(FileTypeFilter::TypesToOpen("a.picture"), ElementsAre("pic", "PIC"));
}

TEST(FileTypeFilterTest, AnExtensionNamedTwiceIsAllowedOnce) {
  EXPECT_THAT(FileTypeFilter::TypesToOpen(".png;.png"), ElementsAre("png", "PNG"));
}

TEST(FileTypeFilterTest, UpperCaseInTheFilterAllowsNothing) {
  EXPECT_THAT(FileTypeFilter::TypesToOpen(".PNG"), IsEmpty());
  EXPECT_THAT(FileTypeFilter::TypesToSave(".OBJ"), IsEmpty());
}

TEST(FileTypeFilterTest, AnExtensionWithoutItsDotAllowsNothing) {
  EXPECT_THAT(FileTypeFilter::TypesToOpen("png;obj"), IsEmpty());
}

TEST(FileTypeFilterTest, AnEmptyOrUnknownFilterAllowsNothing) {
  EXPECT_THAT(FileTypeFilter::TypesToOpen(""), IsEmpty());
  EXPECT_THAT(FileTypeFilter::TypesToOpen(".tiff;.aep"), IsEmpty());
  EXPECT_THAT(FileTypeFilter::TypesToSave(""), IsEmpty());
}

TEST(FileTypeFilterTest, SavingKnowsOneTypeOnly) {
  EXPECT_THAT(FileTypeFilter::TypesToSave(".c4d;.obj;.png"), ElementsAre("obj", "OBJ"));
  EXPECT_THAT(FileTypeFilter::TypesToSave(".c4d;.png"), IsEmpty());
}

}  // namespace
