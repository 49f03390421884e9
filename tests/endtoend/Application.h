#pragma once

#include <string>
#include <vector>

#include "tests/endtoend/ChildProcess.h"
#include "tests/endtoend/Machine.h"
#include "tests/endtoend/Orphans.h"

/// The real installer at work on a machine. With this object it is ended, and so
/// is everything that it left behind.
class Application {
 public:
  /// `environment` (NAME=value) is added to what the machine asks for.
  Application(const Machine& machine, const std::vector<std::string>& environment,
              ChildProcess::User user);
  ~Application();

  bool IsRunning() { return !process.ExitStatus(); }
  /// The exit status; -1 when the end does not come in time.
  int WaitForEnd() { return process.WaitForEnd().value_or(-1); }
  /// Waits until nothing started by the installer runs any more. Names what does,
  /// or returns "".
  std::string WaitForTools() const;
  void Kill() { process.Kill(); }
  /// Pipes that the installer holds: it keeps one for each tool of a host that it
  /// has launched.
  int CountPipes() const;
  /// Whether it runs, or how it ended; for people.
  std::string Describe();
  /// What it wrote on standard error.
  std::string Errors() const;

 private:
  static ChildProcess::Setup MakeSetup(const Machine& machine,
                                       const std::vector<std::string>& environment,
                                       ChildProcess::User user);

  Orphans orphans;
  const std::string errors;
  ChildProcess process;
};
