#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

class MountView;

/// A program that a test has started; killed and reaped with this object at the
/// latest. What it starts itself is the matter of Orphans.
class ChildProcess {
 public:
  /// Whom the program takes itself for.
  enum class User {
    kSame,      ///< Whoever runs the tests.
    kRoot,      ///< Root: for others than root, in a user namespace of its own.
    kOrdinary,  ///< Nobody with rights: for root, the user "nobody".
  };

  struct Setup {
    std::vector<std::string> command;      ///< Looked up in PATH.
    std::vector<std::string> environment;  ///< All of it, as NAME=value.
    std::string folder = "/";              ///< The working directory.
    std::string output = "/dev/null";      ///< Standard output is appended to this file,
    std::string errors = "/dev/null";      ///< and standard error to this one.
    int inherited = -1;                    ///< A descriptor that the program gets as number 3.
    User user = User::kSame;
    const MountView* view = nullptr;  ///< The file system that it sees; null is the usual one.
  };

  explicit ChildProcess(const Setup& setup);
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  pid_t Id() const { return id; }
  /// The exit status, 128 and the number of the signal that ended it, or nothing
  /// while it runs. Never waits.
  std::optional<int> ExitStatus();
  /// Waits for the end; nothing when it does not come in time.
  std::optional<int> WaitForEnd();
  /// As kill(2), while it runs.
  void Send(int signal);
  void Kill();

 private:
  pid_t id = -1;
  std::optional<int> status;
};

/// Makes the calling process, one of an ordinary user, root of a user namespace in
/// which nobody else exists. Between fork and exec; false when the system refuses.
bool BecomeRootOfOwnNamespace();

/// Runs a command to its end in the environment of the tests with `environment`
/// (NAME=value) added; the test fails unless it ends with 0. Returns what it prints.
std::string RunCommand(const std::vector<std::string>& command,
                       const std::vector<std::string>& environment = {});
