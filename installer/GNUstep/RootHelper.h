#pragma once

#include <string>
#include <utility>
#include <vector>

#include "installer/GNUstep/HelperChannel.h"
#include "installer/GNUstep/HelperDescriptor.h"
#include "installer/GNUstep/HelperToolTable.h"
#include "installer/GNUstep/HelperTurn.h"
#include "installer/GNUstep/ToolQueue.h"

/// The program that runs as root on the installer's behalf; everything that
/// holds administrator rights is behind this class.
///
/// It greets, then answers each record it receives with a status. With status 0
/// comes the read end of a pipe, and the tool is put into the queue; whatever
/// the tool table does not accept, whatever is no well-formed request, and
/// whatever another process sent than the one that made the socket, is answered
/// with another status and one line on standard error, and nothing runs.
///
/// Answers never wait for tools. The tools of two helpers never mix: before the
/// first one a helper waits for its turn, which it then has until it ends. When
/// the other end of the socket has gone, or no longer takes answers, the tools
/// accepted so far still run.
class RootHelper {
 public:
  RootHelper(HelperDescriptor socket, HelperToolTable tools, HelperTurn turn);

  /// Serves until the socket is at its end and the queue is empty. Returns the
  /// exit status of the process: 0, or 1 when it could not begin. Blocks
  /// SIGCHLD for good.
  int Run();

 private:
  /// Hands what has been accepted to the queue, once it is this helper's turn.
  void RunAccepted();
  void ServeOneRecord();
  int Accept(const std::vector<std::string>& request, std::vector<std::string>* command,
             HelperDescriptor* readEnd, HelperDescriptor* writeEnd) const;
  void DrainSignals() const;

  HelperChannel channel;
  HelperToolTable tools;
  HelperTurn turn;
  std::vector<std::pair<std::vector<std::string>, HelperDescriptor>> accepted;
  ToolQueue queue;
  HelperDescriptor childSignals;
};
