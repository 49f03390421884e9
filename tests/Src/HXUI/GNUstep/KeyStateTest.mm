#include "Src/HXUI/Cocoa/KeyState.h"

#include <climits>
#include <set>
#include <string>

#include "tests/Src/HXUI/GNUstep/HeldKeys.h"
#include "tests/Src/HXUI/ToolkitFixture.h"

namespace {

class KeyStateTest : public ToolkitFixture {
 protected:
  /// The virtual keys that are down, among all there may be.
  static std::set<int> KeysDown() {
    std::set<int> down;
    for (int key = -1; key <= 300; ++key) {
      if (IsKeyDown(key)) down.insert(key);
    }
    return down;
  }

  void ExpectDown(const std::string& name, const std::set<int>& expected) {
    {
      const HeldKeys held(name);
      EXPECT_EQ(KeysDown(), expected) << name;
    }
    EXPECT_EQ(KeysDown(), std::set<int>()) << name;
  }
};

TEST_F(KeyStateTest, NothingIsDownAtRest) { EXPECT_EQ(KeysDown(), std::set<int>()); }

TEST_F(KeyStateTest, TheSpaceBarIsDownByItsKeyAndByItsCharacter) {
  ExpectDown("space", {32, kVirtualKeySpace});
}

TEST_F(KeyStateTest, TheCharacterOfTheSpaceBarHidesTheKeyWithThatCode) { ExpectDown("u", {}); }

TEST_F(KeyStateTest, ModifiersAreDownByTheirOwnKeys) {
  ExpectDown("Shift_L", {kVirtualKeyShift});
  ExpectDown("Alt_L", {kVirtualKeyCommand});
  ExpectDown("Super_L", {kVirtualKeyCommand});
  ExpectDown("Control_L", {59});
}

TEST_F(KeyStateTest, TheModifiersOnTheRightHaveKeysOfTheirOwn) {
  // The tool presses the modifier on the left along with them.
  {
    const HeldKeys held("Shift_R");
    EXPECT_EQ(KeysDown().count(60), 1U);
  }
  {
    const HeldKeys held("Control_R");
    EXPECT_EQ(KeysDown().count(62), 1U);
  }
  EXPECT_EQ(KeysDown(), std::set<int>());
}

// All that the X server's keyboard has and that are pressed without another one.
TEST_F(KeyStateTest, LettersDigitsAndOtherKeysAreDownByTheirs) {
  const struct {
    const char* name;
    int key;
  } table[] = {{"a", 0},
               {"s", 1},
               {"d", 2},
               {"f", 3},
               {"h", 4},
               {"g", 5},
               {"z", 6},
               {"x", 7},
               {"c", 8},
               {"v", 9},
               {"b", 11},
               {"q", 12},
               {"w", 13},
               {"e", 14},
               {"r", 15},
               {"y", 16},
               {"t", 17},
               {"1", 18},
               {"2", 19},
               {"3", 20},
               {"4", 21},
               {"6", 22},
               {"5", 23},
               {"equal", 24},
               {"9", 25},
               {"7", 26},
               {"minus", 27},
               {"8", 28},
               {"0", 29},
               {"bracketright", 30},
               {"o", 31},
               {"bracketleft", 33},
               {"i", 34},
               {"p", 35},
               {"Return", 36},
               {"l", 37},
               {"j", 38},
               {"apostrophe", 39},
               {"k", 40},
               {"semicolon", 41},
               {"backslash", 42},
               {"comma", 43},
               {"slash", 44},
               {"n", 45},
               {"m", 46},
               {"period", 47},
               {"Tab", 48},
               {"grave", 50},
               {"BackSpace", 51},
               {"Escape", 53},
               {"KP_Multiply", 67},
               {"KP_Add", 69},
               {"KP_Divide", 75},
               {"KP_Enter", 76},
               {"KP_Subtract", 78},
               {"KP_Equal", 81},
               {"F5", 96},
               {"F6", 97},
               {"F7", 98},
               {"F3", 99},
               {"F8", 100},
               {"F9", 101},
               {"F11", 103},
               {"F10", 109},
               {"F12", 111},
               {"Home", 115},
               {"Page_Up", 116},
               {"Delete", 117},
               {"F4", 118},
               {"End", 119},
               {"F2", 120},
               {"Page_Down", 121},
               {"F1", 122},
               {"Left", 123},
               {"Right", 124},
               {"Down", 125},
               {"Up", 126}};
  for (const auto& row : table) ExpectDown(row.name, {row.key});
}

TEST_F(KeyStateTest, SeveralKeysAreDownAtATime) {
  const HeldKeys shift("Shift_L");
  const HeldKeys letter("d");
  EXPECT_EQ(KeysDown(), (std::set<int>{kVirtualKeyShift, 2}));
}

TEST_F(KeyStateTest, ValuesThatNameNoKeyAreNeverDown) {
  const HeldKeys held("a");
  for (const int key : {-1, 52, 63, 128, 65536, INT_MAX, INT_MIN}) EXPECT_FALSE(IsKeyDown(key));
}

}  // namespace
