#include "tests/endtoend/Waiting.h"
#include "tests/gallery/GalleryTest.h"

namespace {

using Lines = std::vector<std::string>;

class GallerySearchTest : public GalleryTest {
 protected:
  static constexpr Area kField{20, 64, 320, 30};
  static constexpr Area kCross{317, 71, 16, 15};
  static constexpr Area kIcon{27, 70, 16, 16};
  static constexpr Area kList{26, 110, 300, 200};
  static constexpr const char* kChanged = "Search: change done (2)";

  void SetUp() override {
    GalleryTest::SetUp();
    Show(View::kSearch);
    ASSERT_TRUE(HasValue("search", "Search..."));
  }

  /// The first found line: all of it, unless very much is found.
  testing::AssertionResult Finds(const std::string& names) const {
    return HasValue("found", names);
  }
};

TEST_F(GallerySearchTest, ThePlaceholderGoesWithTheFocusAndComesBack) {
  const Picture idle = LookAt(kIcon);
  Focus(kField);
  EXPECT_TRUE(HasValue("search", ""));
  EXPECT_NE(LookAt(kIcon), idle) << "the magnifier gives way to the text";
  ClickAt(460, 79);
  EXPECT_TRUE(HasValue("search", "Search..."));
  EXPECT_TRUE(WaitUntil([this, &idle] { return LookAt(kIcon) == idle; }));
  EXPECT_TRUE(LogIs({})) << "the focus is no change";
}

TEST_F(GallerySearchTest, TypingNarrowsTheListDownAndKeepsItsOrder) {
  const Picture all = LookAt(kList);
  Focus(kField);
  Type("co");
  EXPECT_TRUE(Finds("concrete, copper"));
  EXPECT_NE(LookAt(kList), all);
  Type("p");
  EXPECT_TRUE(Finds("copper"));
  keyboard.Type("BackSpace");
  EXPECT_TRUE(Finds("concrete, copper"));
  Type("al");
  EXPECT_TRUE(Finds(""));
  for (int i = 0; i < 4; ++i) keyboard.Type("BackSpace");
  EXPECT_TRUE(WaitUntil([this, &all] { return LookAt(kList) == all; }));
}

TEST_F(GallerySearchTest, ATypedLetterIsToldWhenItIsInTheTextAndWhenItsKeyComesUp) {
  Focus(kField);
  Type("c");
  EXPECT_TRUE(LogIs({kChanged, kChanged}));
}

TEST_F(GallerySearchTest, TabAndReturnAreNoChanges) {
  Focus(kField);
  keyboard.Type("Tab");
  keyboard.Type("Return");
  Type("oak");
  ASSERT_TRUE(Finds("oak"));
  EXPECT_TRUE(LogIs(Lines(6, kChanged)));
}

TEST_F(GallerySearchTest, EscapeClears) {
  const Picture idle = LookAt(kField);
  Focus(kField);
  Type("oak");
  ASSERT_TRUE(Finds("oak"));
  ASSERT_TRUE(LogIs(Lines(6, kChanged)));
  keyboard.Type("Escape");
  EXPECT_TRUE(HasValue("search", "Search..."));
  EXPECT_TRUE(LogIs(Lines(7, kChanged)));
  EXPECT_TRUE(WaitUntil([this, &idle] { return LookAt(kField) == idle; }));
}

TEST_F(GallerySearchTest, TheCrossComesWithTheTextAndClears) {
  const Picture idle = LookAt(kField);
  Focus(kField);
  const Picture empty = LookAt(kCross);
  Type("g");
  EXPECT_TRUE(WaitUntil([this, &empty] { return LookAt(kCross) != empty; }));
  keyboard.Type("BackSpace");
  EXPECT_TRUE(WaitUntil([this, &empty] { return LookAt(kCross) == empty; }));
  Type("gl");
  ASSERT_TRUE(Finds("glass"));
  ClickAt(kCross.x + 8, kCross.y + 8);
  EXPECT_TRUE(HasValue("search", "Search..."));
  EXPECT_TRUE(WaitUntil([this, &idle] { return LookAt(kField) == idle; }));
  EXPECT_TRUE(LogEndsWith({kChanged}));
}

}  // namespace
