#include "tests/endtoend/Waiting.h"
#include "tests/gallery/GalleryTest.h"
#include "tests/gallery/Keys.h"

namespace {

using Lines = std::vector<std::string>;

class GalleryNumbersTest : public GalleryTest {
 protected:
  static constexpr int kX = 630;
  static constexpr int kFineY = 52;
  static constexpr int kCoarseY = 80;
  static constexpr Area kFine{620, 44, 20, 17};
  static constexpr Area kCoarse{620, 72, 20, 17};
  static constexpr Area kGrowing{620, 128, 16, 17};
  static constexpr Area kBindable{620, 156, 16, 17};
  static constexpr Area kAngle{220, 100, 20, 17};
  static constexpr Area kFraction{220, 240, 20, 17};

  void SetUp() override {
    GalleryTest::SetUp();
    Show(kNumbers);
  }

  void Enter(Area field, const std::string& text) {
    Focus(field);
    Type(text);
    keyboard.Type("Return");
  }

  /// Drags ten pixels to the right from 500, with a key held.
  void DragWith(const char* key, const char* value) {
    PressAt(kX, kCoarseY);
    // Held before the press, it could make the window manager move the window.
    const HeldKey held(desktop.Connection(), key);
    MoveTo(kX + 10, kCoarseY);
    EXPECT_TRUE(HasValue("coarse", value));
    pointer.Release();
  }

