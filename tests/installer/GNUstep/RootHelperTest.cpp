#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "installer/GNUstep/AuthorizationStatus.h"
#include "installer/GNUstep/RootHelper.h"
#include "tests/installer/GNUstep/HelperTestClient.h"
#include "tests/installer/GNUstep/HelperTestFolder.h"
#include "tests/installer/GNUstep/HelperTestProcess.h"

namespace {

using Kind = HelperMessage::Kind;

std::string Record(Kind kind, const std::vector<std::string>& words) {
  return HelperMessage(kind, words).Encode().value_or("");
}

class RootHelperTest : public testing::Test {
 protected:
  RootHelperTest() { EXPECT_EQ(::mkfifo(gate.c_str(), 0600), 0); }

  // Tools of which one waits for `gate` and prints what comes through it.
  void ServeWithGate() {
    client.Serve(HelperToolTable({{"/wait", {{}}, {"/bin/cat"}},
                                  {"/make", {{}}, {"/bin/mkdir"}},
                                  {"/list", {{}}, {"/bin/ls"}},
                                  {"/gone", {{}}, {folder.Path("no program")}}}));
    ASSERT_TRUE(client.IsGreeted());
  }

  // Opens the gate; the waiting tool ends when the result is closed.
  HelperDescriptor OpenGate() const { return HelperDescriptor(::open(gate.c_str(), O_WRONLY)); }

