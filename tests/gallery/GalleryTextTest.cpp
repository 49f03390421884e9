#include "tests/endtoend/Waiting.h"
#include "tests/gallery/GalleryTest.h"
#include "tests/gallery/SelectionOwner.h"

namespace {

class GalleryTextTest : public GalleryTest {
 protected:
  static constexpr Area kPlain{170, 40, 180, 20};
  static constexpr Area kPassword{170, 70, 180, 20};
  static constexpr Area kReadOnly{170, 100, 180, 20};
  static constexpr Area kLimited{170, 220, 180, 20};

  void SetUp() override {
    GalleryTest::SetUp();
    Show(kText);
  }
};

TEST_F(GalleryTextTest, TypedTextBecomesTheValueAndEachKeyIsHeard) {
  SelectAllIn(kPlain);
  Type("Hi.");
  EXPECT_TRUE(HasValue("plain", "Hi."));
  EXPECT_TRUE(LogEndsWith({"Plain: key 72", "Plain: key 105", "Plain: key 46"}));
}

TEST_F(GalleryTextTest, TextBeyondTheMaximumIsTakenBackWhenTyped) {
  SelectAllIn(kLimited);
  Type("abcdefghij");
  EXPECT_TRUE(LogEndsWith({"At most 8 characters: key 105", "At most 8 characters: key 106"}));
  EXPECT_TRUE(HasValue("at most 8", "abcdefgh"));
}

TEST_F(GalleryTextTest, TextBeyondTheMaximumIsTakenBackAsAWholeWhenPasted) {
  const SelectionOwner owner(DisplayName(), "much too long");
  SelectAllIn(kLimited);
  TypeCommand("v");
  // What follows shows that the paste has been dealt with.
  keyboard.Type("End");
  keyboard.Type("BackSpace");
  EXPECT_TRUE(HasValue("at most 8", "1234567"));
}

TEST_F(GalleryTextTest, PasteTakesTheTextOfAnotherProgram) {
  const SelectionOwner owner(DisplayName(), "From elsewhere");
  SelectAllIn(kPlain);
  TypeCommand("v");
  EXPECT_TRUE(HasValue("plain", "From elsewhere"));
}

TEST_F(GalleryTextTest, CopyGivesAReadOnlyTextToOtherPrograms) {
  SelectAllIn(kReadOnly);
  TypeCommand("c");
  EXPECT_TRUE(WaitUntil([] { return ReadClipboard(DisplayName()) == "Select and copy me"; }));
}

TEST_F(GalleryTextTest, APasswordShowsNoLetters) {
  SelectAllIn(kPassword);
  Type("iiii");
  ASSERT_TRUE(HasValue("password", "iiii"));
  Focus(kPlain);
  const Picture narrow = LookAt(kPassword);
  SelectAllIn(kPassword);
  Type("WXYZ");
  ASSERT_TRUE(HasValue("password", "WXYZ"));
  Focus(kPlain);
  EXPECT_TRUE(LookAt(kPassword) == narrow);
}

}  // namespace
