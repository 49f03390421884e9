#include "tests/gallery/GalleryTest.h"

namespace {

class GallerySearchTest : public GalleryTest {
 protected:
  static constexpr Area kField{20, 64, 320, 30};

  void SetUp() override {
    GalleryTest::SetUp();
    Show(View::kSearch);
  }
};

TEST_F(GallerySearchTest, ThePlaceholderGoesWithTheFocusAndComesBack) {
  ASSERT_TRUE(HasValue("search", "Search..."));
  Focus(kField);
  EXPECT_TRUE(HasValue("search", ""));
  ClickAt(460, 79);
  EXPECT_TRUE(HasValue("search", "Search..."));
}

TEST_F(GallerySearchTest, EscapeClears) {
  Focus(kField);
  Type("oak");
  ASSERT_TRUE(HasValue("search", "oak"));
  keyboard.Type("Escape");
  EXPECT_TRUE(HasValue("search", "Search..."));
}

}  // namespace
