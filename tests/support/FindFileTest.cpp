#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>
#include <vector>

#include "support/FindFile.h"
#include "support/HXDirReader.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TemporaryFolder.h"

namespace {

/// The subfolders of `path` in the file system's order.
std::vector<std::string> SubfoldersInOrder(const std::string& path) {
  std::vector<std::string> names;
  HXDirReader reader(path);
  while (reader.Next()) {
    if (reader.isDirectory && reader.name[0] != '.') names.push_back(reader.name);
  }
  return names;
}

}  // namespace

TEST(FindFileTest, FindsAFileInTheFolderItself) {
  const TemporaryFolder folder;
  folder.AddFile("wanted");
  EXPECT_EQ(FindFile(folder.Path(""), "wanted", 0), folder.Path("wanted"));
}

TEST(FindFileTest, FindsInAFolderThatCannotBeListed) {
  const TemporaryFolder folder;
  folder.AddFile("wanted");
  ASSERT_EQ(chmod(folder.path.c_str(), 0311), 0);
  EXPECT_TRUE(AskAsOrdinaryUser(
      [&] { return FindFile(folder.Path(""), "wanted", 0) == folder.Path("wanted"); }));
  ASSERT_EQ(chmod(folder.path.c_str(), 0700), 0);
}

TEST(FindFileTest, FindsThreeLevelsBelowButNotFour) {
  const TemporaryFolder folder;
  folder.AddFolder("1/2/3/4");
  folder.AddFile("1/one");
  folder.AddFile("1/2/two");
  folder.AddFile("1/2/3/three");
  folder.AddFile("1/2/3/4/four");
  EXPECT_EQ(FindFile(folder.Path(""), "one", 0), folder.Path("1/one"));
  EXPECT_EQ(FindFile(folder.Path(""), "two", 0), folder.Path("1/2/two"));
  EXPECT_EQ(FindFile(folder.Path(""), "three", 0), folder.Path("1/2/3/three"));
  EXPECT_EQ(FindFile(folder.Path(""), "four", 0), "");
}

TEST(FindFileTest, StartingDeeperSearchesFewerLevels) {
  const TemporaryFolder folder;
  folder.AddFolder("1/2");
  folder.AddFile("here");
  folder.AddFile("1/one");
  folder.AddFile("1/2/two");
  EXPECT_EQ(FindFile(folder.Path(""), "one", 2), folder.Path("1/one"));
  EXPECT_EQ(FindFile(folder.Path(""), "two", 2), "");
  EXPECT_EQ(FindFile(folder.Path(""), "here", 3), folder.Path("here"));
  EXPECT_EQ(FindFile(folder.Path(""), "one", 3), "");
}

TEST(FindFileTest, DepthBeyondTheDeepestLevelAsksOnlyTheFolder) {
  const TemporaryFolder folder;
  folder.AddFolder("1");
  folder.AddFile("1/one");
  folder.AddFile("here");
  EXPECT_EQ(FindFile(folder.Path(""), "one", 4), "");
  EXPECT_EQ(FindFile(folder.Path(""), "here", 4), folder.Path("here"));
}

TEST(FindFileTest, FolderComesBeforeItsSubfolders) {
  const TemporaryFolder folder;
  folder.AddFolder("a/b");
  folder.AddFile("a/b/wanted");
  folder.AddFile("a/wanted");
  EXPECT_EQ(FindFile(folder.Path(""), "wanted", 0), folder.Path("a/wanted"));
  folder.AddFile("wanted");
  EXPECT_EQ(FindFile(folder.Path(""), "wanted", 0), folder.Path("wanted"));
}

