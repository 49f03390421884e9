#include "tests/endtoend/Keyboard.h"

#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

#include <cctype>

void Keyboard::Type(const std::string& key) const {
  const KeySym symbol = XStringToKeysym(key.c_str());
  SetKey(symbol, true);
  SetKey(symbol, false);
}

void Keyboard::TypeWith(const std::string& held, const std::string& key) const {
  const KeySym symbol = XStringToKeysym(held.c_str());
  SetKey(symbol, true);
  Type(key);
  SetKey(symbol, false);
}

void Keyboard::TypeText(const std::string& text) const {
  for (const char letter : text) {
    const bool upper = std::isupper(static_cast<unsigned char>(letter)) != 0;
    // The symbols of X are Latin-1 in this range.
    const auto symbol = static_cast<KeySym>(static_cast<unsigned char>(letter));
    if (upper) SetKey(XK_Shift_L, true);
    SetKey(symbol, true);
    SetKey(symbol, false);
    if (upper) SetKey(XK_Shift_L, false);
  }
}

void Keyboard::SetKey(unsigned long symbol, bool down) const {
  XTestFakeKeyEvent(display, XKeysymToKeycode(display, symbol), down ? True : False, CurrentTime);
  XFlush(display);
}
