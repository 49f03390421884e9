#include "tests/endtoend/MountView.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <signal.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>

#include "tests/endtoend/ChildProcess.h"

namespace {

bool MakeOwnView() {
  const bool isRoot = geteuid() == 0;
  return (isRoot || BecomeRootOfOwnNamespace()) && unshare(CLONE_NEWNS) == 0 &&
         mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

/// Lives until it is killed: a view that nobody is in cannot be looked at.
[[noreturn]] void Keep(const std::function<bool()>& arrange, int report) {
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  const char answer = MakeOwnView() && arrange() ? 'y' : 'n';
  if (write(report, &answer, 1) != 1) _exit(1);
  while (true) pause();
}

int OpenNamespace(pid_t process, const char* kind) {
  const std::string path = "/proc/" + std::to_string(process) + "/ns/" + kind;
  return open(path.c_str(), O_RDONLY | O_CLOEXEC);
}

}  // namespace

MountView::MountView(const std::function<bool()>& arrange) {
  std::array<int, 2> ends{};
  EXPECT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
  keeper = fork();
  if (keeper == 0) Keep(arrange, ends[1]);
  close(ends[1]);
  char answer = 0;
  EXPECT_EQ(read(ends[0], &answer, 1), 1);
  EXPECT_EQ(answer, 'y') << "the view could not be made: it takes root, or user namespaces";
  close(ends[0]);
  if (geteuid() != 0) users = OpenNamespace(keeper, "user");
  mounts = OpenNamespace(keeper, "mnt");
  EXPECT_GE(mounts, 0);
}

MountView::~MountView() {
  kill(keeper, SIGKILL);
  EXPECT_EQ(waitpid(keeper, nullptr, 0), keeper);
  if (users >= 0) close(users);
  if (mounts >= 0) close(mounts);
}

std::string MountView::Seen(const std::string& path) const {
  return "/proc/" + std::to_string(keeper) + "/root" + path;
}

bool MountView::MountEmpty(const std::string& place, const std::string& options) {
  return mount("tmpfs", place.c_str(), "tmpfs", 0, options.c_str()) == 0;
}

bool MountView::Bind(const std::string& source, const std::string& place) {
  return mount(source.c_str(), place.c_str(), nullptr, MS_BIND, nullptr) == 0;
}

bool MountView::MakeReadOnly(const std::string& place) {
  return Bind(place, place) &&
         mount(nullptr, place.c_str(), nullptr, MS_BIND | MS_REMOUNT | MS_RDONLY, nullptr) == 0;
}

bool MountView::Enter() const {
  return (users < 0 || setns(users, CLONE_NEWUSER) == 0) && setns(mounts, CLONE_NEWNS) == 0;
}
