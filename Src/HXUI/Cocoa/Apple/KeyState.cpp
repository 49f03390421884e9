#include "Src/HXUI/Cocoa/KeyState.h"

#include <ApplicationServices/ApplicationServices.h>

#include <cstdint>

namespace {

constexpr int kSpaceCharacter = 32;

}  // namespace

bool IsKeyDown(int keyCode) {
  const int key = keyCode == kSpaceCharacter ? kVirtualKeySpace : keyCode;
  if (key < 0 || key > UINT16_MAX) return false;
  return CGEventSourceKeyState(kCGEventSourceStateCombinedSessionState,
                               static_cast<CGKeyCode>(key));
}
