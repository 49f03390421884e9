#pragma once

/// The shapes of the pointer that the toolkit uses.
enum CursorShape : int {
  kCursorArrow = 0,
  /// Deliberately no shape: the pointer stays as it is.
  kCursorUnchanged = 1,
  kCursorResizeLeftRight = 2,
  kCursorResizeUpDown = 3,
  kCursorClosedHand = 4,
  kCursorIBeam = 5,
  kCursorPointingHand = 6,
};

/// Gives the pointer a `CursorShape` until the platform or the next call
/// changes it; any other value does nothing. Main thread only.
void SetCursorShape(int shape);