  HelperTestFolder folder;
  const std::string gate = folder.Path("gate");
  const std::string made = folder.Path("made");
  HelperTestClient client;
};

TEST_F(RootHelperTest, EndsWellWhenTheInstallerHangsUp) {
  ServeWithGate();
  EXPECT_EQ(client.Finish(), 0);
  EXPECT_EQ(client.Errors(), "");
}

TEST_F(RootHelperTest, EndsWhenNobodyIsThereToGreet) {
  client.Serve(HelperToolTable({}));
  client.HangUp();
  const int status = client.Finish();
  EXPECT_TRUE(status == 0 || status == 1) << status;  // The greeting may have been sent before.
}

TEST_F(RootHelperTest, AnswersWhileAToolRuns) {
  ServeWithGate();
  ASSERT_EQ(client.Ask({"/wait", gate}), 0);
  const HelperDescriptor waiting = client.TakePipe();
  ASSERT_EQ(client.Ask({"/make", made}), 0);
  const HelperDescriptor making = client.TakePipe();
  EXPECT_EQ(client.Ask({"/other"}), kAuthorizationToolExecuteFailure);
  {
    const HelperDescriptor opened = OpenGate();
    EXPECT_FALSE(HelperTestProcess::IsReadable(waiting.Number()));
    EXPECT_FALSE(HelperTestProcess::IsReadable(making.Number()));
    EXPECT_FALSE(HelperTestFolder::Exists(made));
    EXPECT_EQ(::write(opened.Number(), "printed", 7), 7);
  }
  EXPECT_EQ(HelperTestProcess::ReadAll(waiting.Number()), "printed");
  EXPECT_EQ(HelperTestProcess::ReadAll(making.Number()), "");
  EXPECT_TRUE(HelperTestFolder::Exists(made));
}

TEST_F(RootHelperTest, GivesAToolNoPipeButItsOwn) {
  ServeWithGate();
  ASSERT_EQ(client.Ask({"/wait", gate}), 0);
  ASSERT_EQ(client.Ask({"/list", "/proc/self/fd"}), 0);
  const HelperDescriptor list = client.TakePipe();
  ASSERT_EQ(client.Ask({"/make", made}), 0);
  OpenGate().Close();
  // The fourth is the folder that ls reads.
  EXPECT_EQ(HelperTestProcess::ReadAll(list.Number()), "0\n1\n2\n3\n");
}

TEST_F(RootHelperTest, FinishesItsQueueAfterTheInstallerHasGone) {
  ServeWithGate();
  ASSERT_EQ(client.Ask({"/wait", gate}), 0);
  ASSERT_EQ(client.Ask({"/make", made}), 0);
  client.HangUp();
  EXPECT_FALSE(HelperTestFolder::Exists(made));
  OpenGate().Close();
  EXPECT_EQ(client.Finish(), 0);
  EXPECT_TRUE(HelperTestFolder::Exists(made));
}

TEST_F(RootHelperTest, RunsNothingWhileItIsTheTurnOfAnother) {
  ASSERT_EQ(::geteuid(), 0U) << "Only root's helpers take turns: run this as root.";
  std::optional<HelperTurn> turn = HelperTurn::OfThisMachine();
  ASSERT_TRUE(HelperTestProcess::Await([&turn] { return turn->Take(); }));
  client.Start();
  ASSERT_TRUE(client.IsGreeted());
  ASSERT_EQ(client.Ask({"/bin/mkdir", made}), 0);
  const HelperDescriptor making = client.TakePipe();
  EXPECT_NE(client.Ask({"/bin/sh"}), 0);
  EXPECT_FALSE(HelperTestProcess::IsReadable(making.Number()));
  EXPECT_FALSE(HelperTestFolder::Exists(made));
  turn.reset();
  EXPECT_EQ(HelperTestProcess::ReadAll(making.Number()), "");
  EXPECT_TRUE(HelperTestFolder::Exists(made));
  // It is this one's turn now, until it ends.
  EXPECT_FALSE(HelperTurn::OfThisMachine().Take());
  EXPECT_EQ(client.Finish(), 0);
}

TEST_F(RootHelperTest, RunsARequestWhoseAnswerNobodyTakes) {
  ServeWithGate();
  ASSERT_TRUE(client.SendRecord(Record(Kind::kRequest, {"/make", made})));
  EXPECT_EQ(client.Finish(), 0);
  EXPECT_TRUE(HelperTestFolder::Exists(made));
}

TEST_F(RootHelperTest, HangsUpOnAnInstallerThatTakesNoAnswers) {
  ServeWithGate();
  ASSERT_EQ(client.Ask({"/make", made}), 0);
  int sent = 0;
  while (sent < 1000000 && client.SendRecord(Record(Kind::kRequest, {"/wait", "/dev/null"}))) {
    ++sent;
  }
  EXPECT_GT(sent, 0);
  EXPECT_LT(sent, 1000000);
  EXPECT_EQ(client.Finish(), 0);
  EXPECT_TRUE(HelperTestFolder::Exists(made));
}

TEST_F(RootHelperTest, TellsAtOnceThatAProgramIsMissing) {
  ServeWithGate();
  EXPECT_EQ(client.Ask({"/gone", "/a"}), kAuthorizationToolExecuteFailure);
  EXPECT_FALSE(client.Pipe().IsOpen());
  EXPECT_EQ(client.Finish(), 0);
  EXPECT_EQ(client.Errors(),
            "OstrelInstallerHelper: " + folder.Path("no program") + " can not be executed.\n");
}

TEST_F(RootHelperTest, RefusesWhateverIsNoRequestWithOneLineEach) {
  client.Start();
  ASSERT_TRUE(client.IsGreeted());
  const std::string good = Record(Kind::kRequest, {"/bin/mkdir", made});
  const std::vector<std::string> records = {
      "nonsense",
      "",
      good.substr(0, good.size() - 1),
      good + "x",
      good + std::string(2 * HelperMessage::kMaxBytes, '\0'),
      Record(Kind::kHello, {}),
      Record(Kind::kHello, {"/bin/mkdir", made}),
      Record(Kind::kAnswer, {"0"}),
  };
  for (const std::string& record : records) {
    ASSERT_TRUE(client.SendRecord(record));
    EXPECT_EQ(client.ReceiveStatus(), kAuthorizationToolEnvironmentError);
    EXPECT_FALSE(client.Pipe().IsOpen());
  }
  EXPECT_EQ(client.Finish(), 0);
  std::string expected;
  for (std::size_t each = 0; each < records.size(); ++each) {
    expected += "OstrelInstallerHelper: A message that is not a request was refused.\n";
  }
  EXPECT_EQ(client.Errors(), expected);
  EXPECT_FALSE(HelperTestFolder::Exists(made));
}

TEST_F(RootHelperTest, RefusesOtherToolsAndArgumentsWithOneLineEach) {
  client.Start();
  ASSERT_TRUE(client.IsGreeted());
  const std::vector<std::vector<std::string>> requests = {
      {},
      {"/bin/sh", "-c", "mkdir " + made},
      {"mkdir", made},
      {"/bin/cp", "-a", "/etc/passwd", made},
      {"/bin/mkdir", "-p", made},
      {"/bin/mkdir", "relative"},
      {"/bin/rm", "-rf", "--no-preserve-root", "/"},
  };
  for (const auto& request : requests) {
    const auto status = client.Ask(request);
    ASSERT_TRUE(status.has_value());
    EXPECT_NE(*status, kAuthorizationSuccess);
    EXPECT_FALSE(client.Pipe().IsOpen());
  }
  EXPECT_EQ(client.Finish(), 0);
  EXPECT_EQ(std::count(client.Errors().begin(), client.Errors().end(), '\n'),
            static_cast<std::ptrdiff_t>(requests.size()));
  EXPECT_FALSE(HelperTestFolder::Exists(made));
}

TEST_F(RootHelperTest, ServesAfterARefusal) {
  client.Start();
  ASSERT_TRUE(client.IsGreeted());
  ASSERT_TRUE(client.SendRecord("nonsense"));
  EXPECT_EQ(client.ReceiveStatus(), kAuthorizationToolEnvironmentError);
  EXPECT_EQ(client.Ask({"/bin/mkdir", made}), 0);
  EXPECT_EQ(client.Finish(), 0);
  EXPECT_TRUE(HelperTestFolder::Exists(made));
}

}  // namespace
