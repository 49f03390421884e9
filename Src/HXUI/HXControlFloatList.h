#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

class HXControlFloat;

/// Groups of numeric fields between which an owner moves the editing. Owns
/// nothing; a field leaves the list when it is destroyed. Belongs to the
/// owner and outlives the fields in it. Main thread only.
class HXControlFloatList {
 public:
  /// One group, empty, at first.
  HXControlFloatList() : groups(1) {}

  /// Fields are registered in the last group from now on.
  void BeginGroup() { groups.emplace_back(); }
  std::size_t GetGroupCount() const { return groups.size(); }
  /// Null for a position whose field has gone.
  HXControlFloat* GetField(std::size_t group, std::int64_t index) const;
  std::size_t GetFieldCount(std::size_t group) const;

  /// Position, within its group, of the field whose editing began last.
  std::int64_t GetCurrentIndex() const { return currentIndex; }

  // For the fields.

  /// Appends to the last group; returns the position in it.
  std::int64_t Append(HXControlFloat* field);
  void Remove(const HXControlFloat* field);
  void SetCurrentIndex(std::int64_t index) { currentIndex = index; }

 private:
  std::vector<std::vector<HXControlFloat*>> groups;
  std::int64_t currentIndex = 0;
};
