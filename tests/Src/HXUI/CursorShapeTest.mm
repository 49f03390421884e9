#include "Src/HXUI/Cocoa/CursorShape.h"

#include "tests/Src/HXUI/ToolkitFixture.h"

namespace {

class CursorShapeTest : public ToolkitFixture {
 protected:
  /// What the pointer shows after `shape` was set from another one.
  static NSCursor* After(int shape) {
    [[NSCursor crosshairCursor] set];
    SetCursorShape(shape);
    return [NSCursor currentCursor];
  }
};

TEST_F(CursorShapeTest, EachShapeIsThePlatformsOwn) {
  EXPECT_EQ(After(0), [NSCursor arrowCursor]);
  EXPECT_EQ(After(2), [NSCursor resizeLeftRightCursor]);
  EXPECT_EQ(After(3), [NSCursor resizeUpDownCursor]);
  EXPECT_EQ(After(4), [NSCursor closedHandCursor]);
  EXPECT_EQ(After(5), [NSCursor IBeamCursor]);
  EXPECT_EQ(After(6), [NSCursor pointingHandCursor]);
}

TEST_F(CursorShapeTest, ShapeOneIsNoShape) { EXPECT_EQ(After(1), [NSCursor crosshairCursor]); }

TEST_F(CursorShapeTest, AnyOtherValueLeavesThePointer) {
  for (const int shape : {-1, 7, 100, INT_MIN, INT_MAX}) {
    EXPECT_EQ(After(shape), [NSCursor crosshairCursor]) << shape;
  }
}

}  // namespace
