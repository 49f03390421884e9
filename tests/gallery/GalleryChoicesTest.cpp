#include "tests/endtoend/Waiting.h"
#include "tests/gallery/GalleryTest.h"

namespace {

class GalleryChoicesTest : public GalleryTest {
 protected:
  // Left of the text, in the middle of the height.
  static constexpr int kComboX = 570;
  static constexpr int kQualityY = 52;
  static constexpr int kSizeY = 112;
  static constexpr int kUnboundY = 172;
  static constexpr Area kQualityFace{565, 46, 80, 13};

  void SetUp() override {
    GalleryTest::SetUp();
    Show(kChoices);
  }

  /// Ends the click that has opened a menu. Were the pointer in another row by
  /// the time that GNUstep hears of it, that row would be chosen.
  void LetGo() {
    pointer.Release();
    Settle();
  }
};

TEST_F(GalleryChoicesTest, AClickOnABoxOrItsLabelChangesTheByte) {
  ClickAt(27, 80);
  EXPECT_TRUE(HasValue("empty", "1"));
  ClickAt(47, 53);
  EXPECT_TRUE(HasValue("ticked", "0"));
  EXPECT_TRUE(LogIs({"Empty: change begins (0)", "Empty: change done (2)",
                     "Ticked: change begins (0)", "Ticked: change done (2)"}));
}

TEST_F(GalleryChoicesTest, BoxesOfOneByteShowTheSame) {
  constexpr Area kBox{20, 73, 14, 14};
  constexpr Area kOther{240, 132, 14, 14};
  const Picture empty = LookAt(kOther);
  ClickAt(27, 80);
  ASSERT_TRUE(HasValue("empty", "1"));
  EXPECT_TRUE(WaitUntil([this, &empty, kOther] { return LookAt(kOther) != empty; }));
  // The pointer leaves its frame on the box that it is over.
  MoveTo(300, 300);
  EXPECT_TRUE(WaitUntil([this, kBox, kOther] { return LookAt(kBox) == LookAt(kOther); }));
}

TEST_F(GalleryChoicesTest, ADoubleClickChangesTheByteOnce) {
  DoubleClickAt(27, 80);
  EXPECT_TRUE(HasValue("empty", "1"));
  ClickAt(27, 53);
  EXPECT_TRUE(LogIs({"Empty: change begins (0)", "Empty: change done (2)",
                     "Ticked: change begins (0)", "Ticked: change done (2)"}));
}

TEST_F(GalleryChoicesTest, AReleaseOutsideOfTheBoxChangesNothing) {
  Drag(27, 80, 300, 300);
  ClickAt(27, 53);
  EXPECT_TRUE(HasValue("ticked", "0"));
  EXPECT_EQ(Value("empty"), "0");
}

TEST_F(GalleryChoicesTest, AnUnboundBoxIsInert) {
  ClickAt(27, 107);
  ClickAt(27, 80);
  EXPECT_TRUE(LogIs({"Empty: change begins (0)", "Empty: change done (2)"}));
}

TEST_F(GalleryChoicesTest, EachOfThreeBoxesHasItsByte) {
  ASSERT_TRUE(HasValue("axes", "1 0 1"));
  ClickAt(149, 211);
  EXPECT_TRUE(HasValue("axes", "0 0 1"));
  ClickAt(185, 211);
  EXPECT_TRUE(HasValue("axes", "0 1 1"));
  ClickAt(221, 211);
  EXPECT_TRUE(HasValue("axes", "0 1 0"));
}

TEST_F(GalleryChoicesTest, AComboBoxIsFramedUnderThePointer) {
  constexpr Area kTop{560, 44, 110, 1};
  const auto isWhite = [](Color color) { return color == Color{255, 255, 255}; };
  MoveTo(kComboX, kQualityY);
  EXPECT_TRUE(WaitUntil([&] {
    return LookAt(kTop).Count({0, 0, kTop.width, 1}, isWhite) == kTop.width;
  }));
  MoveTo(kComboX, 300);
  EXPECT_TRUE(WaitUntil([&] { return LookAt(kTop).Count({0, 0, kTop.width, 1}, isWhite) == 0; }));
}

TEST_F(GalleryChoicesTest, ComboBoxChoiceByPressDragAndRelease) {
  const Picture before = LookAt(kQualityFace);
  PopupMenu menu = OpenMenu(kComboX, kQualityY, {560, 44});
  ASSERT_TRUE(menu.IsUp(3));
  ASSERT_TRUE(menu.GoTo(2));
  pointer.Release();
  EXPECT_TRUE(menu.IsGone());
  EXPECT_TRUE(HasValue("quality", "2"));
  EXPECT_TRUE(LogIs({"Quality: change begins (0)", "Quality: change done (2)"}));
  EXPECT_TRUE(WaitUntil([&] { return LookAt(kQualityFace) != before; }));
}

TEST_F(GalleryChoicesTest, ComboBoxChoiceByTwoClicks) {
  PopupMenu menu = OpenMenu(kComboX, kSizeY, {560, 104});
  ASSERT_TRUE(menu.IsUp(3));
  LetGo();
  ASSERT_TRUE(menu.GoTo(0));
  pointer.Click();
  EXPECT_TRUE(menu.IsGone());
  EXPECT_TRUE(HasValue("size", "10"));
  EXPECT_TRUE(LogIs({"Size: change begins (0)", "Size: change done (2)"}));
}

TEST_F(GalleryChoicesTest, TheTickIsAtTheChosenItem) {
  for (const int row : {1, 2}) {
    PopupMenu menu = OpenMenu(kComboX, kQualityY, {560, 44});
    ASSERT_TRUE(menu.IsUp(3));
    for (int other = 0; other < 3; ++other) EXPECT_EQ(menu.IsTicked(other), other == row);
    ASSERT_TRUE(menu.GoTo(2));
    pointer.Release();
    ASSERT_TRUE(menu.IsGone());
    ASSERT_TRUE(HasValue("quality", "2"));
  }
  // The second choice changed nothing and was reported all the same.
  EXPECT_TRUE(LogIs({"Quality: change begins (0)", "Quality: change done (2)",
                     "Quality: change begins (0)", "Quality: change done (2)"}));
}

TEST_F(GalleryChoicesTest, AMenuThatIsLeftWithoutAChoiceChangesNothing) {
  PopupMenu menu = OpenMenu(kComboX, kQualityY, {560, 44});
  ASSERT_TRUE(menu.IsUp(3));
  ASSERT_TRUE(menu.GoTo(0));
  MoveTo(400, 380);
  ASSERT_TRUE(WaitUntil([&menu] { return !menu.IsLit(0); }));
  pointer.Release();
  EXPECT_TRUE(menu.IsGone());
  ClickAt(27, 80);
  EXPECT_TRUE(LogIs({"Empty: change begins (0)", "Empty: change done (2)"}));
  EXPECT_EQ(Value("quality"), "1");
}

TEST_F(GalleryChoicesTest, AnUnboundComboBoxOpensNoMenu) {
  ClickAt(kComboX, kUnboundY);
  // A click with a menu open would only close it.
  ClickAt(27, 80);
  EXPECT_TRUE(HasValue("empty", "1"));
}

class GalleryMenuTest : public GalleryChoicesTest {
 protected:
  static constexpr int kRows = 5;
  static constexpr int kTicked = 1;
  static constexpr int kDisabled = 2;
  static constexpr int kMore = 4;

