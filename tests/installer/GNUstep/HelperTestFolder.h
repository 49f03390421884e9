#pragma once

#include <sys/types.h>

#include <string>

/// A temporary folder of one test, removed with everything in it at the end.
class HelperTestFolder {
 public:
  HelperTestFolder();
  ~HelperTestFolder();
  HelperTestFolder(const HelperTestFolder&) = delete;
  HelperTestFolder& operator=(const HelperTestFolder&) = delete;

  /// The path of `name` in the folder.
  std::string Path(const std::string& name) const { return folder + "/" + name; }
  /// Writes a file with exactly this mode and returns its path.
  std::string Write(const std::string& name, const std::string& text, mode_t mode = 0644) const;
  /// Makes a folder with exactly this mode and returns its path.
  std::string MakeFolder(const std::string& name, mode_t mode = 0755) const;

  /// The text of the file at `path`; empty when there is none.
  static std::string Read(const std::string& path);
  static bool Exists(const std::string& path);
  /// The permission bits of what is at `path`, links not followed.
  static mode_t Mode(const std::string& path);

 private:
  std::string folder;
};
