#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// One entry of a combo box: the number written to the owner's integer when it
/// is chosen, and its text in UTF-8.
struct HXComboBoxItem {
  std::int32_t value = 0;
  std::string text;

  friend bool operator==(const HXComboBoxItem&, const HXComboBoxItem&) = default;

  /// Reads a list such as "Low|Medium|High" or "10/Ten|20/Twenty|Other". Every
  /// piece between bars is an item: number, slash and text, or a text alone,
  /// whose value is its position in the list. What stands before the first
  /// slash counts as 0 when it does not start with a number. Never empty.
  static std::vector<HXComboBoxItem> Parse(const std::string& specification);
};
