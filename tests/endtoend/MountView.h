#pragma once

#include <sys/types.h>

#include <functional>
#include <string>

/// A view of the file system in which other things stand in some places. Only
/// programs started in it (`ChildProcess::Setup::view`) see them, and tests through
/// `Seen`; nothing is left of them with this object and the last such program.
/// An ordinary user gets one as well, but is root in it and nobody else.
class MountView {
 public:
  /// Makes the view and runs `arrange` in it, in a process of its own; the test
  /// fails unless that answers true.
  explicit MountView(const std::function<bool()>& arrange);
  ~MountView();
  MountView(const MountView&) = delete;
  MountView& operator=(const MountView&) = delete;

  /// A path by which this process finds what stands at `path` in the view.
  std::string Seen(const std::string& path) const;

  /// For `arrange`: an empty file system in memory at the folder `place`.
  static bool MountEmpty(const std::string& place, const std::string& options = "mode=755");
  /// For `arrange`: what is at `source` stands at `place`, too. Files on files, folders on folders.
  static bool Bind(const std::string& source, const std::string& place);

  /// For `arrange`: what is at `place` cannot be written any more.
  static bool MakeReadOnly(const std::string& place);

  /// Brings the calling process into the view, for good. Between fork and exec.
  bool Enter() const;

 private:
  pid_t keeper = -1;
  int users = -1;
  int mounts = -1;
};
