#include "tests/gallery/Keys.h"

#include <X11/XKBlib.h>
#include <X11/extensions/XTest.h>

#include <optional>

HeldKey::HeldKey(_XDisplay* display, const std::string& key)
    : display(display), code(XKeysymToKeycode(display, XStringToKeysym(key.c_str()))) {
  XTestFakeKeyEvent(display, code, True, CurrentTime);
  XFlush(display);
}

HeldKey::~HeldKey() {
  XTestFakeKeyEvent(display, code, False, CurrentTime);
  XFlush(display);
}

void TypeAnyText(_XDisplay* display, const std::string& text) {
  for (const char letter : text) {
    // The symbols of X are ASCII in this range.
    const auto symbol = static_cast<KeySym>(static_cast<unsigned char>(letter));
    const KeyCode code = XKeysymToKeycode(display, symbol);
    std::optional<HeldKey> shift;
    if (XkbKeycodeToKeysym(display, code, 0, 0) != symbol) shift.emplace(display, "Shift_L");
    XTestFakeKeyEvent(display, code, True, CurrentTime);
    XTestFakeKeyEvent(display, code, False, CurrentTime);
    XFlush(display);
  }
}
