#include "tests/endtoend/ToolGate.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <sstream>

#include "tests/endtoend/MountView.h"
#include "tests/endtoend/Waiting.h"

namespace {

constexpr const char* kTools[] = {"mkdir", "rm", "cp", "chmod", "mv"};
constexpr const char* kPlace = "/usr/bin/";

}  // namespace

ToolGate::ToolGate() {
  folder.AddFolder("real");
  folder.AddFolder("held");
  for (const std::string tool : kTools) {
    std::filesystem::copy_file(kPlace + tool, folder.Path("real/" + tool));
    // Only what the shell itself can do: all else might be one of the tools.
    folder.AddFile("held/" + tool,
                   "#!/bin/sh\ncount=0\nwhile read -r line; do count=$((count + 1)); "
                   "done <" +
                       folder.Path("steps") + "\necho $$ >>" + folder.Path("steps") +
                       "\nread -r stop <" + folder.Path("stop") +
                       "\nif [ $count = $stop ]; then read -r "
                       "line <" +
                       folder.Path("gate") + "; fi\nexec " + folder.Path("real/" + tool) +
                       " \"$@\"\n");
    EXPECT_EQ(chmod(folder.Path("held/" + tool).c_str(), 0755), 0);
  }
  EXPECT_EQ(mkfifo(folder.Path("gate").c_str(), 0666), 0);
  EXPECT_EQ(chmod(folder.path.c_str(), 0755), 0);
  StopAt(kNowhere);
}

bool ToolGate::Arrange() const {
  return std::all_of(std::begin(kTools), std::end(kTools), [this](const std::string& tool) {
    return MountView::Bind(folder.Path("held/" + tool), kPlace + tool);
  });
}

void ToolGate::StopAt(int step) {
  stop = step;
  folder.AddFile("steps");
  folder.AddFile("stop", std::to_string(step) + "\n");
}

bool ToolGate::WaitForTool() const {
  return WaitUntil([this] { return CountSteps() > stop; });
}

pid_t ToolGate::Tool() const {
  std::istringstream lines(ReadWholeFile(folder.Path("steps")));
  pid_t tool = 0;
  for (int i = 0; i <= stop; ++i) lines >> tool;
  return tool;
}

void ToolGate::Open() const {
  // Without a reader the pipe cannot be opened like this: before the tool has come to its end, or
  // after it was killed.
  int pipe = -1;
  EXPECT_TRUE(WaitUntil([this, &pipe] {
    pipe = open(folder.Path("gate").c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
    return pipe >= 0 || kill(Tool(), 0) != 0;
  }));
  if (pipe < 0) return;
  EXPECT_EQ(write(pipe, "\n", 1), 1);
  close(pipe);
}

int ToolGate::CountSteps() const {
  const std::string steps = ReadWholeFile(folder.Path("steps"));
  return static_cast<int>(std::count(steps.begin(), steps.end(), '\n'));
}
