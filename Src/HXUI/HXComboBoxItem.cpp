#include "Src/HXUI/HXComboBoxItem.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace {

/// As atoi, but defined for numbers out of range: these are limited.
std::int32_t ReadNumber(const std::string& text) {
  using Limits = std::numeric_limits<std::int32_t>;
  const long long number = std::strtoll(text.c_str(), nullptr, 10);
  return static_cast<std::int32_t>(std::clamp<long long>(number, Limits::min(), Limits::max()));
}

HXComboBoxItem ParsePiece(const std::string& piece, std::int32_t position) {
  const std::size_t slash = piece.find('/');
  if (slash == std::string::npos) return {position, piece};
  return {ReadNumber(piece.substr(0, slash)), piece.substr(slash + 1)};
}

}  // namespace

std::vector<HXComboBoxItem> HXComboBoxItem::Parse(const std::string& specification) {
  std::vector<HXComboBoxItem> items;
  std::size_t start = 0;
  while (start != std::string::npos) {
    const std::size_t bar = specification.find('|', start);
    const std::size_t length = bar == std::string::npos ? bar : bar - start;
    items.push_back(
        ParsePiece(specification.substr(start, length), static_cast<std::int32_t>(items.size())));
    start = bar == std::string::npos ? bar : bar + 1;
  }
  return items;
}
