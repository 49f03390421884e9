#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <future>
#include <string>

#include "installer/PrivilegedTool.h"

namespace {

/// What ReadChildPid gives for a tool that prints `output` and ends.
std::int32_t PidFrom(const std::string& output) {
  FILE* stream = std::tmpfile();
  EXPECT_NE(stream, nullptr);
  EXPECT_EQ(std::fwrite(output.data(), 1, output.size(), stream), output.size());
  std::rewind(stream);
  const std::int32_t pid = ReadChildPid(stream);
  std::fclose(stream);
  return pid;
}

struct LineCase {
  std::string output;
  std::int32_t pid;
};

TEST(PrivilegedToolTest, TheNumberAtTheStartOfTheFirstLineIsTaken) {
  const LineCase cases[] = {
      {"42\n", 42},
      {"42", 42},
      {"42\n43\n", 42},
      {"  42 tools\n", 42},
      {"-7\n", -7},
      {"+7\n", 7},
      {"0x10\n", 0},
      {"2147483647\n", 2147483647},
      {std::string("12\0"
                   "34\n",
                   6),
       12},
      {std::string(1'000'000, ' ') + "5\n", 5},
      {std::string(1'000'000, '0') + "5", 5},
  };
  for (const LineCase& c : cases) {
    SCOPED_TRACE(c.output.substr(0, 40));
    EXPECT_EQ(PidFrom(c.output), c.pid);
  }
}

TEST(PrivilegedToolTest, ALineWithoutANumberIsWhatAtoiMakesOfIt) {
  for (const std::string output : {"\n", "\n42\n", "tool\n", "\r\n"}) {
    SCOPED_TRACE(output);
    errno = 0;
    const int number = std::atoi("");
    const std::int32_t expected = errno == 0 ? number : -1;
    EXPECT_EQ(PidFrom(output), expected);
  }
}

TEST(PrivilegedToolTest, NothingToReadGivesMinusOne) {
  EXPECT_EQ(PidFrom(""), -1);
  EXPECT_EQ(ReadChildPid(nullptr), -1);
}

TEST(PrivilegedToolTest, AStreamThatCannotBeReadGivesMinusOne) {
  FILE* stream = std::fopen("/dev/null", "w");
  ASSERT_NE(stream, nullptr);
  EXPECT_EQ(ReadChildPid(stream), -1);
  std::fclose(stream);
}

TEST(PrivilegedToolTest, ANumberOutOfRangeGivesMinusOne) {
  EXPECT_EQ(PidFrom("99999999999999999999999\n"), -1);
  EXPECT_EQ(PidFrom("-99999999999999999999999\n"), -1);
}

TEST(PrivilegedToolTest, ANumberOfMoreThan32BitsIsWhatAtoiMakesOfIt) {
  for (const char* number : {"4294967297", "-4294967298", "2147483648"}) {
    EXPECT_EQ(PidFrom(number), std::atoi(number)) << number;
  }
}

TEST(PrivilegedToolTest, AnOldErrorDoesNotSpoilTheNumber) {
  errno = ERANGE;
  EXPECT_EQ(PidFrom("42\n"), 42);
}

TEST(PrivilegedToolTest, BlocksUntilTheToolPrintsALineOrEnds) {
  for (const char* line : {"9\n", ""}) {
    SCOPED_TRACE(line);
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    FILE* stream = fdopen(ends[0], "r");
    std::future<std::int32_t> pid =
        std::async(std::launch::async, [stream] { return ReadChildPid(stream); });
    EXPECT_EQ(pid.wait_for(std::chrono::milliseconds(20)), std::future_status::timeout);
    const std::string text = line;
    EXPECT_EQ(write(ends[1], text.data(), text.size()), static_cast<ssize_t>(text.size()));
    if (text.empty()) close(ends[1]);
    EXPECT_EQ(pid.get(), text.empty() ? -1 : 9);
    if (!text.empty()) close(ends[1]);
    std::fclose(stream);
  }
}

class OneLaunch : public Authorization {
 public:
  int Create() override { return 0; }
  int CopyRights(const std::string&) override { return 0; }
  int ExecuteWithPrivileges(const std::string& tool, const std::vector<std::string>& arguments,
                            FILE** pipe) override {
    launched = tool;
    for (const std::string& argument : arguments) launched += '|' + argument;
    *pipe = stdin;
    return -60031;
  }
  void Free() override {}

  std::string launched;
};

TEST(PrivilegedToolTest, RunPrivilegedHandsEverythingOnAndReturnsTheStatus) {
  OneLaunch authorization;
  FILE* pipe = nullptr;
  EXPECT_EQ(RunPrivileged(authorization, "/bin/rm", {"-rf", "/a b/", ""}, &pipe), -60031);
  EXPECT_EQ(authorization.launched, "/bin/rm|-rf|/a b/|");
  EXPECT_EQ(pipe, stdin);
}

}  // namespace
