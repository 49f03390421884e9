#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <string>
#include <utility>

#include "installer/GNUstep/HelperChannel.h"
#include "tests/installer/GNUstep/HelperTestProcess.h"

namespace {

using Kind = HelperMessage::Kind;
using Receipt = HelperChannel::Receipt;

class HelperChannelTest : public testing::Test {
 protected:
  HelperChannelTest() {
    std::array<int, 2> ends{};
    EXPECT_EQ(::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()), 0);
    near = HelperChannel(HelperDescriptor(ends[0]));
    far = HelperChannel(HelperDescriptor(ends[1]));
  }

  // Sends raw bytes with copies of standard input attached.
  void SendRaw(const std::string& bytes, int descriptors) const {
    std::string copy = bytes;
    iovec part{copy.data(), copy.size()};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(4 * sizeof(int))> control{};
    msghdr header{};
    header.msg_iov = &part;
    header.msg_iovlen = 1;
    if (descriptors > 0) {
      const std::array<int, 4> numbers{};
      const std::size_t size = static_cast<std::size_t>(descriptors) * sizeof(int);
      header.msg_control = control.data();
      header.msg_controllen = CMSG_SPACE(size);
      cmsghdr* item = CMSG_FIRSTHDR(&header);
      item->cmsg_level = SOL_SOCKET;
      item->cmsg_type = SCM_RIGHTS;
      item->cmsg_len = CMSG_LEN(size);
      std::memcpy(CMSG_DATA(item), numbers.data(), size);
    }
    ASSERT_EQ(::sendmsg(near.Number(), &header, MSG_NOSIGNAL), static_cast<ssize_t>(bytes.size()));
  }

  const HelperMessage hello{Kind::kHello, {}};
  HelperChannel near;
  HelperChannel far;
  HelperMessage received;
};

TEST_F(HelperChannelTest, KeepsMessagesApartAndInOrder) {
  EXPECT_TRUE(near.Send(HelperMessage(Kind::kRequest, {"/a"})));
  EXPECT_TRUE(near.Send(HelperMessage(Kind::kRequest, {"/b", "c"})));
  ASSERT_EQ(far.Receive(&received, nullptr), Receipt::kMessage);
  EXPECT_EQ(received.words, std::vector<std::string>({"/a"}));
  ASSERT_EQ(far.Receive(&received, nullptr), Receipt::kMessage);
  EXPECT_EQ(received.words, std::vector<std::string>({"/b", "c"}));
}

TEST_F(HelperChannelTest, CarriesTheLongestMessage) {
  const std::string word(HelperMessage::kMaxBytes - 7, 'x');
  EXPECT_TRUE(near.Send(HelperMessage(Kind::kRequest, {word})));
  ASSERT_EQ(far.Receive(&received, nullptr), Receipt::kMessage);
  EXPECT_EQ(received.words.front(), word);
}

TEST_F(HelperChannelTest, DoesNotSendWhatCanNotBeEncoded) {
  EXPECT_FALSE(near.Send(HelperMessage(Kind::kRequest, {std::string(1, '\0')})));
  EXPECT_FALSE(HelperTestProcess::IsReadable(far.Number()));
}

TEST_F(HelperChannelTest, CarriesADescriptorThatDoesNotOutliveExec) {
  std::array<int, 2> pipe{};
  ASSERT_EQ(::pipe(pipe.data()), 0);
  EXPECT_TRUE(near.SendAtOnce(hello, pipe[1]));
  ::close(pipe[1]);
  HelperDescriptor descriptor;
  ASSERT_EQ(far.Receive(&received, &descriptor), Receipt::kMessage);
  ASSERT_TRUE(descriptor.IsOpen());
  EXPECT_EQ(::fcntl(descriptor.Number(), F_GETFD), FD_CLOEXEC);
  EXPECT_EQ(::write(descriptor.Number(), "x", 1), 1);
  descriptor.Close();
  EXPECT_EQ(HelperTestProcess::ReadAll(pipe[0]), "x");
  ::close(pipe[0]);
}

TEST_F(HelperChannelTest, ClearsTheDescriptorWhenNoneCame) {
  HelperDescriptor descriptor(::open("/dev/null", O_RDONLY));
  EXPECT_TRUE(near.Send(hello));
  EXPECT_EQ(far.Receive(&received, &descriptor), Receipt::kMessage);
  EXPECT_FALSE(descriptor.IsOpen());
}

TEST_F(HelperChannelTest, TakesNoUnwantedDescriptor) {
  const auto before = HelperTestProcess::Descriptors();
  SendRaw(*hello.Encode(), 1);
  EXPECT_EQ(far.Receive(&received, nullptr), Receipt::kMalformed);
  HelperDescriptor descriptor;
  SendRaw(*hello.Encode(), 2);
  EXPECT_EQ(far.Receive(&received, &descriptor), Receipt::kMalformed);
  EXPECT_FALSE(descriptor.IsOpen());
  EXPECT_EQ(HelperTestProcess::Descriptors(), before);
}

TEST_F(HelperChannelTest, TellsMalformedRecordsFromTheEnd) {
  SendRaw("nonsense", 0);
  EXPECT_EQ(far.Receive(&received, nullptr), Receipt::kMalformed);
  SendRaw("", 0);
  EXPECT_EQ(far.Receive(&received, nullptr), Receipt::kMalformed);
  SendRaw(*hello.Encode() + std::string(HelperMessage::kMaxBytes, 'x'), 0);
  EXPECT_EQ(far.Receive(&received, nullptr), Receipt::kMalformed);
  near.Close();
  EXPECT_EQ(far.Receive(&received, nullptr), Receipt::kEnd);
  EXPECT_EQ(far.Receive(&received, nullptr), Receipt::kEnd);
}

