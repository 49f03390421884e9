#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

/// Where other users can get to, which the place for everyday temporary files
/// need not be.
std::filesystem::path ParentFolder() {
  const char* named = std::getenv("TEST_TMPDIR");
  return named != nullptr ? std::filesystem::path(named) : std::filesystem::temp_directory_path();
}

}  // namespace

TemporaryFolder::TemporaryFolder() : path((ParentFolder() / "support-XXXXXX").string()) {
  EXPECT_NE(mkdtemp(path.data()), nullptr);
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code error;
  std::filesystem::remove_all(path, error);
  EXPECT_FALSE(error) << error.message();
}

std::string TemporaryFolder::AddFile(const std::string& relative,
                                     const std::string& content) const {
  std::ofstream stream(Path(relative), std::ios::binary);
  stream << content << std::flush;
  EXPECT_TRUE(stream.good()) << relative;
  return Path(relative);
}

std::string TemporaryFolder::AddFolder(const std::string& relative) const {
  std::error_code error;
  std::filesystem::create_directories(Path(relative), error);
  EXPECT_FALSE(error) << relative << ": " << error.message();
  return Path(relative);
}

std::string TemporaryFolder::AddLink(const std::string& relative, const std::string& target) const {
  std::error_code error;
  std::filesystem::create_symlink(target, Path(relative), error);
  EXPECT_FALSE(error) << relative << ": " << error.message();
  return Path(relative);
}

std::string ReadWholeFile(const std::string& path) {
  std::ifstream stream(path, std::ios::binary);
  EXPECT_TRUE(stream.is_open()) << path;
  return {std::istreambuf_iterator<char>(stream), {}};
}

mode_t ModeOf(const std::string& path) {
  struct stat info {};
  EXPECT_EQ(stat(path.c_str(), &info), 0) << path;
  return info.st_mode & 07777U;
}
