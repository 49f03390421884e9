#include "tests/endtoend/Waiting.h"
#include "tests/gallery/GalleryTest.h"

namespace {

class GalleryNumbersTest : public GalleryTest {
 protected:
  static constexpr int kX = 630;
  static constexpr int kFineY = 52;
  static constexpr Area kFine{620, 44, 20, 17};

  void SetUp() override {
    GalleryTest::SetUp();
    Show(kNumbers);
  }
};

TEST_F(GalleryNumbersTest, AClickEditsAndReturnTakesOver) {
  Focus(kFine);
  Type("12.5");
  keyboard.Type("Return");
  EXPECT_TRUE(HasValue("fine", "12.5"));
  EXPECT_TRUE(LogIs({"Fine: change begins (0)", "Fine: change done (2)"}));
}

TEST_F(GalleryNumbersTest, EscapeDropsWhatWasTyped) {
  const Picture idle = LookAt(kFine);
  Focus(kFine);
  Type("12.5");
  keyboard.Type("Escape");
  ASSERT_TRUE(WaitUntil([this, &idle] { return LookAt(kFine) == idle; }));
  EXPECT_TRUE(HasValue("fine", "50"));
  EXPECT_TRUE(LogIs({}));
}

TEST_F(GalleryNumbersTest, ATypedNumberStaysInTheRange) {
  Focus(kFine);
  Type("400");
  keyboard.Type("Return");
  EXPECT_TRUE(HasValue("fine", "100"));
}

TEST_F(GalleryNumbersTest, ADragReportsItsBeginningItsStepsAndItsEnd) {
  MoveTo(kX, kFineY);
  pointer.Press();
  MoveTo(kX + 3, kFineY);
  EXPECT_TRUE(LogIs({"Fine: change begins (0)", "Fine: change step (1)"}));
  MoveTo(kX + 6, kFineY);
  EXPECT_TRUE(LogIs({"Fine: change begins (0)", "Fine: change step (1)", "Fine: change step (1)"}));
  pointer.Release();
  EXPECT_TRUE(LogIs({"Fine: change begins (0)", "Fine: change step (1)", "Fine: change step (1)",
                     "Fine: change done (2)"}));
  EXPECT_TRUE(WaitUntil([this] { return Number("fine") > 50; }));
}

}  // namespace
