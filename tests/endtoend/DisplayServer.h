#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tests/endtoend/ChildProcess.h"
#include "tests/support/TemporaryFolder.h"

/// An X server without a screen of its own, with a window manager, for one test
/// program; both end with this object.
class DisplayServer {
 public:
  DisplayServer();

  /// The server goes without a word. Nothing of this process may be connected to it.
  void Kill() { server->Kill(); }

  /// As the environment variable DISPLAY has it.
  std::string name;

 private:
  TemporaryFolder folder;
  std::unique_ptr<ChildProcess> server;
  std::unique_ptr<ChildProcess> windowManager;
};
