#include "Src/HXUI/RtfFontSizes.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "Src/HXUI/RtfWords.h"

namespace {

// In half points, as the documents have them.
constexpr int kSmallest = 2;
constexpr int kLargest = 3276;

/// A number that an int cannot hold counts as the nearest one.
int Bounded(std::string_view number) {
  int value = 0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  if (result.ec == std::errc::result_out_of_range) {
    return number.starts_with('-') ? kSmallest : kLargest;
  }
  return std::clamp(value, kSmallest, kLargest);
}

}  // namespace

std::string RtfFontSizes::Bound(const std::string& rtf) {
  return RtfWords::Replace(rtf,
                           [](std::string_view word, std::string_view number,
                              std::string_view) -> std::optional<std::string> {
                             if (word != "fs" || number.empty()) return std::nullopt;
                             return "\\fs" + std::to_string(Bounded(number));
                           });
}
