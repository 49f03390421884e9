#pragma once

struct _XDisplay;

/// The mouse. Positions are pixels of the screen; the events are as real as the
/// X server can make them.
class Pointer {
 public:
  explicit Pointer(_XDisplay* display) : display(display) {}

  void MoveTo(int x, int y) const;
  void Press() const { SetButton(1, true); }
  void Release() const { SetButton(1, false); }
  void Click() const;
  /// Turns the wheel by notches: positive ones away from the person.
  void TurnWheel(int notches) const;

 private:
  void SetButton(unsigned button, bool down) const;

  _XDisplay* display;
};
