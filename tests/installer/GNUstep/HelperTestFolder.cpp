#include "tests/installer/GNUstep/HelperTestFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

HelperTestFolder::HelperTestFolder() {
  folder = (std::filesystem::temp_directory_path() / "ostrel-helper-XXXXXX").string();
  EXPECT_NE(::mkdtemp(folder.data()), nullptr);
}

HelperTestFolder::~HelperTestFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(folder, ignored);
}

std::string HelperTestFolder::Write(const std::string& name, const std::string& text,
                                    mode_t mode) const {
  std::string path = Path(name);
  std::ofstream(path, std::ios::binary) << text;
  EXPECT_EQ(::chmod(path.c_str(), mode), 0) << path;
  return path;
}

std::string HelperTestFolder::MakeFolder(const std::string& name, mode_t mode) const {
  std::string path = Path(name);
  EXPECT_EQ(::mkdir(path.c_str(), 0700), 0) << path;
  EXPECT_EQ(::chmod(path.c_str(), mode), 0) << path;
  return path;
}

std::string HelperTestFolder::Read(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

bool HelperTestFolder::Exists(const std::string& path) {
  struct stat status {};
  return ::lstat(path.c_str(), &status) == 0;
}

mode_t HelperTestFolder::Mode(const std::string& path) {
  struct stat status {};
  EXPECT_EQ(::lstat(path.c_str(), &status), 0) << path;
  return status.st_mode & 07777;
}
