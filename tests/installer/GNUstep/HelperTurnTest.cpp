#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <optional>
#include <utility>

#include "installer/GNUstep/HelperTurn.h"
#include "tests/installer/GNUstep/HelperTestFolder.h"
#include "tests/installer/GNUstep/HelperTestProcess.h"

namespace {

class HelperTurnTest : public testing::Test {
 protected:
  HelperTestFolder folder;
  std::optional<HelperTurn> first = HelperTurn(folder.Path(""));
  HelperTurn second{folder.Path("")};
};

TEST_F(HelperTurnTest, OneHasItAtATime) {
  EXPECT_TRUE(first->Take());
  EXPECT_TRUE(first->Take());
  EXPECT_FALSE(second.Take());
  EXPECT_FALSE(second.Take());
  first.reset();
  EXPECT_TRUE(second.Take());
}

TEST_F(HelperTurnTest, IsFreeUntilItIsTaken) {
  EXPECT_TRUE(second.Take());
  EXPECT_FALSE(first->Take());
}

TEST_F(HelperTurnTest, IsHeldByTheProgramsStartedMeanwhile) {
  ASSERT_TRUE(first->Take());
  std::array<int, 2> ends{};
  ASSERT_EQ(::pipe(ends.data()), 0);
  const pid_t program = HelperTestProcess::Fork([&ends] {
    ::dup2(ends[0], STDIN_FILENO);
    ::close(ends[0]);
    ::close(ends[1]);
    ::execl("/bin/cat", "cat", nullptr);
    return 127;
  });
  ::close(ends[0]);
  first.reset();
  EXPECT_FALSE(second.Take());
  ::close(ends[1]);
  EXPECT_EQ(HelperTestProcess::Wait(program), 0);
  EXPECT_TRUE(second.Take());
}

TEST_F(HelperTurnTest, WithoutTheFolderEveryoneHasIt) {
  HelperTurn one(folder.Path("missing"));
  HelperTurn other(folder.Path("missing"));
  EXPECT_TRUE(one.Take());
  EXPECT_TRUE(other.Take());
}

TEST_F(HelperTurnTest, LeavesNoDescriptorBehind) {
  const auto before = HelperTestProcess::Descriptors();
  for (int round = 0; round < 2; ++round) {
    std::optional<HelperTurn> turn = HelperTurn(folder.Path(""));
    EXPECT_TRUE(turn->Take());
    EXPECT_FALSE(second.Take());
    turn.reset();
  }
  EXPECT_EQ(HelperTestProcess::Descriptors(), before);
}

}  // namespace
