#pragma once

#include <sys/types.h>

#include <string>

/// A folder of one test, made empty and removed with everything in it afterwards.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  /// The path of `relative` in the folder.
  std::string Path(const std::string& relative) const { return path + "/" + relative; }

  /// Make something at `relative` and return its path; the test fails when they cannot.
  std::string AddFile(const std::string& relative, const std::string& content = {}) const;
  std::string AddFolder(const std::string& relative) const;
  std::string AddLink(const std::string& relative, const std::string& target) const;

  /// Absolute, without a trailing separator.
  std::string path;
};

/// The whole content of a file; the test fails when it cannot be read.
std::string ReadWholeFile(const std::string& path);

/// The permission bits of what is at `path`; the test fails when there is nothing.
mode_t ModeOf(const std::string& path);
