#pragma once

#include <string>
#include <vector>

#include "installer/GNUstep/HelperChannel.h"
#include "installer/GNUstep/HelperDescriptor.h"
#include "installer/GNUstep/HelperToolTable.h"
#include "installer/GNUstep/ToolQueue.h"

/// The program that runs as root on the installer's behalf; everything that
/// holds administrator rights is behind this class.
///
/// It greets, then answers each record it receives with a status. With status 0
/// comes the read end of a pipe, and the tool is put into the queue; whatever
/// the tool table does not accept, and whatever is no well-formed request, is
/// answered with another status and one line on standard error, and nothing
/// runs. Answers never wait for tools. When the other end of the socket has
/// gone, or no longer takes answers, the tools accepted so far still run.
class RootHelper {
 public:
  RootHelper(HelperDescriptor socket, HelperToolTable tools);

  /// Serves until the socket is at its end and the queue is empty. Returns the
  /// exit status of the process: 0, or 1 when it could not begin. Blocks
  /// SIGCHLD for good.
  int Run();

 private:
  void ServeOneRecord();
  int Accept(const std::vector<std::string>& request, std::vector<std::string>* command,
             HelperDescriptor* readEnd, HelperDescriptor* writeEnd) const;
  void DrainSignals() const;

  HelperChannel channel;
  HelperToolTable tools;
  ToolQueue queue;
  HelperDescriptor childSignals;
};
