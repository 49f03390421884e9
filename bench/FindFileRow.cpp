#include <cstdio>
#include <fstream>
#include <string>

#include "bench/Command.h"
#include "bench/Pairs.h"
#include "bench/Results.h"
#include "bench/Rows.h"
#include "bench/TemporaryFolder.h"
#include "support/Files.h"
#include "support/FindFile.h"

namespace {

constexpr int kPairs = 31;
/// Together with the folders, 100,000 entries on three levels.
constexpr int kFolders = 10;
constexpr int kFoldersInEach = 20;
constexpr int kFilesInEach = 499;
constexpr const char* kName = "wanted.txt";

std::string Numbered(const std::string& folder, const char* name, int number) {
  return folder + "/" + name + std::to_string(number);
}

bool MakeTree(const std::string& root) {
  for (int i = 0; i < kFolders; ++i) {
    const std::string folder = Numbered(root, "folder ", i);
    if (MakeDir(folder) != 0) return false;
    for (int j = 0; j < kFoldersInEach; ++j) {
      const std::string inner = Numbered(folder, "inner ", j);
      if (MakeDir(inner) != 0) return false;
      for (int k = 0; k < kFilesInEach; ++k) {
        if (!std::ofstream(Numbered(inner, "file ", k))) return false;
      }
    }
  }
  return true;
}

/// Both must walk the whole tree, or a search that goes another way round would win by luck.
bool Measure(const std::string& root, const char* work) {
  bool isRight = true;
  const PairMedians medians = MeasurePairs(
      kPairs,
      [&] { return MillisecondsOf([&] { isRight &= FindFile(root + "/", kName).empty(); }); },
      [&] {
        return MillisecondsOf([&] {
          isRight &=
              RunCommand({"find", root, "-maxdepth", "4", "-name", kName, "-print", "-quit"});
        });
      });
  if (!isRight) {
    std::fputs("The search of a file that is not there did not end as it should.\n", stderr);
    return false;
  }
  PrintRatio(work, "find of the same depth that stops at the first match", medians, 1.05);
  return true;
}

}  // namespace

bool MeasureFindFile() {
  const TemporaryFolder root(TemporaryFolder::SystemParent());
  if (root.GetPath().empty() || !MakeTree(root.GetPath())) {
    std::fputs("The 100,000 entries could not be made.\n", stderr);
    return false;
  }
  return Measure(root.GetPath(), "FindFile over 100,000 entries");
}
