#include "Src/HXUI/HXControlFloatList.h"

#include <algorithm>

HXControlFloat* HXControlFloatList::GetField(std::size_t group, std::int64_t index) const {
  if (group >= groups.size() || index < 0) return nullptr;
  const auto position = static_cast<std::size_t>(index);
  return position < groups[group].size() ? groups[group][position] : nullptr;
}

std::size_t HXControlFloatList::GetFieldCount(std::size_t group) const {
  return group < groups.size() ? groups[group].size() : 0;
}

std::int64_t HXControlFloatList::Append(HXControlFloat* field) {
  groups.back().push_back(field);
  return static_cast<std::int64_t>(groups.back().size()) - 1;
}

void HXControlFloatList::Remove(const HXControlFloat* field) {
  // The place stays, so that the positions of the others remain true.
  for (auto& group : groups) {
    std::replace_if(
        group.begin(), group.end(), [field](const HXControlFloat* each) { return each == field; },
        nullptr);
  }
}
