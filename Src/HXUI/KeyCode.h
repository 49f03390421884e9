#pragma once

/// Keys as `OnKeyDown` and the event sinks get them: the first UTF-16 unit of
/// what the key types, or one of these.
enum KeyCode : int {
  kKeyTab = 9,
  /// Return typed into a view.
  kKeyReturn = 13,
  /// Return as the insert-newline command of a native text field.
  kKeyInsertNewline = 16,
  /// Shift and Tab in a native text field.
  kKeyBackTab = 25,
  kKeyEscape = 27,
};
