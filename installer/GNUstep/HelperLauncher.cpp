#include "installer/GNUstep/HelperLauncher.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <utility>

namespace {

// From here to the exec only async-signal-safe calls are allowed: other threads of the installer
// may have held any lock at the moment of the fork. The arguments point into memory that was
// prepared before it.

void ResetSignals() {
  for (int each = 1; each < NSIG; ++each) {
    ::signal(each, SIG_DFL);
  }
  sigset_t none;
  sigemptyset(&none);
  ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

// Makes `socket` the standard input and closes all but the three standard streams. The
// installer's own end goes first: it may be one of the three if those were closed.
bool ArrangeDescriptors(int ownEnd, int socket) {
  const int moved = ::fcntl(socket, F_DUPFD, STDERR_FILENO + 1);
  ::close(ownEnd);
  ::close(socket);
  // Fails as well when `moved` is none.
  if (::dup2(moved, STDIN_FILENO) < 0) {
    return false;
  }
  HelperDescriptor::CloseAllFrom(STDERR_FILENO + 1);
  return true;
}

[[noreturn]] void BeParent(char* const* arguments, char* const* environment) {
  const pid_t helper = ::_Fork();
  if (helper == 0) {
    ::execve(arguments[0], arguments, environment);
    ::_exit(EXIT_FAILURE);
  }
  // The installer sees the helper's end as the end of the socket only if nobody else holds it.
  HelperDescriptor::CloseAllFrom(STDIN_FILENO);
  if (helper > 0) {
    while (::waitpid(helper, nullptr, 0) < 0 && errno == EINTR) {
    }
  }
  ::_exit(EXIT_SUCCESS);
}

[[noreturn]] void BeGoBetween(int ownEnd, int socket, char* const* arguments,
                              char* const* environment) {
  ResetSignals();
  if (::chdir("/") != 0 || !ArrangeDescriptors(ownEnd, socket)) {
    ::_exit(EXIT_FAILURE);
  }
  const pid_t parent = ::_Fork();
  if (parent == 0) {
    BeParent(arguments, environment);
  }
  ::_exit(parent > 0 ? EXIT_SUCCESS : EXIT_FAILURE);
}

// Async-signal-safety ends here.

bool CanRun(const std::string& path) {
  return path.starts_with('/') && ::access(path.c_str(), X_OK) == 0;
}

// Empty when the system does not tell.
std::string FolderOfThisProgram() {
  std::error_code error;
  return std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
}

}  // namespace

HelperLauncher::HelperLauncher(std::vector<std::string> launcher, std::string helperPath)
    : command(std::move(launcher)) {
  command.push_back(std::move(helperPath));
}

HelperLauncher HelperLauncher::ForThisProcess() {
  std::vector<std::string> launcher;
  if (::geteuid() != 0) {
    launcher.emplace_back("/usr/bin/pkexec");
  }
  return HelperLauncher(std::move(launcher), FolderOfThisProgram() + "/OstrelInstallerHelper");
}

HelperDescriptor HelperLauncher::Start() const {
  std::array<int, 2> ends{};
  if (!CanRun(command.front()) || !CanRun(command.back()) ||
      ::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0) {
    return HelperDescriptor();
  }
  HelperDescriptor ownEnd(ends[0]);
  const HelperDescriptor helperEnd(ends[1]);

  std::vector<char*> arguments;
  for (const std::string& word : command) {
    arguments.push_back(const_cast<char*>(word.c_str()));
  }
  arguments.push_back(nullptr);
  std::string path = "PATH=/usr/sbin:/usr/bin:/sbin:/bin";
  const std::array<char*, 2> environment{path.data(), nullptr};

  const pid_t goBetween = ::fork();
  if (goBetween == 0) {
    BeGoBetween(ownEnd.Number(), helperEnd.Number(), arguments.data(), environment.data());
  }
  int status = 0;
  pid_t ended = -1;
  if (goBetween > 0) {
    do {
      ended = ::waitpid(goBetween, &status, 0);
    } while (ended < 0 && errno == EINTR);
  }
  // Where the process ignores SIGCHLD nothing is left to wait for; the socket will tell.
  const bool failed = goBetween < 0 || (ended == goBetween && status != 0);
  return failed ? HelperDescriptor() : std::move(ownEnd);
}
