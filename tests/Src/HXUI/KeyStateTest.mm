#include "Src/HXUI/Cocoa/KeyState.h"

#include <cstdlib>
#include <set>

#include "tests/Src/HXUI/ToolkitFixture.h"

namespace {

/// Holds a key of the real keyboard down while it lives.
class HeldKey {
 public:
  explicit HeldKey(const std::string& keyName) : name(keyName) { Send("keydown"); }
  ~HeldKey() { Send("keyup"); }
  HeldKey(const HeldKey&) = delete;
  HeldKey& operator=(const HeldKey&) = delete;

 private:
  void Send(const std::string& action) const {
    const std::string command = "xdotool " + action + " " + name;
    EXPECT_EQ(std::system(command.c_str()), 0) << command;
  }

  std::string name;
};

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
      const HeldKey held(name);
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
    const HeldKey held("Shift_R");
    EXPECT_EQ(KeysDown().count(60), 1U);
  }
  {
    const HeldKey held("Control_R");
    EXPECT_EQ(KeysDown().count(62), 1U);
  }
  EXPECT_EQ(KeysDown(), std::set<int>());
}

TEST_F(KeyStateTest, LettersDigitsAndOtherKeysAreDownByTheirs) {
  const struct {
    const char* name;
    int key;
  } table[] = {{"a", 0},       {"s", 1},       {"z", 6},      {"q", 12},     {"1", 18},
               {"0", 29},      {"Return", 36}, {"comma", 43}, {"Tab", 48},   {"BackSpace", 51},
               {"Escape", 53}, {"F1", 122},    {"F12", 111},  {"Home", 115}, {"Delete", 117},
               {"Left", 123},  {"Right", 124}, {"Down", 125}, {"Up", 126},   {"KP_Add", 69}};
  for (const auto& row : table) ExpectDown(row.name, {row.key});
}

TEST_F(KeyStateTest, SeveralKeysAreDownAtATime) {
  const HeldKey shift("Shift_L");
  const HeldKey letter("d");
  EXPECT_EQ(KeysDown(), (std::set<int>{kVirtualKeyShift, 2}));
}

TEST_F(KeyStateTest, ValuesThatNameNoKeyAreNeverDown) {
  const HeldKey held("a");
  for (const int key : {-1, 52, 63, 128, 65536, INT_MAX, INT_MIN}) EXPECT_FALSE(IsKeyDown(key));
}

}  // namespace
