#include "support/Paths.h"

#include <algorithm>
#include <cctype>

bool IsRelativePath(const std::string& path) {
  if (!path.empty() && path[0] == '/') return false;
  return !(path.size() >= 3 && path[1] == ':' && path[2] == '/');
}

void CollapseSlashes(std::string& path) {
  const auto bothSlashes = [](char a, char b) { return a == '/' && b == '/'; };
  path.erase(std::unique(path.begin(), path.end(), bothSlashes), path.end());
}

std::string GetExtension(const std::string& path) {
  const std::size_t dot = path.rfind('.');
  if (dot == std::string::npos) return {};
  std::string extension = path.substr(dot);
  for (char& c : extension) {
    // tolower is undefined for a negative char, which every non-ASCII byte may be.
    c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  }
  return extension;
}

std::string JoinPath(const std::string& folder, const std::string& name) {
  if (folder.empty()) return name;
  if (name.empty()) return folder;
  // A folder of nothing but separators has no such character: npos + 1 is 0, as is wanted.
  const std::size_t folderEnd = folder.find_last_not_of('/') + 1;
  const std::size_t nameStart = std::min(name.find_first_not_of('/'), name.size());
  std::string joined;
  joined.reserve(folderEnd + 1 + name.size() - nameStart);
  joined.append(folder, 0, folderEnd).append(1, '/').append(name, nameStart);
  return joined;
}
