#pragma once

struct _XDisplay;

/// The mouse. Positions are pixels of the screen; the events are as real as the
/// X server can make them.
class Pointer {
 public:
  explicit Pointer(_XDisplay* display) : display(display) {}

  void MoveTo(int x, int y);
  /// To a place next to (x, y), far enough from the last press that the next one
  /// cannot count as a double click.
  void MoveForClick(int x, int y);
  void Press();
  void Release() { SetButton(1, false); }
  void Click();
  /// Turns the wheel by notches: positive ones away from the person.
  void TurnWheel(int notches) const;

 private:
  void SetButton(unsigned button, bool down) const;

  _XDisplay* display;
  int x = 0;
  int y = 0;
  int pressedX = -1000;
  int pressedY = -1000;
};
