#include "tests/endtoend/OtherWindow.h"

#include <gtest/gtest.h>

#include "tests/endtoend/Waiting.h"

// After the others: it defines short words as macros.
#include <X11/Xlib.h>

OtherWindow::OtherWindow(const Desktop& desktop) : desktop(desktop) {
  Display* display = desktop.Connection();
  window =
      XCreateSimpleWindow(display, DefaultRootWindow(display), 850, 650, 100, 60, 0, 0, 0xffffff);
  XMapRaised(display, window);
  EXPECT_TRUE(WaitUntil([this, display] {
    XWindowAttributes attributes{};
    XGetWindowAttributes(display, window, &attributes);
    if (attributes.map_state != IsViewable) return false;
    XSetInputFocus(display, window, RevertToParent, CurrentTime);
    return this->desktop.IsActive(window);
  }));
}

OtherWindow::~OtherWindow() {
  XDestroyWindow(desktop.Connection(), window);
  XFlush(desktop.Connection());
}
