#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include <cerrno>

#include "support/Files.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TemporaryFolder.h"

namespace {

const std::string kTooLongName(300, 'x');

void SetModified(const std::string& path, time_t seconds, suseconds_t microseconds) {
  const timeval times[2] = {{seconds, microseconds}, {seconds, microseconds}};
  ASSERT_EQ(utimes(path.c_str(), times), 0);
}

}  // namespace

TEST(FilesTest, FilesAndFoldersExist) {
  const TemporaryFolder folder;
  EXPECT_TRUE(FileExists(folder.path));
  EXPECT_TRUE(FileExists(folder.AddFile("empty")));
  EXPECT_TRUE(
      FileExists(folder.AddFile("gr\xC3\xB6\xC3\x9F"
                                "e \xF0\x9F\x98\x80\n.txt")));
  EXPECT_TRUE(FileExists(folder.AddFile("\xFF\xFE")));
}

TEST(FilesTest, WhatCannotBeReachedDoesNotExist) {
  const TemporaryFolder folder;
  folder.AddFile("file");
  EXPECT_FALSE(FileExists(""));
  EXPECT_FALSE(FileExists(folder.Path("missing")));
  EXPECT_FALSE(FileExists(folder.Path("file/below")));
  EXPECT_FALSE(FileExists(folder.Path(kTooLongName)));
}

TEST(FilesTest, LinkExistsWhenItsTargetDoes) {
  const TemporaryFolder folder;
  folder.AddFile("file");
  EXPECT_TRUE(FileExists(folder.AddLink("good", "file")));
  EXPECT_FALSE(FileExists(folder.AddLink("dangling", "missing")));
  EXPECT_FALSE(FileExists(folder.AddLink("loop", "loop")));
}

TEST(FilesTest, UnreadableFileExists) {
  const TemporaryFolder folder;
  const std::string path = folder.AddFile("secret");
  ASSERT_EQ(chmod(folder.path.c_str(), 0755), 0);
  ASSERT_EQ(chmod(path.c_str(), 0), 0);
  EXPECT_TRUE(AskAsOrdinaryUser([&] { return FileExists(path) && !OpenFile(path, "r"); }));
}

TEST(FilesTest, NothingIsSeenInAFolderThatMayNotBeEntered) {
  const TemporaryFolder folder;
  const std::string path = folder.AddFile("file", "12345");
  ASSERT_EQ(chmod(folder.path.c_str(), 0), 0);
  EXPECT_TRUE(AskAsOrdinaryUser(
      [&] { return !FileExists(path) && GetFileSize(path) == 0 && GetFileTimeMs(path) == 0.0; }));
  ASSERT_EQ(chmod(folder.path.c_str(), 0700), 0);
  EXPECT_EQ(GetFileSize(path), 5U);
}

TEST(FilesTest, SizeIsInBytes) {
  const TemporaryFolder folder;
  EXPECT_EQ(GetFileSize(folder.AddFile("empty")), 0U);
  EXPECT_EQ(GetFileSize(folder.AddFile("five", std::string("a\0b\n\xFF", 5))), 5U);
  EXPECT_EQ(GetFileSize(folder.AddLink("link", "five")), 5U);
}

