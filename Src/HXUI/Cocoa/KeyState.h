#pragma once

/// Virtual key codes, which name a key by its place on the keyboard. There are
/// more than these: `IsKeyDown` takes the platform's whole range.
enum VirtualKey : int {
  kVirtualKeySpace = 49,
  kVirtualKeyCommand = 55,
  kVirtualKeyShift = 56,
};

/// Whether the key is down at this moment, whichever window has the keyboard.
/// `keyCode` is a virtual key code of macOS, on every platform. 32, the space
/// character, means the space bar as well (and hides the key with that code).
/// False for a key that the keyboard does not have and when the state cannot
/// be asked for. Main thread only.
bool IsKeyDown(int keyCode);
