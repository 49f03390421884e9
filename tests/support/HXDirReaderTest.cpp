#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <map>
#include <vector>

#include "support/HXDirReader.h"
#include "tests/support/Descriptors.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TemporaryFolder.h"

namespace {

/// Name to is-directory flag of every entry that is read.
std::map<std::string, int> ReadAll(const std::string& path) {
  std::map<std::string, int> entries;
  HXDirReader reader(path);
  while (reader.Next()) {
    EXPECT_TRUE(entries.emplace(reader.name, reader.isDirectory).second) << reader.name;
    EXPECT_EQ(reader.reserved, 0);
  }
  return entries;
}

std::vector<std::string> NamesInSystemOrder(const std::string& path) {
  std::vector<std::string> names;
  DIR* directory = opendir(path.c_str());
  while (const dirent* entry = readdir(directory)) names.emplace_back(entry->d_name);
  closedir(directory);
  return names;
}

void AddSocket(const std::string& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  ASSERT_LT(path.size(), sizeof address.sun_path);
  std::strcpy(address.sun_path, path.c_str());
  const int fd = socket(AF_UNIX, SOCK_STREAM, 0);
  ASSERT_NE(fd, -1);
  EXPECT_EQ(bind(fd, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
  close(fd);
}

}  // namespace

TEST(HXDirReaderTest, EmptyFolderHoldsItselfAndItsParent) {
  const TemporaryFolder folder;
  EXPECT_EQ(ReadAll(folder.path), (std::map<std::string, int>{{".", 1}, {"..", 1}}));
}

TEST(HXDirReaderTest, FlagIsBitTwoOfTheTypeCode) {
  const TemporaryFolder folder;
  folder.AddFile("file");
  folder.AddFolder("folder");
  folder.AddLink("linkToFolder", "folder");
  AddSocket(folder.Path("socket"));
  ASSERT_EQ(mkfifo(folder.Path("pipe").c_str(), 0600), 0);
  EXPECT_EQ(ReadAll(folder.path), (std::map<std::string, int>{{".", 1},
                                                              {"..", 1},
                                                              {"file", 0},
                                                              {"folder", 1},
                                                              {"linkToFolder", 0},
                                                              {"pipe", 0},
                                                              {"socket", 1}}));
}

TEST(HXDirReaderTest, NamesAreKeptByteForByte) {
  const TemporaryFolder folder;
  const std::vector<std::string> names = {
      " ",   "new\nline",          "gr\xC3\xB6\xC3\x9F", "\xF0\x9F\x98\x80", "\xFF\xFE\x80",
      "...", std::string(255, 'n')};
  for (const std::string& name : names) folder.AddFile(name);
  const std::map<std::string, int> entries = ReadAll(folder.path);
  EXPECT_EQ(entries.size(), names.size() + 2);
  for (const std::string& name : names) EXPECT_EQ(entries.count(name), 1U) << name;
}

TEST(HXDirReaderTest, OrderIsTheFileSystems) {
  const TemporaryFolder folder;
  for (int i = 0; i < 2000; ++i) folder.AddFile("entry " + std::to_string(i));
  std::vector<std::string> names;
  HXDirReader reader(folder.path);
  while (reader.Next()) names.push_back(reader.name);
  EXPECT_EQ(names.size(), 2002U);
  EXPECT_EQ(names, NamesInSystemOrder(folder.path));
}

TEST(HXDirReaderTest, WhatCannotBeOpenedHasNoEntries) {
  const TemporaryFolder folder;
  for (const std::string& path :
       {std::string(), folder.Path("missing"), folder.AddFile("file"),
        folder.AddLink("loop", "loop"), folder.Path(std::string(300, 'x'))}) {
    HXDirReader reader(path);
    EXPECT_EQ(reader.directory, nullptr) << path;
    EXPECT_FALSE(reader.Next()) << path;
    EXPECT_FALSE(reader.Next()) << path;
    EXPECT_EQ(reader.entry, nullptr) << path;
  }
}

TEST(HXDirReaderTest, UnreadableFolderHasNoEntries) {
  const TemporaryFolder folder;
  folder.AddFile("file");
  ASSERT_EQ(chmod(folder.path.c_str(), 0311), 0);
  EXPECT_TRUE(AskAsOrdinaryUser([&] {
    HXDirReader reader(folder.path);
    return !reader.directory && !reader.Next();
  }));
  ASSERT_EQ(chmod(folder.path.c_str(), 0700), 0);
}

TEST(HXDirReaderTest, EndClearsTheCurrentEntryAndStays) {
  const TemporaryFolder folder;
  HXDirReader reader(folder.path);
  while (reader.Next()) EXPECT_NE(reader.entry, nullptr);
  EXPECT_EQ(reader.entry, nullptr);
  EXPECT_EQ(reader.name, "");
  EXPECT_EQ(reader.isDirectory, 0);
  EXPECT_FALSE(reader.Next());
}

TEST(HXDirReaderTest, LinkToAFolderIsReadThrough) {
  const TemporaryFolder folder;
  folder.AddFolder("target");
  folder.AddFile("target/inside");
  EXPECT_EQ(ReadAll(folder.AddLink("link", "target")).count("inside"), 1U);
}

TEST(HXDirReaderTest, DestructionClosesTheDirectory) {
  const TemporaryFolder folder;
  const int before = LowestFreeDescriptor();
  {
    HXDirReader reader(folder.path);
    EXPECT_TRUE(reader.Next());
    EXPECT_NE(LowestFreeDescriptor(), before);
  }
  EXPECT_EQ(LowestFreeDescriptor(), before);
}
