#pragma once

#include <sys/types.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "installer/GNUstep/HelperChannel.h"
#include "installer/GNUstep/HelperDescriptor.h"
#include "installer/GNUstep/HelperToolTable.h"

/// The other side of a root helper under test: starts one as a child of this
/// process, so that its exit status can be seen, and talks to it record by
/// record. At the end it hangs up and waits.
class HelperTestClient {
 public:
  HelperTestClient() = default;
  ~HelperTestClient();
  HelperTestClient(const HelperTestClient&) = delete;
  HelperTestClient& operator=(const HelperTestClient&) = delete;

  /// Starts the real program. `prepare` runs in the child, with the socket at
  /// standard input and standard error going to `Errors`.
  void Start(
      const std::vector<std::string>& environment = {},
      const std::function<void()>& prepare = [] {});
  /// Runs the same service with other tools in a child; it waits for no turn.
  void Serve(const HelperToolTable& tools);

  /// Sends a record as it is. False when the helper has gone.
  bool SendRecord(const std::string& record) const;
  /// The status in the next answer, whose pipe is kept as `Pipe`; nothing at the end.
  std::optional<int> ReceiveStatus();
  /// Sends a request and receives its answer.
  std::optional<int> Ask(const std::vector<std::string>& words);
  /// Receives the first message and tells whether it is the greeting.
  bool IsGreeted() const;

  /// The read end that came with the last answer.
  const HelperDescriptor& Pipe() const { return pipe; }
  HelperDescriptor TakePipe() { return std::move(pipe); }
  int Socket() const { return channel.Number(); }
  pid_t Process() const { return process; }

  void HangUp() { channel.Close(); }
  /// Closes the reading side of the helper's standard error.
  void StopReadingErrors() { errors.Close(); }
  /// Hangs up, waits, and returns the exit status or minus the signal.
  int Finish();
  /// After Finish: all that was printed on standard error.
  const std::string& Errors() const { return printed; }

 private:
  void Fork(const std::function<int()>& work);

  HelperChannel channel;
  HelperDescriptor errors;
  HelperDescriptor pipe;
  std::string printed;
  pid_t process = -1;
};
