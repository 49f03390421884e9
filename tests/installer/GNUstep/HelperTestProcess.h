#pragma once

#include <sys/types.h>

#include <functional>
#include <set>
#include <string>

/// What the tests of the root helper do with processes and descriptors.
class HelperTestProcess {
 public:
  /// Makes this process inherit orphaned descendants until the object goes, so
  /// that a test can wait for a helper which is nobody's child.
  HelperTestProcess();
  ~HelperTestProcess();
  HelperTestProcess(const HelperTestProcess&) = delete;
  HelperTestProcess& operator=(const HelperTestProcess&) = delete;

  /// Waits until every descendant has ended and has been reaped.
  static void WaitForAll();
  /// Runs `work` in a child, which ends with its result as the exit status.
  static pid_t Fork(const std::function<int()>& work);
  /// Waits for `child`: its exit status, or minus the signal that ended it.
  static int Wait(pid_t child);

  /// Everything up to the end of file.
  static std::string ReadAll(int descriptor);
  /// Whether the descriptor could be read now, or is at its end.
  static bool IsReadable(int descriptor);
  /// Waits until `condition` holds, for ten seconds at most; whether it did.
  static bool Await(const std::function<bool()>& condition);
  /// The open descriptors of a process.
  static std::set<int> Descriptors(const std::string& process = "self");
};
