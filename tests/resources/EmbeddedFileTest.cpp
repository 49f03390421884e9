#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "resources/Agreement.h"
#include "resources/EmbeddedFile.h"
#include "resources/Pictures.h"
#include "tests/resources/EmbeddedTestFiles.h"

namespace {

std::string ReadResource(const std::string& name) {
  std::ifstream file(std::string(RESOURCES_FOLDER "/") + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string BytesOf(const EmbeddedFile& file) { return {file.bytes, file.bytes + file.length}; }

struct Resource {
  const EmbeddedFile& embedded;
  const char* path;
};

const Resource kResources[] = {
    {kBannerPng, "pictures/banner.png"},
    {kCheckBoxPng, "pictures/checkbox.png"},
    {kComboLightTextPng, "pictures/combo-light-text.png"},
    {kComboBlackTextPng, "pictures/combo-black-text.png"},
    {kSearchPng, "pictures/search.png"},
    {kClearPng, "pictures/clear.png"},
    {kAgreementRtf, "agreement.rtf"},
};

TEST(EmbeddedFileTest, HoldsTheBytesOfItsFile) {
  for (const Resource& resource : kResources) {
    SCOPED_TRACE(resource.path);
    const std::string expected = ReadResource(resource.path);
    EXPECT_FALSE(expected.empty());
    EXPECT_TRUE(BytesOf(resource.embedded) == expected);
  }
}

TEST(EmbeddedFileTest, IsFollowedByAZeroByte) {
  for (const Resource& resource : kResources) {
    SCOPED_TRACE(resource.path);
    EXPECT_EQ(resource.embedded.bytes[resource.embedded.length], 0);
  }
}

TEST(EmbeddedFileTest, KeepsEveryByteValue) {
  ASSERT_EQ(kEveryByte.length, 256U);
  for (unsigned value = 0; value < 256; ++value) {
    EXPECT_EQ(kEveryByte.bytes[value], value);
  }
  EXPECT_EQ(kEveryByte.bytes[256], 0);
}

TEST(EmbeddedFileTest, OfAnEmptyFileIsAnEmptyString) {
  EXPECT_EQ(kNothing.length, 0U);
  ASSERT_NE(kNothing.bytes, nullptr);
  EXPECT_EQ(kNothing.bytes[0], 0);
}

}  // namespace
