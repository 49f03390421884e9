#include "Src/HXUI/Cocoa/ApplicationStart.h"

#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <filesystem>

#import "tests/Src/HXUI/NativeEvents.h"

namespace {

/// The start of this very program, which all tests have behind them, and of another one.
class ApplicationStartTest : public ::testing::Test {
 protected:
  ApplicationStartTest() : pool([[NSAutoreleasePool alloc] init]) {}
  ~ApplicationStartTest() override { [pool drain]; }

  static bool EndsTheProgram(int number) {
    struct sigaction action {};
    return sigaction(number, nullptr, &action) == 0 && action.sa_handler == SIG_DFL;
  }

  static NSEvent* NextEvent(NSDate* limit) {
    return [NSApp nextEventMatchingMask:NSAnyEventMask
                              untilDate:limit
                                 inMode:NSDefaultRunLoopMode
                                dequeue:YES];
  }

 private:
  NSAutoreleasePool* pool;
};

TEST_F(ApplicationStartTest, TheUsualSignalsEndTheProgram) {
  EXPECT_TRUE(EndsTheProgram(SIGTERM));
  EXPECT_TRUE(EndsTheProgram(SIGINT));
}

TEST_F(ApplicationStartTest, ThePlatformTakesItsLocksInEarnest) {
  EXPECT_TRUE([NSThread isMultiThreaded]);
}

TEST_F(ApplicationStartTest, ItsWishesAreDefaultsOnly) {
  NSUserDefaults* defaults = [NSUserDefaults standardUserDefaults];
  NSDictionary* registered = [defaults volatileDomainForName:NSRegistrationDomain];
  EXPECT_TRUE([[registered objectForKey:@"GSSuppressAppIcon"] boolValue]);
  EXPECT_TRUE([[registered objectForKey:@"GSLogWorkspaceTimeout"] boolValue]);
  EXPECT_TRUE(
      [[registered objectForKey:@"NSMenuInterfaceStyle"] isEqual:@"NSMacintoshInterfaceStyle"]);
}

TEST_F(ApplicationStartTest, WithoutADisplayItSaysSoAndFails) {
  const std::string program = std::filesystem::read_symlink("/proc/self/exe");
  FILE* output =
      popen(("env -u DISPLAY '" + program + "' --gtest_filter=nothing 2>&1").c_str(), "r");
  ASSERT_NE(output, nullptr);
  char line[256] = "";
  std::string said;
  while (std::fgets(line, sizeof line, output) != nullptr) said += line;
  const int status = pclose(output);
  EXPECT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 1);
  EXPECT_TRUE(said.ends_with("This test needs a graphical session: no display could be opened.\n"))
      << said;
}

TEST_F(ApplicationStartTest, AnEventInTheQueueEndsAWaitOnce) {
  NSRunLoop* loop = [NSRunLoop currentRunLoop];
  // Until the start's own events and inputs are served: then a wait lasts as long as it may.
  NSDate* until = nil;
  do {
    while (NextEvent(nil) != nil) {
    }
    until = [NSDate dateWithTimeIntervalSinceNow:0.2];
    [loop runMode:NSDefaultRunLoopMode beforeDate:until];
  } while ([until timeIntervalSinceNow] > 0);

  // A single wait may happen to be ended by something else.
  for (int event = 0; event < 3; ++event) {
    PostEmptyEvent();
    until = [NSDate dateWithTimeIntervalSinceNow:20];
    [loop runMode:NSDefaultRunLoopMode beforeDate:until];
    EXPECT_GT([until timeIntervalSinceNow], 10) << "it waited although there was an event";
  }
  // Once noticed, the event may lie there without keeping the processor busy.
  int waits = 0;
  until = [NSDate dateWithTimeIntervalSinceNow:0.1];
  while ([until timeIntervalSinceNow] > 0 && waits < 1000) {
    [loop runMode:NSDefaultRunLoopMode beforeDate:until];
    ++waits;
  }
  EXPECT_LT(waits, 50);
  for (int event = 0; event < 3; ++event) EXPECT_NE(NextEvent([NSDate distantFuture]), nil);
}

}  // namespace
