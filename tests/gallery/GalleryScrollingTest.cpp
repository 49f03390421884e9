#include "tests/endtoend/Waiting.h"
#include "tests/gallery/GalleryTest.h"

namespace {

class GalleryScrollingTest : public GalleryTest {
 protected:
  // In the middle of the bars.
  static constexpr int kPlainX = 211;
  static constexpr int kArrowsX = 441;
  static constexpr int kTop = 40;
  static constexpr int kBottom = 370;
  static constexpr const char* kPlain = "plain content at";
  static constexpr const char* kArrows = "content with arrows at";

  void SetUp() override {
    GalleryTest::SetUp();
    Show(kScrolling);
    ASSERT_TRUE(HasValue(kPlain, "0"));
    ASSERT_TRUE(HasValue(kArrows, "0"));
  }
};

TEST_F(GalleryScrollingTest, TheWheelScrollsWhatIsUnderIt) {
  MoveTo(80, 150);
  pointer.TurnWheel(-1);
  EXPECT_TRUE(HasValue(kPlain, "-10"));
  EXPECT_TRUE(LogIs({"Wheel: -120"}));
  EXPECT_EQ(Value(kArrows), "0");
  pointer.TurnWheel(1);
  EXPECT_TRUE(HasValue(kPlain, "0"));
}

TEST_F(GalleryScrollingTest, TheThumbIsDraggedToTheEndAndBack) {
  const Picture top = LookAt({20, 40, 180, 330});
  PressAt(kPlainX, kTop + 10);
  MoveTo(kPlainX, kTop + 60);
  ASSERT_TRUE(WaitUntil([this] { return Number(kPlain) < -50; }));
  // Beyond the window.
  pointer.MoveTo(2, 760);
  float end = 0;
  ASSERT_TRUE(WaitUntil([this, &end] {
    const float before = end;
    end = Number(kPlain);
    return end < -400 && end == before;
  }));
  EXPECT_NE(LookAt({20, 40, 180, 330}), top);
  MoveTo(kPlainX, kTop + 10);
  EXPECT_TRUE(HasValue(kPlain, "0"));
  pointer.Release();
  MoveTo(600, 380);
  EXPECT_TRUE(WaitUntil([&] { return LookAt({20, 40, 180, 330}) == top; }));
}

TEST_F(GalleryScrollingTest, APressOnTheTrackBringsTheThumbThere) {
  ClickAt(kPlainX, kBottom - 2);
  EXPECT_TRUE(WaitUntil([this] { return Number(kPlain) < -400; }));
  ClickAt(kPlainX, kTop + 2);
  EXPECT_TRUE(HasValue(kPlain, "0"));
}

TEST_F(GalleryScrollingTest, AnArrowScrollsAsLongAsItIsHeld) {
  MoveTo(kArrowsX, kBottom - 8);
  pointer.Press();
  EXPECT_TRUE(WaitUntil([this] { return Number(kArrows) < -30; }));
  pointer.Release();
  MoveTo(kArrowsX, kTop + 8);
  pointer.Press();
  EXPECT_TRUE(HasValue(kArrows, "0"));
  pointer.Release();
  EXPECT_EQ(Value(kPlain), "0");
}

}  // namespace