  PopupMenu Open() { return OpenMenu(600, 295, {560, 280}); }
};

TEST_F(GalleryMenuTest, ShowsTickAndDisabledItem) {
  const PopupMenu menu = Open();
  ASSERT_TRUE(menu.IsUp(kRows));
  EXPECT_FALSE(menu.IsTicked(0));
  EXPECT_TRUE(menu.IsTicked(kTicked));
  EXPECT_FALSE(menu.IsGrey(kTicked));
  EXPECT_TRUE(menu.IsGrey(kDisabled));
  pointer.Release();
}

TEST_F(GalleryMenuTest, ChoiceByPressDragAndRelease) {
  PopupMenu menu = Open();
  ASSERT_TRUE(menu.IsUp(kRows));
  ASSERT_TRUE(menu.GoTo(0));
  ASSERT_TRUE(menu.GoTo(kTicked));
  pointer.Release();
  EXPECT_TRUE(menu.IsGone());
  EXPECT_TRUE(HasValue("menu choice", "2"));
}

TEST_F(GalleryMenuTest, ChoiceByTwoClicks) {
  PopupMenu menu = Open();
  ASSERT_TRUE(menu.IsUp(kRows));
  LetGo();
  ASSERT_TRUE(menu.GoTo(kTicked));
  ASSERT_TRUE(menu.GoTo(0));
  pointer.Click();
  EXPECT_TRUE(menu.IsGone());
  EXPECT_TRUE(HasValue("menu choice", "1"));
}

TEST_F(GalleryMenuTest, ADisabledItemCannotBeChosen) {
  PopupMenu menu = Open();
  ASSERT_TRUE(menu.IsUp(kRows));
  ASSERT_TRUE(menu.GoTo(kTicked));
  menu.MoveTo(kDisabled);
  ASSERT_TRUE(WaitUntil([&menu] { return !menu.IsLit(kTicked); }));
  pointer.Release();
  EXPECT_TRUE(LogIs({"Menu: 0"}));
}

TEST_F(GalleryMenuTest, SubmenuChoiceByPressDragAndRelease) {
  PopupMenu menu = Open();
  ASSERT_TRUE(menu.IsUp(kRows));
  ASSERT_TRUE(menu.GoTo(kMore));
  PopupMenu more = menu.Submenu();
  ASSERT_TRUE(more.IsUp(2));
  EXPECT_TRUE(more.IsTicked(1));
  ASSERT_TRUE(more.GoTo(0));
  pointer.Release();
  EXPECT_TRUE(menu.IsGone());
  EXPECT_TRUE(LogIs({"Menu: 11"}));
}

TEST_F(GalleryMenuTest, SubmenuChoiceByTwoClicks) {
  PopupMenu menu = Open();
  ASSERT_TRUE(menu.IsUp(kRows));
  LetGo();
  ASSERT_TRUE(menu.GoTo(kMore));
  PopupMenu more = menu.Submenu();
  ASSERT_TRUE(more.IsUp(2));
  ASSERT_TRUE(more.GoTo(1));
  pointer.Click();
  EXPECT_TRUE(menu.IsGone());
  EXPECT_TRUE(LogIs({"Menu: 12"}));
}

}  // namespace
