#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

namespace {

// An empty file might be taken for no document at all, and a host's project
// begins with a chunk tag.
TEST(MarkerDocumentTest, IsAShortTextAndNoProject) {
  std::ifstream file(RESOURCES_FOLDER "/AEFile.aep", std::ios::binary);
  const std::string content{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  ASSERT_EQ(content.rfind("Marker document", 0), 0U);
  EXPECT_EQ(content.back(), '\n');
  EXPECT_LT(content.size(), 1000U);
}

}  // namespace
