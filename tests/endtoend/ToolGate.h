#pragma once

#include <sys/types.h>

#include <string>

#include "tests/support/TemporaryFolder.h"

/// Stands between the root helper and the system's tools, in a view of the file
/// system: notes each tool that is started, and holds up one of them before it does
/// anything. Steps are counted from 0 since the last `StopAt`.
class ToolGate {
 public:
  static constexpr int kNowhere = -1;

  ToolGate();

  /// For the arranging of a `MountView`: puts itself in the tools' places.
  bool Arrange() const;

  /// From now on the tool of that step is held up, and no other.
  void StopAt(int step);
  /// Waits until that tool has been started; false when it never is.
  bool WaitForTool() const;
  /// The process of the tool that is held up.
  pid_t Tool() const;
  /// Lets it do its work; nothing when it has been killed meanwhile.
  void Open() const;
  /// How many tools have been started.
  int CountSteps() const;

 private:
  TemporaryFolder folder;
  int stop = kNowhere;
};
