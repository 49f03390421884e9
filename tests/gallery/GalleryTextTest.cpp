#include "tests/gallery/GalleryTest.h"
#include "tests/gallery/SelectionOwner.h"

namespace {

class GalleryTextTest : public GalleryTest {
 protected:
  static constexpr int kFieldX = 200;
  static constexpr int kPlainY = 50;
  static constexpr int kPasswordY = 80;
  static constexpr int kReadOnlyY = 110;
  static constexpr int kLimitedY = 230;
  static constexpr int kBoxY = 300;
  static constexpr Area kPassword{170, 70, 180, 20};

  void SetUp() override {
    GalleryTest::SetUp();
    Show(kText);
  }
};

TEST_F(GalleryTextTest, TypedTextBecomesTheValue) {
  ClickAt(kFieldX, kPlainY);
  TypeCommand("a");
  Type("Hello, World");
  EXPECT_TRUE(HasValue("plain", "Hello, World"));
  EXPECT_TRUE(LogEndsWith({"Plain: key 108", "Plain: key 100"}));
}

}  // namespace
