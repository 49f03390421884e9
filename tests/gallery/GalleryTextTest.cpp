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
  static constexpr Area kBox{170, 286, 180, 28};

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

TEST_F(GalleryTextTest, TabAndBackTabMoveBetweenTheFields) {
  Focus(kPlain);
  keyboard.Type("Tab");
  Type("one");
  ASSERT_TRUE(HasValue("password", "one"));
  keyboard.TypeWith("Shift_L", "Tab");
  // The whole text is selected, so this takes its place.
  Type("two");
  EXPECT_TRUE(HasValue("plain", "two"));
  EXPECT_EQ(Value("password"), "one");
  EXPECT_TRUE(LogIs({"Plain: focus gained", "Plain: key 9", "Plain: focus lost", "Password: key 25",
                     "Plain: focus gained", "Plain: key 116", "Plain: key 119", "Plain: key 111"}));
}

TEST_F(GalleryTextTest, TabStaysInTheLastFieldWhichGoesOnBeingEdited) {
  Focus(kLimited);
  keyboard.Type("Tab");
  Type("x");
  EXPECT_TRUE(HasValue("at most 8", "x"));
  EXPECT_TRUE(LogIs({"At most 8 characters: focus gained", "At most 8 characters: key 9",
                     "At most 8 characters: key 120"}));
}

TEST_F(GalleryTextTest, ReturnAndEscapeAreHeardAndStayInTheField) {
  Focus(kPlain);
  keyboard.Type("Return");
  keyboard.Type("Escape");
  Type("x");
  EXPECT_TRUE(LogIs({"Plain: focus gained", "Plain: key 16", "Plain: key 27", "Plain: key 120"}));
}

TEST_F(GalleryTextTest, AClickIntoAnotherFieldEndsTheEditingOnce) {
  Focus(kPlain);
  Focus(kLimited);
  Focus(kPlain);
  EXPECT_TRUE(
      LogIs({"Plain: focus gained", "Plain: focus lost", "At most 8 characters: focus gained",
             "At most 8 characters: focus lost", "Plain: focus gained"}));
}

TEST_F(GalleryTextTest, AHiddenFieldHearsNoKeys) {
  Focus(kPlain);
  Show(kPointer);
  ASSERT_TRUE(LogIs({"Plain: focus gained", "Plain: focus lost"}));
  ClickAt(130, 120);
  ASSERT_TRUE(LogEndsWith({"Drag: captured", "Drag: released"}));
  Type("a");
  ASSERT_TRUE(LogEndsWith({"Drag: key 97"}));
  Show(kText);
  ClearLog();
  // Commands are offered to every widget that is seen.
  SelectAllIn(kPlain);
  Type("b");
  EXPECT_TRUE(LogIs({"Plain: focus gained", "Plain: key 98"}));
}

TEST_F(GalleryTextTest, TheOwnerOfABoxDecidesWhatItsKeysDo) {
  SelectAllIn(kBox);
  Type("a1b");
  keyboard.Type("Return");
  EXPECT_TRUE(LogIs({"Box: no digits", "Box: took \"ab\""}));
  Type("c");
  keyboard.Type("Escape");
  EXPECT_TRUE(LogEndsWith({"Box: back to \"ab\""}));
  Focus(kPlain);
  EXPECT_TRUE(LogEndsWith({"Box: left with \"ab\"", "Plain: focus gained"}));
}

}  // namespace
