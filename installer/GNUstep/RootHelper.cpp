#include "installer/GNUstep/RootHelper.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <utility>

#include "installer/GNUstep/AuthorizationStatus.h"

namespace {

constexpr int kMillisecondsBetweenAttempts = 20;

void PrintRefusal(const std::string& reason) {
  std::fprintf(stderr, "OstrelInstallerHelper: %s\n", reason.c_str());
}

HelperDescriptor ChildSignals() {
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGCHLD);
  ::sigprocmask(SIG_BLOCK, &signals, nullptr);
  return HelperDescriptor(::signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK));
}

}  // namespace

RootHelper::RootHelper(HelperDescriptor socket, HelperToolTable tools, HelperTurn turn)
    : channel(std::move(socket)), tools(std::move(tools)), turn(std::move(turn)) {}

int RootHelper::Run() {
  childSignals = ChildSignals();
  // The installer waits for the greeting, so it has sent nothing yet.
  if (!childSignals.IsOpen() || !channel.TrustOnlyTheMaker() ||
      !channel.Send(HelperMessage(HelperMessage::Kind::kHello, {}))) {
    return 1;
  }
  while (channel.IsOpen() || !accepted.empty() || !queue.IsEmpty()) {
    // poll passes over the socket's entry once it is closed and negative.
    std::array<pollfd, 2> entries{
        {{channel.Number(), POLLIN, 0}, {childSignals.Number(), POLLIN, 0}}};
    // The system does not tell when a turn ends.
    const int patience = accepted.empty() ? -1 : kMillisecondsBetweenAttempts;
    if (::poll(entries.data(), entries.size(), patience) < 0) {
      if (errno == EINTR) {
        continue;
      }
      PrintRefusal(std::strerror(errno));
      return 1;
    }
    if (entries[1].revents != 0) {
      DrainSignals();
      queue.Reap();
    }
    if (entries[0].revents != 0) {
      ServeOneRecord();
    }
    RunAccepted();
  }
  return 0;
}

void RootHelper::RunAccepted() {
  if (accepted.empty() || !turn.Take()) {
    return;
  }
  for (auto& [command, output] : accepted) {
    queue.Add(std::move(command), std::move(output));
  }
  accepted.clear();
}

void RootHelper::ServeOneRecord() {
  HelperMessage message;
  const auto receipt = channel.Receive(&message, nullptr);
  if (receipt == HelperChannel::Receipt::kEnd) {
    channel.Close();
    return;
  }
  int status = kAuthorizationToolEnvironmentError;
  std::vector<std::string> command;
  HelperDescriptor readEnd;
  HelperDescriptor writeEnd;
  if (receipt == HelperChannel::Receipt::kMessage &&
      message.kind == HelperMessage::Kind::kRequest) {
    status = Accept(message.words, &command, &readEnd, &writeEnd);
  } else if (receipt == HelperChannel::Receipt::kStranger) {
    PrintRefusal("A message of another process than the installer was refused.");
  } else {
    PrintRefusal("A message that is not a request was refused.");
  }
  // The installer reads each answer before it asks again. One that does not take answers must not
  // keep the queue from running on.
  if (!channel.SendAtOnce(HelperMessage::Answer(status), readEnd.Number())) {
    channel.Close();
  }
  if (status == kAuthorizationSuccess) {
    accepted.emplace_back(std::move(command), std::move(writeEnd));
  }
}

int RootHelper::Accept(const std::vector<std::string>& request, std::vector<std::string>* command,
                       HelperDescriptor* readEnd, HelperDescriptor* writeEnd) const {
  std::string reason;
  const int status = tools.Resolve(request, command, &reason);
  if (status != kAuthorizationSuccess) {
    PrintRefusal(reason);
    return status;
  }
  std::array<int, 2> ends{};
  if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
    PrintRefusal(std::strerror(errno));
    return kAuthorizationInternal;
  }
  *readEnd = HelperDescriptor(ends[0]);
  *writeEnd = HelperDescriptor(ends[1]);
  return kAuthorizationSuccess;
}

void RootHelper::DrainSignals() const {
  signalfd_siginfo information{};
  while (::read(childSignals.Number(), &information, sizeof(information)) > 0) {
  }
}
