// What the root helper is sent: as a record, through its socket, and as a request
// for a tool.

#include <sys/socket.h>

#include <cstdint>
#include <string>

#include "installer/GNUstep/HelperChannel.h"
#include "installer/GNUstep/HelperMessage.h"
#include "installer/GNUstep/HelperToolTable.h"
#include "tests/fuzz/Require.h"

namespace {

bool IsSame(const HelperMessage& first, const HelperMessage& second) {
  return first.kind == second.kind && first.words == second.words;
}

/// The same record by way of the socket.
void RequireReceived(const std::string& record, const std::optional<HelperMessage>& expected) {
  int ends[2];
  Require(socketpair(AF_UNIX, SOCK_SEQPACKET, 0, ends) == 0, "there are sockets");
  HelperDescriptor sender(ends[0]);
  const HelperChannel channel{HelperDescriptor(ends[1])};
  // A record that the socket does not take never arrives.
  if (send(sender.Number(), record.data(), record.size(), MSG_NOSIGNAL) < 0) return;
  HelperMessage message;
  const HelperChannel::Receipt receipt = channel.Receive(&message, nullptr);
  const bool isMessage = receipt == HelperChannel::Receipt::kMessage;
  Require(receipt != HelperChannel::Receipt::kEnd, "a record is not the end");
  Require(isMessage == expected.has_value(), "the socket gives what the record is");
  if (isMessage) Require(IsSame(message, *expected), "a message arrives unchanged");
  sender.Close();
  Require(channel.Receive(&message, nullptr) == HelperChannel::Receipt::kEnd, "then it ends");
}

void RequireHarmless(const std::vector<std::string>& request) {
  static const HelperToolTable table = HelperToolTable::Standard();
  std::vector<std::string> command;
  std::string reason;
  if (table.Resolve(request, &command, &reason) != 0) {
    Require(command.empty() && !reason.empty(), "a refusal has a reason and no command");
    return;
  }
  Require(command.size() >= request.size(), "all that was asked for is in the command");
  Require(command.front().starts_with('/'), "programs are named by absolute paths");
  Require(request.back().starts_with('/'), "every tool ends with an absolute path");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string record(data, data + size);
  const std::optional<HelperMessage> message = HelperMessage::Decode(record);
  RequireReceived(record, message);
  if (!message) return 0;
  Require(message->Encode() == record, "only one record says the same");
  Require(message->words.size() <= HelperMessage::kMaxWords, "the number of words is limited");
  const std::optional<int> status = message->Status();
  if (status) Require(HelperMessage::Answer(*status).Status() == status, "answers can be answered");
  if (message->kind == HelperMessage::Kind::kRequest) RequireHarmless(message->words);
  return 0;
}
