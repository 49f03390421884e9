#pragma once

#include <string>

#include "installer/GNUstep/HelperDescriptor.h"

/// The turn to run tools on this machine, which one root helper has at a time.
///
/// Without it the tools that an ended installer has left in its helper's queue could
/// come between those of the next one, and take away what these have just put there.
/// It is a lock on a folder that only root can open, so nobody else can keep helpers
/// waiting and nothing has to be made or removed. The programs that are started while
/// it is held hold it, too: it is free when the last of them has ended, even if the
/// helper has been killed.
class HelperTurn {
 public:
  /// `folder` can be opened by all who are to take turns, and by nobody else.
  explicit HelperTurn(std::string folder);
  /// That of the machine's root helpers.
  static HelperTurn OfThisMachine();

  /// Takes the turn unless somebody else has it. Never waits. True when it is held, and
  /// also when there is no such folder: better without order than not at all.
  bool Take();

 private:
  std::string folder;
  HelperDescriptor lock;
};