  /// How far the frame reaches that an editor at `x`, `y` has.
  int FrameWidth(int x, int y) const {
    const Picture line = LookAt({x, y, 150, 1});
    int width = 0;
    while (width < line.width && line.At(width, 0) == kAccent) ++width;
    return width;
  }
};

TEST_F(GalleryNumbersTest, AClickEditsAndReturnTakesOver) {
  Enter(kFine, "12.5");
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
  Enter(kFine, "400");
  EXPECT_TRUE(HasValue("fine", "100"));
}

TEST_F(GalleryNumbersTest, ACommaIsADecimalPoint) {
  Enter(kFine, "1,5");
  EXPECT_TRUE(HasValue("fine", "1.5"));
}

TEST_F(GalleryNumbersTest, WhatIsNoNumberIsAnnouncedAndChangesNothing) {
  Enter(kFine, "oak");
  EXPECT_TRUE(LogIs({"Fine: change begins (0)"}));
  EXPECT_EQ(Value("fine"), "50");
}

TEST_F(GalleryNumbersTest, ATypedAngleIsWrapped) {
  Enter(kAngle, "725");
  EXPECT_TRUE(HasValue("format 2", "5"));
}

TEST_F(GalleryNumbersTest, AFractionIsTypedAsAPercentage) {
  Enter(kFraction, "25");
  EXPECT_TRUE(HasValue("format 7", "0.25"));
}

TEST_F(GalleryNumbersTest, TabStaysInTheField) {
  Focus(kFine);
  Type("7");
  keyboard.Type("Tab");
  Type("5");
  keyboard.Type("Return");
  EXPECT_TRUE(HasValue("fine", "75"));
}

TEST_F(GalleryNumbersTest, AClickIntoAnotherFieldTakesOver) {
  Focus(kFine);
  Type("12");
  Enter(kCoarse, "34");
  EXPECT_TRUE(HasValue("coarse", "34"));
  EXPECT_TRUE(HasValue("fine", "12"));
  EXPECT_TRUE(LogIs({"Fine: change begins (0)", "Fine: change done (2)",
                     "Coarse: change begins (0)", "Coarse: change done (2)"}));
}

TEST_F(GalleryNumbersTest, TheFieldGrowsWithWhatIsTyped) {
  Focus(kGrowing);
  Type("1");
  constexpr int kNarrow = 30;
  ASSERT_TRUE(WaitUntil([this] { return FrameWidth(620, 128) == kNarrow; }));
  Type("234567");
  EXPECT_TRUE(WaitUntil([this] { return FrameWidth(620, 128) > kNarrow + 20; }));
  for (int i = 0; i < 6; ++i) keyboard.Type("BackSpace");
  EXPECT_TRUE(WaitUntil([this] { return FrameWidth(620, 128) == kNarrow; }));
  keyboard.Type("Return");
}

TEST_F(GalleryNumbersTest, NothingIsCutOffWhatIsTyped) {
  constexpr Color kEditor{0, 0, 0};
  // A digit that is cut begins right there; of a whole one there is a faint edge at most.
  constexpr int kMargin = 2;
  constexpr int kFaint = 60;
  const auto isStrong = [](Color color) { return color.red > kFaint; };
  for (const Area field : {kFine, kGrowing}) {
    const Area edge{1, 1, kMargin, 16};
    Focus(field);
    Type(field.y == kFine.y ? "88888" : "8888888888");
    const auto isWhole = [&] {
      const Picture picture = LookAt({field.x, field.y, 24, 18});
      return picture.Count(edge, isStrong) == 0 && picture.HasInk({3, 1, 8, 16}, kEditor);
    };
    EXPECT_TRUE(WaitUntil(isWhole)) << "the field at " << field.y;
    Settle();
    EXPECT_TRUE(isWhole()) << "the field at " << field.y;
    keyboard.Type("Return");
  }
}

TEST_F(GalleryNumbersTest, AnUnboundFieldIsGreyAndInert) {
  constexpr Color kUnbound{131, 132, 133};
  const auto isGrey = [kUnbound](Color color) { return color == kUnbound; };
  const Area all{0, 0, kBindable.width, kBindable.height};
  ClickAt(700, 164);
  ASSERT_TRUE(WaitUntil([&] { return LookAt(kBindable).Count(all, isGrey) > 0; }));
  ClickAt(626, 164);
  ClickAt(700, 164);
  // Bound again, it shows its number in its colour, and no editor.
  ASSERT_TRUE(WaitUntil([&] { return LookAt(kBindable).Count(all, isGrey) == 0; }));
  EXPECT_TRUE(LogIs({}));
  Enter(kBindable, "3");
  EXPECT_TRUE(HasValue("bindable", "3"));
}

TEST_F(GalleryNumbersTest, TheRowClosesUpAroundItsFields) {
  // The last dot of the last field.
  const auto end = [this] {
    const Picture row = LookAt({400, 256, 340, 26});
    for (int x = row.width - 1; x > 0; --x) {
      if (row.Count({x, 0, 1, 26}, [](Color color) { return color == kAccent; }) > 0) return x;
    }
    return 0;
  };
  const int before = end();
  ClickAt(455, 304);
  ASSERT_TRUE(WaitUntil([&] { return end() > before; })) << "no editor widens the row";
  Type("7");
  keyboard.Type("Return");
  EXPECT_TRUE(HasValue("row", "1 7 300"));
  EXPECT_TRUE(WaitUntil([&] { return end() < before; }));
}

TEST_F(GalleryNumbersTest, ADragReportsItsBeginningItsStepsAndItsEnd) {
  PressAt(kX, kFineY);
  MoveTo(kX + 3, kFineY);
  EXPECT_TRUE(LogIs({"Fine: change begins (0)", "Fine: change step (1)"}));
  MoveTo(kX + 6, kFineY);
  EXPECT_TRUE(LogIs({"Fine: change begins (0)", "Fine: change step (1)", "Fine: change step (1)"}));
  pointer.Release();
  EXPECT_TRUE(LogIs({"Fine: change begins (0)", "Fine: change step (1)", "Fine: change step (1)",
                     "Fine: change done (2)"}));
  EXPECT_TRUE(HasValue("fine", "50.06"));
}

TEST_F(GalleryNumbersTest, UpAndRightAreMoreDownAndLeftAreLess) {
  PressAt(kX, kCoarseY);
  MoveTo(kX + 10, kCoarseY);
  EXPECT_TRUE(HasValue("coarse", "505"));
  MoveTo(kX + 10, kCoarseY - 20);
  EXPECT_TRUE(HasValue("coarse", "515"));
  MoveTo(kX - 10, kCoarseY + 10);
  EXPECT_TRUE(HasValue("coarse", "490"));
  pointer.Release();
}

TEST_F(GalleryNumbersTest, ShiftDragsThreeTimesAsFar) { DragWith("Shift_L", "515"); }

TEST_F(GalleryNumbersTest, CommandDragsAFifthAsFar) { DragWith("Alt_L", "501"); }

TEST_F(GalleryNumbersTest, ADragGoesOnOutsideTheWindow) {
  PressAt(kX, kCoarseY);
  pointer.MoveTo(1, 1);
  EXPECT_TRUE(WaitUntil([this] { return Number("coarse") < 500; }));
  pointer.Release();
  EXPECT_TRUE(LogEndsWith({"Coarse: change done (2)"}));
}

TEST_F(GalleryNumbersTest, ADragBackToItsStartOpensNoEditor) {
  PressAt(kX, kCoarseY);
  MoveTo(kX + 10, kCoarseY);
  ASSERT_TRUE(HasValue("coarse", "505"));
  MoveTo(kX, kCoarseY);
  ASSERT_TRUE(HasValue("coarse", "500"));
  pointer.Release();
  EXPECT_TRUE(LogEndsWith({"Coarse: change done (2)"}));
  EXPECT_EQ(FrameWidth(620, 72), 0);
}

}  // namespace
