#include "tests/endtoend/Tree.h"

#include <sys/stat.h>

#include <cstdio>
#include <filesystem>

#include "tests/support/TemporaryFolder.h"

namespace {

constexpr std::size_t kModeLength = 5;

std::string ModeText(mode_t mode) {
  char text[kModeLength + 1];
  std::snprintf(text, sizeof text, "%05o", mode & 07777U);
  return text;
}

/// The kind is one letter, the mode follows, then the content.
std::string Describe(const std::filesystem::path& path) {
  if (is_symlink(path)) return "l -> " + std::filesystem::read_symlink(path).string();
  const std::string mode = ModeText(ModeOf(path.string()));
  if (is_directory(path)) return "d" + mode;
  return (is_regular_file(path) ? "f" + mode + " " + ReadWholeFile(path.string()) : "?" + mode);
}

std::string Shorten(const std::string& text) {
  constexpr std::size_t kEnough = 60;
  return text.size() <= kEnough ? text : text.substr(0, kEnough) + "...";
}

}  // namespace

Tree ReadTree(const std::string& folder) {
  Tree tree;
  if (!std::filesystem::exists(std::filesystem::symlink_status(folder))) return tree;
  tree[""] = Describe(folder);
  if (!std::filesystem::is_directory(folder)) return tree;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    tree[entry.path().string().substr(folder.size() + 1)] = Describe(entry.path());
  }
  return tree;
}

Tree WithMode(const Tree& tree, mode_t mode) {
  Tree changed = tree;
  for (auto& [path, text] : changed) {
    if (text.front() != 'l') text.replace(1, kModeLength, ModeText(mode));
  }
  return changed;
}

std::string DescribeDifference(const Tree& expected, const Tree& actual) {
  for (const auto& [path, text] : expected) {
    const auto found = actual.find(path);
    if (found == actual.end()) return "\"" + path + "\" is missing";
    if (found->second != text) {
      return "\"" + path + "\" is \"" + Shorten(found->second) + "\" and not \"" + Shorten(text) +
             "\"";
    }
  }
  for (const auto& [path, text] : actual) {
    if (!expected.contains(path)) return "\"" + path + "\" is there too: " + Shorten(text);
  }
  return "";
}
