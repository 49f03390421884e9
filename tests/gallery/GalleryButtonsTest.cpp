#include "tests/endtoend/Waiting.h"
#include "tests/gallery/GalleryTest.h"

namespace {

class GalleryButtonsTest : public GalleryTest {
 protected:
  static constexpr Area kCount{220, 40, 110, 30};
  static constexpr Area kFaces{220, 309, 14, 14};

  void SetUp() override {
    GalleryTest::SetUp();
    Show(kButtons);
    // Away from all of them.
    MoveTo(600, 300);
  }

  testing::AssertionResult Looks(Area area, const Picture& picture) const {
    if (WaitUntil([&] { return LookAt(area) == picture; })) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "it looks different";
  }
};

TEST_F(GalleryButtonsTest, AButtonLightsUpUnderThePointer) {
  const Picture idle = LookAt(kCount);
  MoveTo(275, 55);
  EXPECT_TRUE(WaitUntil([&] { return LookAt(kCount) != idle; }));
  MoveTo(600, 300);
  EXPECT_TRUE(Looks(kCount, idle));
}

TEST_F(GalleryButtonsTest, AClickCountsOnItsRelease) {
  MoveTo(275, 55);
  pointer.Press();
  pointer.Release();
  EXPECT_TRUE(HasValue("clicks", "1"));
  ClickAt(275, 55);
  EXPECT_TRUE(HasValue("clicks", "2"));
}

TEST_F(GalleryButtonsTest, AReleaseOutsideDoesNotCount) {
  Drag(275, 55, 600, 300);
  ClickAt(227, 316);
  ASSERT_TRUE(HasValue("face", "1"));
  EXPECT_EQ(Value("clicks"), "0");
}

TEST_F(GalleryButtonsTest, APictureButtonShowsTheFaceThatItsOwnerChooses) {
  const Picture first = LookAt(kFaces);
  ClickAt(227, 316);
  ASSERT_TRUE(HasValue("face", "1"));
  ClickAt(600, 300);
  EXPECT_TRUE(WaitUntil([&] { return LookAt(kFaces) != first; }));
  ClickAt(227, 316);
  ASSERT_TRUE(HasValue("face", "0"));
  MoveTo(600, 300);
  EXPECT_TRUE(Looks(kFaces, first));
}

}  // namespace
