#include <cstdint>
#include <string>

#include "tests/Src/HXUI/ControlFloatFixture.h"
#include "tests/Src/HXUI/GNUstep/HeldKeys.h"

namespace {

/// Numeric fields under the X server's own keyboard and pointer.
class HXControlFloatInputTest : public ControlFloatFixture {
 protected:
  /// Moves the pointer as the user would. In the X window's own coordinates:
  /// its place on the screen is known only when the window manager has told it.
  void MoveRealPointer(HXPoint point) {
    const HXPoint offset = window->GetOffsetOf(*field);
    const auto xWindow = reinterpret_cast<std::uintptr_t>([NativeWindow() windowRef]);
    DoOnDisplay("mousemove --window " + std::to_string(xWindow) + " " +
                std::to_string(offset.x + point.x) + " " + std::to_string(offset.y + point.y));
  }
};

TEST_F(HXControlFloatInputTest, ShiftTriplesTheStepAndCommandTakesAFifth) {
  Make(0, 0, 0);
  {
    const HeldKeys shift("Shift_L");
    EXPECT_FLOAT_EQ(Dragged(10, 0), 15);
  }
  {
    const HeldKeys command("Alt_L");
    EXPECT_FLOAT_EQ(Dragged(10, 0), 1);
  }
  {
    const HeldKeys both("Shift_L Alt_L");
    EXPECT_FLOAT_EQ(Dragged(10, 0), 15);
  }
  EXPECT_FLOAT_EQ(Dragged(10, 0), 5);
}

TEST_F(HXControlFloatInputTest, ARealPointerDragsBeyondTheField) {
  Make(0, 0, 0);
  MoveRealPointer({5, 9});
  DoOnDisplay("mousedown 1");
  PumpUntil([&] { return field->HasMouseCapture(); }, "the press");
  MoveRealPointer({65, 9});
  PumpUntil([&] { return number != 50; }, "the drag");
  DoOnDisplay("mouseup 1");
  PumpUntil([&] { return !field->HasMouseCapture(); }, "the release");
  EXPECT_FLOAT_EQ(number, 80);
  EXPECT_EQ(Notifications().front(), 0);
  EXPECT_EQ(Notifications().back(), 2);
}

}  // namespace
