#include "support/FindFile.h"

#include "support/Files.h"
#include "support/HXDirReader.h"

namespace {

constexpr int kDeepestLevel = 3;

}  // namespace

std::string FindFile(const std::string& folder, const std::string& name, int depth) {
  std::string path = folder + name;
  if (FileExists(path)) return path;
  if (depth >= kDeepestLevel) return {};
  HXDirReader reader(folder);
  while (reader.Next()) {
    if (!reader.isDirectory || reader.name == "." || reader.name == "..") continue;
    path = FindFile(folder + reader.name + "/", name, depth + 1);
    if (!path.empty()) return path;
  }
  return {};
}
