#include "Src/HXUI/RtfFields.h"

#include <cctype>
#include <cstddef>
#include <optional>
#include <string_view>

#include "Src/HXUI/RtfWords.h"

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
  return RtfWords::Replace(rtf,
                           [](std::string_view word, std::string_view number,
                              std::string_view after) -> std::optional<std::string> {
                             if (word != "field") return std::nullopt;
                             if (number.empty() && IsUsual(after)) return std::nullopt;
                             return std::string(kUnknownWord) + std::string(number);
                           });
}
