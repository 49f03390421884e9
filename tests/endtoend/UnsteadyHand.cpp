#include "tests/endtoend/UnsteadyHand.h"

#include <X11/extensions/XTest.h>

#include <chrono>

namespace {

constexpr std::chrono::milliseconds kPause{20};

void Tremble(const std::stop_token& stop, const std::string& displayName) {
  Display* display = XOpenDisplay(displayName.c_str());
  if (display == nullptr) return;
  while (!stop.stop_requested()) {
    for (const int distance : {1, -1}) {
      XTestFakeRelativeMotionEvent(display, distance, 0, CurrentTime);
      XFlush(display);
      std::this_thread::sleep_for(kPause);
    }
  }
  XCloseDisplay(display);
}

}  // namespace

UnsteadyHand::UnsteadyHand(const std::string& displayName) : mover(Tremble, displayName) {}