TEST(FilesTest, SizeBeyondFourGigabytesIsWhole) {
  const TemporaryFolder folder;
  const std::string path = folder.AddFile("sparse");
  ASSERT_EQ(truncate(path.c_str(), 5'000'000'001), 0);
  EXPECT_EQ(GetFileSize(path), 5'000'000'001U);
}

TEST(FilesTest, SizeIsZeroForWhatCannotBeExamined) {
  const TemporaryFolder folder;
  folder.AddFile("file", "content");
  EXPECT_EQ(GetFileSize(""), 0U);
  EXPECT_EQ(GetFileSize(folder.Path("missing")), 0U);
  EXPECT_EQ(GetFileSize(folder.Path("file/below")), 0U);
  EXPECT_EQ(GetFileSize(folder.AddLink("loop", "loop")), 0U);
}

TEST(FilesTest, TimeIsInWholeSeconds) {
  const TemporaryFolder folder;
  const std::string path = folder.AddFile("file");
  SetModified(path, 1'234'567'890, 987'654);
  EXPECT_EQ(GetFileTimeMs(path), 1'234'567'890'000.0);
}

TEST(FilesTest, TimeGoesBeyondThirtyTwoBits) {
  const TemporaryFolder folder;
  const std::string path = folder.AddFile("file");
  SetModified(path, 5'000'000'000, 0);
  EXPECT_EQ(GetFileTimeMs(path), 5'000'000'000'000.0);
}

TEST(FilesTest, TimeIsZeroForWhatCannotBeExamined) {
  const TemporaryFolder folder;
  folder.AddFile("file");
  EXPECT_EQ(GetFileTimeMs(""), 0.0);
  EXPECT_EQ(GetFileTimeMs(folder.Path("missing")), 0.0);
  EXPECT_EQ(GetFileTimeMs(folder.Path("file/below")), 0.0);
}

TEST(FilesTest, MakeDirCreatesAFolderOpenToAllThroughTheMask) {
  const TemporaryFolder folder;
  const mode_t mask = umask(0);
  EXPECT_EQ(MakeDir(folder.Path("open")), 0);
  umask(027);
  EXPECT_EQ(MakeDir(folder.Path("masked \xF0\x9F\x98\x80")), 0);
  umask(mask);
  EXPECT_EQ(ModeOf(folder.Path("open")), 0777U);
  EXPECT_EQ(ModeOf(folder.Path("masked \xF0\x9F\x98\x80")), 0750U);
}

TEST(FilesTest, MakeDirFailsWhereItCannot) {
  const TemporaryFolder folder;
  folder.AddFile("file");
  EXPECT_EQ(MakeDir(folder.path), -1);
  EXPECT_EQ(errno, EEXIST);
  EXPECT_EQ(MakeDir(folder.Path("file")), -1);
  EXPECT_EQ(errno, EEXIST);
  EXPECT_EQ(MakeDir(folder.Path("missing/below")), -1);
  EXPECT_EQ(errno, ENOENT);
  EXPECT_EQ(MakeDir(folder.Path("file/below")), -1);
  EXPECT_EQ(errno, ENOTDIR);
  EXPECT_EQ(MakeDir(folder.Path(kTooLongName)), -1);
  EXPECT_EQ(errno, ENAMETOOLONG);
}

TEST(FilesTest, MakeDirFailsWithoutPermission) {
  const TemporaryFolder folder;
  ASSERT_EQ(chmod(folder.path.c_str(), 0555), 0);
  EXPECT_TRUE(
      AskAsOrdinaryUser([&] { return MakeDir(folder.Path("refused")) == -1 && errno == EACCES; }));
  ASSERT_EQ(chmod(folder.path.c_str(), 0755), 0);
  EXPECT_FALSE(FileExists(folder.Path("refused")));
}

TEST(FilesTest, OpenFileWritesAppendsAndReads) {
  const TemporaryFolder folder;
  const std::string path = folder.Path("new\nline");
  for (const char* mode : {"w", "a"}) {
    FILE* stream = OpenFile(path, mode);
    ASSERT_NE(stream, nullptr);
    EXPECT_EQ(fputs("abc", stream), 1);
    EXPECT_EQ(fclose(stream), 0);
  }
  FILE* stream = OpenFile(path, "rb");
  ASSERT_NE(stream, nullptr);
  char text[16] = {};
  EXPECT_EQ(fread(text, 1, sizeof text, stream), 6U);
  EXPECT_EQ(fclose(stream), 0);
  EXPECT_STREQ(text, "abcabc");
}

TEST(FilesTest, OpenFileGivesNullOnFailure) {
  const TemporaryFolder folder;
  EXPECT_EQ(OpenFile(folder.Path("missing"), "r"), nullptr);
  EXPECT_EQ(OpenFile(folder.path, "w"), nullptr);
  EXPECT_EQ(OpenFile(folder.Path("missing/below"), "w"), nullptr);
  EXPECT_EQ(OpenFile(folder.Path("file"), "nonsense"), nullptr);
  EXPECT_FALSE(FileExists(folder.Path("file")));
}

TEST(FilesTest, DeleteFileRemovesAFile) {
  const TemporaryFolder folder;
  const std::string path = folder.AddFile("\xFF\n");
  EXPECT_EQ(DeleteFile(path), 0);
  EXPECT_FALSE(FileExists(path));
  EXPECT_EQ(DeleteFile(path), -1);
  EXPECT_EQ(errno, ENOENT);
}

TEST(FilesTest, DeleteFileRemovesTheLinkNotItsTarget) {
  const TemporaryFolder folder;
  const std::string target = folder.AddFile("target", "kept");
  const std::string link = folder.AddLink("link", "target");
  EXPECT_EQ(DeleteFile(link), 0);
  EXPECT_FALSE(FileExists(link));
  EXPECT_EQ(ReadWholeFile(target), "kept");
}

TEST(FilesTest, DeleteFileRefusesAFolder) {
  const TemporaryFolder folder;
  const std::string path = folder.AddFolder("empty");
  EXPECT_EQ(DeleteFile(path), -1);
  EXPECT_TRUE(FileExists(path));
}
