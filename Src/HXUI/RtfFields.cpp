#include "Src/HXUI/RtfFields.h"

#include <cctype>
#include <cstddef>
#include <string_view>

namespace {

/// Not a word of RTF, and too long to become one by accident.
constexpr std::string_view kUnknownWord = "\\disarmedfield";

bool IsLetter(char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; }

/// Reads on in a document, piece by piece.
class Reader {
 public:
  explicit Reader(std::string_view text) : rest(text) {}

  bool Skip(char expected) {
    if (!rest.starts_with(expected)) return false;
    rest.remove_prefix(1);
    return true;
  }

  /// A backslash, the word, and the one space that may end it.
  bool SkipWord(std::string_view word) {
    std::string_view after = rest;
    if (!after.starts_with('\\')) return false;
    after.remove_prefix(1);
    if (!after.starts_with(word)) return false;
    after.remove_prefix(word.size());
    if (!after.empty() && (IsLetter(after[0]) || IsNumber(after[0]))) return false;
    if (after.starts_with(' ')) after.remove_prefix(1);
    rest = after;
    return true;
  }

  /// At least one character that means itself.
  bool SkipText() {
    const std::size_t end = rest.find_first_of("\\{}");
    if (end == 0 || end == std::string_view::npos) return false;
    const std::string_view text = rest.substr(0, end);
    rest.remove_prefix(end);
    return text.find_first_not_of(" \r\n") != std::string_view::npos;
  }

 private:
  static bool IsNumber(char c) {
    return c == '-' || std::isdigit(static_cast<unsigned char>(c)) != 0;
  }

  std::string_view rest;
};

/// Whether what follows the word "field" is `{\*\fldinst text}`, where the
/// text may stand in braces of its own.
bool IsUsual(std::string_view afterWord) {
  Reader reader(afterWord);
  reader.Skip(' ');
  if (!reader.Skip('{')) return false;
  if (!reader.SkipWord("*") || !reader.SkipWord("fldinst")) return false;
  const bool isBraced = reader.Skip('{');
  if (!reader.SkipText() || !reader.Skip('}')) return false;
  return !isBraced || reader.Skip('}');
}

}  // namespace

std::string RtfFields::DisarmUnusual(const std::string& rtf) {
  constexpr std::string_view kField = "field";
  const std::string_view text = rtf;
  std::string copy;
  std::size_t position = 0;
  while (position < text.size()) {
    if (text[position] != '\\') {
      copy += text[position++];
      continue;
    }
    std::size_t end = position + 1;
    while (end < text.size() && IsLetter(text[end])) ++end;
    if (text.substr(position + 1, end - position - 1) == kField && !IsUsual(text.substr(end))) {
      copy += kUnknownWord;
    } else {
      // A backslash that is no word's belongs to the character after it.
      if (end == position + 1 && end < text.size()) ++end;
      copy += text.substr(position, end - position);
    }
    position = end;
  }
  return copy;
}
