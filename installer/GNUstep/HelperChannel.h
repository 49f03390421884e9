#pragma once

#include <sys/types.h>

#include "installer/GNUstep/HelperDescriptor.h"
#include "installer/GNUstep/HelperMessage.h"

/// One end of the socket between the installer and its root helper; owns it.
///
/// The socket is a connected pair of AF_UNIX and SOCK_SEQPACKET: it keeps
/// record boundaries, and its end is seen when the other process has gone. No
/// operation raises SIGPIPE. The process that makes the pair is its maker, also
/// after one end has been handed to another program.
class HelperChannel {
 public:
  enum class Receipt {
    kMessage,    ///< A well-formed message was received.
    kMalformed,  ///< Something else was received, which is dropped.
    kStranger,   ///< A record of a process that is not trusted was received, and dropped.
    kEnd,        ///< The other end has gone, or there is no socket.
  };

  HelperChannel() = default;
  explicit HelperChannel(HelperDescriptor socket);

  /// Whether `descriptor` is a connected socket of the kind described above. A
  /// connection that came in under a name is none: anybody might have made it.
  static bool IsSuitable(int descriptor);

  bool IsOpen() const { return socket.IsOpen(); }
  /// The socket, for poll, or -1.
  int Number() const { return socket.Number(); }
  void Close() { socket.Close(); }

  /// From now on receives from the pair's maker only. Records that wait already
  /// are a stranger's, since nobody noted who sent them. False when the system
  /// does not tell who made the pair.
  bool TrustOnlyTheMaker();

  /// Sends `message`, waiting for room. False when it can not be encoded or
  /// the other end has gone.
  bool Send(const HelperMessage& message) const;
  /// The same without waiting, with a copy of `descriptor` when it is not
  /// negative; false also when there is no room.
  bool SendAtOnce(const HelperMessage& message, int descriptor) const;

  /// Waits for the next record. A descriptor that comes with a message is put
  /// into `*descriptor`; with a null `descriptor` such a message is malformed.
  Receipt Receive(HelperMessage* message, HelperDescriptor* descriptor) const;

 private:
  bool SendRecord(const HelperMessage& message, int descriptor, int flags) const;

  HelperDescriptor socket;
  pid_t trusted = kAnybody;

  static constexpr pid_t kAnybody = -1;
};
