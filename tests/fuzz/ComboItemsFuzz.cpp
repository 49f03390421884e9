// The list of a combo box, as its owner writes it in one text.

#include <algorithm>
#include <cstdint>
#include <string>

#include "Src/HXUI/HXComboBoxItem.h"
#include "tests/fuzz/Require.h"

namespace {

std::string Join(const std::vector<HXComboBoxItem>& items) {
  std::string joined;
  for (const HXComboBoxItem& item : items) {
    if (!joined.empty()) joined += '|';
    joined += std::to_string(item.value) + "/" + item.text;
  }
  return joined;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string list(data, data + size);
  const std::vector<HXComboBoxItem> items = HXComboBoxItem::Parse(list);
  const auto bars = static_cast<std::size_t>(std::count(list.begin(), list.end(), '|'));
  Require(items.size() == bars + 1, "every piece between bars is an item");
  for (const HXComboBoxItem& item : items) {
    Require(item.text.find('|') == std::string::npos, "no text holds a bar");
    Require(list.find(item.text) != std::string::npos, "texts are taken as they stand");
  }
  Require(HXComboBoxItem::Parse(Join(items)) == items, "what was read can be written and read");
  return 0;
}
