#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "installer/Authorization.h"

/// Everything that an installation run sees and does outside its own state.
/// One object serves one run; all operations are called on the run's thread.
class InstallationWorld {
 public:
  virtual ~InstallationWorld() = default;

  /// The rights for one run; never null.
  virtual std::unique_ptr<Authorization> MakeAuthorization() = 0;
  /// Path of the resource `name` of type `type` among the installer's own;
  /// empty when it is missing.
  virtual std::string ResourcePath(const std::string& name, const std::string& type) = 0;
  /// As GetDataPath.
  virtual std::string DataPath(std::int32_t kind) = 0;
  /// Whether a file or folder exists at `path`.
  virtual bool PathExists(const std::string& path) = 0;
  /// Whether the environment variable is set, be it to nothing.
  virtual bool HasEnvironment(const std::string& name) = 0;
  /// Blocks until the child process `pid` has ended; -1 stands for any child.
  /// Returns at once when there is no such child.
  virtual void WaitForChild(std::int32_t pid) = 0;
  /// Asks for the window to be drawn again; does not wait for it.
  virtual void RequestRedraw() = 0;
};
