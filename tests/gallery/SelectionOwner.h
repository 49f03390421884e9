#pragma once

#include <string>
#include <thread>

/// Another program that has copied a text: it owns the clipboard of the display
/// and hands the text to whoever asks, until this object goes.
class SelectionOwner {
 public:
  /// The test fails when the clipboard cannot be had.
  SelectionOwner(const std::string& displayName, const std::string& text);

 private:
  /// Ends its loop, and is waited for, with this object.
  std::jthread server;
};

/// What the clipboard of the display holds; "" when nobody answers in time.
std::string ReadClipboard(const std::string& displayName);
