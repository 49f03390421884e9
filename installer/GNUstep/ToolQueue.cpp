#include "installer/GNUstep/ToolQueue.h"

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <utility>

namespace {

// Returns 0 or an error number.
int Spawn(const std::vector<std::string>& command, int output, pid_t* child) {
  std::vector<char*> arguments;
  for (const std::string& word : command) {
    arguments.push_back(const_cast<char*>(word.c_str()));
  }
  arguments.push_back(nullptr);
  std::string path = "PATH=/usr/sbin:/usr/bin:/sbin:/bin";
  std::string locale = "LC_ALL=C";
  std::array<char*, 3> environment{path.data(), locale.data(), nullptr};

  // SIGPIPE is left ignored where the caller ignores it: a tool that complains to a terminal
  // which has gone must still do the rest of its work.
  sigset_t defaults;
  sigset_t mask;
  sigfillset(&defaults);
  sigdelset(&defaults, SIGPIPE);
  sigemptyset(&mask);

  posix_spawn_file_actions_t actions;
  posix_spawnattr_t attributes;
  posix_spawn_file_actions_init(&actions);
  posix_spawnattr_init(&attributes);
  posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
  posix_spawnattr_setsigdefault(&attributes, &defaults);
  posix_spawnattr_setsigmask(&attributes, &mask);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
  const int error = ::posix_spawn(child, arguments.front(), &actions, &attributes, arguments.data(),
                                  environment.data());
  posix_spawnattr_destroy(&attributes);
  posix_spawn_file_actions_destroy(&actions);
  return error;
}

}  // namespace

void ToolQueue::Add(std::vector<std::string> command, HelperDescriptor output) {
  entries.push_back({std::move(command), std::move(output)});
  if (running < 0) {
    StartNext();
  }
}

void ToolQueue::Reap() {
  if (running < 0) {
    return;
  }
  int status = 0;
  const pid_t ended = ::waitpid(running, &status, WNOHANG);
  if (ended == 0 || (ended < 0 && errno == EINTR)) {
    return;
  }
  running = -1;
  entries.pop_front();
  StartNext();
}

void ToolQueue::StartNext() {
  while (!entries.empty()) {
    const Entry& next = entries.front();
    const int error = Spawn(next.command, next.output.Number(), &running);
    if (error == 0) {
      return;
    }
    running = -1;
    std::fprintf(stderr, "%s could not be started: %s\n", next.command.front().c_str(),
                 std::strerror(error));
    entries.pop_front();
  }
}
