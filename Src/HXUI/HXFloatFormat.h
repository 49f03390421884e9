#pragma once

#include <optional>
#include <string>

/// How a numeric field shows a number and reads it back; the codes are those
/// that owners pass to `HXControlFloat`. Numbers are written and read with a
/// decimal point whatever the user's locale says. Any thread.
class HXFloatFormat {
 public:
  enum Code : int {
    /// Cut to an integer.
    kInteger = 1,
    /// Degrees, wrapped into 0 to 360.
    kAngle = 2,
    kDegrees = 3,
    kPercent = 4,
    kDegreesToo = 5,
    kTwoDecimals = 6,
    /// A fraction shown as a percentage: 0.5 is 50.0 %.
    kFraction = 7,
    // Any other code: one decimal.
  };

  explicit HXFloatFormat(int formatCode) : code(formatCode) {}

  bool IsInteger() const { return code == kInteger; }
  bool IsAngle() const { return code == kAngle; }

  /// What the field shows, with its unit. A negative zero, and what is
  /// indistinguishable from it, shows as 0; in an integer format what is no
  /// number shows as 0 and what is too large as the nearest 32-bit integer.
  std::string ShownText(float value) const;
  /// The shown text without its unit: the part that is underlined.
  std::string NumberText(float value) const;
  /// What the editor starts with.
  std::string EditorText(float value) const;

  /// The number that `text` begins with; a comma counts as a decimal point.
  /// Nothing when it begins with no number, or with one whose amount is beyond
  /// a double; what is only beyond a float becomes infinite.
  std::optional<float> Parse(const std::string& text) const;

 private:
  const char* Unit() const;

  int code;
};
