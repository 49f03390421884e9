#include "tests/support/OrdinaryUser.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr uid_t kNobody = 65534;
constexpr int kYes = 0;
constexpr int kNo = 1;
constexpr int kStillRoot = 2;

int Answer(const std::function<bool()>& question) {
  const bool dropped = getuid() != 0 || (setgid(kNobody) == 0 && setuid(kNobody) == 0);
  if (!dropped) return kStillRoot;
  return question() ? kYes : kNo;
}

}  // namespace

bool AskAsOrdinaryUser(const std::function<bool()>& question) {
  const pid_t child = fork();
  if (child == 0) _exit(Answer(question));
  int status = 0;
  EXPECT_EQ(waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFEXITED(status));
  EXPECT_LE(WEXITSTATUS(status), kNo);
  return WIFEXITED(status) && WEXITSTATUS(status) == kYes;
}
