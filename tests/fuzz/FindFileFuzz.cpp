// The search for a file in trees that are made up from the input.

#include <fuzzer/FuzzedDataProvider.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "support/FindFile.h"
#include "tests/fuzz/Require.h"

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kMostEntries = 40;
constexpr int kLevelsSearched = 3;
const std::array<std::string, 6> kNames = {"a", "b", "wanted", ".hidden", "w anted", "\xC3\xA9\n"};

/// The folder of all trees, removed when the program ends.
class TreeFolder {
 public:
  TreeFolder() : path((fs::temp_directory_path() / "trees-XXXXXX").string()) {
    Require(mkdtemp(path.data()) != nullptr, "there is room for a tree");
  }
  ~TreeFolder() { Clear(); }

  void Clear() const {
    std::error_code error;
    fs::remove_all(path, error);
  }

  std::string path;
};

void AddEntry(FuzzedDataProvider& input, std::vector<std::string>& folders) {
  const std::string& parent =
      folders[input.ConsumeIntegralInRange<std::size_t>(0, folders.size() - 1)];
  const std::string path = parent + "/" + input.PickValueInArray(kNames);
  switch (input.ConsumeIntegralInRange(0, 3)) {
    case 0:
    case 1:
      if (mkdir(path.c_str(), 0755) == 0) folders.push_back(path);
      break;
    case 2:
      mknod(path.c_str(), S_IFREG | 0644, 0);
      break;
    default: {
      const std::string& target =
          folders[input.ConsumeIntegralInRange<std::size_t>(0, folders.size() - 1)];
      std::error_code ignored;
      fs::create_symlink(target + "/" + input.PickValueInArray(kNames), path, ignored);
    }
  }
}

/// Whether the name is there for the search, found by other means.
bool IsThere(const fs::path& folder, const std::string& name, int level) {
  std::error_code error;
  if (fs::exists(folder / name, error)) return true;
  if (level == kLevelsSearched) return false;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    if (entry.symlink_status().type() != fs::file_type::directory) continue;
    if (IsThere(entry.path(), name, level + 1)) return true;
  }
  return false;
}

int LevelsBetween(const std::string& folder, const std::string& found, const std::string& name) {
  const std::string between =
      found.substr(folder.size(), found.size() - folder.size() - name.size());
  return static_cast<int>(std::count(between.begin(), between.end(), '/'));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  static const TreeFolder tree;
  tree.Clear();
  Require(mkdir(tree.path.c_str(), 0755) == 0, "the tree can be made anew");
  const std::string name = input.PickValueInArray(kNames);
  const int depth = input.ConsumeIntegralInRange(0, 4);
  std::vector<std::string> folders = {tree.path};
  for (std::size_t i = 0; i < kMostEntries && input.remaining_bytes() > 0; ++i) {
    AddEntry(input, folders);
  }

  const std::string start = tree.path + "/";
  const std::string found = FindFile(start, name, depth);
  const bool isThere = IsThere(tree.path, name, std::min(depth, kLevelsSearched));
  Require(isThere == !found.empty(), "what is there is found, and nothing else");
  if (!found.empty()) {
    Require(found.starts_with(start) && found.ends_with("/" + name), "it is named as asked for");
    Require(access(found.c_str(), F_OK) == 0, "it exists");
    Require(LevelsBetween(start, found, name) <= std::max(0, kLevelsSearched - depth),
            "it lies no deeper than the search goes");
  }
  return 0;
}
