#include "installer/PropertyListGuard.h"

#include "installer/BinaryPropertyList.h"

namespace {

/// Counts what may open a container, in quotes and comments too: that way
/// nothing hides from the count.
std::size_t CountContainers(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '{' || c == '(') ++count;
    if (c == '<' && (text.substr(i, 3) == "<ar" || text.substr(i, 3) == "<di")) ++count;
  }
  return count;
}

/// The platform's own archives of other times start with a control character.
/// They are no property-list files, though its parser would look into them. It
/// also reads behind the end of a tag that is never closed.
bool IsText(std::string_view bytes) {
  if (bytes.empty() || static_cast<unsigned char>(bytes[0]) < '\t') return false;
  constexpr std::string_view kBlanks = " \t\r\n";
  const std::size_t first = bytes.find_first_not_of(kBlanks);
  if (first == std::string_view::npos || bytes[first] != '<') return true;
  return bytes[bytes.find_last_not_of(kBlanks)] == '>';
}

}  // namespace

bool IsSafePropertyList(std::string_view bytes) {
  if (bytes.size() > kLargestPropertyList) return false;
  if (BinaryPropertyList::HasMagic(bytes)) {
    return BinaryPropertyList(bytes).IsSafe(kMostPropertyListObjects, kMostPropertyListNesting);
  }
  return IsText(bytes) && CountContainers(bytes) <= kMostPropertyListNesting;
}
