#include "tests/Src/HXUI/ColorDialogFixture.h"
#include "tests/Src/HXUI/GNUstep/HeldKeys.h"

namespace {

/// The dialog under the X server's own keyboard.
using HXColorDialogInputTest = ColorDialogFixture;

TEST_F(HXColorDialogInputTest, TabWithShiftMovesBackward) {
  Type(@"\t");
  {
    const HeldKeys shift("Shift_L");
    Type(@"\t");
    EXPECT_EQ(EditedField(), 2);
    Type(@"\t");
    EXPECT_EQ(EditedField(), 1);
  }
  HXEventSinkRecord record{&Hex(), kKeyDown, kKeyBackTab, 1};
  dialog->OnEventSink(record);
  EXPECT_EQ(record.pass, 0);
  EXPECT_EQ(EditedField(), 0);
}

}  // namespace
