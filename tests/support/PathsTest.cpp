#include <gtest/gtest.h>

#include "support/Paths.h"

namespace {

std::string Collapsed(std::string path) {
  CollapseSlashes(path);
  return path;
}

}  // namespace

TEST(PathsTest, PathFromTheRootIsNotRelative) {
  EXPECT_FALSE(IsRelativePath("/"));
  EXPECT_FALSE(IsRelativePath("/a/b"));
  EXPECT_FALSE(IsRelativePath("//"));
}

TEST(PathsTest, DrivePathIsNotRelative) {
  EXPECT_FALSE(IsRelativePath("C:/"));
  EXPECT_FALSE(IsRelativePath("C:/x"));
  EXPECT_FALSE(IsRelativePath("?:/x")) << "the drive letter itself is not looked at";
}

TEST(PathsTest, EverythingElseIsRelative) {
  EXPECT_TRUE(IsRelativePath(""));
  EXPECT_TRUE(IsRelativePath("a"));
  EXPECT_TRUE(IsRelativePath("a/b"));
  EXPECT_TRUE(IsRelativePath("./a"));
  EXPECT_TRUE(IsRelativePath("C:"));
  EXPECT_TRUE(IsRelativePath("C:x"));
  EXPECT_TRUE(IsRelativePath("C:\\x"));
  EXPECT_TRUE(IsRelativePath("CD:/x"));
  EXPECT_TRUE(IsRelativePath(":/x"));
}

TEST(PathsTest, CollapseLeavesSingleSlashes) {
  EXPECT_EQ(Collapsed("a///b//c"), "a/b/c");
  EXPECT_EQ(Collapsed("//a/b//"), "/a/b/");
  EXPECT_EQ(Collapsed("////"), "/");
  EXPECT_EQ(Collapsed("http://x"), "http:/x");
}

TEST(PathsTest, CollapseKeepsWhatHasNoDoubleSlash) {
  EXPECT_EQ(Collapsed(""), "");
  EXPECT_EQ(Collapsed("/"), "/");
  EXPECT_EQ(Collapsed("a/b"), "a/b");
  EXPECT_EQ(Collapsed("aa\\\\bb"), "aa\\\\bb");
}

TEST(PathsTest, CollapseKeepsBytesThatAreNoText) {
  const std::string zero("a//\0//b", 7);
  EXPECT_EQ(Collapsed(zero), std::string("a/\0/b", 5));
  EXPECT_EQ(Collapsed("\xFF//\xC3"), "\xFF/\xC3");
}

TEST(PathsTest, CollapseHandlesMillionsOfSlashes) {
  // Removing them one by one from the front would take hours.
  std::string path;
  path.assign(std::size_t{20'000'000}, '/');
  path += "end";
  CollapseSlashes(path);
  EXPECT_EQ(path, "/end");
}

TEST(PathsTest, ExtensionStartsAtTheLastDotAndIsLowered) {
  EXPECT_EQ(GetExtension("Photo.PNG"), ".png");
  EXPECT_EQ(GetExtension("archive.tar.GZ"), ".gz");
  EXPECT_EQ(GetExtension("/Folder/MODEL.C4D"), ".c4d");
  EXPECT_EQ(GetExtension(".Profile"), ".profile");
}

TEST(PathsTest, ExtensionIsEmptyWithoutADot) {
  EXPECT_EQ(GetExtension("README"), "");
  EXPECT_EQ(GetExtension(""), "");
}

TEST(PathsTest, ExtensionOfATrailingDotIsTheDot) {
  EXPECT_EQ(GetExtension("name."), ".");
  EXPECT_EQ(GetExtension(".."), ".");
}

TEST(PathsTest, LastDotCountsEvenInAFolderName) {
  EXPECT_EQ(GetExtension("Plugins.V2/README"), ".v2/readme");
}

TEST(PathsTest, ExtensionLowersSingleBytesOnly) {
  EXPECT_EQ(GetExtension("a.\xC3\x84X"), ".\xC3\x84x");
  EXPECT_EQ(GetExtension("a.\xFF\x80Z"), ".\xFF\x80z");
}

TEST(PathsTest, JoinPutsExactlyOneSlashBetween) {
  EXPECT_EQ(JoinPath("/a", "b"), "/a/b");
  EXPECT_EQ(JoinPath("/a/", "b"), "/a/b");
  EXPECT_EQ(JoinPath("/a", "/b"), "/a/b");
  EXPECT_EQ(JoinPath("/a//", "//b"), "/a/b");
  EXPECT_EQ(JoinPath("a", "b/c"), "a/b/c");
}

TEST(PathsTest, JoinWithTheRootStaysAtTheRoot) {
  EXPECT_EQ(JoinPath("/", "b"), "/b");
  EXPECT_EQ(JoinPath("///", "b"), "/b");
}

TEST(PathsTest, JoinLeavesTheRestOfBothAlone) {
  EXPECT_EQ(JoinPath("/a//b", "c//d/"), "/a//b/c//d/");
}

TEST(PathsTest, JoinWithAnEmptyPartIsTheOtherPart) {
  EXPECT_EQ(JoinPath("", "b"), "b") << "an unknown folder must not become the root";
  EXPECT_EQ(JoinPath("/a", ""), "/a");
  EXPECT_EQ(JoinPath("", ""), "");
}

TEST(PathsTest, JoinWithANameOfSlashesEndsInOne) {
  EXPECT_EQ(JoinPath("/a/", "//"), "/a/");
  EXPECT_EQ(JoinPath("/", "/"), "/");
}
