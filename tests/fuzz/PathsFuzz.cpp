// Paths and texts, whatever bytes they are made of.

#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>
#include <string>

#include "support/Paths.h"
#include "support/Strings.h"
#include "tests/fuzz/Require.h"

namespace {

void RequireCollapsed(const std::string& path) {
  std::string collapsed = path;
  CollapseSlashes(collapsed);
  Require(collapsed.find("//") == std::string::npos, "no two separators follow each other");
  Require(collapsed.size() <= path.size(), "collapsing never adds anything");
  std::string again = collapsed;
  CollapseSlashes(again);
  Require(again == collapsed, "a collapsed path stays as it is");
  Require(IsRelativePath(path) || !path.empty(), "the empty path is relative");
}

void RequireJoined(const std::string& folder, const std::string& name) {
  const std::string joined = JoinPath(folder, name);
  if (folder.empty() || name.empty()) {
    Require(joined == folder + name, "one empty half leaves the other one alone");
    return;
  }
  const std::size_t folderEnd = folder.find_last_not_of('/') + 1;
  Require(joined.compare(0, folderEnd, folder, 0, folderEnd) == 0, "it begins with the folder");
  Require(joined.at(folderEnd) == '/', "a separator follows the folder");
  Require(joined.size() == folderEnd + 1 || joined[folderEnd + 1] != '/', "there is only one");
  Require(JoinPath(folder + "/", "/" + name) == joined, "separators at the seam do not count");
}

void RequireExtension(const std::string& path) {
  const std::string extension = GetExtension(path);
  if (extension.empty()) {
    Require(path.find('.') == std::string::npos, "only a path without a dot has no extension");
    return;
  }
  Require(extension[0] == '.' && extension.rfind('.') == 0, "it begins with its only dot");
  Require(path.size() >= extension.size(), "it is a part of the path");
  Require(GetExtension(extension) == extension, "it is in lower case already");
}

/// What C sees of a text.
std::string UpToZero(const std::string& text) { return text.substr(0, text.find('\0')); }

/// The UTF-8 form again, written down by the definition.
std::string Narrow(const std::wstring& wide) {
  std::string text;
  for (const wchar_t character : wide) {
    const auto value = static_cast<char32_t>(character);
    Require(value <= 0x10FFFF && (value < 0xD800 || value > 0xDFFF), "it is a Unicode character");
    const auto follower = [value](unsigned shift) {
      return static_cast<char>(0x80U | ((value >> shift) & 0x3FU));
    };
    if (value < 0x80) {
      text += static_cast<char>(value);
    } else if (value < 0x800) {
      text += {static_cast<char>(0xC0U | (value >> 6)), follower(0)};
    } else if (value < 0x10000) {
      text += {static_cast<char>(0xE0U | (value >> 12)), follower(6), follower(0)};
    } else {
      text += {static_cast<char>(0xF0U | (value >> 18)), follower(12), follower(6), follower(0)};
    }
  }
  return text;
}

void RequireWide(const std::string& text) {
  const std::wstring wide = ToWide(text);
  const std::string start = UpToZero(text);
  if (!wide.empty()) Require(Narrow(wide) == start, "wide texts say what the narrow one says");
  bool isAscii = true;
  for (const char c : start) isAscii = isAscii && (static_cast<unsigned char>(c) < 0x80);
  if (isAscii) Require(wide.size() == start.size(), "ASCII is always valid");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  const std::string folder = input.ConsumeRandomLengthString();
  const std::string name = input.ConsumeRemainingBytesAsString();
  RequireCollapsed(folder);
  RequireJoined(folder, name);
  RequireExtension(folder);
  RequireWide(folder);
  RequireWide(name);
  Require(MakeString(folder.c_str()) == UpToZero(folder), "a text ends at its zero");
  return 0;
}
