#include "tests/gallery/GalleryTest.h"

namespace {

class GalleryChoicesTest : public GalleryTest {
 protected:
  void SetUp() override {
    GalleryTest::SetUp();
    Show(kChoices);
  }
};

TEST_F(GalleryChoicesTest, AClickOnABoxOrItsLabelChangesTheByte) {
  ClickAt(27, 80);
  EXPECT_TRUE(HasValue("empty", "1"));
  ClickAt(47, 53);
  EXPECT_TRUE(HasValue("ticked", "0"));
}

}  // namespace
