#pragma once

#include <sys/types.h>

#include <deque>
#include <string>
#include <vector>

#include "installer/GNUstep/HelperDescriptor.h"

/// Runs commands strictly one after another, in the order in which they were
/// added. Owned by the root helper; one thread.
///
/// A command starts with a fixed environment (PATH and LC_ALL only), the
/// caller's working directory, mask, standard input and standard error, and no
/// other descriptor, as far as the caller's own are closed on exec. Its standard
/// output is the descriptor given with it, which the queue keeps open until the
/// command has ended: a reader at the other end of the pipe then sees the end of
/// file. A command that prints more than a pipe holds waits for that reader, and
/// those behind it wait too; the helper's tools print nothing. Signals are at
/// their defaults but for SIGPIPE, which stays as the caller has it.
class ToolQueue {
 public:
  ToolQueue() = default;
  ToolQueue(const ToolQueue&) = delete;
  ToolQueue& operator=(const ToolQueue&) = delete;

  /// Appends `command` (an absolute program path, then its arguments) and
  /// starts it at once when no other runs. One that can not be started is told
  /// on standard error and counts as ended.
  void Add(std::vector<std::string> command, HelperDescriptor output);

  /// To be called after SIGCHLD: if the running command has ended, closes its
  /// output and starts the next one. Never blocks.
  void Reap();

  /// Whether everything that was added has ended.
  bool IsEmpty() const { return entries.empty(); }

 private:
  struct Entry {
    std::vector<std::string> command;
    HelperDescriptor output;
  };

  void StartNext();

  std::deque<Entry> entries;  // The first one runs whenever there is one.
  pid_t running = -1;
};
