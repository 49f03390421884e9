#include <gtest/gtest.h>
#include <signal.h>
#include <sys/socket.h>

#include <algorithm>
#include <cstddef>
#include <string>

#include "installer/GNUstep/AuthorizationStatus.h"
#include "tests/installer/GNUstep/HelperTestClient.h"
#include "tests/installer/GNUstep/HelperTestFolder.h"
#include "tests/installer/GNUstep/HelperTestProcess.h"

namespace {

/// The root helper as a program, which is sent everything but a whole request of
/// the installer. It answers and complains each time, and runs nothing.
class RootHelperRecordsTest : public testing::Test {
 protected:
  void SetUp() override {
    client.Start();
    ASSERT_TRUE(client.IsGreeted());
  }

  void ExpectRefusal(const std::string& record) {
    ASSERT_TRUE(client.SendRecord(record)) << record.size();
    EXPECT_NE(client.ReceiveStatus().value_or(kAuthorizationSuccess), kAuthorizationSuccess)
        << record.size();
    EXPECT_FALSE(client.Pipe().IsOpen()) << record.size();
    ++refusals;
  }

  // That it still serves shows that it was no crash that kept the others from running.
  void ExpectThatNothingRan() {
    EXPECT_FALSE(HelperTestFolder::Exists(made));
    EXPECT_EQ(client.Ask({"/bin/mkdir", folder.Path("last")}), 0);
    EXPECT_EQ(client.Finish(), 0);
    EXPECT_TRUE(HelperTestFolder::Exists(folder.Path("last")));
    EXPECT_FALSE(HelperTestFolder::Exists(made));
    EXPECT_EQ(std::count(client.Errors().begin(), client.Errors().end(), '\n'), refusals);
    EXPECT_EQ(client.Errors().find(made), std::string::npos);
  }

  HelperTestFolder folder;
  const std::string made = folder.Path("made");
  const std::string request =
      HelperMessage(HelperMessage::Kind::kRequest, {"/bin/mkdir", made}).Encode().value_or("");
  HelperTestClient client;
  std::ptrdiff_t refusals = 0;
};

TEST_F(RootHelperRecordsTest, ARequestThatEndsAtAnyByteIsRefused) {
  for (std::size_t length = 0; length < request.size(); ++length) {
    ASSERT_NO_FATAL_FAILURE(ExpectRefusal(request.substr(0, length)));
  }
  ExpectThatNothingRan();
}

TEST_F(RootHelperRecordsTest, ARequestSplitAtAnyByteIsTwoRefusals) {
  for (std::size_t at = 1; at < request.size(); ++at) {
    ASSERT_NO_FATAL_FAILURE(ExpectRefusal(request.substr(0, at)));
    ASSERT_NO_FATAL_FAILURE(ExpectRefusal(request.substr(at)));
  }
  ExpectThatNothingRan();
}

TEST_F(RootHelperRecordsTest, ARequestWithAnythingBehindItIsRefusedHoweverLong) {
  for (const std::size_t extra : {std::size_t{1}, HelperMessage::kMaxBytes - request.size(),
                                  HelperMessage::kMaxBytes - request.size() + 1,
                                  HelperMessage::kMaxBytes, 2 * HelperMessage::kMaxBytes}) {
    for (const char filler : {'\0', 'x', '/'}) {
      ASSERT_NO_FATAL_FAILURE(ExpectRefusal(request + std::string(extra, filler)));
    }
  }
  ExpectThatNothingRan();
}

TEST_F(RootHelperRecordsTest, TwoRequestsInOneRecordAreRefused) {
  ASSERT_NO_FATAL_FAILURE(ExpectRefusal(request + request));
  ExpectThatNothingRan();
}

TEST_F(RootHelperRecordsTest, ADamagedHeaderIsRefused) {
  const std::size_t header = request.find("/bin/mkdir");
  for (std::size_t at = 0; at < header; ++at) {
    for (const int bit : {1, 2, 4, 8, 16, 32, 64}) {
      std::string damaged = request;
      damaged[at] = static_cast<char>(damaged[at] ^ bit);
      ASSERT_NO_FATAL_FAILURE(ExpectRefusal(damaged));
    }
  }
  ExpectThatNothingRan();
}

// Whoever inherits or is handed the installer's end of the socket is not the installer.
TEST_F(RootHelperRecordsTest, AWholeRequestOfAnotherProcessIsRefused) {
  const pid_t other =
      HelperTestProcess::Fork([this] { return client.SendRecord(request) ? 0 : 1; });
  ASSERT_EQ(HelperTestProcess::Wait(other), 0);
  EXPECT_EQ(client.ReceiveStatus(), kAuthorizationToolEnvironmentError);
  EXPECT_FALSE(client.Pipe().IsOpen());
  ++refusals;
  ExpectThatNothingRan();
  EXPECT_EQ(client.Errors(),
            "OstrelInstallerHelper: A message of another process than the installer was "
            "refused.\n");
}

// A flood of complaints that nobody reads must neither run anything nor keep it from ending.
TEST_F(RootHelperRecordsTest, ItEndsAfterAFloodWhoseAnswersNobodyReads) {
  client.StopReadingErrors();
  int sent = 0;
  while (sent < 100000 && client.SendRecord("nonsense")) {
    ++sent;
  }
  EXPECT_LT(sent, 100000);
  EXPECT_EQ(client.Finish(), 0);
  EXPECT_FALSE(HelperTestFolder::Exists(made));
}

}  // namespace
