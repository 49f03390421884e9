#include "Src/HXUI/Cocoa/KeyState.h"

#import <ApplicationServices/ApplicationServices.h>

namespace {

constexpr int kSpaceCharacter = 32;

}  // namespace

bool IsKeyDown(int keyCode) {
  const int key = keyCode == kSpaceCharacter ? kVirtualKeySpace : keyCode;
  if (key < 0 || key > UINT16_MAX) return false;
  return CGEventSourceKeyState(kCGEventSourceStateCombinedSessionState,
                               static_cast<CGKeyCode>(key));
}