TEST_F(HelperChannelTest, RaisesNoSignalWhenTheOtherEndHasGone) {
  far.Close();
  EXPECT_FALSE(near.Send(hello));
  EXPECT_FALSE(near.SendAtOnce(hello, STDERR_FILENO));
}

TEST_F(HelperChannelTest, FailsWithoutASocket) {
  const HelperChannel none;
  EXPECT_FALSE(none.IsOpen());
  EXPECT_EQ(none.Number(), -1);
  EXPECT_FALSE(none.Send(hello));
  EXPECT_EQ(none.Receive(&received, nullptr), Receipt::kEnd);
}

TEST_F(HelperChannelTest, ReadsWhatWasSentByAPeerThatDiedWithUnreadAnswers) {
  EXPECT_TRUE(near.Send(HelperMessage(Kind::kRequest, {"/last"})));
  EXPECT_TRUE(far.Send(hello));
  near.Close();
  ASSERT_EQ(far.Receive(&received, nullptr), Receipt::kMessage);
  EXPECT_EQ(received.words.front(), "/last");
  EXPECT_EQ(far.Receive(&received, nullptr), Receipt::kEnd);
}

TEST_F(HelperChannelTest, DoesNotWaitForRoomWhenSendingAtOnce) {
  int sent = 0;
  while (sent < 1000000 && near.SendAtOnce(hello, -1)) {
    ++sent;
  }
  EXPECT_GT(sent, 0);
  EXPECT_LT(sent, 1000000);
}

TEST_F(HelperChannelTest, KnowsTheSocketThatItNeeds) {
  EXPECT_TRUE(HelperChannel::IsSuitable(near.Number()));
  EXPECT_FALSE(HelperChannel::IsSuitable(-1));
  const HelperDescriptor file(::open("/dev/null", O_RDWR));
  EXPECT_FALSE(HelperChannel::IsSuitable(file.Number()));
  for (const int type : {SOCK_STREAM, SOCK_DGRAM}) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::socketpair(AF_UNIX, type, 0, ends.data()), 0);
    EXPECT_FALSE(HelperChannel::IsSuitable(ends[0]));
    ::close(ends[0]);
    ::close(ends[1]);
  }
  const HelperDescriptor unconnected(::socket(AF_UNIX, SOCK_SEQPACKET, 0));
  EXPECT_FALSE(HelperChannel::IsSuitable(unconnected.Number()));
}

TEST_F(HelperChannelTest, TakesNoConnectionThatCameInUnderAName) {
  const HelperDescriptor listening(::socket(AF_UNIX, SOCK_SEQPACKET, 0));
  sockaddr_un address{AF_UNIX, {}};
  const std::string name = "ostrel-channel-test-" + std::to_string(::getpid());
  std::memcpy(address.sun_path + 1, name.data(), name.size());  // Not in the file system.
  auto* plain = reinterpret_cast<sockaddr*>(&address);
  ASSERT_EQ(::bind(listening.Number(), plain, sizeof(address)), 0);
  ASSERT_EQ(::listen(listening.Number(), 1), 0);
  const HelperDescriptor connecting(::socket(AF_UNIX, SOCK_SEQPACKET, 0));
  ASSERT_EQ(::connect(connecting.Number(), plain, sizeof(address)), 0);
  const HelperDescriptor accepted(::accept(listening.Number(), nullptr, nullptr));
  ASSERT_TRUE(accepted.IsOpen());
  EXPECT_FALSE(HelperChannel::IsSuitable(accepted.Number()));
  EXPECT_FALSE(HelperChannel::IsSuitable(connecting.Number()));
}

TEST_F(HelperChannelTest, OnceToldTakesRecordsOfTheMakerOnly) {
  const auto sendFromAChild = [this] {
    return HelperTestProcess::Wait(
        HelperTestProcess::Fork([this] { return near.Send(hello) ? 0 : 1; }));
  };
  ASSERT_EQ(sendFromAChild(), 0);
  EXPECT_EQ(far.Receive(&received, nullptr), Receipt::kMessage);
  ASSERT_TRUE(far.TrustOnlyTheMaker());
  ASSERT_EQ(sendFromAChild(), 0);
  EXPECT_EQ(far.Receive(&received, nullptr), Receipt::kStranger);
  EXPECT_TRUE(near.Send(hello));
  EXPECT_EQ(far.Receive(&received, nullptr), Receipt::kMessage);
}

TEST_F(HelperChannelTest, OnceToldStillTakesNoUnwantedDescriptor) {
  ASSERT_TRUE(far.TrustOnlyTheMaker());
  const auto before = HelperTestProcess::Descriptors();
  SendRaw(*hello.Encode(), 1);
  EXPECT_EQ(far.Receive(&received, nullptr), Receipt::kMalformed);
  HelperDescriptor descriptor;
  SendRaw(*hello.Encode(), 2);
  EXPECT_EQ(far.Receive(&received, &descriptor), Receipt::kMalformed);
  SendRaw(*hello.Encode(), 1);
  EXPECT_EQ(far.Receive(&received, &descriptor), Receipt::kMessage);
  EXPECT_TRUE(descriptor.IsOpen());
  descriptor.Close();
  EXPECT_EQ(HelperTestProcess::Descriptors(), before);
}

TEST_F(HelperChannelTest, ARecordThatWaitedWhenToldIsOfAStranger) {
  EXPECT_TRUE(near.Send(hello));
  ASSERT_TRUE(far.TrustOnlyTheMaker());
  EXPECT_EQ(far.Receive(&received, nullptr), Receipt::kStranger);
  EXPECT_FALSE(HelperChannel().TrustOnlyTheMaker());
}

}  // namespace
