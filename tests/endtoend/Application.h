#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/endtoend/ChildProcess.h"
#include "tests/endtoend/Machine.h"
#include "tests/endtoend/Orphans.h"

/// The real installer at work on a machine. With this object it is ended, and so
/// is everything that it left behind.
class Application {
 public:
  /// `environment` (NAME=value) is added to what the machine asks for. `view`, when
  /// given, is the file system that the installer sees. `command` takes the place of
  /// the installer's program unless it is empty.
  Application(const Machine& machine, const std::vector<std::string>& environment,
              ChildProcess::User user, const MountView* view = nullptr,
              const std::vector<std::string>& command = {});
  ~Application();

  bool IsRunning() { return !process.ExitStatus(); }
  /// The exit status; -1 when the end does not come in time.
  int WaitForEnd() { return process.WaitForEnd().value_or(-1); }
  /// Waits until nothing started by the installer runs any more. Names what does,
  /// or returns "".
  std::string WaitForTools() const;
  /// Waits until `count` of the platform's daemons run that the installer has started, and
  /// ends them under it.
  testing::AssertionResult KillDaemons(std::size_t count) const;
  void Send(int signal) { process.Send(signal); }
  void Kill() { process.Kill(); }
  pid_t Id() const { return process.Id(); }
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
                                       ChildProcess::User user, const MountView* view,
                                       const std::vector<std::string>& command);

  Orphans orphans;
  const std::string errors;
  ChildProcess process;
};
