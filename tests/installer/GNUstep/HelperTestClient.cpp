#include "tests/installer/GNUstep/HelperTestClient.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <utility>

#include "installer/GNUstep/RootHelper.h"
#include "tests/installer/GNUstep/HelperTestProcess.h"

HelperTestClient::~HelperTestClient() {
  if (process > 0) {
    Finish();
  }
}

void HelperTestClient::Fork(const std::function<int()>& work) {
  std::array<int, 2> sockets{};
  std::array<int, 2> pipes{};
  ASSERT_EQ(::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, sockets.data()), 0);
  ASSERT_EQ(::pipe2(pipes.data(), O_CLOEXEC), 0);
  channel = HelperChannel(HelperDescriptor(sockets[0]));
  errors = HelperDescriptor(pipes[0]);
  process = HelperTestProcess::Fork([&] {
    ::dup2(sockets[1], STDIN_FILENO);
    ::dup2(pipes[1], STDERR_FILENO);
    HelperDescriptor::CloseAllFrom(STDERR_FILENO + 1);
    return work();
  });
  ::close(sockets[1]);
  ::close(pipes[1]);
}

void HelperTestClient::Start(const std::vector<std::string>& environment,
                             const std::function<void()>& prepare) {
  Fork([&] {
    std::vector<char*> words;
    for (const std::string& each : environment) {
      words.push_back(const_cast<char*>(each.c_str()));
    }
    words.push_back(nullptr);
    prepare();
    const std::array<char*, 1> arguments{nullptr};
    ::execve(OSTREL_HELPER_PATH, arguments.data(), words.data());
    return 127;
  });
}

void HelperTestClient::Serve(const HelperToolTable& tools) {
  Fork([&tools] {
    HelperDescriptor socket(::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
    const HelperDescriptor null(::open("/dev/null", O_RDWR | O_CLOEXEC));
    ::dup2(null.Number(), STDIN_FILENO);
    return RootHelper(std::move(socket), tools, HelperTurn("")).Run();
  });
}

bool HelperTestClient::SendRecord(const std::string& record) const {
  return ::send(channel.Number(), record.data(), record.size(), MSG_NOSIGNAL) ==
         static_cast<ssize_t>(record.size());
}

std::optional<int> HelperTestClient::ReceiveStatus() {
  HelperMessage answer;
  pipe.Close();
  if (channel.Receive(&answer, &pipe) != HelperChannel::Receipt::kMessage) {
    return std::nullopt;
  }
  return answer.Status();
}

std::optional<int> HelperTestClient::Ask(const std::vector<std::string>& words) {
  if (!channel.Send(HelperMessage(HelperMessage::Kind::kRequest, words))) {
    return std::nullopt;
  }
  return ReceiveStatus();
}

bool HelperTestClient::IsGreeted() const {
  HelperMessage hello;
  return channel.Receive(&hello, nullptr) == HelperChannel::Receipt::kMessage &&
         hello.kind == HelperMessage::Kind::kHello && hello.words.empty();
}

int HelperTestClient::Finish() {
  HangUp();
  if (errors.IsOpen()) {
    printed = HelperTestProcess::ReadAll(errors.Number());
  }
  return HelperTestProcess::Wait(std::exchange(process, -1));
}
