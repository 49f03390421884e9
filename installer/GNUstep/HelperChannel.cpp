#include "installer/GNUstep/HelperChannel.h"

#include <poll.h>
#include <sys/socket.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

namespace {

// Room for exactly one descriptor, aligned as the kernel wants it.
struct ControlBuffer {
  alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int))> bytes{};
};

bool IsIntegerOption(int descriptor, int option, int expected) {
  int value = 0;
  socklen_t size = sizeof(value);
  return ::getsockopt(descriptor, SOL_SOCKET, option, &value, &size) == 0 && value == expected;
}

void AttachDescriptor(msghdr* header, ControlBuffer* control, int descriptor) {
  header->msg_control = control->bytes.data();
  header->msg_controllen = control->bytes.size();
  cmsghdr* item = CMSG_FIRSTHDR(header);
  item->cmsg_level = SOL_SOCKET;
  item->cmsg_type = SCM_RIGHTS;
  item->cmsg_len = CMSG_LEN(sizeof(int));
  std::memcpy(CMSG_DATA(item), &descriptor, sizeof(int));
}

HelperDescriptor AttachedDescriptor(msghdr* header) {
  const cmsghdr* item = CMSG_FIRSTHDR(header);
  if (item == nullptr || item->cmsg_level != SOL_SOCKET || item->cmsg_type != SCM_RIGHTS ||
      item->cmsg_len != CMSG_LEN(sizeof(int))) {
    return HelperDescriptor();
  }
  int descriptor = -1;
  std::memcpy(&descriptor, CMSG_DATA(item), sizeof(int));
  return HelperDescriptor(descriptor);
}

// recvmsg gives 0 both at the end and for a record without bytes.
bool HasEnded(int socket) {
  pollfd entry{socket, POLLRDHUP, 0};
  return ::poll(&entry, 1, 0) == 1;
}

}  // namespace

HelperChannel::HelperChannel(HelperDescriptor socket) : socket(std::move(socket)) {}

bool HelperChannel::IsSuitable(int descriptor) {
  sockaddr_storage peer{};
  socklen_t size = sizeof(peer);
  return IsIntegerOption(descriptor, SO_DOMAIN, AF_UNIX) &&
         IsIntegerOption(descriptor, SO_TYPE, SOCK_SEQPACKET) &&
         ::getpeername(descriptor, reinterpret_cast<sockaddr*>(&peer), &size) == 0;
}

bool HelperChannel::Send(const HelperMessage& message) const { return SendRecord(message, -1, 0); }

bool HelperChannel::SendAtOnce(const HelperMessage& message, int descriptor) const {
  return SendRecord(message, descriptor, MSG_DONTWAIT);
}

bool HelperChannel::SendRecord(const HelperMessage& message, int descriptor, int flags) const {
  auto record = message.Encode();
  if (!record || !socket.IsOpen()) {
    return false;
  }
  iovec part{record->data(), record->size()};
  msghdr header{};
  header.msg_iov = &part;
  header.msg_iovlen = 1;
  ControlBuffer control;
  if (descriptor >= 0) {
    AttachDescriptor(&header, &control, descriptor);
  }
  ssize_t sent = -1;
  do {
    sent = ::sendmsg(socket.Number(), &header, flags | MSG_NOSIGNAL);
  } while (sent < 0 && errno == EINTR);
  return sent == static_cast<ssize_t>(record->size());
}

HelperChannel::Receipt HelperChannel::Receive(HelperMessage* message,
                                              HelperDescriptor* descriptor) const {
  std::string record(HelperMessage::kMaxBytes, '\0');
  iovec part{record.data(), record.size()};
  msghdr header{};
  ControlBuffer control;
  ssize_t received = -1;
  do {
    header = {};
    header.msg_iov = &part;
    header.msg_iovlen = 1;
    if (descriptor != nullptr) {
      // The length of one descriptor without padding, so that no second one fits in unseen.
      header.msg_control = control.bytes.data();
      header.msg_controllen = CMSG_LEN(sizeof(int));
    }
    received = ::recvmsg(socket.Number(), &header, MSG_CMSG_CLOEXEC);
    // A peer that died with unread answers is told once as a reset; what it sent before is
    // still there to be read.
  } while (received < 0 && (errno == EINTR || errno == ECONNRESET));

  if (received < 0 || (received == 0 && HasEnded(socket.Number()))) {
    return Receipt::kEnd;
  }
  HelperDescriptor attached = AttachedDescriptor(&header);
  if ((header.msg_flags & (MSG_TRUNC | MSG_CTRUNC)) != 0) {
    return Receipt::kMalformed;
  }
  record.resize(static_cast<std::size_t>(received));
  auto decoded = HelperMessage::Decode(record);
  if (!decoded) {
    return Receipt::kMalformed;
  }
  *message = std::move(*decoded);
  if (descriptor != nullptr) {
    *descriptor = std::move(attached);
  }
  return Receipt::kMessage;
}
