#include "tests/installer/GNUstep/HelperTestProcess.h"

#include <dirent.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <thread>

HelperTestProcess::HelperTestProcess() {
  EXPECT_EQ(::prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0), 0);
}

HelperTestProcess::~HelperTestProcess() {
  WaitForAll();
  EXPECT_EQ(::prctl(PR_SET_CHILD_SUBREAPER, 0, 0, 0, 0), 0);
}

void HelperTestProcess::WaitForAll() {
  while (::waitpid(-1, nullptr, 0) > 0 || errno == EINTR) {
  }
  EXPECT_EQ(errno, ECHILD);
}

pid_t HelperTestProcess::Fork(const std::function<int()>& work) {
  const pid_t child = ::fork();
  if (child == 0) {
    ::_exit(work());
  }
  EXPECT_GT(child, 0);
  return child;
}

int HelperTestProcess::Wait(pid_t child) {
  int status = 0;
  EXPECT_EQ(::waitpid(child, &status, 0), child);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

std::string HelperTestProcess::ReadAll(int descriptor) {
  std::string text;
  std::array<char, 4096> buffer{};
  ssize_t count = 0;
  while ((count = ::read(descriptor, buffer.data(), buffer.size())) > 0) {
    text.append(buffer.data(), static_cast<std::size_t>(count));
  }
  return text;
}

bool HelperTestProcess::IsReadable(int descriptor) {
  pollfd entry{descriptor, POLLIN, 0};
  return ::poll(&entry, 1, 0) != 0;
}

bool HelperTestProcess::Await(const std::function<bool()>& condition) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) {
      return false;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return true;
}

std::set<int> HelperTestProcess::Descriptors(const std::string& process) {
  std::set<int> found;
  DIR* folder = ::opendir(("/proc/" + process + "/fd").c_str());
  if (folder == nullptr) {
    ADD_FAILURE() << "no descriptors are shown for process " << process;
    return found;
  }
  while (const dirent* entry = ::readdir(folder)) {
    if (entry->d_name[0] != '.') {
      found.insert(std::atoi(entry->d_name));
    }
  }
  if (process == "self") {
    found.erase(::dirfd(folder));
  }
  ::closedir(folder);
  return found;
}