TEST(FindFileTest, FirstSubfolderInListingOrderWinsDepthFirst) {
  const TemporaryFolder folder;
  for (const char* name : {"q", "b", "z", "a", "m"}) folder.AddFolder(std::string(name) + "/deep");
  const std::vector<std::string> order = SubfoldersInOrder(folder.path);
  ASSERT_EQ(order.size(), 5U);
  folder.AddFile(order[1] + "/deep/wanted");
  folder.AddFile(order[2] + "/wanted");
  folder.AddFile(order[4] + "/wanted");
  EXPECT_EQ(FindFile(folder.Path(""), "wanted", 0), folder.Path(order[1] + "/deep/wanted"));
}

TEST(FindFileTest, AFolderOfThatNameCounts) {
  const TemporaryFolder folder;
  folder.AddFolder("a/wanted");
  EXPECT_EQ(FindFile(folder.Path(""), "wanted", 0), folder.Path("a/wanted"));
}

TEST(FindFileTest, NothingFoundIsEmpty) {
  const TemporaryFolder folder;
  folder.AddFolder("a/b");
  folder.AddFile("a/other");
  EXPECT_EQ(FindFile(folder.Path(""), "wanted", 0), "");
  EXPECT_EQ(FindFile(folder.Path("missing/"), "wanted", 0), "");
  EXPECT_EQ(FindFile(folder.Path("a/other/"), "wanted", 0), "");
}

TEST(FindFileTest, LinksToFoldersAreNotEntered) {
  const TemporaryFolder folder;
  folder.AddFolder("start");
  folder.AddFolder("elsewhere");
  folder.AddFile("elsewhere/wanted");
  folder.AddLink("start/link", "../elsewhere");
  EXPECT_EQ(FindFile(folder.Path("start/"), "wanted", 0), "");
}

TEST(FindFileTest, LoopsOfLinksEnd) {
  const TemporaryFolder folder;
  folder.AddFolder("a/b");
  folder.AddLink("a/up", "..");
  folder.AddLink("a/b/up", "../..");
  folder.AddLink("self", "self");
  folder.AddLink("dangling", "missing");
  EXPECT_EQ(FindFile(folder.Path(""), "wanted", 0), "");
  EXPECT_EQ(FindFile(folder.Path(""), "dangling", 0), "");
}

TEST(FindFileTest, OddNamesAreSearchedToo) {
  const TemporaryFolder folder;
  const std::string odd = "new\nline \xF0\x9F\x98\x80 \xFF/...";
  folder.AddFolder(odd);
  folder.AddFile(odd + "/w\xC3\xA4nted\n");
  EXPECT_EQ(FindFile(folder.Path(""), "w\xC3\xA4nted\n", 0), folder.Path(odd + "/w\xC3\xA4nted\n"));
}

TEST(FindFileTest, UnreadableSubfolderDoesNotEndTheSearch) {
  const TemporaryFolder folder;
  ASSERT_EQ(chmod(folder.path.c_str(), 0755), 0);
  for (const char* name : {"a", "b", "c"}) folder.AddFolder(std::string(name) + "/deep");
  const std::vector<std::string> order = SubfoldersInOrder(folder.path);
  ASSERT_EQ(order.size(), 3U);
  folder.AddFile(order[0] + "/deep/wanted");
  folder.AddFile(order[2] + "/deep/wanted");
  const std::string closed = folder.Path(order[0]);
  ASSERT_EQ(chmod(closed.c_str(), 0), 0);
  EXPECT_TRUE(AskAsOrdinaryUser([&] {
    return FindFile(folder.Path(""), "wanted", 0) == folder.Path(order[2] + "/deep/wanted");
  }));
  ASSERT_EQ(chmod(closed.c_str(), 0700), 0);
}

TEST(FindFileTest, WideFoldersAreSearchedWhole) {
  const TemporaryFolder folder;
  for (int i = 0; i < 500; ++i) folder.AddFolder("folder " + std::to_string(i));
  for (int i = 0; i < 500; ++i) folder.AddFile("folder 250/file " + std::to_string(i));
  EXPECT_EQ(FindFile(folder.Path(""), "file 499", 0), folder.Path("folder 250/file 499"));
}
