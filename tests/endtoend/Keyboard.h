#pragma once

#include <string>

struct _XDisplay;

/// The keys, with the American layout that the display server starts with.
class Keyboard {
 public:
  explicit Keyboard(_XDisplay* display) : display(display) {}

  /// A key by its name in X: "Escape", "Return", "q".
  void Type(const std::string& key) const;
  /// The same while another one is held: "Alt_L" and "q".
  void TypeWith(const std::string& held, const std::string& key) const;
  /// A text of letters, digits, blanks, "-" and ".".
  void TypeText(const std::string& text) const;

 private:
  void SetKey(unsigned long symbol, bool down) const;

  _XDisplay* display;
};
