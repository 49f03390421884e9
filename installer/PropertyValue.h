#pragma once

#include <string>
#include <vector>

struct PropertyEntry;

/// A value of a property list, as far as the installer looks into one: a
/// string, a dictionary, or something else (a number, a date, an array) whose
/// content is of no interest. A plain value: copies are independent.
class PropertyValue {
 public:
  /// Something that is neither a string nor a dictionary.
  PropertyValue() = default;
  /// `text` is UTF-8.
  static PropertyValue String(std::string text);
  /// `entries` keep the order in which the platform enumerates them.
  static PropertyValue Dictionary(std::vector<PropertyEntry> entries);

  /// The text of a string; null for every other value.
  const std::string* AsString() const;
  bool IsDictionary() const { return kind == Kind::kDictionary; }
  /// In the platform's order; empty unless this is a dictionary.
  const std::vector<PropertyEntry>& Entries() const { return entries; }
  /// The value under `key`, which lives as long as this one; null when there is
  /// none, or when this is no dictionary.
  const PropertyValue* Find(const std::string& key) const;
  /// The text of the string under `key`; null when there is no such string.
  const std::string* FindString(const std::string& key) const;

 private:
  enum class Kind { kOther, kString, kDictionary };

  Kind kind = Kind::kOther;
  std::string text;
  std::vector<PropertyEntry> entries;
};

/// One key of a dictionary with its value.
struct PropertyEntry {
  std::string key;
  PropertyValue value;
};
