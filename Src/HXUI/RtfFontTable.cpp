#include "Src/HXUI/RtfFontTable.h"

#include <algorithm>
#include <cctype>
#include <cstddef>

namespace {

constexpr char kTableStart[] = "{\\fonttbl";

/// Walks over the table once, copying it and putting other families in.
class TableCopier {
 public:
  TableCopier(const std::string& source, std::size_t start,
              const std::function<std::string(const std::string&)>& nameSubstitute)
      : rtf(source), position(start), substitute(nameSubstitute) {}

  /// Copies up to the brace that ends the table, or to the document's end.
  std::string Copy() {
    int depth = 1;
    while (position < rtf.size() && depth > 0) {
      const char c = rtf[position];
      if (c == '{' && rtf.compare(position, 3, "{\\*") == 0) {
        CopyGroup();
      } else if (c == '{' || c == '}') {
        depth += c == '{' ? 1 : -1;
        CopyCharacters(1);
      } else if (c == '\\') {
        CopyControl();
      } else if (c == ';' || std::isspace(static_cast<unsigned char>(c)) != 0) {
        CopyCharacters(1);
      } else {
        CopyFamily();
      }
    }
    return copy;
  }

  std::size_t GetPosition() const { return position; }

 private:
  void CopyCharacters(std::size_t count) {
    count = std::min(count, rtf.size() - position);
    copy.append(rtf, position, count);
    position += count;
  }

  /// An alternative name or the like: whatever is in it, it is no family.
  void CopyGroup() {
    int depth = 0;
    do {
      if (rtf[position] == '{') ++depth;
      if (rtf[position] == '}') --depth;
      CopyCharacters(rtf[position] == '\\' ? 2 : 1);
    } while (depth > 0 && position < rtf.size());
  }

  /// A backslash with its word and number, or with the one character after it.
  void CopyControl() {
    std::size_t length = 1;
    while (position + length < rtf.size() &&
           (std::isalnum(static_cast<unsigned char>(rtf[position + length])) != 0 ||
            rtf[position + length] == '-')) {
      ++length;
    }
    CopyCharacters(length == 1 ? 2 : length);
  }

  void CopyFamily() {
    const std::size_t end = std::min(rtf.find_first_of(";{}\\", position), rtf.size());
    const std::string family = rtf.substr(position, end - position);
    const bool whole = end < rtf.size() && rtf[end] == ';';
    const std::string other = whole ? substitute(family) : std::string();
    copy += other.empty() ? family : other;
    position = end;
  }

  const std::string& rtf;
  std::size_t position;
  const std::function<std::string(const std::string&)>& substitute;
  std::string copy;
};

}  // namespace

std::string RtfFontTable::ReplaceFamilies(
    const std::string& rtf, const std::function<std::string(const std::string&)>& substitute) {
  const std::size_t start = rtf.find(kTableStart);
  if (start == std::string::npos) return rtf;
  const std::size_t inside = start + sizeof(kTableStart) - 1;
  TableCopier table(rtf, inside, substitute);
  std::string copy = table.Copy();
  return rtf.substr(0, inside) + copy + rtf.substr(table.GetPosition());
}
