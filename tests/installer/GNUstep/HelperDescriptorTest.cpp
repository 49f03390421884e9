#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <utility>

#include "installer/GNUstep/HelperDescriptor.h"
#include "tests/installer/GNUstep/HelperTestProcess.h"

namespace {

int OpenNull() { return ::open("/dev/null", O_RDONLY | O_CLOEXEC); }

bool IsOpen(int descriptor) { return ::fcntl(descriptor, F_GETFD) >= 0; }

TEST(HelperDescriptorTest, OwnsNothingAtFirst) {
  HelperDescriptor descriptor;
  EXPECT_FALSE(descriptor.IsOpen());
  EXPECT_EQ(descriptor.Number(), -1);
  descriptor.Close();
  EXPECT_EQ(descriptor.Release(), -1);
}

TEST(HelperDescriptorTest, ClosesWhatItOwns) {
  const int number = OpenNull();
  {
    HelperDescriptor descriptor(number);
    EXPECT_EQ(descriptor.Number(), number);
    EXPECT_TRUE(IsOpen(number));
  }
  EXPECT_FALSE(IsOpen(number));
}

TEST(HelperDescriptorTest, OwnsTheFirstDescriptorToo) {
  const pid_t child = HelperTestProcess::Fork([] {
    HelperDescriptor(0).Close();
    return IsOpen(0) ? 1 : 0;
  });
  EXPECT_EQ(HelperTestProcess::Wait(child), 0);
}

TEST(HelperDescriptorTest, MovesItsOwnership) {
  const int first = OpenNull();
  const int second = OpenNull();
  HelperDescriptor source(first);
  HelperDescriptor target(second);
  target = std::move(source);
  EXPECT_FALSE(IsOpen(second));
  EXPECT_EQ(target.Number(), first);
  HelperDescriptor last(std::move(target));
  EXPECT_EQ(last.Number(), first);
  EXPECT_TRUE(IsOpen(first));
}

TEST(HelperDescriptorTest, KeepsWhatIsAssignedToItself) {
  HelperDescriptor descriptor(OpenNull());
  HelperDescriptor& same = descriptor;
  descriptor = std::move(same);
  EXPECT_TRUE(IsOpen(descriptor.Number()));
}

TEST(HelperDescriptorTest, ReleasesWithoutClosing) {
  HelperDescriptor descriptor(OpenNull());
  const int number = descriptor.Release();
  EXPECT_FALSE(descriptor.IsOpen());
  EXPECT_EQ(descriptor.Number(), -1);
  EXPECT_TRUE(IsOpen(number));
  ::close(number);
}

TEST(HelperDescriptorTest, ClosesAllFromANumberOn) {
  const pid_t child = HelperTestProcess::Fork([] {
    const bool arranged = ::dup2(0, 200) == 200 && ::dup2(0, 900) == 900;
    HelperDescriptor::CloseAllFrom(200);
    return arranged && IsOpen(0) && !IsOpen(200) && !IsOpen(900) ? 0 : 1;
  });
  EXPECT_EQ(HelperTestProcess::Wait(child), 0);
}

}  // namespace
