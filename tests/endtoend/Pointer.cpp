#include "tests/endtoend/Pointer.h"

#include <X11/extensions/XTest.h>

#include <cstdlib>

void Pointer::MoveTo(int newX, int newY) {
  x = newX;
  y = newY;
  XTestFakeMotionEvent(display, DefaultScreen(display), x, y, CurrentTime);
  XFlush(display);
}

void Pointer::MoveForClick(int newX, int newY) {
  constexpr int kNear = 8;
  const bool near = std::abs(newX - pressedX) < kNear && std::abs(newY - pressedY) < kNear;
  MoveTo(near ? newX + 2 * kNear : newX, newY);
}

void Pointer::Press() {
  pressedX = x;
  pressedY = y;
  SetButton(1, true);
}

void Pointer::Click() {
  Press();
  Release();
}

void Pointer::TurnWheel(int notches) const {
  constexpr unsigned kUp = 4;
  constexpr unsigned kDown = 5;
  const unsigned button = notches > 0 ? kUp : kDown;
  for (int notch = 0; notch < std::abs(notches); ++notch) {
    SetButton(button, true);
    SetButton(button, false);
  }
}

void Pointer::SetButton(unsigned button, bool down) const {
  XTestFakeButtonEvent(display, button, down ? True : False, CurrentTime);
  XFlush(display);
}
