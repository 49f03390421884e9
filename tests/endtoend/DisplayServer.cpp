#include "tests/endtoend/DisplayServer.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>

#include "tests/endtoend/Desktop.h"
#include "tests/endtoend/Waiting.h"

namespace {

constexpr const char* kPath = "PATH=/usr/local/bin:/usr/bin:/bin";

/// The line that the server writes once it takes connections.
std::string ReadLine(int descriptor) {
  std::string line;
  char letter = 0;
  while (read(descriptor, &letter, 1) == 1 && letter != '\n') line += letter;
  return line;
}

}  // namespace

DisplayServer::DisplayServer() {
  std::array<int, 2> ends{};
  EXPECT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
  ChildProcess::Setup setup;
  // It stays when the last client has left, and turns nobody away meanwhile; whoever the
  // installer takes itself for, it may connect.
  setup.command = {"Xvfb",        "-noreset", "-displayfd", "3",         "-screen", "0",
                   "1024x768x24", "-dpi",     "96",         "-nolisten", "tcp",     "-ac"};
  setup.environment = {kPath};
  setup.errors = folder.Path("server.log");
  setup.inherited = ends[1];
  server = std::make_unique<ChildProcess>(setup);
  close(ends[1]);
  name = ":" + ReadLine(ends[0]);
  close(ends[0]);
  EXPECT_NE(name, ":") << ReadWholeFile(folder.Path("server.log"));

  setup = {};
  setup.command = {"openbox", "--sm-disable"};
  setup.environment = {kPath, "DISPLAY=" + name, "HOME=" + folder.path};
  windowManager = std::make_unique<ChildProcess>(setup);
  const Desktop desktop(name);
  EXPECT_TRUE(WaitUntil([&desktop] { return desktop.HasWindowManager(); }));
}
