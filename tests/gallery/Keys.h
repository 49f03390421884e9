#pragma once

#include <string>

struct _XDisplay;

/// Presses a key for as long as this object lives: "Shift_L", "Alt_L".
class HeldKey {
 public:
  HeldKey(_XDisplay* display, const std::string& key);
  ~HeldKey();
  HeldKey(const HeldKey&) = delete;
  HeldKey& operator=(const HeldKey&) = delete;

 private:
  _XDisplay* display;
  unsigned code;
};

/// Types any text of ASCII, with Shift where the American layout needs it.
void TypeAnyText(_XDisplay* display, const std::string& text);
