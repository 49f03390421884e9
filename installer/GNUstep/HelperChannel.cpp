#include "installer/GNUstep/HelperChannel.h"

#include <poll.h>
#include <sys/socket.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

namespace {

// Room for one descriptor and for the sender's credentials, aligned as the kernel wants it.
struct ControlBuffer {
  alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int)) + CMSG_SPACE(sizeof(ucred))> bytes{};
};

bool IsIntegerOption(int descriptor, int option, int expected) {
  int value = 0;
  socklen_t size = sizeof(value);
  return ::getsockopt(descriptor, SOL_SOCKET, option, &value, &size) == 0 && value == expected;
}

// Both ends of a pair are without a name; an accepted connection has that of its listener.
bool IsNameless(const sockaddr_storage& address, socklen_t size) {
  return size == sizeof(address.ss_family);
}

void AttachDescriptor(msghdr* header, ControlBuffer* control, int descriptor) {
  header->msg_control = control->bytes.data();
  header->msg_controllen = CMSG_SPACE(sizeof(int));
  cmsghdr* item = CMSG_FIRSTHDR(header);
  item->cmsg_level = SOL_SOCKET;
  item->cmsg_type = SCM_RIGHTS;
  item->cmsg_len = CMSG_LEN(sizeof(int));
  std::memcpy(CMSG_DATA(item), &descriptor, sizeof(int));
}

// What the system says beside the bytes of a record.
struct Attachments {
  HelperDescriptor descriptor;
  pid_t sender = 0;  // No process has this number: it stands for one that is not known.
};

Attachments ReadAttachments(msghdr* header) {
  Attachments found;
  for (cmsghdr* item = CMSG_FIRSTHDR(header); item != nullptr; item = CMSG_NXTHDR(header, item)) {
    if (item->cmsg_level != SOL_SOCKET) {
      continue;
    }
    if (item->cmsg_type == SCM_RIGHTS && item->cmsg_len == CMSG_LEN(sizeof(int))) {
      int descriptor = -1;
      std::memcpy(&descriptor, CMSG_DATA(item), sizeof(int));
      found.descriptor = HelperDescriptor(descriptor);
    }
    if (item->cmsg_type == SCM_CREDENTIALS && item->cmsg_len == CMSG_LEN(sizeof(ucred))) {
      ucred credentials{};
      std::memcpy(&credentials, CMSG_DATA(item), sizeof(credentials));
      found.sender = credentials.pid;
    }
  }
  return found;
}

// recvmsg gives 0 both at the end and for a record without bytes.
bool HasEnded(int socket) {
  pollfd entry{.fd = socket, .events = POLLRDHUP, .revents = {}};
  return ::poll(&entry, 1, 0) == 1;
}

}  // namespace

HelperChannel::HelperChannel(HelperDescriptor socket) : socket(std::move(socket)) {}

bool HelperChannel::IsSuitable(int descriptor) {
  sockaddr_storage own{};
  sockaddr_storage peer{};
  socklen_t ownSize = sizeof(own);
  socklen_t peerSize = sizeof(peer);
  return IsIntegerOption(descriptor, SO_DOMAIN, AF_UNIX) &&
         IsIntegerOption(descriptor, SO_TYPE, SOCK_SEQPACKET) &&
         ::getsockname(descriptor, reinterpret_cast<sockaddr*>(&own), &ownSize) == 0 &&
         ::getpeername(descriptor, reinterpret_cast<sockaddr*>(&peer), &peerSize) == 0 &&
         IsNameless(own, ownSize) && IsNameless(peer, peerSize);
}

bool HelperChannel::TrustOnlyTheMaker() {
  ucred maker{};
  socklen_t size = sizeof(maker);
  const int on = 1;
  // A maker that this process can not see has the number 0, as has a sender that is not known.
  if (::getsockopt(socket.Number(), SOL_SOCKET, SO_PEERCRED, &maker, &size) != 0 ||
      maker.pid <= 0 ||
      ::setsockopt(socket.Number(), SOL_SOCKET, SO_PASSCRED, &on, sizeof(on)) != 0) {
    return false;
  }
  trusted = maker.pid;
  return true;
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
    header.msg_control = control.bytes.data();
    // The credentials come first. The length of one descriptor is without padding, so that no
    // second one fits in unseen.
    header.msg_controllen = (trusted != kAnybody ? CMSG_SPACE(sizeof(ucred)) : 0) +
                            (descriptor != nullptr ? CMSG_LEN(sizeof(int)) : 0);
    received = ::recvmsg(socket.Number(), &header, MSG_CMSG_CLOEXEC);
    // A peer that died with unread answers is told once as a reset; what it sent before is
    // still there to be read.
  } while (received < 0 && (errno == EINTR || errno == ECONNRESET));

  if (received < 0 || (received == 0 && HasEnded(socket.Number()))) {
    return Receipt::kEnd;
  }
  Attachments attached = ReadAttachments(&header);
  if (trusted != kAnybody && attached.sender != trusted) {
    return Receipt::kStranger;
  }
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
    *descriptor = std::move(attached.descriptor);
  }
  return Receipt::kMessage;
}
