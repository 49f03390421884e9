#include "tests/endtoend/ChildProcess.h"

#include <fcntl.h>
#include <grp.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>

#include "tests/endtoend/MountView.h"
#include "tests/endtoend/Waiting.h"

namespace {

constexpr uid_t kNobody = 65534;
constexpr int kInheritedNumber = 3;
constexpr int kNotStarted = 127;

std::vector<char*> Pointers(const std::vector<std::string>& words) {
  std::vector<char*> pointers;
  for (const std::string& word : words) pointers.push_back(const_cast<char*>(word.c_str()));
  pointers.push_back(nullptr);
  return pointers;
}

bool WriteText(const char* path, const std::string& text) {
  const int file = open(path, O_WRONLY | O_CLOEXEC);
  const bool written =
      file >= 0 && write(file, text.data(), text.size()) == static_cast<ssize_t>(text.size());
  if (file >= 0) close(file);
  return written;
}

bool BecomeOrdinary() {
  if (geteuid() != 0) return true;
  return setgroups(0, nullptr) == 0 && setgid(kNobody) == 0 && setuid(kNobody) == 0;
}

bool Become(ChildProcess::User user) {
  switch (user) {
    case ChildProcess::User::kRoot:
      // To the program that is root, to the system it is still the same user.
      return geteuid() == 0 || BecomeRootOfOwnNamespace();
    case ChildProcess::User::kOrdinary:
      return BecomeOrdinary();
    case ChildProcess::User::kSame:
      break;
  }
  return true;
}

bool Redirect(const std::string& file, int flags, int number) {
  const int opened = open(file.c_str(), flags | O_CLOEXEC, 0644);
  return opened >= 0 && dup2(opened, number) == number;
}

bool ArrangeDescriptors(const ChildProcess::Setup& setup) {
  constexpr int kAppend = O_WRONLY | O_CREAT | O_APPEND;
  const bool arranged = Redirect("/dev/null", O_RDONLY, STDIN_FILENO) &&
                        Redirect(setup.output, kAppend, STDOUT_FILENO) &&
                        Redirect(setup.errors, kAppend, STDERR_FILENO);
  if (setup.inherited < 0) return arranged;
  if (setup.inherited == kInheritedNumber) return arranged && fcntl(3, F_SETFD, 0) == 0;
  return arranged && dup2(setup.inherited, kInheritedNumber) == kInheritedNumber;
}

/// A session of its own: no terminal is left through which it could ask anything.
[[noreturn]] void Start(const ChildProcess::Setup& setup) {
  setsid();
  signal(SIGIO, SIG_DFL);
  if (ArrangeDescriptors(setup) && (setup.view == nullptr || setup.view->Enter()) &&
      Become(setup.user) && chdir(setup.folder.c_str()) == 0) {
    // Tests that are killed because they take too long must not leave it behind.
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    execvpe(setup.command.front().c_str(), Pointers(setup.command).data(),
            Pointers(setup.environment).data());
  }
  perror(setup.command.front().c_str());
  _exit(kNotStarted);
}

}  // namespace

ChildProcess::ChildProcess(const Setup& setup) : id(fork()) {
  if (id == 0) Start(setup);
  EXPECT_GT(id, 0);
}

ChildProcess::~ChildProcess() { Kill(); }

std::optional<int> ChildProcess::ExitStatus() {
  int state = 0;
  if (!status && id > 0 && waitpid(id, &state, WNOHANG) == id) {
    status = WIFEXITED(state) ? WEXITSTATUS(state) : 128 + WTERMSIG(state);
  }
  return status;
}

std::optional<int> ChildProcess::WaitForEnd() {
  WaitUntil([this] { return ExitStatus().has_value(); });
  return status;
}

void ChildProcess::Send(int signal) {
  if (id > 0 && !ExitStatus()) kill(id, signal);
}

void ChildProcess::Kill() {
  if (id <= 0 || ExitStatus()) return;
  kill(id, SIGKILL);
  EXPECT_TRUE(WaitForEnd());
}

bool BecomeRootOfOwnNamespace() {
  const uid_t user = geteuid();
  const gid_t group = getegid();
  return unshare(CLONE_NEWUSER) == 0 && WriteText("/proc/self/setgroups", "deny") &&
         WriteText("/proc/self/uid_map", "0 " + std::to_string(user) + " 1") &&
         WriteText("/proc/self/gid_map", "0 " + std::to_string(group) + " 1");
}

std::string RunCommand(const std::vector<std::string>& command,
                       const std::vector<std::string>& environment) {
  std::string line = "env";
  for (const auto* words : {&environment, &command}) {
    for (const std::string& word : *words) {
      EXPECT_EQ(word.find('\''), std::string::npos) << word;
      line += " '" + word + "'";
    }
  }
  FILE* pipe = popen((line + " </dev/null").c_str(), "re");
  EXPECT_NE(pipe, nullptr) << line;
  if (pipe == nullptr) return {};
  std::string text;
  std::array<char, 4096> piece{};
  while (const std::size_t count = fread(piece.data(), 1, piece.size(), pipe)) {
    text.append(piece.data(), count);
  }
  EXPECT_EQ(pclose(pipe), 0) << line;
  return text;
}
