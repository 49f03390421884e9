#pragma once

#include <string>

/// A new folder that is removed with all that is in it. Made below `parent`,
/// which must exist and be writable; GetPath is empty when it could not be made.
class TemporaryFolder {
 public:
  explicit TemporaryFolder(const std::string& parent);
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  /// The folder of the system for temporary files: TMPDIR or "/tmp".
  static std::string SystemParent();
  /// A folder in memory where the system has one, otherwise as SystemParent.
  static std::string MemoryParent();

  const std::string& GetPath() const { return path; }

 private:
  std::string path;
};
