#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <utility>

/// Does something with the keyboard or the pointer of the real display, in xdotool's words.
inline void DoOnDisplay(const std::string& action) {
  const std::string command = "xdotool " + action;
  EXPECT_EQ(std::system(command.c_str()), 0) << command;
}

/// Keys of the real keyboard that are down while it lives; their names have spaces in between.
class HeldKeys {
 public:
  explicit HeldKeys(std::string keyNames) : names(std::move(keyNames)) {
    DoOnDisplay("keydown " + names);
  }
  ~HeldKeys() { DoOnDisplay("keyup " + names); }
  HeldKeys(const HeldKeys&) = delete;
  HeldKeys& operator=(const HeldKeys&) = delete;

 private:
  std::string names;
};
