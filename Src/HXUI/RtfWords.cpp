#include "Src/HXUI/RtfWords.h"

#include <cctype>
#include <cstddef>

namespace {

bool IsLetter(char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; }
bool IsDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

/// How many characters at the beginning of `text` are letters.
std::size_t WordLength(std::string_view text) {
  std::size_t length = 0;
  while (length < text.size() && IsLetter(text[length])) ++length;
  return length;
}

/// How many are a number, with its sign.
std::size_t NumberLength(std::string_view text) {
  const std::size_t sign = text.starts_with('-') ? 1 : 0;
  std::size_t length = sign;
  while (length < text.size() && IsDigit(text[length])) ++length;
  return length == sign ? 0 : length;
}

}  // namespace

std::string RtfWords::Replace(std::string_view rtf, const Substitute& substitute) {
  std::string copy;
  while (!rtf.empty()) {
    std::size_t length = 1;
    const std::size_t word = rtf[0] == '\\' ? WordLength(rtf.substr(1)) : 0;
    if (word > 0) {
      const std::size_t number = NumberLength(rtf.substr(1 + word));
      length = 1 + word + number;
      const auto other =
          substitute(rtf.substr(1, word), rtf.substr(1 + word, number), rtf.substr(length));
      copy += other ? *other : rtf.substr(0, length);
    } else {
      // A backslash that is no word's belongs to the character after it.
      if (rtf[0] == '\\' && rtf.size() > 1) length = 2;
      copy += rtf.substr(0, length);
    }
    rtf.remove_prefix(length);
  }
  return copy;
}
