#include "installer/PropertyValue.h"

#include <utility>

PropertyValue PropertyValue::String(std::string text) {
  PropertyValue value;
  value.kind = Kind::kString;
  value.text = std::move(text);
  return value;
}

PropertyValue PropertyValue::Dictionary(std::vector<PropertyEntry> entries) {
  PropertyValue value;
  value.kind = Kind::kDictionary;
  value.entries = std::move(entries);
  return value;
}

const std::string* PropertyValue::AsString() const {
  return kind == Kind::kString ? &text : nullptr;
}

const PropertyValue* PropertyValue::Find(const std::string& key) const {
  for (const PropertyEntry& entry : entries) {
    if (entry.key == key) return &entry.value;
  }
  return nullptr;
}

const std::string* PropertyValue::FindString(const std::string& key) const {
  const PropertyValue* value = Find(key);
  return value == nullptr ? nullptr : value->AsString();
}
